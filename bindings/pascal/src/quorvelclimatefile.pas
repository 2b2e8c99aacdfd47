{ Climate data files as objects. }
unit QuorvelClimateFile;

{$mode objfpc}{$H+}

interface

uses
  SysUtils, QuorvelTypes;

type
  { Climate of a month: the quantities of the file, in its units (Q1 and Q2 not below 0, Q7 from 0 to 1), and hours of
    the day. }
  TClimateOfMonth = record
    Q: array[1..7] of Single;
    TimeA, TimeB: Single;
  end;

  { Between which bands a cumulative fraction of days lies, 1 to 10, and how far from the lower one. }
  TBandOfStation = record
    LowerBand, UpperBand: LongInt;
    BandWeight: Single;
  end;

  { A value for each month. }
  TMonths = array[1..12] of Single;

  { Of each month, given: [10] set of bands, [11] percentage of days. Returned: [1] to [9] Q4, Q6, time B, Q3, Q5, time
    A, Q1, Q2, Q7. }
  TStationRecords = array[1..12, 1..11] of Single;

  EClimateFileError = class(EInOutError);

  { An open file. One thread at a time may use an object; objects have nothing in common. What lies outside a range
    raises EQuorvelError, what cannot be read EClimateFileError. }
  TClimateFile = class
  private
    FHandle: Pointer;
    FFileName: string;
    procedure ExpectRead(Station, Status: LongInt);
  public
    constructor Create(const AFileName: string);
    destructor Destroy; override;
    property FileName: string read FFileName;
    { Of a band from 1 to 10 or, for band 0, at a cumulative percentage of days. (CLBNFI) }
    function StationClimate(Station, Band, Month: LongInt; BandSet: TBandSet; Percentage: Single = 0): TClimateOfMonth;
    { Where a cumulative fraction of days, 0 to 1, lies among the bands of a month. (CLBNF1) }
    function LocateStationBand(Station: LongInt; BandSet: TBandSet; Fraction: Single; Month: LongInt): TBandOfStation;
    { Between the rows BaseRow + LowerBand and BaseRow + UpperBand. (CLBNF2) }
    function InterpolateStationRows(Station, BaseRow, LowerBand, UpperBand, Month: LongInt; BandWeight: Single): Single;
    { A row from 1 to 171: 1 time A, 2 time B, 3 to 12 frequencies of the bands, 13 to 82 Q1 to Q7, ten each; 82 more in
      set 2. (CLBNF3) }
    function StationRow(Station, Row: LongInt): TMonths;
    { The record of a month, or all for month 0. (CLBNF0) }
    procedure GetStationRecords(Station, Month: LongInt; var Records: TStationRecords);
  end;

implementation

uses
  QuorvelByReference, QuorvelClimateChecks, QuorvelFloatingPoint;

function quorvel_climate_file_open(Path: PAnsiChar; out Status: LongInt): Pointer; cdecl; external ArrayLibrary;
procedure quorvel_climate_file_close(Handle: Pointer); cdecl; external ArrayLibrary;
function quorvel_climate_file_station_climate(Handle: Pointer; Station, Band, Month, BandSet: LongInt;
  Percentage: Single; Quantities, Times: PSingle): LongInt; cdecl; external ArrayLibrary;
function quorvel_climate_file_locate_station_band(Handle: Pointer; Station, BandSet: LongInt; Fraction: Single;
  Month: LongInt; var LowerBand, UpperBand: LongInt; var BandWeight: Single): LongInt; cdecl; external ArrayLibrary;
function quorvel_climate_file_interpolate_station_rows(Handle: Pointer; Station, BaseRow, LowerBand, UpperBand,
  Month: LongInt; BandWeight: Single; var Value: Single): LongInt; cdecl; external ArrayLibrary;
function quorvel_climate_file_station_row(Handle: Pointer; Station, Row: LongInt; Values: PSingle): LongInt; cdecl;
  external ArrayLibrary;
function quorvel_climate_file_station_records(Handle: Pointer; Station, Month: LongInt; Records: PSingle): LongInt;
  cdecl; external ArrayLibrary;

constructor TClimateFile.Create(const AFileName: string);
var
  Status: LongInt;
begin
  FFileName := AFileName;
  FHandle := quorvel_climate_file_open(PAnsiChar(AnsiString(AFileName)), Status);
  if FHandle = nil then raise EClimateFileError.CreateFmt('climate data file %s cannot be opened', [AFileName]);
end;

destructor TClimateFile.Destroy;
begin
  quorvel_climate_file_close(FHandle);
  inherited;
end;

procedure TClimateFile.ExpectRead(Station, Status: LongInt);
begin
  if Status <> 0 then
    raise EClimateFileError.CreateFmt('climate data file %s: station %d cannot be read', [FFileName, Station]);
end;

function TClimateFile.StationClimate(Station, Band, Month: LongInt; BandSet: TBandSet;
  Percentage: Single): TClimateOfMonth;
var
  Times: array[0..1] of Single;
  State: TFloatingPointState;
  Status: LongInt;
begin
  CheckStationClimate(TFileUnit.OpenedLast, Station, Band, Month, BandSet, Percentage);
  State := MaskExceptions;
  Status := quorvel_climate_file_station_climate(FHandle, Station, Band, Month, Ord(BandSet), Percentage, @Result.Q,
    @Times);
  RestoreExceptions(State);
  ExpectRead(Station, Status);
  Result.TimeA := Times[0];
  Result.TimeB := Times[1];
end;

function TClimateFile.LocateStationBand(Station: LongInt; BandSet: TBandSet; Fraction: Single;
  Month: LongInt): TBandOfStation;
var
  State: TFloatingPointState;
  Status: LongInt;
begin
  CheckLocateStationBand(Fraction, Month);
  State := MaskExceptions;
  Status := quorvel_climate_file_locate_station_band(FHandle, Station, Ord(BandSet), Fraction, Month, Result.LowerBand,
    Result.UpperBand, Result.BandWeight);
  RestoreExceptions(State);
  ExpectRead(Station, Status);
end;

function TClimateFile.InterpolateStationRows(Station, BaseRow, LowerBand, UpperBand, Month: LongInt;
  BandWeight: Single): Single;
var
  State: TFloatingPointState;
  Status: LongInt;
begin
  CheckInterpolateStationRows(BaseRow, LowerBand, UpperBand, Month, BandWeight);
  State := MaskExceptions;
  Status := quorvel_climate_file_interpolate_station_rows(FHandle, Station, BaseRow, LowerBand, UpperBand, Month,
    BandWeight, Result);
  RestoreExceptions(State);
  ExpectRead(Station, Status);
end;

function TClimateFile.StationRow(Station, Row: LongInt): TMonths;
begin
  CheckStationRow(Row);
  ExpectRead(Station, quorvel_climate_file_station_row(FHandle, Station, Row, @Result));
end;

procedure TClimateFile.GetStationRecords(Station, Month: LongInt; var Records: TStationRecords);
var
  State: TFloatingPointState;
  Status: LongInt;
begin
  CheckStationRecords(Station, Month, TSingle12x11(Records));
  State := MaskExceptions;
  Status := quorvel_climate_file_station_records(FHandle, Station, Month, @Records);
  RestoreExceptions(State);
  ExpectRead(Station, Status);
end;

end.
