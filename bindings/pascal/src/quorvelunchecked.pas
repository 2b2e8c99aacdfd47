{ Produced from the catalogue of routines (catalogue/); do not edit. }

{ The routines without any check: the same functions as in unit Quorvel, and for whatever is given the bits that C
  gets. Of lists of unequal lengths the shortest counts; arrays of a fixed length must have it. What a routine leaves as
  it was is not a number (a LongInt: 0), or as it was given. }
unit QuorvelUnchecked;

{$mode objfpc}{$R-}{$Q-}{$T-}

interface

uses
  QuorvelTypes;

function DryAirEnthalpy(Temperature: Single): Single;
function WaterVapourEnthalpy(Temperature: Single): Single;
function DryAirSpecificHeat(Temperature: Single): Single;
function WaterVapourSpecificHeat(Temperature: Single): Single;
function LatentHeat(Temperature: Single): Single;
function DryBulbFromVapourPressureAndRelativeHumidity(VapourPressure: Single; RelativeHumidity: Single): Single;
function DryBulbFromVapourPressureAndPercentageSaturation(VapourPressure: Single; PercentageSaturation: Single;
  Pressure: Single): Single;
function DryBulbFromMoistureContentAndRelativeHumidity(MoistureContent: Single; RelativeHumidity: Single; Pressure:
  Single): Single;
function DryBulbFromMoistureContentAndPercentageSaturation(MoistureContent: Single; PercentageSaturation: Single;
  Pressure: Single): Single;
function DryBulbFromEnthalpyAndMoistureContent(Enthalpy: Single; MoistureContent: Single): Single;
function DryBulbFromEnthalpyAndVapourPressure(Enthalpy: Single; VapourPressure: Single; Pressure: Single): Single;
function DryBulbFromEnthalpyAndRelativeHumidity(Enthalpy: Single; RelativeHumidity: Single; Pressure: Single): Single;
function DryBulbFromEnthalpyAndPercentageSaturation(Enthalpy: Single; PercentageSaturation: Single; Pressure: Single):
  Single;
function DryBulbFromWetBulbAndVapourPressure(WetBulb: Single; VapourPressure: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
function DryBulbFromWetBulbAndMoistureContent(WetBulb: Single; MoistureContent: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
function DryBulbFromWetBulbAndRelativeHumidity(WetBulb: Single; RelativeHumidity: Single; Pressure: Single;
  Psychrometer: TPsychrometer): Single;
function DryBulbFromWetBulbAndPercentageSaturation(WetBulb: Single; PercentageSaturation: Single; Pressure: Single;
  Psychrometer: TPsychrometer): Single;
function DryBulbFromWetBulbAndEnthalpy(WetBulb: Single; Enthalpy: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
function AdiabaticMixing(FirstAirFlow: Single; FirstDryBulb: Single; FirstMoistureContent: Single; SecondAirFlow:
  Single; SecondDryBulb: Single; SecondMoistureContent: Single): TAdiabaticMixing;
function MoistureContentFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
function MoistureContent(DryBulb: Single; VapourPressure: Single; Pressure: Single): Single;
function VapourPressureFromMoistureContent(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
function MoistureContentFromPercentageSaturation(DryBulb: Single; PercentageSaturation: Single; Pressure: Single):
  Single;
function MoistureContentFromEnthalpy(DryBulb: Single; Enthalpy: Single): Single;
function MoistAirDensity(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
function PercentageSaturation(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
function SpecificEnthalpy(DryBulb: Single; MoistureContent: Single): Single;
function SpecificEnthalpyFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
function SpecificVolume(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
function SaturationTemperatureFromEnthalpy(Enthalpy: Single; Pressure: Single): Single;
function PoolEvaporation(WaterArea: Single; WettedArea: Single; WaterTemperature: Single; DryBulb: Single;
  MoistureContent: Single; ReferenceTemperature: Single; Bathers: LongInt; ReferenceCoefficient: Single; Pressure:
  Single): TPoolEvaporation;
function PoolEvaporationFromWetBulb(WaterArea: Single; WettedArea: Single; WaterTemperature: Single; DryBulb: Single;
  WetBulb: Single; ReferenceTemperature: Single; Bathers: LongInt; ReferenceCoefficient: Single; Pressure: Single):
  TPoolEvaporationFromWetBulb;
function SaturationPressure(Temperature: Single): Single;
function DewPoint(VapourPressure: Single): Single;
function VapourPressure(DryBulb: Single; RelativeHumidity: Single): Single;
function RelativeHumidity(DryBulb: Single; VapourPressure: Single): Single;
function VapourPressureFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
function WeightedTemperature(FirstTemperature: Single; SecondTemperature: Single): Single;
function PsychrometerWetBulb(DryBulb: Single; RelativeHumidity: Single; Pressure: Single; Psychrometer: TPsychrometer):
  Single;
function WetBulbFromPercentageSaturation(DryBulb: Single; PercentageSaturation: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
function WetBulbFromMoistureContent(DryBulb: Single; MoistureContent: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
function WetBulb(DryBulb: Single; VapourPressure: Single; Pressure: Single; Psychrometer: TPsychrometer): Single;
function CyclicResponse(const Thickness: array of Single; const Conductivity: array of Single; const Density: array of
  Single; const SpecificHeat: array of Single; InsideResistance: Single; OutsideResistance: Single; Harmonic: LongInt;
  ElementKind: TElementKind): TCyclicResponse;
function VerticalCavityResistance(CavityWidth: Single): Single;
function AirCavityResistance(Tilt: Single; CavityWidth: Single; Emissivity1: Single; Emissivity2: Single): Single;
function GasCavityResistance(Tilt: Single; CavityWidth: Single; Emissivity1: Single; Emissivity2: Single; Density:
  Single; Conductivity: Single; SpecificHeat: Single; Viscosity: Single): Single;
function TotalVapourResistance(const Thickness: array of Single; const VapourResistivity: array of Single): Single;
function CondensationProfile(const Thickness: array of Single; const Conductivity: array of Single; const
  VapourResistivity: array of Single; InsideResistance: Single; OutsideResistance: Single; InsideTemperature: Single;
  OutsideTemperature: Single; InsideHumidity: Single; OutsideHumidity: Single): TCondensationProfile;
function CondensesWithinLayer(WarmTemperature: Single; ColdTemperature: Single; WarmVapourPressure: Single;
  ColdVapourPressure: Single): LongInt;
function ElementProperty(const ElementRecords: array of TSingle10; RecordNumber: LongInt; Item: LongInt): Single;
function NaturalConvectionCoefficient(TemperatureDifference: Single; CharacteristicLength: Single; HeatFlowDirection:
  THeatFlowDirection): Single;
function PackTwoFractions(Packing: TPacking; PackedNumber: Single; Fraction1: Single; Fraction2: Single):
  TPackTwoFractions;
function PackThreeFractions(Packing: TPacking; PackedNumber: Single; Fraction1: Single; Fraction2: Single; Fraction3:
  Single): TPackThreeFractions;
function PackThreeFractionsThirdFirst(Packing: TPacking; PackedNumber: Single; Fraction3: Single; Fraction1: Single;
  Fraction2: Single): TPackThreeFractionsThirdFirst;
function PackPane(Packing: TPacking; PackedNumber: Single; Absorptance: Single; Reflectance1: Single; Reflectance2:
  Single): TPackPane;
function SurfaceResistance(Surface: TSurface; Tilt: Single; Exposure: TExposure): Single;
function SurfaceResistanceAtEmissivity(Surface: TSurface; Tilt: Single; Exposure: TExposure; Emissivity: Single):
  Single;
function UValue(const Thickness: array of Single; const Conductivity: array of Single; SurfaceResistance1: Single;
  SurfaceResistance2: Single): Single;
function UValueAtTiltAndExposure(UValue: Single; Tilt: Single; Exposure: TExposure): Single;
function WindowParameters(Panes: LongInt; PaneKind1: TPaneKind; Emissivity1: Single; PaneKind2: TPaneKind; Emissivity2:
  Single; PaneKind3: TPaneKind; Emissivity3: Single; CavityWidth1: Single; CavityWidth2: Single; OuterSurface: TSurface;
  Exposure: TExposure; Tilt: Single): TWindowParameters;
function GlassDirect(NormalTransmittance: Single; NormalReflectance: Single; Incidence: Single): TGlassDirect;
function GlassDiffuse(NormalTransmittance: Single; NormalReflectance: Single): TGlassDiffuse;
function StackedLayers(const LayerTransmittances: array of Single; const LayerReflectances: array of Single):
  TStackedLayers;
function TracedLayers(const LayerTransmittances: array of Single; const LayerAbsorptances: array of Single; const
  LayerReflectances: array of Single): TTracedLayers;
function RollerBlind(BlindTransmittance: Single; BlindReflectance: Single): TRollerBlind;
function DiffuseRollerBlind(BlindTransmittance: Single; BlindReflectance: Single): TDiffuseRollerBlind;
function RefractionAngle(Incidence: Single; RefractiveIndex: Single): Single;
function SurfaceReflectance(Incidence: Single; RefractionAngle: Single; RefractiveIndex: Single): TSurfaceReflectance;
function SinglePassAbsorption(RefractionAngle: Single; AbsorptionProduct: Single): Single;
function SlabOptics(SinglePassAbsorptance: Single; FaceReflectance: Single): TSlabOptics;
function AbsorptionProduct(NormalTransmittance: Single; RefractiveIndex: Single): Single;
function NormalTransmittance(AbsorptionProduct: Single; NormalReflectance: Single): Single;
function PaneTemperatures(InsideTemperature: Single; OutsideTemperature: Single; Panes: LongInt; Absorbed1: Single;
  Absorbed2: Single; Absorbed3: Single; Absorbed4: Single; Absorbed5: Single): TPaneTemperatures;
function UnitDirect(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Incidence: Single):
  TUnitDirect;
function UnitDiffuse(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single): TUnitDiffuse;
function UnitDirectShares(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Incidence: Single;
  Panes: LongInt): TUnitDirectShares;
function UnitDiffuseShares(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Panes: LongInt):
  TUnitDiffuseShares;
function UnitShares(Radiation: TRadiation; ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single;
  Incidence: Single; Panes: LongInt): TUnitShares;
function SlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single; SlatAbsorptance:
  Single): TSlatDirect;
function TwoFacedSlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single;
  StruckAbsorptance: Single; OppositeAbsorptance: Single): TTwoFacedSlatDirect;
function OpenSlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single; OpenShare:
  Single; StruckAbsorptance: Single; OppositeAbsorptance: Single): TOpenSlatDirect;
function SlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; SlatAbsorptance: Single): TSlatDiffuse;
function TwoFacedSlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; StruckAbsorptance: Single;
  OppositeAbsorptance: Single): TTwoFacedSlatDiffuse;
function OpenSlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; OpenShare: Single;
  StruckAbsorptance: Single; OppositeAbsorptance: Single): TOpenSlatDiffuse;
function LocateBand(Fraction: Single; Month: LongInt; const Frequencies: TSingle10x12): TLocateBand;
function BandClimate(Band: LongInt; Month: LongInt; BandSet: TBandSet; Percentage: Single): TBandClimate;
function InterpolateBandRows(BaseRow: LongInt; LowerBand: LongInt; UpperBand: LongInt; Month: LongInt; BandWeight:
  Single): Single;
function BandRow(Row: LongInt): TSingle12;
function StoreDesignDay(Month: LongInt): LongInt;
function StoreDesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;
function DesignDay(Month: LongInt): LongInt;
function DesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;
function SecondDesignDay(Month: LongInt): LongInt;
function SecondDesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;
function DailyTemperature(Hour: Single; HighestTemperature: Single; LowestTemperature: Single; HourOfHighest: Single;
  HourOfLowest: Single): Single;
function DailyValue(Hour: Single; Mean: Single; Amplitude: Single; FirstHour: Single; SecondHour: Single;
  AmplitudeFactor: Single): Single;
function DesignIrradiance(SolarAltitude: Single; SiteHeight: Single; SkyKind: TSkyKind): TDesignIrradiance;
function HeightFactor(SiteHeight: Single; SolarAltitude: Single): Single;
function EccentricityFactor(Day: LongInt): Single;
function ClearnessIndex(Day: LongInt; SolarAltitude: Single; GlobalHorizontal: Single): Single;
function MuneerSlope(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single; BeamHorizontal:
  Single; DiffuseHorizontal: Single; ExtraterrestrialHorizontal: Single; GroundReflectance: Single): TMuneerSlope;
function PerezDiffuse(SolarAltitude: Single; Tilt: Single; BeamHorizontal: Single; DiffuseHorizontal: Single; Incidence:
  Single; ExtraterrestrialNormal: Single): Single;
function SiteConstants(SiteClass: LongInt; Month: LongInt): TSiteConstants;
function DiffuseTiltFactor(Day: LongInt; SolarAltitude: Single; BeamHorizontal: Single; Tilt: Single; SkyModel:
  TSkyModel): Single;
function SlopeDiffuse(Day: LongInt; SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single;
  BeamHorizontal: Single; DiffuseHorizontal: Single; SkyModel: TSkyModel): Single;
function SolAirTemperature(BaseTemperature: Single; SurfaceCoefficient: Single; Absorptance: Single; Irradiance: Single;
  LongWaveLoss: Single): Single;
function LongWaveLoss(Tilt: Single; CloudCover: Single): Single;
function SolarTimeCorrection(ClockOffset: Single; Day: LongInt; Longitude: Single; ReferenceLongitude: Single): Single;
function AlmanacPosition(TimeKind: TTimeKind; Year: LongInt; Month: LongInt; DayOfMonth: LongInt; ClockTime: Single;
  Latitude: Single; Longitude: Single; ZoneMeridian: Single): TAlmanacPosition;
function AlmanacSunHours(Year: LongInt; Month: LongInt; DayOfMonth: LongInt; Latitude: Single): TAlmanacSunHours;
function SolarGeometry(Latitude: Single; Day: LongInt; SolarTime: Single): TSolarGeometry;
function SurfaceAngles(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single):
  TSurfaceAngles;
function SurfaceIrradiance(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single;
  DirectNormal: Single; DiffuseHorizontal: Single; GroundReflectance: Single; BeamFactor: Single; DiffuseFactor:
  Single): TSurfaceIrradiance;
function SurfaceIrradianceAndIncidence(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt:
  Single; DirectNormal: Single; DiffuseHorizontal: Single; GroundReflectance: Single; BeamFactor: Single; DiffuseFactor:
  Single): TSurfaceIrradianceAndIncidence;
function Overlap(const X1: array of Single; const Y1: array of Single; const X2: array of Single; const Y2: array of
  Single): TOverlap;
function OverlapAlias(const X1: array of Single; const Y1: array of Single; const X2: array of Single; const Y2: array
  of Single): TOverlapAlias;
function Collinearity(const X: array of Single; const Y: array of Single): LongInt;
function CountEnclosed(const X: array of Single; const Y: array of Single; const PointX: array of Single; const PointY:
  array of Single; const Enclosed: array of LongInt): TCountEnclosed;
function BoundaryCrossing(const SegmentStart: array of Single; const SegmentEnd: array of Single; const X: array of
  Single; const Y: array of Single): TBoundaryCrossing;
function Inside(const Point: array of Single; const Polygon: array of TSingle3): LongInt;
function ParallelPlanes(const Triangle1: TDouble3x3; const Triangle2: TDouble3x3): Boolean;
function ParallelSides(const Triangle1: TDouble3x3; const Triangle2: TDouble3x3): TParallelSides;
function Rectangular(const Quadrilateral: TDouble4x3): Boolean;
function Facing(const Triangle: TDouble3x3; Azimuth: Double): TFacing;
function LocalCoordinates(const Quadrilateral1: TDouble4x3; const Quadrilateral2: TDouble4x3): TLocalCoordinates;
function ToLocal(const Corners: TDouble4x3; const XAxis: array of Double; const YAxis: array of Double; const ZAxis:
  array of Double): TDouble4x3;
function MeetingPoint(const Line1Start: array of Single; const Line1End: array of Single; const Line2Start: array of
  Single; const Line2End: array of Single): TSingle2;
function CrossingPoint(const Segment1Start: array of Single; const Segment1End: array of Single; const Segment2Start:
  array of Single; const Segment2End: array of Single): TSingle2;
function InSpan(const FirstEnd: array of Single; const SecondEnd: array of Single; const Point: array of Single):
  Single;
function AheadAndNearer(const FirstEnd: array of Single; const SecondEnd: array of Single; const Point: array of
  Single): Single;
function Coincide(X1: Single; Y1: Single; X2: Single; Y2: Single): Boolean;
function SideOfLine(const LineStart: array of Single; const LineEnd: array of Single; const Point: array of Single):
  LongInt;
function BackAzimuth(Angle: Single): Single;
function DirectionTo(SolarAltitude: Single; SolarAzimuth: Single): TSingle3;
function SurfaceAxes(SurfaceAzimuth: Single; Tilt: Single): TSurfaceAxes;
function LocalToGlobal(const LocalVector: array of Single; const RotationMatrix: TSingle3x3): TSingle3;
function GlobalToLocal(const GlobalVector: array of Single; const RotationMatrix: TSingle3x3): TSingle3;
function PlanArea(const X: array of Single; const Y: array of Single): Single;
function SignedPlanArea(const X: array of Single; const Y: array of Single): Single;
function AreaInSpace(const X: array of Single; const Y: array of Single; const Z: array of Single): Single;
function PolygonOrientation(const Polygon: array of TSingle3): TPolygonOrientation;
function Projection(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point: array of Single;
  const Direction: array of Single): TSingle3;
function ForwardProjection(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point: array of
  Single; const Direction: array of Single): TSingle3;
function ForwardProjectionOrStart(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point:
  array of Single; const Direction: array of Single): TSingle3;
function DotProduct(const VectorA: array of Single; const VectorB: array of Single): Single;
function DotProductInDouble(const VectorA: array of Double; const VectorB: array of Double): Double;
function CrossProduct(const VectorA: array of Single; const VectorB: array of Single): TSingle3;
function CrossProductInDouble(const VectorA: array of Double; const VectorB: array of Double): TDouble3;
function VectorLength(const Vector: array of Single): Single;
function LengthInDouble(const Vector: array of Double): Double;

implementation

uses
  Math, QuorvelByReference, QuorvelFloatingPoint;

function DryAirEnthalpy(Temperature: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSHDRY(Temperature);
  RestoreExceptions(State);
end;

function WaterVapourEnthalpy(Temperature: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSHVAP(Temperature);
  RestoreExceptions(State);
end;

function DryAirSpecificHeat(Temperature: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSCPDR(Temperature);
  RestoreExceptions(State);
end;

function WaterVapourSpecificHeat(Temperature: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSCPVA(Temperature);
  RestoreExceptions(State);
end;

function LatentHeat(Temperature: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSHFG(Temperature);
  RestoreExceptions(State);
end;

function DryBulbFromVapourPressureAndRelativeHumidity(VapourPressure: Single; RelativeHumidity: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity(1, VapourPressure, 0, RelativeHumidity, 0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromVapourPressureAndPercentageSaturation(VapourPressure: Single; PercentageSaturation: Single;
  Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation(1, VapourPressure, 0, PercentageSaturation, 0,
    Pressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromMoistureContentAndRelativeHumidity(MoistureContent: Single; RelativeHumidity: Single; Pressure:
  Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_moisture_content_and_relative_humidity(1, MoistureContent, 0, RelativeHumidity, 0, Pressure, 0,
    Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromMoistureContentAndPercentageSaturation(MoistureContent: Single; PercentageSaturation: Single;
  Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_moisture_content_and_percentage_saturation(1, MoistureContent, 0, PercentageSaturation, 0,
    Pressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromEnthalpyAndMoistureContent(Enthalpy: Single; MoistureContent: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_enthalpy_and_moisture_content(1, Enthalpy, 0, MoistureContent, 0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromEnthalpyAndVapourPressure(Enthalpy: Single; VapourPressure: Single; Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_enthalpy_and_vapour_pressure(1, Enthalpy, 0, VapourPressure, 0, Pressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromEnthalpyAndRelativeHumidity(Enthalpy: Single; RelativeHumidity: Single; Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_enthalpy_and_relative_humidity(1, Enthalpy, 0, RelativeHumidity, 0, Pressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromEnthalpyAndPercentageSaturation(Enthalpy: Single; PercentageSaturation: Single; Pressure: Single):
  Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_enthalpy_and_percentage_saturation(1, Enthalpy, 0, PercentageSaturation, 0, Pressure, 0, Result,
    0);
  RestoreExceptions(State);
end;

function DryBulbFromWetBulbAndVapourPressure(WetBulb: Single; VapourPressure: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure(1, WetBulb, 0, VapourPressure, 0, Pressure, 0, Ord(Psychrometer),
    0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromWetBulbAndMoistureContent(WetBulb: Single; MoistureContent: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_wet_bulb_and_moisture_content(1, WetBulb, 0, MoistureContent, 0, Pressure, 0, Ord(Psychrometer),
    0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromWetBulbAndRelativeHumidity(WetBulb: Single; RelativeHumidity: Single; Pressure: Single;
  Psychrometer: TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_wet_bulb_and_relative_humidity(1, WetBulb, 0, RelativeHumidity, 0, Pressure, 0,
    Ord(Psychrometer), 0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromWetBulbAndPercentageSaturation(WetBulb: Single; PercentageSaturation: Single; Pressure: Single;
  Psychrometer: TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation(1, WetBulb, 0, PercentageSaturation, 0, Pressure, 0,
    Ord(Psychrometer), 0, Result, 0);
  RestoreExceptions(State);
end;

function DryBulbFromWetBulbAndEnthalpy(WetBulb: Single; Enthalpy: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dry_bulb_from_wet_bulb_and_enthalpy(1, WetBulb, 0, Enthalpy, 0, Pressure, 0, Ord(Psychrometer), 0, Result, 0);
  RestoreExceptions(State);
end;

function AdiabaticMixing(FirstAirFlow: Single; FirstDryBulb: Single; FirstMoistureContent: Single; SecondAirFlow:
  Single; SecondDryBulb: Single; SecondMoistureContent: Single): TAdiabaticMixing;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_adiabatic_mixing(1, FirstAirFlow, 0, FirstDryBulb, 0, FirstMoistureContent, 0, SecondAirFlow, 0,
    SecondDryBulb, 0, SecondMoistureContent, 0, Result.DryBulb, 0, Result.MoistureContent, 0, Result.Enthalpy, 0);
  RestoreExceptions(State);
end;

function MoistureContentFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSGS(DryBulb, WetBulb, Pressure, Ord(Psychrometer));
  RestoreExceptions(State);
end;

function MoistureContent(DryBulb: Single; VapourPressure: Single; Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_moisture_content(1, DryBulb, 0, VapourPressure, 0, Pressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function VapourPressureFromMoistureContent(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_vapour_pressure_from_moisture_content(1, DryBulb, 0, MoistureContent, 0, Pressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function MoistureContentFromPercentageSaturation(DryBulb: Single; PercentageSaturation: Single; Pressure: Single):
  Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_moisture_content_from_percentage_saturation(1, DryBulb, 0, PercentageSaturation, 0, Pressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function MoistureContentFromEnthalpy(DryBulb: Single; Enthalpy: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_moisture_content_from_enthalpy(1, DryBulb, 0, Enthalpy, 0, Result, 0);
  RestoreExceptions(State);
end;

function MoistAirDensity(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_moist_air_density(1, DryBulb, 0, MoistureContent, 0, Pressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function PercentageSaturation(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSPCST(DryBulb, MoistureContent, Pressure);
  RestoreExceptions(State);
end;

function SpecificEnthalpy(DryBulb: Single; MoistureContent: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_specific_enthalpy(1, DryBulb, 0, MoistureContent, 0, Result, 0);
  RestoreExceptions(State);
end;

function SpecificEnthalpyFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSHWET(DryBulb, WetBulb, Pressure, Ord(Psychrometer));
  RestoreExceptions(State);
end;

function SpecificVolume(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSSPVL(DryBulb, MoistureContent, Pressure);
  RestoreExceptions(State);
end;

function SaturationTemperatureFromEnthalpy(Enthalpy: Single; Pressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSTSAT(Enthalpy, Pressure);
  RestoreExceptions(State);
end;

function PoolEvaporation(WaterArea: Single; WettedArea: Single; WaterTemperature: Single; DryBulb: Single;
  MoistureContent: Single; ReferenceTemperature: Single; Bathers: LongInt; ReferenceCoefficient: Single; Pressure:
  Single): TPoolEvaporation;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  TPPOOL(WaterArea, WettedArea, WaterTemperature, DryBulb, MoistureContent, ReferenceTemperature, Bathers,
    ReferenceCoefficient, Pressure, Result.EvaporationRate, Result.LatentLoad, Result.ConvectiveLoad,
    Result.ReferenceLoad);
  RestoreExceptions(State);
end;

function PoolEvaporationFromWetBulb(WaterArea: Single; WettedArea: Single; WaterTemperature: Single; DryBulb: Single;
  WetBulb: Single; ReferenceTemperature: Single; Bathers: LongInt; ReferenceCoefficient: Single; Pressure: Single):
  TPoolEvaporationFromWetBulb;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  TPPOOL2(WaterArea, WettedArea, WaterTemperature, DryBulb, WetBulb, ReferenceTemperature, Bathers,
    ReferenceCoefficient, Pressure, Result.EvaporationRate, Result.LatentLoad, Result.ConvectiveLoad,
    Result.ReferenceLoad);
  RestoreExceptions(State);
end;

function SaturationPressure(Temperature: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSSVP(Temperature);
  RestoreExceptions(State);
end;

function DewPoint(VapourPressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_dew_point(1, VapourPressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function VapourPressure(DryBulb: Single; RelativeHumidity: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSVP(DryBulb, RelativeHumidity);
  RestoreExceptions(State);
end;

function RelativeHumidity(DryBulb: Single; VapourPressure: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_relative_humidity(1, DryBulb, 0, VapourPressure, 0, Result, 0);
  RestoreExceptions(State);
end;

function VapourPressureFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSVAP(DryBulb, WetBulb, Pressure, Ord(Psychrometer));
  RestoreExceptions(State);
end;

function WeightedTemperature(FirstTemperature: Single; SecondTemperature: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSTEFF(FirstTemperature, SecondTemperature);
  RestoreExceptions(State);
end;

function PsychrometerWetBulb(DryBulb: Single; RelativeHumidity: Single; Pressure: Single; Psychrometer: TPsychrometer):
  Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSTWET(DryBulb, RelativeHumidity, Pressure, Ord(Psychrometer));
  RestoreExceptions(State);
end;

function WetBulbFromPercentageSaturation(DryBulb: Single; PercentageSaturation: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSTWB(DryBulb, PercentageSaturation, Pressure, Ord(Psychrometer));
  RestoreExceptions(State);
end;

function WetBulbFromMoistureContent(DryBulb: Single; MoistureContent: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := PSWBLB(DryBulb, MoistureContent, Pressure, Ord(Psychrometer));
  RestoreExceptions(State);
end;

function WetBulb(DryBulb: Single; VapourPressure: Single; Pressure: Single; Psychrometer: TPsychrometer): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  quorvel_wet_bulb(1, DryBulb, 0, VapourPressure, 0, Pressure, 0, Ord(Psychrometer), 0, Result, 0);
  RestoreExceptions(State);
end;

function CyclicResponse(const Thickness: array of Single; const Conductivity: array of Single; const Density: array of
  Single; const SpecificHeat: array of Single; InsideResistance: Single; OutsideResistance: Single; Harmonic: LongInt;
  ElementKind: TElementKind): TCyclicResponse;
var
  State: TFloatingPointState;
  Layers: LongInt;
begin
  Layers := Shortest([System.Length(Thickness), System.Length(Conductivity), System.Length(Density),
    System.Length(SpecificHeat)]);
  Result.Admittance := NaN;
  Result.AdmittanceLead := NaN;
  Result.DecrementFactor := NaN;
  Result.DecrementLag := NaN;
  Result.SurfaceFactor := NaN;
  Result.SurfaceFactorLag := NaN;
  Result.UValue := NaN;
  State := MaskExceptions;
  TPADMT(PSingle(@Thickness[0]), PSingle(@Conductivity[0]), PSingle(@Density[0]), PSingle(@SpecificHeat[0]),
    InsideResistance, OutsideResistance, Layers, Harmonic, Ord(ElementKind), Result.Admittance, Result.AdmittanceLead,
    Result.DecrementFactor, Result.DecrementLag, Result.SurfaceFactor, Result.SurfaceFactorLag, Result.UValue);
  RestoreExceptions(State);
end;

function VerticalCavityResistance(CavityWidth: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := TPRCAV(CavityWidth);
  RestoreExceptions(State);
end;

function AirCavityResistance(Tilt: Single; CavityWidth: Single; Emissivity1: Single; Emissivity2: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := TPRCA2(Tilt, CavityWidth, Emissivity1, Emissivity2);
  RestoreExceptions(State);
end;

function GasCavityResistance(Tilt: Single; CavityWidth: Single; Emissivity1: Single; Emissivity2: Single; Density:
  Single; Conductivity: Single; SpecificHeat: Single; Viscosity: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := TPRCAX(Tilt, CavityWidth, Emissivity1, Emissivity2, Density, Conductivity, SpecificHeat, Viscosity);
  RestoreExceptions(State);
end;

function TotalVapourResistance(const Thickness: array of Single; const VapourResistivity: array of Single): Single;
var
  State: TFloatingPointState;
  Layers: LongInt;
begin
  Layers := Shortest([System.Length(Thickness), System.Length(VapourResistivity)]);
  Result := NaN;
  State := MaskExceptions;
  TPDAMP(PSingle(@Thickness[0]), PSingle(@VapourResistivity[0]), Layers, Result);
  RestoreExceptions(State);
end;

function CondensationProfile(const Thickness: array of Single; const Conductivity: array of Single; const
  VapourResistivity: array of Single; InsideResistance: Single; OutsideResistance: Single; InsideTemperature: Single;
  OutsideTemperature: Single; InsideHumidity: Single; OutsideHumidity: Single): TCondensationProfile;
var
  State: TFloatingPointState;
  Layers: LongInt;
begin
  Layers := Shortest([System.Length(Thickness), System.Length(Conductivity), System.Length(VapourResistivity)]);
  SetNoNumbers(PSingle(@Result.InterfaceTemperature), 21);
  SetNoNumbers(PSingle(@Result.InterfaceVapourPressure), 21);
  SetNoNumbers(PSingle(@Result.InterfaceSaturationPressure), 21);
  State := MaskExceptions;
  TPGRAD(PSingle(@Thickness[0]), PSingle(@Conductivity[0]), PSingle(@VapourResistivity[0]), InsideResistance,
    OutsideResistance, Layers, InsideTemperature, OutsideTemperature, InsideHumidity, OutsideHumidity,
    PSingle(@Result.InterfaceTemperature), PSingle(@Result.InterfaceVapourPressure),
    PSingle(@Result.InterfaceSaturationPressure));
  RestoreExceptions(State);
end;

function CondensesWithinLayer(WarmTemperature: Single; ColdTemperature: Single; WarmVapourPressure: Single;
  ColdVapourPressure: Single): LongInt;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := ITPCON(WarmTemperature, ColdTemperature, WarmVapourPressure, ColdVapourPressure);
  RestoreExceptions(State);
end;

function ElementProperty(const ElementRecords: array of TSingle10; RecordNumber: LongInt; Item: LongInt): Single;
var
  State: TFloatingPointState;
  RecordCount: LongInt;
begin
  RecordCount := Shortest([System.Length(ElementRecords)]);
  State := MaskExceptions;
  Result := BELDAT(PSingle(@ElementRecords[0]), RecordCount, RecordNumber, Item);
  RestoreExceptions(State);
end;

function NaturalConvectionCoefficient(TemperatureDifference: Single; CharacteristicLength: Single; HeatFlowDirection:
  THeatFlowDirection): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := TPHCON(TemperatureDifference, CharacteristicLength, Ord(HeatFlowDirection));
  RestoreExceptions(State);
end;

function PackTwoFractions(Packing: TPacking; PackedNumber: Single; Fraction1: Single; Fraction2: Single):
  TPackTwoFractions;
var
  State: TFloatingPointState;
begin
  Result.PackedNumber := PackedNumber;
  Result.Fraction1 := Fraction1;
  Result.Fraction2 := Fraction2;
  State := MaskExceptions;
  TPCOLW(Ord(Packing), Result.PackedNumber, Result.Fraction1, Result.Fraction2);
  RestoreExceptions(State);
end;

function PackThreeFractions(Packing: TPacking; PackedNumber: Single; Fraction1: Single; Fraction2: Single; Fraction3:
  Single): TPackThreeFractions;
var
  State: TFloatingPointState;
begin
  Result.PackedNumber := PackedNumber;
  Result.Fraction1 := Fraction1;
  Result.Fraction2 := Fraction2;
  Result.Fraction3 := Fraction3;
  State := MaskExceptions;
  TPCOLT(Ord(Packing), Result.PackedNumber, Result.Fraction1, Result.Fraction2, Result.Fraction3);
  RestoreExceptions(State);
end;

function PackThreeFractionsThirdFirst(Packing: TPacking; PackedNumber: Single; Fraction3: Single; Fraction1: Single;
  Fraction2: Single): TPackThreeFractionsThirdFirst;
var
  State: TFloatingPointState;
begin
  Result.PackedNumber := PackedNumber;
  Result.Fraction3 := Fraction3;
  Result.Fraction1 := Fraction1;
  Result.Fraction2 := Fraction2;
  State := MaskExceptions;
  TPCOLW2(Ord(Packing), Result.PackedNumber, Result.Fraction3, Result.Fraction1, Result.Fraction2);
  RestoreExceptions(State);
end;

function PackPane(Packing: TPacking; PackedNumber: Single; Absorptance: Single; Reflectance1: Single; Reflectance2:
  Single): TPackPane;
var
  State: TFloatingPointState;
begin
  Result.PackedNumber := PackedNumber;
  Result.Absorptance := Absorptance;
  Result.Reflectance1 := Reflectance1;
  Result.Reflectance2 := Reflectance2;
  State := MaskExceptions;
  TPCOSW(Ord(Packing), Result.PackedNumber, Result.Absorptance, Result.Reflectance1, Result.Reflectance2);
  RestoreExceptions(State);
end;

function SurfaceResistance(Surface: TSurface; Tilt: Single; Exposure: TExposure): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := TPRSUR(Ord(Surface), Tilt, Ord(Exposure));
  RestoreExceptions(State);
end;

function SurfaceResistanceAtEmissivity(Surface: TSurface; Tilt: Single; Exposure: TExposure; Emissivity: Single):
  Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := TPRSU2(Ord(Surface), Tilt, Ord(Exposure), Emissivity);
  RestoreExceptions(State);
end;

function UValue(const Thickness: array of Single; const Conductivity: array of Single; SurfaceResistance1: Single;
  SurfaceResistance2: Single): Single;
var
  State: TFloatingPointState;
  Layers: LongInt;
begin
  Layers := Shortest([System.Length(Thickness), System.Length(Conductivity)]);
  Result := NaN;
  State := MaskExceptions;
  TPUVAL(PSingle(@Thickness[0]), PSingle(@Conductivity[0]), SurfaceResistance1, SurfaceResistance2, Layers, Result);
  RestoreExceptions(State);
end;

function UValueAtTiltAndExposure(UValue: Single; Tilt: Single; Exposure: TExposure): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := TPUMOD(UValue, Tilt, Ord(Exposure));
  RestoreExceptions(State);
end;

function WindowParameters(Panes: LongInt; PaneKind1: TPaneKind; Emissivity1: Single; PaneKind2: TPaneKind; Emissivity2:
  Single; PaneKind3: TPaneKind; Emissivity3: Single; CavityWidth1: Single; CavityWidth2: Single; OuterSurface: TSurface;
  Exposure: TExposure; Tilt: Single): TWindowParameters;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  TPWNDO(Panes, Ord(PaneKind1), Emissivity1, Ord(PaneKind2), Emissivity2, Ord(PaneKind3), Emissivity3, CavityWidth1,
    CavityWidth2, Ord(OuterSurface), Ord(Exposure), Tilt, 0, Result.Admittance, Result.AdmittanceLead,
    Result.DecrementFactor, Result.DecrementLag, Result.SurfaceFactor, Result.SurfaceFactorLag, Result.UValue);
  RestoreExceptions(State);
end;

function GlassDirect(NormalTransmittance: Single; NormalReflectance: Single; Incidence: Single): TGlassDirect;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDRGL(NormalTransmittance, NormalReflectance, Incidence, Result.ParallelTransmittance, Result.ParallelAbsorptance,
    Result.ParallelReflectance, Result.PerpendicularTransmittance, Result.PerpendicularAbsorptance,
    Result.PerpendicularReflectance);
  RestoreExceptions(State);
end;

function GlassDiffuse(NormalTransmittance: Single; NormalReflectance: Single): TGlassDiffuse;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDFGL(NormalTransmittance, NormalReflectance, Result.Transmittance, Result.Absorptance);
  RestoreExceptions(State);
end;

function StackedLayers(const LayerTransmittances: array of Single; const LayerReflectances: array of Single):
  TStackedLayers;
var
  State: TFloatingPointState;
  Layers: LongInt;
begin
  Layers := Shortest([System.Length(LayerTransmittances), System.Length(LayerReflectances)]);
  State := MaskExceptions;
  WNCOM2(Layers, PSingle(@LayerTransmittances[0]), 0, PSingle(@LayerReflectances[0]), Result.Transmittance,
    Result.Absorptance, Result.Reflectance);
  RestoreExceptions(State);
end;

function TracedLayers(const LayerTransmittances: array of Single; const LayerAbsorptances: array of Single; const
  LayerReflectances: array of Single): TTracedLayers;
var
  State: TFloatingPointState;
  Layers: LongInt;
begin
  Layers := Shortest([System.Length(LayerTransmittances), System.Length(LayerAbsorptances),
    System.Length(LayerReflectances)]);
  Result.Transmittance := NaN;
  Result.Absorptance := NaN;
  Result.Reflectance := NaN;
  State := MaskExceptions;
  WNCOMP(Layers, PSingle(@LayerTransmittances[0]), PSingle(@LayerAbsorptances[0]), PSingle(@LayerReflectances[0]),
    Result.Transmittance, Result.Absorptance, Result.Reflectance);
  RestoreExceptions(State);
end;

function RollerBlind(BlindTransmittance: Single; BlindReflectance: Single): TRollerBlind;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDRRO(BlindTransmittance, BlindReflectance, 0, Result.Transmittance, Result.Absorptance, Result.Reflectance);
  RestoreExceptions(State);
end;

function DiffuseRollerBlind(BlindTransmittance: Single; BlindReflectance: Single): TDiffuseRollerBlind;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDFRO(BlindTransmittance, BlindReflectance, Result.Transmittance, Result.Absorptance, Result.Reflectance);
  RestoreExceptions(State);
end;

function RefractionAngle(Incidence: Single; RefractiveIndex: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := WNRANG(Incidence, RefractiveIndex);
  RestoreExceptions(State);
end;

function SurfaceReflectance(Incidence: Single; RefractionAngle: Single; RefractiveIndex: Single): TSurfaceReflectance;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNREFL(Incidence, RefractionAngle, RefractiveIndex, Result.ParallelReflectance, Result.PerpendicularReflectance);
  RestoreExceptions(State);
end;

function SinglePassAbsorption(RefractionAngle: Single; AbsorptionProduct: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := WNABEN(RefractionAngle, AbsorptionProduct, 0);
  RestoreExceptions(State);
end;

function SlabOptics(SinglePassAbsorptance: Single; FaceReflectance: Single): TSlabOptics;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNTAR(SinglePassAbsorptance, FaceReflectance, Result.Transmittance, Result.Absorptance, Result.Reflectance);
  RestoreExceptions(State);
end;

function AbsorptionProduct(NormalTransmittance: Single; RefractiveIndex: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := WNKL(NormalTransmittance, RefractiveIndex);
  RestoreExceptions(State);
end;

function NormalTransmittance(AbsorptionProduct: Single; NormalReflectance: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := WNTNOR(AbsorptionProduct, NormalReflectance);
  RestoreExceptions(State);
end;

function PaneTemperatures(InsideTemperature: Single; OutsideTemperature: Single; Panes: LongInt; Absorbed1: Single;
  Absorbed2: Single; Absorbed3: Single; Absorbed4: Single; Absorbed5: Single): TPaneTemperatures;
var
  State: TFloatingPointState;
begin
  Result.PaneTemperature1 := NaN;
  Result.PaneTemperature2 := NaN;
  Result.PaneTemperature3 := NaN;
  Result.PaneTemperature4 := NaN;
  Result.PaneTemperature5 := NaN;
  State := MaskExceptions;
  WNTEMP(InsideTemperature, OutsideTemperature, Panes, Absorbed1, Absorbed2, Absorbed3, Absorbed4, Absorbed5,
    Result.PaneTemperature1, Result.PaneTemperature2, Result.PaneTemperature3, Result.PaneTemperature4,
    Result.PaneTemperature5);
  RestoreExceptions(State);
end;

function UnitDirect(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Incidence: Single):
  TUnitDirect;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDRSC(ShortwaveShadingCoefficient, LongwaveShadingCoefficient, Incidence, Result.Transmittance, Result.Absorptance,
    Result.Reflectance);
  RestoreExceptions(State);
end;

function UnitDiffuse(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single): TUnitDiffuse;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDFSC(ShortwaveShadingCoefficient, LongwaveShadingCoefficient, Result.Transmittance, Result.Absorptance,
    Result.Reflectance);
  RestoreExceptions(State);
end;

function UnitDirectShares(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Incidence: Single;
  Panes: LongInt): TUnitDirectShares;
var
  State: TFloatingPointState;
begin
  Result.PaneShares := nil;
  SetLength(Result.PaneShares, Min(Max(Panes, 0), 5));
  SetNoNumbers(PSingle(@Result.PaneShares[0]), System.Length(Result.PaneShares));
  State := MaskExceptions;
  WNDRSM(ShortwaveShadingCoefficient, LongwaveShadingCoefficient, Incidence, Panes, Result.Transmittance,
    PSingle(@Result.PaneShares[0]), Result.Absorptance);
  RestoreExceptions(State);
end;

function UnitDiffuseShares(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Panes: LongInt):
  TUnitDiffuseShares;
var
  State: TFloatingPointState;
begin
  Result.PaneShares := nil;
  SetLength(Result.PaneShares, Min(Max(Panes, 0), 5));
  SetNoNumbers(PSingle(@Result.PaneShares[0]), System.Length(Result.PaneShares));
  State := MaskExceptions;
  WNDFSM(ShortwaveShadingCoefficient, LongwaveShadingCoefficient, Panes, Result.Transmittance,
    PSingle(@Result.PaneShares[0]), Result.Absorptance);
  RestoreExceptions(State);
end;

function UnitShares(Radiation: TRadiation; ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single;
  Incidence: Single; Panes: LongInt): TUnitShares;
var
  State: TFloatingPointState;
begin
  Result.PaneShares := nil;
  SetLength(Result.PaneShares, Min(Max(Panes, 0), 5));
  SetNoNumbers(PSingle(@Result.PaneShares[0]), System.Length(Result.PaneShares));
  State := MaskExceptions;
  WNDRS0(Ord(Radiation), ShortwaveShadingCoefficient, LongwaveShadingCoefficient, Incidence, Panes,
    Result.Transmittance, PSingle(@Result.PaneShares[0]), Result.Absorptance);
  RestoreExceptions(State);
end;

function SlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single; SlatAbsorptance:
  Single): TSlatDirect;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDRSL(SlatSpacing, SlatWidth, SlatAngle, ProfileAngle, SlatAbsorptance, Result.Transmittance, Result.Absorptance,
    Result.Reflectance);
  RestoreExceptions(State);
end;

function TwoFacedSlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single;
  StruckAbsorptance: Single; OppositeAbsorptance: Single): TTwoFacedSlatDirect;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDRS2(SlatSpacing, SlatWidth, SlatAngle, ProfileAngle, StruckAbsorptance, OppositeAbsorptance, Result.Transmittance,
    Result.Absorptance, Result.Reflectance);
  RestoreExceptions(State);
end;

function OpenSlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single; OpenShare:
  Single; StruckAbsorptance: Single; OppositeAbsorptance: Single): TOpenSlatDirect;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDRS3(SlatSpacing, SlatWidth, SlatAngle, ProfileAngle, OpenShare, StruckAbsorptance, OppositeAbsorptance,
    Result.Transmittance, Result.Absorptance, Result.Reflectance);
  RestoreExceptions(State);
end;

function SlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; SlatAbsorptance: Single): TSlatDiffuse;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDFSL(SlatSpacing, SlatWidth, SlatAngle, SlatAbsorptance, Result.SkyTransmittance, Result.GroundTransmittance,
    Result.SkyAbsorptance, Result.GroundAbsorptance);
  RestoreExceptions(State);
end;

function TwoFacedSlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; StruckAbsorptance: Single;
  OppositeAbsorptance: Single): TTwoFacedSlatDiffuse;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDFS2(SlatSpacing, SlatWidth, SlatAngle, StruckAbsorptance, OppositeAbsorptance, Result.SkyTransmittance,
    Result.GroundTransmittance, Result.SkyAbsorptance, Result.GroundAbsorptance);
  RestoreExceptions(State);
end;

function OpenSlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; OpenShare: Single;
  StruckAbsorptance: Single; OppositeAbsorptance: Single): TOpenSlatDiffuse;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  WNDFS3(SlatSpacing, SlatWidth, SlatAngle, OpenShare, StruckAbsorptance, OppositeAbsorptance, Result.SkyTransmittance,
    Result.GroundTransmittance, Result.SkyAbsorptance, Result.GroundAbsorptance);
  RestoreExceptions(State);
end;

function LocateBand(Fraction: Single; Month: LongInt; const Frequencies: TSingle10x12): TLocateBand;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLBAN1(Fraction, Month, PSingle(@Frequencies), Result.LowerBand, Result.UpperBand, Result.BandWeight);
  RestoreExceptions(State);
end;

function BandClimate(Band: LongInt; Month: LongInt; BandSet: TBandSet; Percentage: Single): TBandClimate;
var
  State: TFloatingPointState;
begin
  Result.Percentage := Percentage;
  State := MaskExceptions;
  CLBAND(Band, Month, Ord(BandSet), Result.Percentage, Result.Q1, Result.Q2, Result.Q3, Result.Q4, Result.Q5, Result.Q6,
    Result.TimeA, Result.TimeB, Result.Q7, Result.Q8);
  RestoreExceptions(State);
end;

function InterpolateBandRows(BaseRow: LongInt; LowerBand: LongInt; UpperBand: LongInt; Month: LongInt; BandWeight:
  Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLBAN2(BaseRow, LowerBand, UpperBand, Month, BandWeight, Result);
  RestoreExceptions(State);
end;

function BandRow(Row: LongInt): TSingle12;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLBAN3(Row, PSingle(@Result));
  RestoreExceptions(State);
end;

function StoreDesignDay(Month: LongInt): LongInt;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLDAY(Month, Result);
  RestoreExceptions(State);
end;

function StoreDesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLDAYEX(Month, Result, Ord(DayKind));
  RestoreExceptions(State);
end;

function DesignDay(Month: LongInt): LongInt;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := ICLDAY(Month);
  RestoreExceptions(State);
end;

function DesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := ICLDAYEX(Month, Ord(DayKind));
  RestoreExceptions(State);
end;

function SecondDesignDay(Month: LongInt): LongInt;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := ICLDA2(Month);
  RestoreExceptions(State);
end;

function SecondDesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := ICLDA2EX(Month, Ord(DayKind));
  RestoreExceptions(State);
end;

function DailyTemperature(Hour: Single; HighestTemperature: Single; LowestTemperature: Single; HourOfHighest: Single;
  HourOfLowest: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLTAO(Hour, HighestTemperature, LowestTemperature, HourOfHighest, HourOfLowest);
  RestoreExceptions(State);
end;

function DailyValue(Hour: Single; Mean: Single; Amplitude: Single; FirstHour: Single; SecondHour: Single;
  AmplitudeFactor: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLTAOX(Hour, Mean, Amplitude, FirstHour, SecondHour, AmplitudeFactor);
  RestoreExceptions(State);
end;

function DesignIrradiance(SolarAltitude: Single; SiteHeight: Single; SkyKind: TSkyKind): TDesignIrradiance;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLSNNR(SolarAltitude, 0, SiteHeight, Ord(SkyKind), Result.DirectNormal, Result.DiffuseHorizontal);
  RestoreExceptions(State);
end;

function HeightFactor(SiteHeight: Single; SolarAltitude: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLHIGH(SiteHeight, SolarAltitude);
  RestoreExceptions(State);
end;

function EccentricityFactor(Day: LongInt): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLETAJ(Day);
  RestoreExceptions(State);
end;

function ClearnessIndex(Day: LongInt; SolarAltitude: Single; GlobalHorizontal: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLMODUL(Day, SolarAltitude, GlobalHorizontal);
  RestoreExceptions(State);
end;

function MuneerSlope(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single; BeamHorizontal:
  Single; DiffuseHorizontal: Single; ExtraterrestrialHorizontal: Single; GroundReflectance: Single): TMuneerSlope;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLMUNRAD(SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt, BeamHorizontal, DiffuseHorizontal,
    ExtraterrestrialHorizontal, GroundReflectance, Result.SurfaceBeam, Result.SurfaceDiffuse, Result.GroundReflected,
    Result.Incidence);
  RestoreExceptions(State);
end;

function PerezDiffuse(SolarAltitude: Single; Tilt: Single; BeamHorizontal: Single; DiffuseHorizontal: Single; Incidence:
  Single; ExtraterrestrialNormal: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLPERSKY(SolarAltitude, Tilt, BeamHorizontal, DiffuseHorizontal, Result, Incidence, ExtraterrestrialNormal);
  RestoreExceptions(State);
end;

function SiteConstants(SiteClass: LongInt; Month: LongInt): TSiteConstants;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLCONS(SiteClass, Month, Result.GroundReflectance, Result.BeamFactor, Result.DiffuseFactor,
    Result.AlternativeDiffuseFactor);
  RestoreExceptions(State);
end;

function DiffuseTiltFactor(Day: LongInt; SolarAltitude: Single; BeamHorizontal: Single; Tilt: Single; SkyModel:
  TSkyModel): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLDIFRAD(Day, SolarAltitude, BeamHorizontal, 0, Tilt, Ord(SkyModel));
  RestoreExceptions(State);
end;

function SlopeDiffuse(Day: LongInt; SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single;
  BeamHorizontal: Single; DiffuseHorizontal: Single; SkyModel: TSkyModel): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLDIFSLO(Day, SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt, BeamHorizontal, DiffuseHorizontal,
    Ord(SkyModel));
  RestoreExceptions(State);
end;

function SolAirTemperature(BaseTemperature: Single; SurfaceCoefficient: Single; Absorptance: Single; Irradiance: Single;
  LongWaveLoss: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLTEO(BaseTemperature, SurfaceCoefficient, Absorptance, 0, 0, Irradiance, LongWaveLoss);
  RestoreExceptions(State);
end;

function LongWaveLoss(Tilt: Single; CloudCover: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLRERD(Tilt, CloudCover);
  RestoreExceptions(State);
end;

function SolarTimeCorrection(ClockOffset: Single; Day: LongInt; Longitude: Single; ReferenceLongitude: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := CLTCOR(ClockOffset, Day, Longitude, ReferenceLongitude);
  RestoreExceptions(State);
end;

function AlmanacPosition(TimeKind: TTimeKind; Year: LongInt; Month: LongInt; DayOfMonth: LongInt; ClockTime: Single;
  Latitude: Single; Longitude: Single; ZoneMeridian: Single): TAlmanacPosition;
var
  State: TFloatingPointState;
begin
  Result.Longitude := Longitude;
  Result.ZoneMeridian := ZoneMeridian;
  State := MaskExceptions;
  CLYALLOP(Ord(TimeKind), Year, Month, DayOfMonth, ClockTime, Latitude, Result.Longitude, Result.ZoneMeridian,
    Result.SolarAltitude, Result.SolarAzimuth, Result.Declination);
  RestoreExceptions(State);
end;

function AlmanacSunHours(Year: LongInt; Month: LongInt; DayOfMonth: LongInt; Latitude: Single): TAlmanacSunHours;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLRISESET(Year, Month, DayOfMonth, Latitude, Result.Sunrise, Result.Sunset);
  RestoreExceptions(State);
end;

function SolarGeometry(Latitude: Single; Day: LongInt; SolarTime: Single): TSolarGeometry;
var
  State: TFloatingPointState;
begin
  Result.Sunrise := NaN;
  Result.Sunset := NaN;
  State := MaskExceptions;
  CLSNGE(Latitude, Day, SolarTime, Result.Declination, Result.SolarAltitude, Result.SolarAzimuth, Result.Sunrise,
    Result.Sunset);
  RestoreExceptions(State);
end;

function SurfaceAngles(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single):
  TSurfaceAngles;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLSNSR(SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt, Result.Incidence, Result.VerticalShadowAngle,
    Result.HorizontalShadowAngle);
  RestoreExceptions(State);
end;

function SurfaceIrradiance(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single;
  DirectNormal: Single; DiffuseHorizontal: Single; GroundReflectance: Single; BeamFactor: Single; DiffuseFactor:
  Single): TSurfaceIrradiance;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLSORD(SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt, DirectNormal, DiffuseHorizontal, GroundReflectance,
    BeamFactor, DiffuseFactor, Result.SurfaceBeam, Result.SurfaceDiffuse, Result.GroundReflected);
  RestoreExceptions(State);
end;

function SurfaceIrradianceAndIncidence(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt:
  Single; DirectNormal: Single; DiffuseHorizontal: Single; GroundReflectance: Single; BeamFactor: Single; DiffuseFactor:
  Single): TSurfaceIrradianceAndIncidence;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  CLSOR2(SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt, DirectNormal, DiffuseHorizontal, GroundReflectance,
    BeamFactor, DiffuseFactor, Result.SurfaceBeam, Result.SurfaceDiffuse, Result.GroundReflected, Result.Incidence);
  RestoreExceptions(State);
end;

function Overlap(const X1: array of Single; const Y1: array of Single; const X2: array of Single; const Y2: array of
  Single): TOverlap;
var
  State: TFloatingPointState;
  Vertices1: LongInt;
  Vertices2: LongInt;
begin
  Vertices1 := Shortest([System.Length(X1), System.Length(Y1)]);
  Vertices2 := Shortest([System.Length(X2), System.Length(Y2)]);
  State := MaskExceptions;
  GEOVER(PSingle(@X1[0]), PSingle(@Y1[0]), Vertices1, PSingle(@X2[0]), PSingle(@Y2[0]), Vertices2,
    PSingle(@Result.PieceX), PSingle(@Result.PieceY), PLongInt(@Result.PieceVertices), Result.Area);
  RestoreExceptions(State);
end;

function OverlapAlias(const X1: array of Single; const Y1: array of Single; const X2: array of Single; const Y2: array
  of Single): TOverlapAlias;
var
  State: TFloatingPointState;
  Vertices1: LongInt;
  Vertices2: LongInt;
begin
  Vertices1 := Shortest([System.Length(X1), System.Length(Y1)]);
  Vertices2 := Shortest([System.Length(X2), System.Length(Y2)]);
  State := MaskExceptions;
  GEHOLE(PSingle(@X1[0]), PSingle(@Y1[0]), Vertices1, PSingle(@X2[0]), PSingle(@Y2[0]), Vertices2,
    PSingle(@Result.PieceX), PSingle(@Result.PieceY), PLongInt(@Result.PieceVertices), Result.Area);
  RestoreExceptions(State);
end;

function Collinearity(const X: array of Single; const Y: array of Single): LongInt;
var
  State: TFloatingPointState;
  Points: LongInt;
begin
  Points := Shortest([System.Length(X), System.Length(Y)]);
  State := MaskExceptions;
  Result := IGELIN(PSingle(@X[0]), PSingle(@Y[0]), Points);
  RestoreExceptions(State);
end;

function CountEnclosed(const X: array of Single; const Y: array of Single; const PointX: array of Single; const PointY:
  array of Single; const Enclosed: array of LongInt): TCountEnclosed;
var
  State: TFloatingPointState;
  Vertices: LongInt;
  Points: LongInt;
begin
  Vertices := Shortest([System.Length(X), System.Length(Y)]);
  Points := Shortest([System.Length(PointX), System.Length(PointY), System.Length(Enclosed)]);
  Result.Enclosed := nil;
  SetLength(Result.Enclosed, Points);
  Move(PLongInt(@Enclosed[0])^, PLongInt(@Result.Enclosed[0])^, System.Length(Result.Enclosed) * SizeOf(LongInt));
  State := MaskExceptions;
  GECLOS(PSingle(@X[0]), PSingle(@Y[0]), Vertices, PSingle(@PointX[0]), PSingle(@PointY[0]), Points,
    PLongInt(@Result.Enclosed[0]), Result.EnclosedPoints);
  RestoreExceptions(State);
end;

function BoundaryCrossing(const SegmentStart: array of Single; const SegmentEnd: array of Single; const X: array of
  Single; const Y: array of Single): TBoundaryCrossing;
var
  State: TFloatingPointState;
  Vertices: LongInt;
begin
  Vertices := Shortest([System.Length(X), System.Length(Y)]);
  State := MaskExceptions;
  GESIDE(PSingle(@SegmentStart[0]), PSingle(@SegmentEnd[0]), PSingle(@X[0]), PSingle(@Y[0]), Vertices,
    PSingle(@Result.CrossingPoint), Result.CrossingCode);
  RestoreExceptions(State);
end;

function Inside(const Point: array of Single; const Polygon: array of TSingle3): LongInt;
var
  State: TFloatingPointState;
  Vertices: LongInt;
begin
  Vertices := Shortest([System.Length(Polygon)]);
  State := MaskExceptions;
  GEINSI(PSingle(@Point[0]), PSingle(@Polygon[0]), Vertices, Result);
  RestoreExceptions(State);
end;

function ParallelPlanes(const Triangle1: TDouble3x3; const Triangle2: TDouble3x3): Boolean;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := GEPLEL(PDouble(@Triangle1), PDouble(@Triangle2)) <> 0;
  RestoreExceptions(State);
end;

function ParallelSides(const Triangle1: TDouble3x3; const Triangle2: TDouble3x3): TParallelSides;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result.Truth := GEPSID(PDouble(@Triangle1), PDouble(@Triangle2), Result.Side1, Result.Side2) <> 0;
  RestoreExceptions(State);
end;

function Rectangular(const Quadrilateral: TDouble4x3): Boolean;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := GERECT(PDouble(@Quadrilateral)) <> 0;
  RestoreExceptions(State);
end;

function Facing(const Triangle: TDouble3x3; Azimuth: Double): TFacing;
var
  State: TFloatingPointState;
begin
  Result.Azimuth := Azimuth;
  State := MaskExceptions;
  GETILT(PDouble(@Triangle), Result.Azimuth, Result.Tilt);
  RestoreExceptions(State);
end;

function LocalCoordinates(const Quadrilateral1: TDouble4x3; const Quadrilateral2: TDouble4x3): TLocalCoordinates;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GELCAL(PDouble(@Quadrilateral1), PDouble(@Quadrilateral2), PDouble(@Result.Local1), PDouble(@Result.Local2));
  RestoreExceptions(State);
end;

function ToLocal(const Corners: TDouble4x3; const XAxis: array of Double; const YAxis: array of Double; const ZAxis:
  array of Double): TDouble4x3;
var
  State: TFloatingPointState;
begin
  Move(PDouble(@Corners)^, PDouble(@Result)^, 12 * SizeOf(Double));
  State := MaskExceptions;
  GETRNS(PDouble(@Result), PDouble(@XAxis[0]), PDouble(@YAxis[0]), PDouble(@ZAxis[0]));
  RestoreExceptions(State);
end;

function MeetingPoint(const Line1Start: array of Single; const Line1End: array of Single; const Line2Start: array of
  Single; const Line2End: array of Single): TSingle2;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GEMEET(PSingle(@Line1Start[0]), PSingle(@Line1End[0]), PSingle(@Line2Start[0]), PSingle(@Line2End[0]),
    PSingle(@Result));
  RestoreExceptions(State);
end;

function CrossingPoint(const Segment1Start: array of Single; const Segment1End: array of Single; const Segment2Start:
  array of Single; const Segment2End: array of Single): TSingle2;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GECROS(PSingle(@Segment1Start[0]), PSingle(@Segment1End[0]), PSingle(@Segment2Start[0]), PSingle(@Segment2End[0]),
    PSingle(@Result));
  RestoreExceptions(State);
end;

function InSpan(const FirstEnd: array of Single; const SecondEnd: array of Single; const Point: array of Single):
  Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := GEINLN(PSingle(@FirstEnd[0]), PSingle(@SecondEnd[0]), PSingle(@Point[0]));
  RestoreExceptions(State);
end;

function AheadAndNearer(const FirstEnd: array of Single; const SecondEnd: array of Single; const Point: array of
  Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := GEINLN2(PSingle(@FirstEnd[0]), PSingle(@SecondEnd[0]), PSingle(@Point[0]));
  RestoreExceptions(State);
end;

function Coincide(X1: Single; Y1: Single; X2: Single; Y2: Single): Boolean;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := GECOIN(X1, Y1, X2, Y2) <> 0;
  RestoreExceptions(State);
end;

function SideOfLine(const LineStart: array of Single; const LineEnd: array of Single; const Point: array of Single):
  LongInt;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := IGEPNT(PSingle(@LineStart[0]), PSingle(@LineEnd[0]), PSingle(@Point[0]));
  RestoreExceptions(State);
end;

function BackAzimuth(Angle: Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := BORI(Angle);
  RestoreExceptions(State);
end;

function DirectionTo(SolarAltitude: Single; SolarAzimuth: Single): TSingle3;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GESUNV(SolarAltitude, SolarAzimuth, PSingle(@Result));
  RestoreExceptions(State);
end;

function SurfaceAxes(SurfaceAzimuth: Single; Tilt: Single): TSurfaceAxes;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GERSET(SurfaceAzimuth, Tilt, PSingle(@Result.RotationMatrix), PSingle(@Result.InverseMatrix));
  RestoreExceptions(State);
end;

function LocalToGlobal(const LocalVector: array of Single; const RotationMatrix: TSingle3x3): TSingle3;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GERAXI(PSingle(@LocalVector[0]), PSingle(@RotationMatrix), PSingle(@Result));
  RestoreExceptions(State);
end;

function GlobalToLocal(const GlobalVector: array of Single; const RotationMatrix: TSingle3x3): TSingle3;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GERAX2(PSingle(@GlobalVector[0]), PSingle(@RotationMatrix), PSingle(@Result));
  RestoreExceptions(State);
end;

function PlanArea(const X: array of Single; const Y: array of Single): Single;
var
  State: TFloatingPointState;
  Vertices: LongInt;
begin
  Vertices := Shortest([System.Length(X), System.Length(Y)]);
  State := MaskExceptions;
  Result := GEAPOL(PSingle(@X[0]), PSingle(@Y[0]), Vertices);
  RestoreExceptions(State);
end;

function SignedPlanArea(const X: array of Single; const Y: array of Single): Single;
var
  State: TFloatingPointState;
  Vertices: LongInt;
begin
  Vertices := Shortest([System.Length(X), System.Length(Y)]);
  State := MaskExceptions;
  Result := GEAPO2(PSingle(@X[0]), PSingle(@Y[0]), Vertices);
  RestoreExceptions(State);
end;

function AreaInSpace(const X: array of Single; const Y: array of Single; const Z: array of Single): Single;
var
  State: TFloatingPointState;
  Vertices: LongInt;
begin
  Vertices := Shortest([System.Length(X), System.Length(Y), System.Length(Z)]);
  State := MaskExceptions;
  Result := GEAPO3(PSingle(@X[0]), PSingle(@Y[0]), PSingle(@Z[0]), Vertices);
  RestoreExceptions(State);
end;

function PolygonOrientation(const Polygon: array of TSingle3): TPolygonOrientation;
var
  State: TFloatingPointState;
  Vertices: LongInt;
begin
  Vertices := Shortest([System.Length(Polygon)]);
  Result.Tilt := NaN;
  Result.BackAzimuth := NaN;
  State := MaskExceptions;
  GEASO(Vertices, PSingle(@Polygon[0]), Result.Area, Result.Tilt, Result.BackAzimuth);
  RestoreExceptions(State);
end;

function Projection(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point: array of Single;
  const Direction: array of Single): TSingle3;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GEPROJ(PSingle(@PlanePoint[0]), PSingle(@PlaneNormal[0]), PSingle(@Point[0]), PSingle(@Direction[0]),
    PSingle(@Result));
  RestoreExceptions(State);
end;

function ForwardProjection(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point: array of
  Single; const Direction: array of Single): TSingle3;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GEPROJ2(PSingle(@PlanePoint[0]), PSingle(@PlaneNormal[0]), PSingle(@Point[0]), PSingle(@Direction[0]),
    PSingle(@Result));
  RestoreExceptions(State);
end;

function ForwardProjectionOrStart(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point:
  array of Single; const Direction: array of Single): TSingle3;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GEPROJ3(PSingle(@PlanePoint[0]), PSingle(@PlaneNormal[0]), PSingle(@Point[0]), PSingle(@Direction[0]),
    PSingle(@Result));
  RestoreExceptions(State);
end;

function DotProduct(const VectorA: array of Single; const VectorB: array of Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := GEDOTP(PSingle(@VectorA[0]), PSingle(@VectorB[0]));
  RestoreExceptions(State);
end;

function DotProductInDouble(const VectorA: array of Double; const VectorB: array of Double): Double;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := GEDTDP(PDouble(@VectorA[0]), PDouble(@VectorB[0]));
  RestoreExceptions(State);
end;

function CrossProduct(const VectorA: array of Single; const VectorB: array of Single): TSingle3;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GEXPRO(PSingle(@VectorA[0]), PSingle(@VectorB[0]), PSingle(@Result));
  RestoreExceptions(State);
end;

function CrossProductInDouble(const VectorA: array of Double; const VectorB: array of Double): TDouble3;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  GEXPDP(PDouble(@VectorA[0]), PDouble(@VectorB[0]), PDouble(@Result));
  RestoreExceptions(State);
end;

function VectorLength(const Vector: array of Single): Single;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := GEVMOD(PSingle(@Vector[0]));
  RestoreExceptions(State);
end;

function LengthInDouble(const Vector: array of Double): Double;
var
  State: TFloatingPointState;
begin
  State := MaskExceptions;
  Result := GEVMDP(PDouble(@Vector[0]));
  RestoreExceptions(State);
end;

end.
