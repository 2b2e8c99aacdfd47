{ Polygons in plan, of any number of vertices, in double precision: their difference, overlap and area. }
unit QuorvelPolygons;

{$mode objfpc}{$H+}{$R-}{$Q-}

interface

uses
  QuorvelFaults;

type
  TPlanPoint = record
    X, Y: Double; { m }
  end;

  { Vertices one after the other, either way round, from three. It must not cross itself. }
  TPolygon = array of TPlanPoint;
  TPolygons = array of TPolygon;

  { A - B, and the overlap of A and B. The pieces run in the sense of A. Where B lies within A, the difference is two
    pieces, which touch along level bridges from B to A. }
  TClipped = record
    Difference, Overlap: TPolygons;
  end;

  { Why two polygons cannot be clipped. }
  EClippingError = class(EQuorvelError)
  private
    FStatus: LongInt;
  public
    constructor Create(AStatus: LongInt);
    property Status: LongInt read FStatus;
  end;

function PlanPoint(X, Y: Double): TPlanPoint; inline;

{ Area in plan, whichever way round [m2]. }
function PolygonArea(const Polygon: TPolygon): Double;

{ Of pieces that do not overlap [m2]. }
function TotalArea(const Polygons: TPolygons): Double;

{ Exact to about 1e-4 of the diagonal of the box round both, times the length of the boundaries; the areas of difference
  and overlap add up to that of A to rounding. Raises EClippingError, for one where a polygon crosses itself.
  Source: Boundary tracing: K. Weiler, P. Atherton, Hidden surface removal using polygon area sorting, 1977.
  (HOHOLEDP of QuorvelByReference) }
function Clip(const A, B: TPolygon): TClipped;

implementation

uses
  QuorvelByReference, QuorvelClippingStatus, QuorvelFloatingPoint;

const
  MostCrossings = 1024;
  FirstRoom = 64;
  MostRoom = 1 shl 24;

type
  { What a call of the routine works on: the vertices of both polygons, then those that it adds. }
  TPool = record
    X, Y: array of Double;
    Difference, Overlap: array of LongInt;
  end;

constructor EClippingError.Create(AStatus: LongInt);
begin
  inherited Create('Clip', 'a and b', 'cannot be clipped: ' + ClippingFault(AStatus));
  FStatus := AStatus;
end;

function PlanPoint(X, Y: Double): TPlanPoint;
begin
  Result.X := X;
  Result.Y := Y;
end;

function PolygonArea(const Polygon: TPolygon): Double;
var
  I: SizeInt;
  Origin: TPlanPoint;
begin
  Result := 0;
  if Length(Polygon) < 3 then Exit;
  Origin := Polygon[0];
  for I := 2 to High(Polygon) do
    Result := Result + (Polygon[I].X - Origin.X) * (Polygon[I - 1].Y - Origin.Y)
      - (Polygon[I - 1].X - Origin.X) * (Polygon[I].Y - Origin.Y);
  Result := Abs(Result) / 2;
end;

function TotalArea(const Polygons: TPolygons): Double;
var
  Each: TPolygon;
begin
  Result := 0;
  for Each in Polygons do Result := Result + PolygonArea(Each);
end;

procedure Load(const Polygon: TPolygon; Start: SizeInt; var Pool: TPool);
var
  I: SizeInt;
begin
  for I := 0 to High(Polygon) do
  begin
    Pool.X[Start + I] := Polygon[I].X;
    Pool.Y[Start + I] := Polygon[I].Y;
  end;
end;

function ClipInRoom(const A, B: TPolygon; Room: LongInt; out Pool: TPool): LongInt;
var
  Positions: array of LongInt;
  I, Used, Capacity: LongInt;
  State: TFloatingPointState;
begin
  Used := Length(A) + Length(B);
  Capacity := Used + Room;
  SetLength(Positions, Used + 1);
  for I := 0 to Used do Positions[I] := I + 1;
  SetLength(Pool.X, Capacity);
  SetLength(Pool.Y, Capacity);
  SetLength(Pool.Difference, Capacity);
  SetLength(Pool.Overlap, Capacity);
  Load(A, 0, Pool);
  Load(B, Length(A), Pool);
  State := MaskExceptions;
  HOHOLEDP(@Pool.X[0], @Pool.Y[0], Length(A), @Positions[0], Length(B), @Positions[Length(A)], Capacity, MostCrossings,
    Capacity, Capacity, Used, @Pool.Difference[0], @Pool.Overlap[0], Result);
  RestoreExceptions(State);
end;

{ Of a list: of each piece the number of its vertices and their places, negative where a bridge begins, and a 0 at
  last. }
function Pieces(const Pool: TPool; const List: array of LongInt): TPolygons;
var
  At, I, Place: LongInt;
  Piece: TPolygon;
begin
  Result := nil;
  At := 0;
  while List[At] <> 0 do
  begin
    Piece := nil;
    SetLength(Piece, List[At]);
    for I := 0 to High(Piece) do
    begin
      Place := Abs(List[At + 1 + I]) - 1;
      Piece[I] := PlanPoint(Pool.X[Place], Pool.Y[Place]);
    end;
    Insert(Piece, Result, Length(Result));
    At := At + 1 + List[At];
  end;
end;

function Clip(const A, B: TPolygon): TClipped;
var
  Room, Status: LongInt;
  Pool: TPool;
begin
  Room := FirstRoom;
  Status := ClipInRoom(A, B, Room, Pool);
  while IsShortOfRoom(Status) and (Room < MostRoom) do
  begin
    Room := 2 * Room;
    Status := ClipInRoom(A, B, Room, Pool);
  end;
  if Status <> 0 then raise EClippingError.Create(Status);
  Result.Difference := Pieces(Pool, Pool.Difference);
  Result.Overlap := Pieces(Pool, Pool.Overlap);
end;

end.
