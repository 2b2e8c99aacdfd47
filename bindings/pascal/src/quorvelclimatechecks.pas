{ Produced from the catalogue of routines (catalogue/); do not edit. }

{ Whether what is asked of a climate data file lies in its ranges. }
unit QuorvelClimateChecks;

{$mode objfpc}{$H+}{$R-}{$T-}

interface

uses
  QuorvelTypes;

procedure CheckStationRecords(Station: LongInt; Month: LongInt; const StationRecords: TSingle12x11);
procedure CheckStationClimate(FileUnit: TFileUnit; Station: LongInt; Band: LongInt; Month: LongInt; BandSet: TBandSet;
  Percentage: Single);
procedure CheckLocateStationBand(Fraction: Single; Month: LongInt);
procedure CheckInterpolateStationRows(BaseRow: LongInt; LowerBand: LongInt; UpperBand: LongInt; Month: LongInt;
  BandWeight: Single);
procedure CheckStationRow(Row: LongInt);

implementation

uses
  Math, QuorvelFaults;

procedure CheckStationRecords(Station: LongInt; Month: LongInt; const StationRecords: TSingle12x11);
begin
  ExpectLongInt('StationRecords', 'Station', Station, 1, 2147483647, 'valid from 1');
  ExpectLongInt('StationRecords', 'Month', Month, 0, 12, 'valid 0 to 12');
  ExpectSingles('StationRecords', 'StationRecords', PSingle(@StationRecords), 132, -Infinity, Infinity,
    'valid is any number');
end;

procedure CheckStationClimate(FileUnit: TFileUnit; Station: LongInt; Band: LongInt; Month: LongInt; BandSet: TBandSet;
  Percentage: Single);
begin
  ExpectLongInt('StationClimate', 'FileUnit', Ord(FileUnit), 31, 31, 'valid 31 (OpenedLast)');
  ExpectLongInt('StationClimate', 'Station', Station, 1, 2147483647, 'valid from 1');
  ExpectLongInt('StationClimate', 'Band', Band, 0, 10, 'valid 0 to 10');
  ExpectLongInt('StationClimate', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectLongInt('StationClimate', 'BandSet', Ord(BandSet), 1, 2, 'valid 1 (First), 2 (Second)');
  ExpectSingle('StationClimate', 'Percentage', Percentage, 0, 100, 'valid 0 to 100 %');
end;

procedure CheckLocateStationBand(Fraction: Single; Month: LongInt);
begin
  ExpectSingle('LocateStationBand', 'Fraction', Fraction, 0, 1, 'valid 0 to 1');
  ExpectLongInt('LocateStationBand', 'Month', Month, 1, 12, 'valid 1 to 12');
end;

procedure CheckInterpolateStationRows(BaseRow: LongInt; LowerBand: LongInt; UpperBand: LongInt; Month: LongInt;
  BandWeight: Single);
begin
  ExpectLongInt('InterpolateStationRows', 'BaseRow', BaseRow, 2, 154, 'valid 2 to 154');
  ExpectLongInt('InterpolateStationRows', 'LowerBand', LowerBand, 1, 10, 'valid 1 to 10');
  ExpectLongInt('InterpolateStationRows', 'UpperBand', UpperBand, 1, 10, 'valid 1 to 10');
  ExpectLongInt('InterpolateStationRows', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectSingle('InterpolateStationRows', 'BandWeight', BandWeight, -1, 1, 'valid -1 to 1');
end;

procedure CheckStationRow(Row: LongInt);
begin
  ExpectLongInt('StationRow', 'Row', Row, 1, 171, 'valid 1 to 171');
end;

end.
