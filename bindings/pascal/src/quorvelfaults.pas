{ The error that the functions raise, and what finds it. A comparison with what is not a number would itself be an
  exception of floating point, so that this is asked first. }
unit QuorvelFaults;

{$mode objfpc}{$H+}{$R-}{$Q-}

interface

uses
  SysUtils;

type
  { A range that is left, a value that is not a number, or a list that has not as many elements as it must have. }
  EQuorvelError = class(ERangeError)
  private
    FRoutine, FArgument: string;
  public
    constructor Create(const ARoutine, AArgument, What: string);
    property Routine: string read FRoutine;
    property Argument: string read FArgument;
  end;

procedure ExpectSingle(const Routine, Argument: string; Value, Low, High: Single; const Valid: string);
procedure ExpectDouble(const Routine, Argument: string; Value, Low, High: Double; const Valid: string);
procedure ExpectLongInt(const Routine, Argument: string; Value, Low, High: LongInt; const Valid: string);

{ All of so many numbers. }
procedure ExpectSingles(const Routine, Argument: string; First: PSingle; Count: SizeInt; Low, High: Single;
  const Valid: string);
procedure ExpectDoubles(const Routine, Argument: string; First: PDouble; Count: SizeInt; Low, High: Double;
  const Valid: string);
procedure ExpectLongInts(const Routine, Argument: string; First: PLongInt; Count: SizeInt; Low, High: LongInt;
  const Valid: string);

procedure ExpectLength(const Routine, Argument: string; Length, Valid: SizeInt);
procedure ExpectAsMany(const Routine, Argument: string; Length: SizeInt; const Other: string; LengthOfOther: SizeInt);
procedure ExpectCount(const Routine, Argument: string; Length, Low, High: SizeInt);

implementation

uses
  Math;

constructor EQuorvelError.Create(const ARoutine, AArgument, What: string);
begin
  inherited CreateFmt('%s: %s %s', [ARoutine, AArgument, What]);
  FRoutine := ARoutine;
  FArgument := AArgument;
end;

function IsValid(Value, Low, High: Single): Boolean; inline;
begin
  Result := not IsNan(Value) and (Value >= Low) and (Value <= High);
end;

function IsValid(Value, Low, High: Double): Boolean; inline;
begin
  Result := not IsNan(Value) and (Value >= Low) and (Value <= High);
end;

{ As few digits as tell it from others, with a point whatever the locale says. }
function InDigits(Value: Double; IsSingle: Boolean): string;
var
  Settings: TFormatSettings;
  Digits: Integer;
  Back: Double;
begin
  if IsNan(Value) then Exit('not a number');
  if IsInfinite(Value) then Exit(BoolToStr(Value > 0, 'infinite', '-infinite'));
  Settings := DefaultFormatSettings;
  Settings.DecimalSeparator := '.';
  for Digits := 6 to 17 do
  begin
    Result := FloatToStrF(Value, ffGeneral, Digits, 0, Settings);
    Back := StrToFloat(Result, Settings);
    if Back = Value then Break;
    if IsSingle and (Abs(Back) <= MaxSingle) and (Single(Back) = Single(Value)) then Break;
  end;
end;

procedure Refuse(const Routine, Argument, Value, Valid: string);
begin
  raise EQuorvelError.Create(Routine, Argument, Format('is %s; %s', [Value, Valid]));
end;

procedure ExpectSingle(const Routine, Argument: string; Value, Low, High: Single; const Valid: string);
begin
  if not IsValid(Value, Low, High) then Refuse(Routine, Argument, InDigits(Value, True), Valid);
end;

procedure ExpectDouble(const Routine, Argument: string; Value, Low, High: Double; const Valid: string);
begin
  if not IsValid(Value, Low, High) then Refuse(Routine, Argument, InDigits(Value, False), Valid);
end;

procedure ExpectLongInt(const Routine, Argument: string; Value, Low, High: LongInt; const Valid: string);
begin
  if (Value < Low) or (Value > High) then Refuse(Routine, Argument, IntToStr(Value), Valid);
end;

procedure ExpectSingles(const Routine, Argument: string; First: PSingle; Count: SizeInt; Low, High: Single;
  const Valid: string);
var
  I: SizeInt;
begin
  for I := 0 to Count - 1 do
    if not IsValid(First[I], Low, High) then
      Refuse(Routine, Format('%s[%d]', [Argument, I]), InDigits(First[I], True), Valid);
end;

procedure ExpectDoubles(const Routine, Argument: string; First: PDouble; Count: SizeInt; Low, High: Double;
  const Valid: string);
var
  I: SizeInt;
begin
  for I := 0 to Count - 1 do
    if not IsValid(First[I], Low, High) then
      Refuse(Routine, Format('%s[%d]', [Argument, I]), InDigits(First[I], False), Valid);
end;

procedure ExpectLongInts(const Routine, Argument: string; First: PLongInt; Count: SizeInt; Low, High: LongInt;
  const Valid: string);
var
  I: SizeInt;
begin
  for I := 0 to Count - 1 do
    if (First[I] < Low) or (First[I] > High) then
      Refuse(Routine, Format('%s[%d]', [Argument, I]), IntToStr(First[I]), Valid);
end;

procedure ExpectLength(const Routine, Argument: string; Length, Valid: SizeInt);
begin
  if Length <> Valid then
    raise EQuorvelError.Create(Routine, Argument, Format('has %d elements, not %d', [Length, Valid]));
end;

procedure ExpectAsMany(const Routine, Argument: string; Length: SizeInt; const Other: string; LengthOfOther: SizeInt);
begin
  if Length <> LengthOfOther then
    raise EQuorvelError.Create(Routine, Argument, Format('has %d elements, %s has %d', [Length, Other, LengthOfOther]));
end;

procedure ExpectCount(const Routine, Argument: string; Length, Low, High: SizeInt);
var
  Limits: string;
begin
  if (Length >= Low) and (Length <= High) then Exit;
  Limits := Format('from %d', [Low]);
  if High < MaxInt then Limits := Format('%d to %d', [Low, High]);
  raise EQuorvelError.Create(Routine, Argument, Format('has %d elements; valid %s', [Length, Limits]));
end;

end.
