{ What the tests of the units have in common. }
unit Testing;

{$mode objfpc}{$H+}{$R-}{$Q-}

interface

uses
  Math;

const
  Untouched = $C5; { each byte of what the corpus has in an output before the call }

procedure Expect(Condition: Boolean; const What: string);
{ The first ones of a list may be expected. }
generic procedure ExpectNear<T>(const What: string; Got: Pointer; const Wanted: array of Double; Tolerance: Double);

{ Equal to the bit, or both not numbers; if Loose, what a call left as it was may be anything. }
function SameSingles(Got, Left: PLongWord; Count: SizeInt; Loose: Boolean): Boolean;
function SameDoubles(Got, Left: PQWord; Count: SizeInt; Loose: Boolean): Boolean;
function SameLongInts(Got, Left: PLongWord; Count: SizeInt; Loose: Boolean): Boolean;

{ The corpus of a routine, case by case. }
procedure OpenCorpus(const Name: string; Cases: LongInt);
function MoreCases: Boolean;
{ Whether the counts of a call are such that lists can tell them. }
function InOrder(CountsAre: Boolean): Boolean;
procedure Take(var Value; Size: SizeInt);

{ The state with which the corpus begins. }
procedure OpenExample;

{ No fewer checks than that must have been made. }
procedure Finish(Least: LongInt);

implementation

uses
  Classes, SysUtils, QuorvelByReference;

var
  Corpus: TMemoryStream;
  Opened: string;
  CasesLeft, OrdersAsked, OrdersFound, Checks, Failures: LongInt;

procedure Expect(Condition: Boolean; const What: string);
begin
  Inc(Checks);
  if Condition then Exit;
  Inc(Failures);
  if Failures <= 50 then WriteLn(StdErr, 'failed: ', What);
end;

generic procedure ExpectNear<T>(const What: string; Got: Pointer; const Wanted: array of Double; Tolerance: Double);
var
  I: SizeInt;
  Number: T;
begin
  for I := 0 to High(Wanted) do
  begin
    Move(PByte(Got)[I * SizeOf(T)], Number, SizeOf(T));
    Expect(not IsNan(Double(Number)) and (Abs(Double(Number) - Wanted[I]) <= Tolerance), What);
  end;
end;

function SameSingles(Got, Left: PLongWord; Count: SizeInt; Loose: Boolean): Boolean;
const
  Infinite = $7F800000;
  Size = $7FFFFFFF;
var
  I: SizeInt;
begin
  for I := 0 to Count - 1 do
    if (Got[I] <> Left[I]) and not (((Got[I] and Size) > Infinite) and ((Left[I] and Size) > Infinite))
      and not (Loose and (Left[I] = $C5C5C5C5)) then Exit(False);
  Result := True;
end;

function SameDoubles(Got, Left: PQWord; Count: SizeInt; Loose: Boolean): Boolean;
const
  Infinite = QWord($7FF0000000000000);
  Size = QWord($7FFFFFFFFFFFFFFF);
var
  I: SizeInt;
begin
  for I := 0 to Count - 1 do
    if (Got[I] <> Left[I]) and not (((Got[I] and Size) > Infinite) and ((Left[I] and Size) > Infinite))
      and not (Loose and (Left[I] = QWord($C5C5C5C5C5C5C5C5))) then Exit(False);
  Result := True;
end;

function SameLongInts(Got, Left: PLongWord; Count: SizeInt; Loose: Boolean): Boolean;
var
  I: SizeInt;
begin
  for I := 0 to Count - 1 do
    if (Got[I] <> Left[I]) and not (Loose and (Left[I] = $C5C5C5C5)) then Exit(False);
  Result := True;
end;

procedure OpenCorpus(const Name: string; Cases: LongInt);
begin
  Corpus.LoadFromFile('corpus' + PathDelim + Name);
  Corpus.Position := 0;
  Opened := Name;
  CasesLeft := Cases;
  OrdersAsked := 0;
  OrdersFound := 0;
end;

function MoreCases: Boolean;
begin
  Result := CasesLeft > 0;
  Dec(CasesLeft);
  if Result then Exit;
  Expect(Corpus.Position = Corpus.Size, 'all that there is of ' + Opened);
  Expect(2 * OrdersFound >= OrdersAsked, 'most calls have counts that a list can tell: ' + Opened);
end;

function InOrder(CountsAre: Boolean): Boolean;
begin
  Result := CountsAre;
  Inc(OrdersAsked);
  if Result then Inc(OrdersFound);
end;

procedure Take(var Value; Size: SizeInt);
begin
  Corpus.ReadBuffer(Value, Size);
end;

procedure OpenExample;
var
  Records: array[1..132] of Single;
  I: LongInt;
begin
  for I := 1 to 132 do Records[I] := 1;
  CLBNF0('example.climate', 1, 0, @Records);
end;

procedure Finish(Least: LongInt);
begin
  WriteLn(Checks, ' checks, ', Failures, ' failures');
  if (Failures > 0) or (Checks < Least) then Halt(1);
end;

initialization
  Corpus := TMemoryStream.Create;
finalization
  Corpus.Free;
end.
