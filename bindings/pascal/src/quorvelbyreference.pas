{ Produced from the catalogue of routines (catalogue/); do not edit. }

{ The routines by reference, under the names that the libraries export: what C gives, to the bit, and nothing checked.
  Arrays are passed by the address of their first number and are as long as the counts say.

  Exceptions of floating point must be masked around a call, as MaskExceptions of QuorvelFloatingPoint does. }
unit QuorvelByReference;

{$mode objfpc}

interface

const
{$ifdef windows}
  Library_ = 'quorvel.dll';
  ArrayLibrary = 'quorvel_arrays.dll';
{$else}
  Library_ = 'quorvel';
  ArrayLibrary = 'quorvel_arrays';
{$endif}

{ DryAirEnthalpy: Specific enthalpy of dry air. }
function PSHDRY(constref Temperature: Single): Single; cdecl; external Library_;

{ WaterVapourEnthalpy: Specific enthalpy of water vapour. }
function PSHVAP(constref Temperature: Single): Single; cdecl; external Library_;

{ DryAirSpecificHeat: Specific heat of dry air at constant pressure. }
function PSCPDR(constref Temperature: Single): Single; cdecl; external Library_;

{ WaterVapourSpecificHeat: Specific heat of water vapour at constant pressure. }
function PSCPVA(constref Temperature: Single): Single; cdecl; external Library_;

{ LatentHeat: Latent heat of evaporation of water, of sublimation of ice below 0 degC. }
function PSHFG(constref Temperature: Single): Single; cdecl; external Library_;

{ MoistureContentFromPsychrometer: Moisture content of air from the reading of a wet-and-dry-bulb psychrometer. }
function PSGS(constref DryBulb: Single; constref WetBulb: Single; constref Pressure: Single; constref Psychrometer:
  LongInt): Single; cdecl; external Library_;

{ PercentageSaturation: Percentage saturation: moisture content by that of saturated air at the same temperature and
    pressure. }
function PSPCST(constref DryBulb: Single; constref MoistureContent: Single; constref Pressure: Single): Single; cdecl;
  external Library_;

{ SpecificEnthalpyFromPsychrometer: Specific enthalpy of moist air from the reading of a wet-and-dry-bulb
    psychrometer. }
function PSHWET(constref DryBulb: Single; constref WetBulb: Single; constref Pressure: Single; constref Psychrometer:
  LongInt): Single; cdecl; external Library_;

{ SpecificVolume: Specific volume of moist air. }
function PSSPVL(constref DryBulb: Single; constref MoistureContent: Single; constref Pressure: Single): Single; cdecl;
  external Library_;

{ SaturationTemperatureFromEnthalpy: Temperature at which saturated air has a specific enthalpy. }
function PSTSAT(constref Enthalpy: Single; constref Pressure: Single): Single; cdecl; external Library_;

{ PoolEvaporation: Evaporation from an indoor pool and its heat flows, for room air given by its moisture content. }
procedure TPPOOL(constref WaterArea: Single; constref WettedArea: Single; constref WaterTemperature: Single; constref
  DryBulb: Single; constref MoistureContent: Single; constref ReferenceTemperature: Single; constref Bathers: LongInt;
  constref ReferenceCoefficient: Single; constref Pressure: Single; var EvaporationRate: Single; var LatentLoad: Single;
  var ConvectiveLoad: Single; var ReferenceLoad: Single); cdecl; external Library_;

{ PoolEvaporationFromWetBulb: Evaporation from an indoor pool and its heat flows, for room air given by its wet bulb. }
procedure TPPOOL2(constref WaterArea: Single; constref WettedArea: Single; constref WaterTemperature: Single; constref
  DryBulb: Single; constref WetBulb: Single; constref ReferenceTemperature: Single; constref Bathers: LongInt; constref
  ReferenceCoefficient: Single; constref Pressure: Single; var EvaporationRate: Single; var LatentLoad: Single; var
  ConvectiveLoad: Single; var ReferenceLoad: Single); cdecl; external Library_;

{ SaturationPressure: Saturation vapour pressure over a plane surface of water, or of ice below 0 degC. }
function PSSVP(constref Temperature: Single): Single; cdecl; external Library_;

{ VapourPressure: Vapour pressure of air at a dry-bulb temperature and relative humidity. }
function PSVP(constref DryBulb: Single; constref RelativeHumidity: Single): Single; cdecl; external Library_;

{ VapourPressureFromPsychrometer: Vapour pressure from the reading of a wet-and-dry-bulb psychrometer. }
function PSVAP(constref DryBulb: Single; constref WetBulb: Single; constref Pressure: Single; constref Psychrometer:
  LongInt): Single; cdecl; external Library_;

{ WeightedTemperature: Weighted temperature of two air temperatures. }
function PSTEFF(constref FirstTemperature: Single; constref SecondTemperature: Single): Single; cdecl; external
  Library_;

{ PsychrometerWetBulb: Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and relative humidity. }
function PSTWET(constref DryBulb: Single; constref RelativeHumidity: Single; constref Pressure: Single; constref
  Psychrometer: LongInt): Single; cdecl; external Library_;

{ WetBulbFromPercentageSaturation: Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and
    percentage saturation. }
function PSTWB(constref DryBulb: Single; constref PercentageSaturation: Single; constref Pressure: Single; constref
  Psychrometer: LongInt): Single; cdecl; external Library_;

{ WetBulbFromMoistureContent: Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and moisture
    content. }
function PSWBLB(constref DryBulb: Single; constref MoistureContent: Single; constref Pressure: Single; constref
  Psychrometer: LongInt): Single; cdecl; external Library_;

{ CyclicResponse: Admittance, decrement factor and surface factor of a construction with their time shifts, and its
    U-value. }
procedure TPADMT(Thickness: PSingle; Conductivity: PSingle; Density: PSingle; SpecificHeat: PSingle; constref
  InsideResistance: Single; constref OutsideResistance: Single; constref Layers: LongInt; constref Harmonic: LongInt;
  constref ElementKind: LongInt; var Admittance: Single; var AdmittanceLead: Single; var DecrementFactor: Single; var
  DecrementLag: Single; var SurfaceFactor: Single; var SurfaceFactorLag: Single; var UValue: Single); cdecl; external
  Library_;

{ VerticalCavityResistance: Thermal resistance of a sealed vertical air cavity between ordinary building surfaces. }
function TPRCAV(constref CavityWidth: Single): Single; cdecl; external Library_;

{ AirCavityResistance: Thermal resistance of a sealed air cavity by convection and long-wave radiation. }
function TPRCA2(constref Tilt: Single; constref CavityWidth: Single; constref Emissivity1: Single; constref Emissivity2:
  Single): Single; cdecl; external Library_;

{ GasCavityResistance: Thermal resistance of a sealed cavity filled with any gas. }
function TPRCAX(constref Tilt: Single; constref CavityWidth: Single; constref Emissivity1: Single; constref Emissivity2:
  Single; constref Density: Single; constref Conductivity: Single; constref SpecificHeat: Single; constref Viscosity:
  Single): Single; cdecl; external Library_;

{ TotalVapourResistance: Vapour resistance of a construction. }
procedure TPDAMP(Thickness: PSingle; VapourResistivity: PSingle; constref Layers: LongInt; var VapourResistance:
  Single); cdecl; external Library_;

{ CondensationProfile: Steady temperature, vapour pressure and saturation pressure at the interfaces of a
    construction; the vapour pressure is held down to saturation where it would exceed it. }
procedure TPGRAD(Thickness: PSingle; Conductivity: PSingle; VapourResistivity: PSingle; constref InsideResistance:
  Single; constref OutsideResistance: Single; constref Layers: LongInt; constref InsideTemperature: Single; constref
  OutsideTemperature: Single; constref InsideHumidity: Single; constref OutsideHumidity: Single; InterfaceTemperature:
  PSingle; InterfaceVapourPressure: PSingle; InterfaceSaturationPressure: PSingle); cdecl; external Library_;

{ CondensesWithinLayer: Whether vapour condenses inside a layer, from the temperatures and vapour pressures of its two
    faces. }
function ITPCON(constref WarmTemperature: Single; constref ColdTemperature: Single; constref WarmVapourPressure: Single;
  constref ColdVapourPressure: Single): LongInt; cdecl; external Library_;

{ ElementProperty: One property of one record of a construction, a list of elements from face to face. }
function BELDAT(ElementRecords: PSingle; constref RecordCount: LongInt; constref RecordNumber: LongInt; constref Item:
  LongInt): Single; cdecl; external Library_;

{ NaturalConvectionCoefficient: Coefficient of natural convection at a surface of a room. }
function TPHCON(constref TemperatureDifference: Single; constref CharacteristicLength: Single; constref
  HeatFlowDirection: LongInt): Single; cdecl; external Library_;

{ PackTwoFractions: Packs two fractions of two decimals into one real, or unpacks them. }
procedure TPCOLW(constref Packing: LongInt; var PackedNumber: Single; var Fraction1: Single; var Fraction2: Single);
  cdecl; external Library_;

{ PackThreeFractions: Packs three fractions of two decimals into one real, or unpacks them. }
procedure TPCOLT(constref Packing: LongInt; var PackedNumber: Single; var Fraction1: Single; var Fraction2: Single; var
  Fraction3: Single); cdecl; external Library_;

{ PackThreeFractionsThirdFirst: TPCOLT with its arguments in another order. }
procedure TPCOLW2(constref Packing: LongInt; var PackedNumber: Single; var Fraction3: Single; var Fraction1: Single; var
  Fraction2: Single); cdecl; external Library_;

{ PackPane: Packs the solar absorptance of a pane and the reflectances of its faces into one real, as absorptance and
    transmittances, or unpacks them. }
procedure TPCOSW(constref Packing: LongInt; var PackedNumber: Single; var Absorptance: Single; var Reflectance1: Single;
  var Reflectance2: Single); cdecl; external Library_;

{ SurfaceResistance: Thermal resistance of the inside or outside surface of an element, for an emissivity of 0.9. }
function TPRSUR(constref Surface: LongInt; constref Tilt: Single; constref Exposure: LongInt): Single; cdecl; external
  Library_;

{ SurfaceResistanceAtEmissivity: Thermal resistance of the inside or outside surface of an element of any emissivity. }
function TPRSU2(constref Surface: LongInt; constref Tilt: Single; constref Exposure: LongInt; constref Emissivity:
  Single): Single; cdecl; external Library_;

{ UValue: U-value of a construction of plane layers between two surface resistances. }
procedure TPUVAL(Thickness: PSingle; Conductivity: PSingle; constref SurfaceResistance1: Single; constref
  SurfaceResistance2: Single; constref Layers: LongInt; var UValue: Single); cdecl; external Library_;

{ UValueAtTiltAndExposure: U-value of a construction at another tilt and exposure, from its U-value as a vertical wall
    in normal exposure. }
function TPUMOD(constref UValue: Single; constref Tilt: Single; constref Exposure: LongInt): Single; cdecl; external
  Library_;

{ WindowParameters: U-value, admittance, decrement factor and surface factor of a glazing of one to three panes. }
procedure TPWNDO(constref Panes: LongInt; constref PaneKind1: LongInt; constref Emissivity1: Single; constref PaneKind2:
  LongInt; constref Emissivity2: Single; constref PaneKind3: LongInt; constref Emissivity3: Single; constref
  CavityWidth1: Single; constref CavityWidth2: Single; constref OuterSurface: LongInt; constref Exposure: LongInt;
  constref Tilt: Single; constref Unused: Single; var Admittance: Single; var AdmittanceLead: Single; var
  DecrementFactor: Single; var DecrementLag: Single; var SurfaceFactor: Single; var SurfaceFactorLag: Single; var
  UValue: Single); cdecl; external Library_;

{ GlassDirect: Transmittance, absorptance and reflectance of a pane for direct radiation, both polarisations. }
procedure WNDRGL(constref NormalTransmittance: Single; constref NormalReflectance: Single; constref Incidence: Single;
  var ParallelTransmittance: Single; var ParallelAbsorptance: Single; var ParallelReflectance: Single; var
  PerpendicularTransmittance: Single; var PerpendicularAbsorptance: Single; var PerpendicularReflectance: Single);
  cdecl; external Library_;

{ GlassDiffuse: Transmittance and absorptance of a pane for isotropic diffuse radiation. }
procedure WNDFGL(constref NormalTransmittance: Single; constref NormalReflectance: Single; var Transmittance: Single;
  var Absorptance: Single); cdecl; external Library_;

{ StackedLayers: Transmittance, absorptance and reflectance of a stack of layers, each reflection counted once. }
procedure WNCOM2(constref Layers: LongInt; LayerTransmittances: PSingle; constref Unused: Single; LayerReflectances:
  PSingle; var Transmittance: Single; var Absorptance: Single; var Reflectance: Single); cdecl; external Library_;

{ TracedLayers: Transmittance, absorptance and reflectance of a stack of layers with the inter-reflections between all
    of them. }
procedure WNCOMP(constref Layers: LongInt; LayerTransmittances: PSingle; LayerAbsorptances: PSingle; LayerReflectances:
  PSingle; var Transmittance: Single; var Absorptance: Single; var Reflectance: Single); cdecl; external Library_;

{ RollerBlind: Transmittance, absorptance and reflectance of a roller blind, the same at every angle. }
procedure WNDRRO(constref BlindTransmittance: Single; constref BlindReflectance: Single; constref Incidence: Single; var
  Transmittance: Single; var Absorptance: Single; var Reflectance: Single); cdecl; external Library_;

{ DiffuseRollerBlind: Transmittance, absorptance and reflectance of a roller blind for diffuse radiation. }
procedure WNDFRO(constref BlindTransmittance: Single; constref BlindReflectance: Single; var Transmittance: Single; var
  Absorptance: Single; var Reflectance: Single); cdecl; external Library_;

{ RefractionAngle: Angle of a ray inside the glass, by Snell's law. }
function WNRANG(constref Incidence: Single; constref RefractiveIndex: Single): Single; cdecl; external Library_;

{ SurfaceReflectance: Reflectance of one face of the glass for the two polarisations, by Fresnel's equations. }
procedure WNREFL(constref Incidence: Single; constref RefractionAngle: Single; constref RefractiveIndex: Single; var
  ParallelReflectance: Single; var PerpendicularReflectance: Single); cdecl; external Library_;

{ SinglePassAbsorption: Share of a ray that is absorbed in one pass through the body of a pane. }
function WNABEN(constref RefractionAngle: Single; constref AbsorptionProduct: Single; constref Unused: Single): Single;
  cdecl; external Library_;

{ SlabOptics: Transmittance, absorptance and reflectance of a pane for one polarisation, with all inter-reflections
    between its two faces. }
procedure WNTAR(constref SinglePassAbsorptance: Single; constref FaceReflectance: Single; var Transmittance: Single; var
  Absorptance: Single; var Reflectance: Single); cdecl; external Library_;

{ AbsorptionProduct: Absorption coefficient times thickness of a pane, from its transmittance at normal incidence. }
function WNKL(constref NormalTransmittance: Single; constref RefractiveIndex: Single): Single; cdecl; external Library_;

{ NormalTransmittance: Transmittance of a pane at normal incidence: the inverse of WNKL. }
function WNTNOR(constref AbsorptionProduct: Single; constref NormalReflectance: Single): Single; cdecl; external
  Library_;

{ PaneTemperatures: Steady temperatures of the panes of a glazing from the air temperatures on both sides and the
    solar radiation that each pane absorbs. }
procedure WNTEMP(constref InsideTemperature: Single; constref OutsideTemperature: Single; constref Panes: LongInt;
  constref Absorbed1: Single; constref Absorbed2: Single; constref Absorbed3: Single; constref Absorbed4: Single;
  constref Absorbed5: Single; var PaneTemperature1: Single; var PaneTemperature2: Single; var PaneTemperature3: Single;
  var PaneTemperature4: Single; var PaneTemperature5: Single); cdecl; external Library_;

{ UnitDirect: Transmittance, absorptance and reflectance for direct radiation of a glazing unit known only by its
    shading coefficients. }
procedure WNDRSC(constref ShortwaveShadingCoefficient: Single; constref LongwaveShadingCoefficient: Single; constref
  Incidence: Single; var Transmittance: Single; var Absorptance: Single; var Reflectance: Single); cdecl; external
  Library_;

{ UnitDiffuse: Transmittance, absorptance and reflectance for isotropic diffuse radiation of a glazing unit known only
    by its shading coefficients. }
procedure WNDFSC(constref ShortwaveShadingCoefficient: Single; constref LongwaveShadingCoefficient: Single; var
  Transmittance: Single; var Absorptance: Single; var Reflectance: Single); cdecl; external Library_;

{ UnitDirectShares: WNDRSC, with the remainder that is neither transmitted nor absorbed split among the panes of the
    unit. }
procedure WNDRSM(constref ShortwaveShadingCoefficient: Single; constref LongwaveShadingCoefficient: Single; constref
  Incidence: Single; constref Panes: LongInt; var Transmittance: Single; PaneShares: PSingle; var Absorptance: Single);
  cdecl; external Library_;

{ UnitDiffuseShares: WNDFSC, with the remainder that is neither transmitted nor absorbed split among the panes of the
    unit. }
procedure WNDFSM(constref ShortwaveShadingCoefficient: Single; constref LongwaveShadingCoefficient: Single; constref
  Panes: LongInt; var Transmittance: Single; PaneShares: PSingle; var Absorptance: Single); cdecl; external Library_;

{ UnitShares: WNDRSM or WNDFSM, by a selector. }
procedure WNDRS0(constref Radiation: LongInt; constref ShortwaveShadingCoefficient: Single; constref
  LongwaveShadingCoefficient: Single; constref Incidence: Single; constref Panes: LongInt; var Transmittance: Single;
  PaneShares: PSingle; var Absorptance: Single); cdecl; external Library_;

{ SlatDirect: Transmittance, absorptance and reflectance of a slatted blind for a beam, both faces of the slats alike. }
procedure WNDRSL(constref SlatSpacing: Single; constref SlatWidth: Single; constref SlatAngle: Single; constref
  ProfileAngle: Single; constref SlatAbsorptance: Single; var Transmittance: Single; var Absorptance: Single; var
  Reflectance: Single); cdecl; external Library_;

{ TwoFacedSlatDirect: Transmittance, absorptance and reflectance of a blind for a beam, whose slats have two different
    faces. }
procedure WNDRS2(constref SlatSpacing: Single; constref SlatWidth: Single; constref SlatAngle: Single; constref
  ProfileAngle: Single; constref StruckAbsorptance: Single; constref OppositeAbsorptance: Single; var Transmittance:
  Single; var Absorptance: Single; var Reflectance: Single); cdecl; external Library_;

{ OpenSlatDirect: WNDRS2 for a blind that leaves a share of the radiation to pass untouched. }
procedure WNDRS3(constref SlatSpacing: Single; constref SlatWidth: Single; constref SlatAngle: Single; constref
  ProfileAngle: Single; constref OpenShare: Single; constref StruckAbsorptance: Single; constref OppositeAbsorptance:
  Single; var Transmittance: Single; var Absorptance: Single; var Reflectance: Single); cdecl; external Library_;

{ SlatDiffuse: Transmittance and absorptance of a slatted blind for the diffuse radiation from the sky's and from the
    ground's side, both faces of the slats alike. }
procedure WNDFSL(constref SlatSpacing: Single; constref SlatWidth: Single; constref SlatAngle: Single; constref
  SlatAbsorptance: Single; var SkyTransmittance: Single; var GroundTransmittance: Single; var SkyAbsorptance: Single;
  var GroundAbsorptance: Single); cdecl; external Library_;

{ TwoFacedSlatDiffuse: WNDFSL for slats with two different faces. }
procedure WNDFS2(constref SlatSpacing: Single; constref SlatWidth: Single; constref SlatAngle: Single; constref
  StruckAbsorptance: Single; constref OppositeAbsorptance: Single; var SkyTransmittance: Single; var
  GroundTransmittance: Single; var SkyAbsorptance: Single; var GroundAbsorptance: Single); cdecl; external Library_;

{ OpenSlatDiffuse: WNDFS2 for a blind that leaves a share of the radiation to pass untouched. }
procedure WNDFS3(constref SlatSpacing: Single; constref SlatWidth: Single; constref SlatAngle: Single; constref
  OpenShare: Single; constref StruckAbsorptance: Single; constref OppositeAbsorptance: Single; var SkyTransmittance:
  Single; var GroundTransmittance: Single; var SkyAbsorptance: Single; var GroundAbsorptance: Single); cdecl; external
  Library_;

{ LocateBand: Where a cumulative fraction of days lies among the ten bands of a month, in frequencies of the caller. }
procedure CLBAN1(constref Fraction: Single; constref Month: LongInt; Frequencies: PSingle; var LowerBand: LongInt; var
  UpperBand: LongInt; var BandWeight: Single); cdecl; external Library_;

{ BandClimate: Monthly climate of one of ten bands of days, or interpolated at a cumulative percentage of days. }
procedure CLBAND(constref Band: LongInt; constref Month: LongInt; constref BandSet: LongInt; var Percentage: Single; var
  Q1: Single; var Q2: Single; var Q3: Single; var Q4: Single; var Q5: Single; var Q6: Single; var TimeA: Single; var
  TimeB: Single; var Q7: Single; var Q8: Single); cdecl; external Library_;

{ InterpolateBandRows: Value between two rows of the band table. }
procedure CLBAN2(constref BaseRow: LongInt; constref LowerBand: LongInt; constref UpperBand: LongInt; constref Month:
  LongInt; constref BandWeight: Single; var Value: Single); cdecl; external Library_;

{ BandRow: One row of the band table, a value per month. }
procedure CLBAN3(constref Row: LongInt; Values: PSingle); cdecl; external Library_;

{ StoreDesignDay: Design day of a month as a day of the year, as ICLDAY gives it. }
procedure CLDAY(constref Month: LongInt; var Day: LongInt); cdecl; external Library_;

{ StoreDesignDayByOption: Design day of a month as a day of the year or of the month, as ICLDAYEX gives it. }
procedure CLDAYEX(constref Month: LongInt; var Day: LongInt; constref DayKind: LongInt); cdecl; external Library_;

{ DesignDay: Design day of a month as a day of the year. }
function ICLDAY(constref Month: LongInt): LongInt; cdecl; external Library_;

{ DesignDayByOption: Design day of a month as a day of the year or of the month. }
function ICLDAYEX(constref Month: LongInt; constref DayKind: LongInt): LongInt; cdecl; external Library_;

{ SecondDesignDay: Second design day of a month as a day of the year. }
function ICLDA2(constref Month: LongInt): LongInt; cdecl; external Library_;

{ SecondDesignDayByOption: Second design day of a month as a day of the year or of the month. }
function ICLDA2EX(constref Month: LongInt; constref DayKind: LongInt): LongInt; cdecl; external Library_;

{ StationRecords: Monthly records of a station, from a climate data file at given percentages of days. }
procedure CLBNF0(FileName: PAnsiChar; constref Station: LongInt; constref Month: LongInt; StationRecords: PSingle);
  cdecl; external Library_;

{ StationClimate: Monthly climate of one of ten bands of days of a station, or interpolated at a cumulative percentage
    of days. }
procedure CLBNFI(constref FileUnit: LongInt; constref Station: LongInt; constref Band: LongInt; constref Month: LongInt;
  constref BandSet: LongInt; constref Percentage: Single; var Q1: Single; var Q2: Single; var Q3: Single; var Q4:
  Single; var Q5: Single; var Q6: Single; var Q7: Single; var TimeA: Single; var TimeB: Single); cdecl; external
  Library_;

{ LocateStationBand: Where a cumulative fraction of days lies among the ten bands of a month, in the frequencies that
    CLBNF0 or CLBNFI read last. }
procedure CLBNF1(constref Fraction: Single; constref Month: LongInt; var LowerBand: LongInt; var UpperBand: LongInt; var
  BandWeight: Single); cdecl; external Library_;

{ InterpolateStationRows: Value between two rows of the station given to CLBNF0 or CLBNFI last. }
procedure CLBNF2(constref BaseRow: LongInt; constref LowerBand: LongInt; constref UpperBand: LongInt; constref Month:
  LongInt; constref BandWeight: Single; var Value: Single); cdecl; external Library_;

{ StationRow: One row of the station given to CLBNF0 or CLBNFI last. }
procedure CLBNF3(constref Row: LongInt; Values: PSingle); cdecl; external Library_;

{ DailyTemperature: Temperature at an hour of a day, by half cosine waves between its highest and its lowest. }
function CLTAO(constref Hour: Single; constref HighestTemperature: Single; constref LowestTemperature: Single; constref
  HourOfHighest: Single; constref HourOfLowest: Single): Single; cdecl; external Library_;

{ DailyValue: Value at an hour of a day that swings about its mean by half cosine waves between two hours. }
function CLTAOX(constref Hour: Single; constref Mean: Single; constref Amplitude: Single; constref FirstHour: Single;
  constref SecondHour: Single; constref AmplitudeFactor: Single): Single; cdecl; external Library_;

{ DesignIrradiance: Design irradiance by solar altitude: direct normal and diffuse horizontal. }
procedure CLSNNR(constref SolarAltitude: Single; constref SolarAzimuth: Single; constref SiteHeight: Single; constref
  SkyKind: LongInt; var DirectNormal: Single; var DiffuseHorizontal: Single); cdecl; external Library_;

{ HeightFactor: Factor by which irradiance grows with the height of the site. }
function CLHIGH(constref SiteHeight: Single; constref SolarAltitude: Single): Single; cdecl; external Library_;

{ EccentricityFactor: Irradiance outside the atmosphere on a day, by that at the mean distance of the sun. }
function CLETAJ(constref Day: LongInt): Single; cdecl; external Library_;

{ ClearnessIndex: Global horizontal irradiance by that outside the atmosphere. }
function CLMODUL(constref Day: LongInt; constref SolarAltitude: Single; constref GlobalHorizontal: Single): Single;
  cdecl; external Library_;

{ MuneerSlope: Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and ground-reflected. }
procedure CLMUNRAD(constref SolarAltitude: Single; constref SolarAzimuth: Single; constref SurfaceAzimuth: Single;
  constref Tilt: Single; constref BeamHorizontal: Single; constref DiffuseHorizontal: Single; constref
  ExtraterrestrialHorizontal: Single; constref GroundReflectance: Single; var SurfaceBeam: Single; var SurfaceDiffuse:
  Single; var GroundReflected: Single; var Incidence: Single); cdecl; external Library_;

{ PerezDiffuse: Diffuse irradiance of the sky on a tilted surface by the anisotropic sky of Perez. }
procedure CLPERSKY(constref SolarAltitude: Single; constref Tilt: Single; constref BeamHorizontal: Single; constref
  DiffuseHorizontal: Single; var SurfaceDiffuse: Single; constref Incidence: Single; constref ExtraterrestrialNormal:
  Single); cdecl; external Library_;

{ SiteConstants: Radiation constants of a site class in a month. }
procedure CLCONS(constref SiteClass: LongInt; constref Month: LongInt; var GroundReflectance: Single; var BeamFactor:
  Single; var DiffuseFactor: Single; var AlternativeDiffuseFactor: Single); cdecl; external Library_;

{ DiffuseTiltFactor: Diffuse irradiance of the sky on a tilted surface without circumsolar part, by that on the
    horizontal. }
function CLDIFRAD(constref Day: LongInt; constref SolarAltitude: Single; constref BeamHorizontal: Single; constref
  Unused: Single; constref Tilt: Single; constref SkyModel: LongInt): Single; cdecl; external Library_;

{ SlopeDiffuse: Diffuse irradiance of the sky on a tilted surface by day of the year and model of the sky. }
function CLDIFSLO(constref Day: LongInt; constref SolarAltitude: Single; constref SolarAzimuth: Single; constref
  SurfaceAzimuth: Single; constref Tilt: Single; constref BeamHorizontal: Single; constref DiffuseHorizontal: Single;
  constref SkyModel: LongInt): Single; cdecl; external Library_;

{ SolAirTemperature: Temperature of the sol-air kind: a base temperature raised by a net gain of heat. }
function CLTEO(constref BaseTemperature: Single; constref SurfaceCoefficient: Single; constref Absorptance: Single;
  constref Unused1: Single; constref Unused2: Single; constref Irradiance: Single; constref LongWaveLoss: Single):
  Single; cdecl; external Library_;

{ LongWaveLoss: Net long-wave radiation that a surface loses to its surroundings, never negative. }
function CLRERD(constref Tilt: Single; constref CloudCover: Single): Single; cdecl; external Library_;

{ SolarTimeCorrection: What is to be added to clock time to get solar time. }
function CLTCOR(constref ClockOffset: Single; constref Day: LongInt; constref Longitude: Single; constref
  ReferenceLongitude: Single): Single; cdecl; external Library_;

{ AlmanacPosition: Altitude, azimuth and declination of the sun by calendar date and clock. }
procedure CLYALLOP(constref TimeKind: LongInt; constref Year: LongInt; constref Month: LongInt; constref DayOfMonth:
  LongInt; constref ClockTime: Single; constref Latitude: Single; var Longitude: Single; var ZoneMeridian: Single; var
  SolarAltitude: Single; var SolarAzimuth: Single; var Declination: Single); cdecl; external Library_;

{ AlmanacSunHours: Sunrise and sunset in solar time by calendar date. }
procedure CLRISESET(constref Year: LongInt; constref Month: LongInt; constref DayOfMonth: LongInt; constref Latitude:
  Single; var Sunrise: Single; var Sunset: Single); cdecl; external Library_;

{ SolarGeometry: Declination, altitude and azimuth of the sun, sunrise and sunset, by latitude, day of the year and
    solar hour. }
procedure CLSNGE(constref Latitude: Single; constref Day: LongInt; constref SolarTime: Single; var Declination: Single;
  var SolarAltitude: Single; var SolarAzimuth: Single; var Sunrise: Single; var Sunset: Single); cdecl; external
  Library_;

{ SurfaceAngles: Angle of incidence of the sun on a surface, and its angles in the vertical and the horizontal sense. }
procedure CLSNSR(constref SolarAltitude: Single; constref SolarAzimuth: Single; constref SurfaceAzimuth: Single;
  constref Tilt: Single; var Incidence: Single; var VerticalShadowAngle: Single; var HorizontalShadowAngle: Single);
  cdecl; external Library_;

{ SurfaceIrradiance: Irradiance on the plane of a surface: direct from the sun, diffuse from the sky, reflected from
    the ground. }
procedure CLSORD(constref SolarAltitude: Single; constref SolarAzimuth: Single; constref SurfaceAzimuth: Single;
  constref Tilt: Single; constref DirectNormal: Single; constref DiffuseHorizontal: Single; constref GroundReflectance:
  Single; constref BeamFactor: Single; constref DiffuseFactor: Single; var SurfaceBeam: Single; var SurfaceDiffuse:
  Single; var GroundReflected: Single); cdecl; external Library_;

{ SurfaceIrradianceAndIncidence: Irradiance on the plane of a surface as CLSORD, and the angle of incidence. }
procedure CLSOR2(constref SolarAltitude: Single; constref SolarAzimuth: Single; constref SurfaceAzimuth: Single;
  constref Tilt: Single; constref DirectNormal: Single; constref DiffuseHorizontal: Single; constref GroundReflectance:
  Single; constref BeamFactor: Single; constref DiffuseFactor: Single; var SurfaceBeam: Single; var SurfaceDiffuse:
  Single; var GroundReflected: Single; var Incidence: Single); cdecl; external Library_;

{ Clip: Difference A - B and overlap of two simple polygons A and B in plan, in double precision. }
procedure HOHOLEDP(X: PDouble; Y: PDouble; constref VerticesA: LongInt; PositionsA: PLongInt; constref VerticesB:
  LongInt; PositionsB: PLongInt; constref PointCapacity: LongInt; constref CrossingCapacity: LongInt; constref
  DifferenceCapacity: LongInt; constref OverlapCapacity: LongInt; var UsedPoints: LongInt; DifferencePieces: PLongInt;
  OverlapPieces: PLongInt; var Status: LongInt); cdecl; external Library_;

{ Overlap: Pieces and area of the overlap of two simple polygons in plan. }
procedure GEOVER(X1: PSingle; Y1: PSingle; constref Vertices1: LongInt; X2: PSingle; Y2: PSingle; constref Vertices2:
  LongInt; PieceX: PSingle; PieceY: PSingle; PieceVertices: PLongInt; var Area: Single); cdecl; external Library_;

{ OverlapAlias: The same as GEOVER. }
procedure GEHOLE(X1: PSingle; Y1: PSingle; constref Vertices1: LongInt; X2: PSingle; Y2: PSingle; constref Vertices2:
  LongInt; PieceX: PSingle; PieceY: PSingle; PieceVertices: PLongInt; var Area: Single); cdecl; external Library_;

{ Collinearity: Whether points in plan lie on one straight line. }
function IGELIN(X: PSingle; Y: PSingle; constref Points: LongInt): LongInt; cdecl; external Library_;

{ CountEnclosed: How many points lie in a convex polygon with clockwise vertices or on its boundary, and which. }
procedure GECLOS(X: PSingle; Y: PSingle; constref Vertices: LongInt; PointX: PSingle; PointY: PSingle; constref Points:
  LongInt; Enclosed: PLongInt; var EnclosedPoints: LongInt); cdecl; external Library_;

{ BoundaryCrossing: Where a segment crosses the boundary of a polygon in plan. }
procedure GESIDE(SegmentStart: PSingle; SegmentEnd: PSingle; X: PSingle; Y: PSingle; constref Vertices: LongInt;
  CrossingPoint: PSingle; var CrossingCode: LongInt); cdecl; external Library_;

{ Inside: Whether a point in the plane of a polygon in space lies inside or on its boundary. }
procedure GEINSI(Point: PSingle; Polygon: PSingle; constref Vertices: LongInt; var Inside: LongInt); cdecl; external
  Library_;

{ ParallelPlanes: Whether the planes of two triangles are parallel. }
function GEPLEL(Triangle1: PDouble; Triangle2: PDouble): LongInt; cdecl; external Library_;

{ ParallelSides: Whether two triangles have parallel sides, and which. }
function GEPSID(Triangle1: PDouble; Triangle2: PDouble; var Side1: LongInt; var Side2: LongInt): LongInt; cdecl;
  external Library_;

{ Rectangular: Whether a quadrilateral is rectangular. }
function GERECT(Quadrilateral: PDouble): LongInt; cdecl; external Library_;

{ Facing: Azimuth and tilt of the plane of a triangle. }
procedure GETILT(Triangle: PDouble; var Azimuth: Double; var Tilt: Double); cdecl; external Library_;

{ LocalCoordinates: Two quadrilaterals in local coordinates of the first. }
procedure GELCAL(Quadrilateral1: PDouble; Quadrilateral2: PDouble; Local1: PDouble; Local2: PDouble); cdecl; external
  Library_;

{ ToLocal: Components of each of four points along three axes. }
procedure GETRNS(Corners: PDouble; XAxis: PDouble; YAxis: PDouble; ZAxis: PDouble); cdecl; external Library_;

{ MeetingPoint: Where two infinite lines in plan meet. }
procedure GEMEET(Line1Start: PSingle; Line1End: PSingle; Line2Start: PSingle; Line2End: PSingle; MeetingPoint: PSingle);
  cdecl; external Library_;

{ CrossingPoint: Where two segments in plan cross or touch. }
procedure GECROS(Segment1Start: PSingle; Segment1End: PSingle; Segment2Start: PSingle; Segment2End: PSingle;
  CrossingPoint: PSingle); cdecl; external Library_;

{ InSpan: Whether a point of the line AB lies between A and B. }
function GEINLN(FirstEnd: PSingle; SecondEnd: PSingle; Point: PSingle): Single; cdecl; external Library_;

{ AheadAndNearer: Whether a point lies on B's side of A and nearer to A than B does. }
function GEINLN2(FirstEnd: PSingle; SecondEnd: PSingle; Point: PSingle): Single; cdecl; external Library_;

{ Coincide: Whether two points in plan coincide. }
function GECOIN(constref X1: Single; constref Y1: Single; constref X2: Single; constref Y2: Single): LongInt; cdecl;
  external Library_;

{ SideOfLine: Side of a directed line in plan on which a point lies. }
function IGEPNT(LineStart: PSingle; LineEnd: PSingle; Point: PSingle): LongInt; cdecl; external Library_;

{ BackAzimuth: Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the angle of
    an azimuth. }
function BORI(constref Angle: Single): Single; cdecl; external Library_;

{ DirectionTo: Unit vector of a direction, such as that to the sun. }
procedure GESUNV(constref SolarAltitude: Single; constref SolarAzimuth: Single; Direction: PSingle); cdecl; external
  Library_;

{ SurfaceAxes: Rotation matrix of a surface, from local to global coordinates, and its inverse. }
procedure GERSET(constref SurfaceAzimuth: Single; constref Tilt: Single; RotationMatrix: PSingle; InverseMatrix:
  PSingle); cdecl; external Library_;

{ LocalToGlobal: Local to global coordinates: the rotation matrix times the vector. }
procedure GERAXI(LocalVector: PSingle; RotationMatrix: PSingle; GlobalVector: PSingle); cdecl; external Library_;

{ GlobalToLocal: Global to local coordinates: the transpose of the rotation matrix times the vector. }
procedure GERAX2(GlobalVector: PSingle; RotationMatrix: PSingle; LocalVector: PSingle); cdecl; external Library_;

{ PlanArea: Area of a polygon in plan. }
function GEAPOL(X: PSingle; Y: PSingle; constref Vertices: LongInt): Single; cdecl; external Library_;

{ SignedPlanArea: Area of a polygon in plan, positive for clockwise vertices. }
function GEAPO2(X: PSingle; Y: PSingle; constref Vertices: LongInt): Single; cdecl; external Library_;

{ AreaInSpace: Area of a plane polygon in space. }
function GEAPO3(X: PSingle; Y: PSingle; Z: PSingle; constref Vertices: LongInt): Single; cdecl; external Library_;

{ PolygonOrientation: Area, tilt and orientation of a plane polygon in space. }
procedure GEASO(constref Vertices: LongInt; Polygon: PSingle; var Area: Single; var Tilt: Single; var BackAzimuth:
  Single); cdecl; external Library_;

{ Projection: Projection of a point along a direction, forwards or backwards, onto a plane. }
procedure GEPROJ(PlanePoint: PSingle; PlaneNormal: PSingle; Point: PSingle; Direction: PSingle; ProjectedPoint:
  PSingle); cdecl; external Library_;

{ ForwardProjection: Projection of a point along a direction, forwards only, onto a plane. }
procedure GEPROJ2(PlanePoint: PSingle; PlaneNormal: PSingle; Point: PSingle; Direction: PSingle; ProjectedPoint:
  PSingle); cdecl; external Library_;

{ ForwardProjectionOrStart: Projection of a point along a direction onto a plane, or the point itself where the plane
    does not lie ahead. }
procedure GEPROJ3(PlanePoint: PSingle; PlaneNormal: PSingle; Point: PSingle; Direction: PSingle; ProjectedPoint:
  PSingle); cdecl; external Library_;

{ DotProduct: Dot product of two vectors. }
function GEDOTP(VectorA: PSingle; VectorB: PSingle): Single; cdecl; external Library_;

{ DotProductInDouble: Dot product of two vectors in double precision. }
function GEDTDP(VectorA: PDouble; VectorB: PDouble): Double; cdecl; external Library_;

{ CrossProduct: Cross product of two vectors. }
procedure GEXPRO(VectorA: PSingle; VectorB: PSingle; CrossProduct: PSingle); cdecl; external Library_;

{ CrossProductInDouble: Cross product of two vectors in double precision. }
procedure GEXPDP(VectorA: PDouble; VectorB: PDouble; CrossProduct: PDouble); cdecl; external Library_;

{ Length: Length of a vector. }
function GEVMOD(Vector: PSingle): Single; cdecl; external Library_;

{ LengthInDouble: Length of a vector in double precision. }
function GEVMDP(Vector: PDouble): Double; cdecl; external Library_;

{ Functions of whole arrays, here of elements of any number: strides are in bytes. }

{ Dry bulb of air with a vapour pressure and relative humidity. }
function quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity(Count: SizeUInt; constref VapourPressure: Single;
  VapourPressureStride: PtrInt; constref RelativeHumidity: Single; RelativeHumidityStride: PtrInt; var Answer: Single;
  AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a vapour pressure and percentage saturation. }
function quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation(Count: SizeUInt; constref VapourPressure:
  Single; VapourPressureStride: PtrInt; constref PercentageSaturation: Single; PercentageSaturationStride: PtrInt;
  constref Pressure: Single; PressureStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external
  ArrayLibrary;

{ Dry bulb of air with a moisture content and relative humidity. }
function quorvel_dry_bulb_from_moisture_content_and_relative_humidity(Count: SizeUInt; constref MoistureContent: Single;
  MoistureContentStride: PtrInt; constref RelativeHumidity: Single; RelativeHumidityStride: PtrInt; constref Pressure:
  Single; PressureStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a moisture content and percentage saturation. }
function quorvel_dry_bulb_from_moisture_content_and_percentage_saturation(Count: SizeUInt; constref MoistureContent:
  Single; MoistureContentStride: PtrInt; constref PercentageSaturation: Single; PercentageSaturationStride: PtrInt;
  constref Pressure: Single; PressureStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external
  ArrayLibrary;

{ Dry bulb of air with a specific enthalpy and moisture content. }
function quorvel_dry_bulb_from_enthalpy_and_moisture_content(Count: SizeUInt; constref Enthalpy: Single; EnthalpyStride:
  PtrInt; constref MoistureContent: Single; MoistureContentStride: PtrInt; var Answer: Single; AnswerStride: PtrInt):
  LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a specific enthalpy and vapour pressure. }
function quorvel_dry_bulb_from_enthalpy_and_vapour_pressure(Count: SizeUInt; constref Enthalpy: Single; EnthalpyStride:
  PtrInt; constref VapourPressure: Single; VapourPressureStride: PtrInt; constref Pressure: Single; PressureStride:
  PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a specific enthalpy and relative humidity. }
function quorvel_dry_bulb_from_enthalpy_and_relative_humidity(Count: SizeUInt; constref Enthalpy: Single;
  EnthalpyStride: PtrInt; constref RelativeHumidity: Single; RelativeHumidityStride: PtrInt; constref Pressure: Single;
  PressureStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a specific enthalpy and percentage saturation. }
function quorvel_dry_bulb_from_enthalpy_and_percentage_saturation(Count: SizeUInt; constref Enthalpy: Single;
  EnthalpyStride: PtrInt; constref PercentageSaturation: Single; PercentageSaturationStride: PtrInt; constref Pressure:
  Single; PressureStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a wet bulb and vapour pressure. }
function quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure(Count: SizeUInt; constref WetBulb: Single; WetBulbStride:
  PtrInt; constref VapourPressure: Single; VapourPressureStride: PtrInt; constref Pressure: Single; PressureStride:
  PtrInt; constref Psychrometer: LongInt; PsychrometerStride: PtrInt; var Answer: Single; AnswerStride: PtrInt):
  LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a wet bulb and moisture content. }
function quorvel_dry_bulb_from_wet_bulb_and_moisture_content(Count: SizeUInt; constref WetBulb: Single; WetBulbStride:
  PtrInt; constref MoistureContent: Single; MoistureContentStride: PtrInt; constref Pressure: Single; PressureStride:
  PtrInt; constref Psychrometer: LongInt; PsychrometerStride: PtrInt; var Answer: Single; AnswerStride: PtrInt):
  LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a wet bulb and relative humidity. }
function quorvel_dry_bulb_from_wet_bulb_and_relative_humidity(Count: SizeUInt; constref WetBulb: Single; WetBulbStride:
  PtrInt; constref RelativeHumidity: Single; RelativeHumidityStride: PtrInt; constref Pressure: Single; PressureStride:
  PtrInt; constref Psychrometer: LongInt; PsychrometerStride: PtrInt; var Answer: Single; AnswerStride: PtrInt):
  LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a wet bulb and percentage saturation. }
function quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation(Count: SizeUInt; constref WetBulb: Single;
  WetBulbStride: PtrInt; constref PercentageSaturation: Single; PercentageSaturationStride: PtrInt; constref Pressure:
  Single; PressureStride: PtrInt; constref Psychrometer: LongInt; PsychrometerStride: PtrInt; var Answer: Single;
  AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Dry bulb of air with a wet bulb and specific enthalpy. }
function quorvel_dry_bulb_from_wet_bulb_and_enthalpy(Count: SizeUInt; constref WetBulb: Single; WetBulbStride: PtrInt;
  constref Enthalpy: Single; EnthalpyStride: PtrInt; constref Pressure: Single; PressureStride: PtrInt; constref
  Psychrometer: LongInt; PsychrometerStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external
  ArrayLibrary;

{ Two streams of moist air that become one, without heat from outside. }
function quorvel_adiabatic_mixing(Count: SizeUInt; constref FirstAirFlow: Single; FirstAirFlowStride: PtrInt; constref
  FirstDryBulb: Single; FirstDryBulbStride: PtrInt; constref FirstMoistureContent: Single; FirstMoistureContentStride:
  PtrInt; constref SecondAirFlow: Single; SecondAirFlowStride: PtrInt; constref SecondDryBulb: Single;
  SecondDryBulbStride: PtrInt; constref SecondMoistureContent: Single; SecondMoistureContentStride: PtrInt; var DryBulb:
  Single; DryBulbStride: PtrInt; var MoistureContent: Single; MoistureContentStride: PtrInt; var Enthalpy: Single;
  EnthalpyStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Moisture content of air with a vapour pressure. }
function quorvel_moisture_content(Count: SizeUInt; constref DryBulb: Single; DryBulbStride: PtrInt; constref
  VapourPressure: Single; VapourPressureStride: PtrInt; constref Pressure: Single; PressureStride: PtrInt; var Answer:
  Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Vapour pressure of air with a moisture content, the inverse of moisture_content. }
function quorvel_vapour_pressure_from_moisture_content(Count: SizeUInt; constref DryBulb: Single; DryBulbStride: PtrInt;
  constref MoistureContent: Single; MoistureContentStride: PtrInt; constref Pressure: Single; PressureStride: PtrInt;
  var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Moisture content of air with a percentage saturation, the inverse of percentage_saturation. }
function quorvel_moisture_content_from_percentage_saturation(Count: SizeUInt; constref DryBulb: Single; DryBulbStride:
  PtrInt; constref PercentageSaturation: Single; PercentageSaturationStride: PtrInt; constref Pressure: Single;
  PressureStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Moisture content of air with a specific enthalpy, the inverse of specific_enthalpy. }
function quorvel_moisture_content_from_enthalpy(Count: SizeUInt; constref DryBulb: Single; DryBulbStride: PtrInt;
  constref Enthalpy: Single; EnthalpyStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external
  ArrayLibrary;

{ Density of moist air. }
function quorvel_moist_air_density(Count: SizeUInt; constref DryBulb: Single; DryBulbStride: PtrInt; constref
  MoistureContent: Single; MoistureContentStride: PtrInt; constref Pressure: Single; PressureStride: PtrInt; var Answer:
  Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Specific enthalpy of moist air. }
function quorvel_specific_enthalpy(Count: SizeUInt; constref DryBulb: Single; DryBulbStride: PtrInt; constref
  MoistureContent: Single; MoistureContentStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl;
  external ArrayLibrary;

{ Dew point of air with a vapour pressure, the inverse of the saturation pressure; below 0 degC the frost point. }
function quorvel_dew_point(Count: SizeUInt; constref VapourPressure: Single; VapourPressureStride: PtrInt; var Answer:
  Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

{ Relative humidity of air with a vapour pressure. }
function quorvel_relative_humidity(Count: SizeUInt; constref DryBulb: Single; DryBulbStride: PtrInt; constref
  VapourPressure: Single; VapourPressureStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl;
  external ArrayLibrary;

{ Wet-bulb temperature that a psychrometer reads in air with a vapour pressure. }
function quorvel_wet_bulb(Count: SizeUInt; constref DryBulb: Single; DryBulbStride: PtrInt; constref VapourPressure:
  Single; VapourPressureStride: PtrInt; constref Pressure: Single; PressureStride: PtrInt; constref Psychrometer:
  LongInt; PsychrometerStride: PtrInt; var Answer: Single; AnswerStride: PtrInt): LongInt; cdecl; external ArrayLibrary;

implementation

end.
