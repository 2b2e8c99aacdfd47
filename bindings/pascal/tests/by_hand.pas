{ What the examples and the corpus cannot show: errors, lists, exceptions of floating point, polygons, climate files,
  threads. }
program by_hand;

{$mode objfpc}{$H+}{$R-}

uses
  {$ifdef unix}cthreads,{$endif}
  Classes, SysUtils, Math, Quorvel, QuorvelTypes, QuorvelUnchecked, QuorvelFaults, QuorvelByReference,
  QuorvelFloatingPoint, QuorvelPolygons, QuorvelClimateFile, Testing;

type
  TCall = procedure;

  TSummer = class(TThread)
  private
    FSum: Double;
  protected
    procedure Execute; override;
  end;

const
  Three: LongInt = 3; { a variable, so that no compiler sees that there is no such value }

procedure ExpectError(Call: TCall; const Text: string);
begin
  try
    Call;
    Expect(False, Text);
  except
    on Error: EQuorvelError do Expect(Error.Message = Text, Text + ', not ' + Error.Message);
  end;
end;

procedure TooHot; begin Quorvel.SaturationPressure(250) end;
procedure JustTooHot; begin Quorvel.SaturationPressure(200.00002) end;
procedure NoNumber; begin Quorvel.SaturationPressure(NaN) end;
procedure TooFar; begin Quorvel.HeightFactor(Infinity, 0.5) end;
procedure NoSuchPsychrometer; begin Quorvel.VapourPressureFromPsychrometer(25, 20, 101325, TPsychrometer(Three)) end;
procedure UnevenLists; begin Quorvel.PlanArea([0, 0, 4, 4], [0, 3, 3]) end;
procedure TwoVertices; begin Quorvel.PlanArea([0, 4], [0, 3]) end;
procedure BadLayer; begin Quorvel.UValue([0.1, 0.2, 0.1], [1, 1, -1], 0.12, 0.06) end;
procedure ShortVector; begin Quorvel.VectorLength([3, 4]) end;

procedure NoSuchRow;
var
  F: TClimateFile;
begin
  F := TClimateFile.Create('example.climate');
  try
    F.StationRow(1, 172);
  finally
    F.Free;
  end;
end;

procedure Errors;
begin
  ExpectError(@TooHot, 'SaturationPressure: Temperature is 250; valid -100 to 200 degC');
  ExpectError(@JustTooHot, 'SaturationPressure: Temperature is 200.00002; valid -100 to 200 degC');
  ExpectError(@NoNumber, 'SaturationPressure: Temperature is not a number; valid -100 to 200 degC');
  ExpectError(@TooFar, 'HeightFactor: SiteHeight is infinite; valid 0 to 4000 m');
  ExpectError(@NoSuchPsychrometer, 'VapourPressureFromPsychrometer: Psychrometer is 3; valid 1 (Sling), 2 (Screen)');
  ExpectError(@UnevenLists, 'PlanArea: Y has 3 elements, X has 4');
  ExpectError(@TwoVertices, 'PlanArea: X has 2 elements; valid from 3');
  ExpectError(@BadLayer, 'UValue: Conductivity[2] is -1; valid from 0 W/mK');
  ExpectError(@ShortVector, 'VectorLength: Vector has 2 elements, not 3');
end;

procedure WhatIsLeftAloneIsNotANumber;
var
  Wall: array[0..20] of Single;
  Shares: TSingles;
begin
  FillDWord(Wall, System.Length(Wall), DWord(Single(1.0)));
  Expect(IsNan(QuorvelUnchecked.UValue(Wall, Wall, 0.12, 0.06)), 'of too many layers');
  Expect(IsNan(QuorvelUnchecked.SolarGeometry(3, 172, 12).Sunrise), 'of a latitude beyond the pole');
  Shares := Quorvel.UnitDirectShares(0.6, 0.1, 0.3, 2).PaneShares;
  Expect((System.Length(Shares) = 2) and (Shares[0] > 0) and (Shares[1] > 0), 'as many shares as panes');
  Shares := QuorvelUnchecked.UnitDirectShares(0.6, 0.1, 0.3, MaxInt).PaneShares;
  Expect(System.Length(Shares) = 5, 'no more room than there may be');
end;

{ A program's own arithmetic goes on with the exceptions that it had. }
procedure ExceptionsOfFloatingPoint;
var
  Zero: Double;
begin
  Zero := 0;
  Expect(IsNan(QuorvelUnchecked.SaturationPressure(NaN)), 'what is not a number passes');
  Expect(GetExceptionMask = [exDenormalized, exUnderflow, exPrecision], 'the mask is as it was');
  try
    Expect(IsNan(1 / Zero), 'not reached');
    Expect(False, 'a division by zero');
  except
    on EMathError do Expect(True, '');
  end;
end;

{ A regular polygon, clockwise. }
function Regular(Vertices: LongInt; Radius, X, Y: Double): TPolygon;
var
  K: LongInt;
begin
  Result := nil;
  SetLength(Result, Vertices);
  for K := 0 to Vertices - 1 do
    Result[K] := PlanPoint(X + Radius * Sin(2 * Pi * K / Vertices), Y + Radius * Cos(2 * Pi * K / Vertices));
end;

procedure Polygons;
var
  A: TPolygon;
  Clipped: TClipped;
  Vertices: LongInt;
begin
  Vertices := 3;
  while Vertices < 300 do
  begin
    A := Regular(Vertices, 2, 0, 0);
    Clipped := QuorvelPolygons.Clip(A, Regular(4, 1.5, 1, 0.3));
    Expect((Abs(TotalArea(Clipped.Difference) + TotalArea(Clipped.Overlap) - PolygonArea(A)) < 1e-9)
      and (TotalArea(Clipped.Overlap) > 0), 'areas add up');
    Inc(Vertices, 27);
  end;
  Clipped := QuorvelPolygons.Clip(A, Regular(5, 0.5, 0, 0));
  Expect((System.Length(Clipped.Difference) = 2) and (System.Length(Clipped.Overlap) = 1), 'a hole');
  try
    QuorvelPolygons.Clip(A, nil);
    Expect(False, 'no polygon');
  except
    on Error: EClippingError do Expect(Error.Status = 2, 'no polygon: ' + Error.Message);
  end;
end;

{ An object against the routines by reference. }
procedure ClimateFiles;
var
  F: TClimateFile;
  Climate: TClimateOfMonth;
  Row, RowByReference: TMonths;
  Left: array[1..9] of Single;
  Band: TBandOfStation;
  Value: Single;
  State: TFloatingPointState;
begin
  try
    TClimateFile.Create('no such file');
    Expect(False, 'no such file');
  except
    on EClimateFileError do Expect(True, '');
  end;
  ExpectError(@NoSuchRow, 'StationRow: Row is 172; valid 1 to 171');
  F := TClimateFile.Create('example.climate');
  try
    Climate := F.StationClimate(7, 3, 5, TBandSet.Second);
    Row := F.StationRow(7, 12);
    Band := F.LocateStationBand(7, TBandSet.Second, 0.4, 5);
    State := MaskExceptions;
    OpenExample;
    CLBNFI(Ord(TFileUnit.OpenedLast), 7, 3, 5, 2, 0, Left[1], Left[2], Left[3], Left[4], Left[5], Left[6], Left[7],
      Left[8], Left[9]);
    CLBNF3(12, @RowByReference);
    CLBNF2(12, Band.LowerBand, Band.UpperBand, 5, Band.BandWeight, Value);
    RestoreExceptions(State);
    Expect(CompareMem(@Climate, @Left, SizeOf(Left)), 'climate of a month');
    Expect(CompareMem(@Row, @RowByReference, SizeOf(Row)), 'row of a station');
    Expect((Band.LowerBand < Band.UpperBand) and InRange(Band.BandWeight, 0, 1), 'between two bands');
    Expect(F.InterpolateStationRows(7, 12, Band.LowerBand, Band.UpperBand, 5, Band.BandWeight) = Value, 'between rows');
    try
      F.StationRow(5000, 1);
      Expect(False, 'no such station');
    except
      on EClimateFileError do Expect(True, '');
    end;
  finally
    F.Free;
  end;
end;

procedure TSummer.Execute;
var
  I: LongInt;
begin
  FSum := 0;
  for I := 1 to 20000 do FSum := FSum + Quorvel.SaturationPressure(-100 + 300.0 * I / 20000);
end;

procedure Threads;
var
  Summers: array[0..3] of TSummer;
  I: LongInt;
begin
  for I := 0 to High(Summers) do Summers[I] := TSummer.Create(False);
  for I := 0 to High(Summers) do
  begin
    Summers[I].WaitFor;
    Expect((Summers[I].FatalException = nil) and (Summers[I].FSum > 0), 'a thread');
    Expect(Summers[I].FSum = Summers[0].FSum, 'all threads alike');
  end;
  for I := 0 to High(Summers) do Summers[I].Free;
end;

begin
  Errors;
  WhatIsLeftAloneIsNotANumber;
  ExceptionsOfFloatingPoint;
  Polygons;
  ClimateFiles;
  Threads;
  Finish(44);
end.
