{ Produced from the catalogue of routines (catalogue/); do not edit. }

{ What the functions of unit Quorvel take and return. }
unit QuorvelTypes;

{$mode objfpc}{$scopedenums on}

interface

type
  TSingles = array of Single;
  TDoubles = array of Double;
  TLongInts = array of LongInt;
  TDouble3 = array[0..2] of Double;
  TDouble3x3 = array[0..2, 0..2] of Double;
  TDouble4x3 = array[0..3, 0..2] of Double;
  TLongInt5 = array[0..4] of LongInt;
  TSingle10 = array[0..9] of Single;
  TSingle10x12 = array[0..9, 0..11] of Single;
  TSingle12 = array[0..11] of Single;
  TSingle12x11 = array[0..11, 0..10] of Single;
  TSingle2 = array[0..1] of Single;
  TSingle21 = array[0..20] of Single;
  TSingle3 = array[0..2] of Single;
  TSingle3x3 = array[0..2, 0..2] of Single;
  TSingle5x25 = array[0..4, 0..24] of Single;

  { psychrometer type
    Sling: sling (aspirated)
    Screen: screen (naturally ventilated) }
  TPsychrometer = (Sling = 1, Screen = 2);

  { kind of element
    Between: element between two environments
    Partition: internal partition, the same swing on both sides }
  TElementKind = (Between = 1, Partition = 2);

  { direction of the heat flow
    Upward: heat flow upwards
    Horizontal: vertical surface
    Downward: heat flow downwards }
  THeatFlowDirection = (Upward = 1, Horizontal = 2, Downward = 3);

  { direction
    Pack: pack
    Unpack: unpack, as any other value }
  TPacking = (Pack = 1, Unpack = 2);

  { surface type of the outer face, normally 1
    Outside: outside
    Inside: inside }
  TSurface = (Outside = 1, Inside = 2);

  { exposure of the outer face to the wind
    Sheltered: sheltered
    Normal: normal
    Severe: severe }
  TExposure = (Sheltered = 1, Normal = 2, Severe = 3);

  { kind of pane 3
    Closing: closes the cavities on both sides
    Vented: closes none }
  TPaneKind = (Closing = 1, Vented = 2);

  { kind of radiation
    Direct: direct radiation (WNDRSM)
    Diffuse: diffuse radiation (WNDFSM), as any other value }
  TRadiation = (Direct = 1, Diffuse = 2);

  { set of bands
    First: set 1
    Second: set 2 }
  TBandSet = (First = 1, Second = 2);

  { how the day is counted
    OfMonth: day of the month
    OfYear: day of the year }
  TDayKind = (OfMonth = 1, OfYear = 2);

  { unit
    OpenedLast: the file that CLBNF0 opened last }
  TFileUnit = (OpenedLast = 31);

  { kind of sky
    Clear: clear
    Cloudy: cloudy: the larger diffuse irradiance }
  TSkyKind = (Clear = 0, Cloudy = 1);

  { model of the sky
    RadianceIndex: radiance index by the kind of sky
    NorthernEurope: clearness, northern Europe
    SouthernEurope: clearness, southern Europe, as any other value }
  TSkyModel = (RadianceIndex = 0, NorthernEurope = 1, SouthernEurope = 2);

  { what the time is
    Solar: solar time; longitude and zone meridian are set to 0
    Zone: clock of the zone, at the longitude
    DatedSolar: solar time; the zone meridian only dates the declination }
  TTimeKind = (Solar = 1, Zone = 2, DatedSolar = 3);

  { 1 for points that are enclosed
    Outside: not enclosed
    Inside: enclosed }
  TEnclosed = (Outside = 0, Inside = 1);

  { What AdiabaticMixing returns. }
  TAdiabaticMixing = record
    DryBulb: Single;
    MoistureContent: Single;
    Enthalpy: Single;
  end;

  { What PoolEvaporation returns. }
  TPoolEvaporation = record
    EvaporationRate: Single;
    LatentLoad: Single;
    ConvectiveLoad: Single;
    ReferenceLoad: Single;
  end;

  { What PoolEvaporationFromWetBulb returns. }
  TPoolEvaporationFromWetBulb = record
    EvaporationRate: Single;
    LatentLoad: Single;
    ConvectiveLoad: Single;
    ReferenceLoad: Single;
  end;

  { What CyclicResponse returns. }
  TCyclicResponse = record
    Admittance: Single;
    AdmittanceLead: Single;
    DecrementFactor: Single;
    DecrementLag: Single;
    SurfaceFactor: Single;
    SurfaceFactorLag: Single;
    UValue: Single;
  end;

  { What CondensationProfile returns. }
  TCondensationProfile = record
    InterfaceTemperature: TSingle21;
    InterfaceVapourPressure: TSingle21;
    InterfaceSaturationPressure: TSingle21;
  end;

  { What PackTwoFractions returns. }
  TPackTwoFractions = record
    PackedNumber: Single;
    Fraction1: Single;
    Fraction2: Single;
  end;

  { What PackThreeFractions returns. }
  TPackThreeFractions = record
    PackedNumber: Single;
    Fraction1: Single;
    Fraction2: Single;
    Fraction3: Single;
  end;

  { What PackThreeFractionsThirdFirst returns. }
  TPackThreeFractionsThirdFirst = record
    PackedNumber: Single;
    Fraction3: Single;
    Fraction1: Single;
    Fraction2: Single;
  end;

  { What PackPane returns. }
  TPackPane = record
    PackedNumber: Single;
    Absorptance: Single;
    Reflectance1: Single;
    Reflectance2: Single;
  end;

  { What WindowParameters returns. }
  TWindowParameters = record
    Admittance: Single;
    AdmittanceLead: Single;
    DecrementFactor: Single;
    DecrementLag: Single;
    SurfaceFactor: Single;
    SurfaceFactorLag: Single;
    UValue: Single;
  end;

  { What GlassDirect returns. }
  TGlassDirect = record
    ParallelTransmittance: Single;
    ParallelAbsorptance: Single;
    ParallelReflectance: Single;
    PerpendicularTransmittance: Single;
    PerpendicularAbsorptance: Single;
    PerpendicularReflectance: Single;
  end;

  { What GlassDiffuse returns. }
  TGlassDiffuse = record
    Transmittance: Single;
    Absorptance: Single;
  end;

  { What StackedLayers returns. }
  TStackedLayers = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What TracedLayers returns. }
  TTracedLayers = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What RollerBlind returns. }
  TRollerBlind = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What DiffuseRollerBlind returns. }
  TDiffuseRollerBlind = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What SurfaceReflectance returns. }
  TSurfaceReflectance = record
    ParallelReflectance: Single;
    PerpendicularReflectance: Single;
  end;

  { What SlabOptics returns. }
  TSlabOptics = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What PaneTemperatures returns. }
  TPaneTemperatures = record
    PaneTemperature1: Single;
    PaneTemperature2: Single;
    PaneTemperature3: Single;
    PaneTemperature4: Single;
    PaneTemperature5: Single;
  end;

  { What UnitDirect returns. }
  TUnitDirect = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What UnitDiffuse returns. }
  TUnitDiffuse = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What UnitDirectShares returns. }
  TUnitDirectShares = record
    Transmittance: Single;
    PaneShares: TSingles;
    Absorptance: Single;
  end;

  { What UnitDiffuseShares returns. }
  TUnitDiffuseShares = record
    Transmittance: Single;
    PaneShares: TSingles;
    Absorptance: Single;
  end;

  { What UnitShares returns. }
  TUnitShares = record
    Transmittance: Single;
    PaneShares: TSingles;
    Absorptance: Single;
  end;

  { What SlatDirect returns. }
  TSlatDirect = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What TwoFacedSlatDirect returns. }
  TTwoFacedSlatDirect = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What OpenSlatDirect returns. }
  TOpenSlatDirect = record
    Transmittance: Single;
    Absorptance: Single;
    Reflectance: Single;
  end;

  { What SlatDiffuse returns. }
  TSlatDiffuse = record
    SkyTransmittance: Single;
    GroundTransmittance: Single;
    SkyAbsorptance: Single;
    GroundAbsorptance: Single;
  end;

  { What TwoFacedSlatDiffuse returns. }
  TTwoFacedSlatDiffuse = record
    SkyTransmittance: Single;
    GroundTransmittance: Single;
    SkyAbsorptance: Single;
    GroundAbsorptance: Single;
  end;

  { What OpenSlatDiffuse returns. }
  TOpenSlatDiffuse = record
    SkyTransmittance: Single;
    GroundTransmittance: Single;
    SkyAbsorptance: Single;
    GroundAbsorptance: Single;
  end;

  { What LocateBand returns. }
  TLocateBand = record
    LowerBand: LongInt;
    UpperBand: LongInt;
    BandWeight: Single;
  end;

  { What BandClimate returns. }
  TBandClimate = record
    Percentage: Single;
    Q1: Single;
    Q2: Single;
    Q3: Single;
    Q4: Single;
    Q5: Single;
    Q6: Single;
    TimeA: Single;
    TimeB: Single;
    Q7: Single;
    Q8: Single;
  end;

  { What DesignIrradiance returns. }
  TDesignIrradiance = record
    DirectNormal: Single;
    DiffuseHorizontal: Single;
  end;

  { What MuneerSlope returns. }
  TMuneerSlope = record
    SurfaceBeam: Single;
    SurfaceDiffuse: Single;
    GroundReflected: Single;
    Incidence: Single;
  end;

  { What SiteConstants returns. }
  TSiteConstants = record
    GroundReflectance: Single;
    BeamFactor: Single;
    DiffuseFactor: Single;
    AlternativeDiffuseFactor: Single;
  end;

  { What AlmanacPosition returns. }
  TAlmanacPosition = record
    Longitude: Single;
    ZoneMeridian: Single;
    SolarAltitude: Single;
    SolarAzimuth: Single;
    Declination: Single;
  end;

  { What AlmanacSunHours returns. }
  TAlmanacSunHours = record
    Sunrise: Single;
    Sunset: Single;
  end;

  { What SolarGeometry returns. }
  TSolarGeometry = record
    Declination: Single;
    SolarAltitude: Single;
    SolarAzimuth: Single;
    Sunrise: Single;
    Sunset: Single;
  end;

  { What SurfaceAngles returns. }
  TSurfaceAngles = record
    Incidence: Single;
    VerticalShadowAngle: Single;
    HorizontalShadowAngle: Single;
  end;

  { What SurfaceIrradiance returns. }
  TSurfaceIrradiance = record
    SurfaceBeam: Single;
    SurfaceDiffuse: Single;
    GroundReflected: Single;
  end;

  { What SurfaceIrradianceAndIncidence returns. }
  TSurfaceIrradianceAndIncidence = record
    SurfaceBeam: Single;
    SurfaceDiffuse: Single;
    GroundReflected: Single;
    Incidence: Single;
  end;

  { What Overlap returns. }
  TOverlap = record
    PieceX: TSingle5x25;
    PieceY: TSingle5x25;
    PieceVertices: TLongInt5;
    Area: Single;
  end;

  { What OverlapAlias returns. }
  TOverlapAlias = record
    PieceX: TSingle5x25;
    PieceY: TSingle5x25;
    PieceVertices: TLongInt5;
    Area: Single;
  end;

  { What CountEnclosed returns. }
  TCountEnclosed = record
    Enclosed: TLongInts;
    EnclosedPoints: LongInt;
  end;

  { What BoundaryCrossing returns. }
  TBoundaryCrossing = record
    CrossingPoint: TSingle2;
    CrossingCode: LongInt;
  end;

  { What ParallelSides returns. }
  TParallelSides = record
    Truth: Boolean;
    Side1: LongInt;
    Side2: LongInt;
  end;

  { What Facing returns. }
  TFacing = record
    Azimuth: Double;
    Tilt: Double;
  end;

  { What LocalCoordinates returns. }
  TLocalCoordinates = record
    Local1: TDouble4x3;
    Local2: TDouble4x3;
  end;

  { What SurfaceAxes returns. }
  TSurfaceAxes = record
    RotationMatrix: TSingle3x3;
    InverseMatrix: TSingle3x3;
  end;

  { What PolygonOrientation returns. }
  TPolygonOrientation = record
    Area: Single;
    Tilt: Single;
    BackAzimuth: Single;
  end;

implementation

end.
