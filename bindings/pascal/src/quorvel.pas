{ Produced from the catalogue of routines (catalogue/); do not edit. }

{ Quorvel: building-physics and building-services calculations.

  What is given must lie in the ranges that are told with each function, and be a number; where it does not,
  EQuorvelError says so. QuorvelUnchecked has the same functions without any check.

  Angles are in radians; azimuths run from north, clockwise seen from above (east pi/2, south pi); tilt and solar
  altitude are measured from the horizontal. All functions may be called from any thread, whatever exceptions of
  floating point are unmasked: they mask them, and leave them as they found them. }
unit Quorvel;

{$mode objfpc}{$R-}{$Q-}{$T-}

interface

uses
  QuorvelTypes, QuorvelFaults;

type
  EQuorvelError = QuorvelFaults.EQuorvelError;

const
  { Stands for a quantity that does not exist, where the documentation of a result says so. }
  QuorvelNone = 1.0e20;

{ Specific enthalpy of dry air.
  Temperature: temperature [degC]; valid -50 to 100
  Result: specific enthalpy, 0 at 0 degC [kJ/kg]
  Formula: 0.00071035 + 1.0058 t + 1.7139e-5 t^2 - 7.7976e-7 t^3 + 2.2256e-8 t^4 - 1.691e-10 t^5, t = temperature
  Within 0.02 kJ/kg of the ASHRAE tables from -20 to 50 degC, but 0.3 above them at -50 degC.
  At 0 degC it is 0.0007 kJ/kg: the constant of the fit is deliberate.
  Source: Polynomial fit to tables of dry air; its author is not known.
  (DryAirEnthalpy of QuorvelByReference) }
function DryAirEnthalpy(Temperature: Single): Single;

{ Specific enthalpy of water vapour.
  Temperature: temperature [degC]; valid -50 to 100
  Result: specific enthalpy, from liquid water at 0 degC [kJ/kg]
  Formula: 2500.9 + 1.8439 t + 2.5285e-5 t^2 - 1.6297e-5 t^3 + 5.8962e-9 t^4 + 1.248e-9 t^5, t = temperature
  Within 0.5 kJ/kg of saturated steam from 0 to 60 degC (IAPWS 1995), within 7 at 100 degC.
  Source: Polynomial fit to tables of water vapour; its author is not known.
  (WaterVapourEnthalpy of QuorvelByReference) }
function WaterVapourEnthalpy(Temperature: Single): Single;

{ Specific heat of dry air at constant pressure.
  Temperature: temperature [degC]; valid -50 to 100
  Result: specific heat [kJ/kgK]
  The pieces meet, but for steps of 0.00004 kJ/kgK up at 40 degC and down at 50 degC, which are deliberate.
  Source: Straight lines between tabulated values for each 10 K; the author of the table is not known.
  (DryAirSpecificHeat of QuorvelByReference) }
function DryAirSpecificHeat(Temperature: Single): Single;

{ Specific heat of water vapour at constant pressure.
  Temperature: temperature [degC]; valid -50 to 100
  Result: specific heat [kJ/kgK]
  Formula: 1.7 + 0.01 temperature, at most 1.9
  Constant from 20 degC up.
  Source: Rounded engineering values; their author is not known.
  (WaterVapourSpecificHeat of QuorvelByReference) }
function WaterVapourSpecificHeat(Temperature: Single): Single;

{ Latent heat of evaporation of water, of sublimation of ice below 0 degC.
  Temperature: temperature [degC]; valid -50 to 100
  Result: latent heat [kJ/kg]
  At exactly 60 degC the result is 0: the table's row for it is empty, which is deliberate. Just below and above, it
    is 2357.9.
  Within 0.5 kJ/kg of the international values (IAPWS 1995) from 0 to 60 degC.
  Source: Straight lines between tabulated values for each 10 K; the author of the table is not known.
  (LatentHeat of QuorvelByReference) }
function LatentHeat(Temperature: Single): Single;

{ Dry bulb of air with a vapour pressure and relative humidity.
  VapourPressure: vapour pressure [Pa]; valid from 0
  RelativeHumidity: relative humidity [%]; valid 0 to 100
  Result: dry-bulb temperature [degC]
  Formula: rh / 100 ps(t) = pv
  Found from -200 to 400 degC; where there is none, as for arguments out of range, the result is not a number.
  Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
  Source: The dew point of saturated air of that temperature, by dew_point. }
function DryBulbFromVapourPressureAndRelativeHumidity(VapourPressure: Single; RelativeHumidity: Single): Single;

{ Dry bulb of air with a vapour pressure and percentage saturation.
  VapourPressure: vapour pressure [Pa]; valid from 0
  PercentageSaturation: percentage saturation [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: dry-bulb temperature [degC]
  Formula: percentage / 100 gs(t, p) = moisture_content(t, pv, p)
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  Up to where water boils at the atmospheric pressure. The percentage is not limited.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromVapourPressureAndPercentageSaturation(VapourPressure: Single; PercentageSaturation: Single;
  Pressure: Single): Single;

{ Dry bulb of air with a moisture content and relative humidity.
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  RelativeHumidity: relative humidity [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: dry-bulb temperature [degC]
  Formula: rh / 100 ps(t) = vapour_pressure_from_moisture_content(t, g, p)
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromMoistureContentAndRelativeHumidity(MoistureContent: Single; RelativeHumidity: Single; Pressure:
  Single): Single;

{ Dry bulb of air with a moisture content and percentage saturation.
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  PercentageSaturation: percentage saturation [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: dry-bulb temperature [degC]
  Formula: percentage / 100 gs(t, p) = g
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  Up to where water boils at the atmospheric pressure. The percentage is not limited.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromMoistureContentAndPercentageSaturation(MoistureContent: Single; PercentageSaturation: Single;
  Pressure: Single): Single;

{ Dry bulb of air with a specific enthalpy and moisture content.
  Enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  Result: dry-bulb temperature [degC]
  Formula: ha(t) + g hv(t) = h
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  The enthalpies hold from -50 to 100 degC.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromEnthalpyAndMoistureContent(Enthalpy: Single; MoistureContent: Single): Single;

{ Dry bulb of air with a specific enthalpy and vapour pressure.
  Enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
  VapourPressure: vapour pressure [Pa]; valid from 0
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: dry-bulb temperature [degC]
  Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, pv, p)
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  The enthalpies hold from -50 to 100 degC.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromEnthalpyAndVapourPressure(Enthalpy: Single; VapourPressure: Single; Pressure: Single): Single;

{ Dry bulb of air with a specific enthalpy and relative humidity.
  Enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
  RelativeHumidity: relative humidity [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: dry-bulb temperature [degC]
  Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, rh / 100 ps(t), p)
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  The enthalpies hold from -50 to 100 degC.
  Relative humidity is limited to 0 to 100 %, not rejected.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromEnthalpyAndRelativeHumidity(Enthalpy: Single; RelativeHumidity: Single; Pressure: Single): Single;

{ Dry bulb of air with a specific enthalpy and percentage saturation.
  Enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
  PercentageSaturation: percentage saturation [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: dry-bulb temperature [degC]
  Formula: moisture_content_from_enthalpy(t, h) = percentage / 100 gs(t, p)
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  The enthalpies hold from -50 to 100 degC.
  Up to where water boils at the atmospheric pressure. The percentage is not limited.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromEnthalpyAndPercentageSaturation(Enthalpy: Single; PercentageSaturation: Single; Pressure: Single):
  Single;

{ Dry bulb of air with a wet bulb and vapour pressure.
  WetBulb: wet-bulb temperature [degC]; valid -100 to 200
  VapourPressure: vapour pressure [Pa]; valid from 0
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: dry-bulb temperature [degC]
  Formula: t = twb + (ps(twb) - pv) / (A p)
  A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Psychrometer equation of vapour_pressure_from_psychrometer, solved for the dry bulb. }
function DryBulbFromWetBulbAndVapourPressure(WetBulb: Single; VapourPressure: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;

{ Dry bulb of air with a wet bulb and moisture content.
  WetBulb: wet-bulb temperature [degC]; valid -100 to 200
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: dry-bulb temperature [degC]
  Formula: vapour_pressure_from_psychrometer(t, twb, p) = vapour_pressure_from_moisture_content(t, g, p)
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromWetBulbAndMoistureContent(WetBulb: Single; MoistureContent: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;

{ Dry bulb of air with a wet bulb and relative humidity.
  WetBulb: wet-bulb temperature [degC]; valid -100 to 200
  RelativeHumidity: relative humidity [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: dry-bulb temperature [degC]
  Formula: vapour_pressure_from_psychrometer(t, twb, p) = rh / 100 ps(t)
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  Relative humidity is limited to 0 to 100 %, not rejected.
  A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromWetBulbAndRelativeHumidity(WetBulb: Single; RelativeHumidity: Single; Pressure: Single;
  Psychrometer: TPsychrometer): Single;

{ Dry bulb of air with a wet bulb and percentage saturation.
  WetBulb: wet-bulb temperature [degC]; valid -100 to 200
  PercentageSaturation: percentage saturation [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: dry-bulb temperature [degC]
  Formula: moisture_content_from_psychrometer(t, twb, p) = percentage / 100 gs(t, p)
  Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
  Up to where water boils at the atmospheric pressure. The percentage is not limited.
  A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromWetBulbAndPercentageSaturation(WetBulb: Single; PercentageSaturation: Single; Pressure: Single;
  Psychrometer: TPsychrometer): Single;

{ Dry bulb of air with a wet bulb and specific enthalpy.
  WetBulb: wet-bulb temperature [degC]; valid -100 to 200
  Enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: dry-bulb temperature [degC]
  Formula: specific_enthalpy_from_psychrometer(t, twb, p) = h
  Badly conditioned, since the enthalpy hardly changes along a wet bulb: 0.01 kJ/kg of enthalpy can be 0.25 K of dry
    bulb. For wet bulbs from -50 to 55 degC, above which the enthalpy turns.
  An enthalpy that no air of that wet bulb has, between saturated and dry, gives not a number; 1 K beyond saturation
    is allowed for, and gives the wet bulb.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Newton's method in double precision on the equations of the routines named. }
function DryBulbFromWetBulbAndEnthalpy(WetBulb: Single; Enthalpy: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;

{ Two streams of moist air that become one, without heat from outside.
  FirstAirFlow: mass flow of dry air in the first stream, or its share in any unit [kg/s]; valid from 0
  FirstDryBulb: dry-bulb temperature of the first stream [degC]; valid -100 to 200
  FirstMoistureContent: moisture content of the first stream [kg/kg]; valid 0 to 0.1
  SecondAirFlow: mass flow of dry air in the second stream, in the same unit [kg/s]; valid from 0
  SecondDryBulb: dry-bulb temperature of the second stream [degC]; valid -100 to 200
  SecondMoistureContent: moisture content of the second stream [kg/kg]; valid 0 to 0.1
  Result.DryBulb: dry-bulb temperature of the mixture [degC]
  Result.MoistureContent: moisture content of the mixture [kg/kg]
  Result.Enthalpy: specific enthalpy of the mixture, by mass of dry air [kJ/kg]
  Formula: g = (m1 g1 + m2 g2) / (m1 + m2), h likewise; t from h and g
  All moisture counts as vapour: percentage_saturation says whether the mixture is above saturation and would form
    fog.
  The enthalpies hold from -50 to 100 degC. Where no dry bulb from -100 to 200 degC belongs to the mixture, it is not
    a number; nor is anything without flow.
  Source: Balances of enthalpy, water and dry air: ASHRAE Handbook Fundamentals 2017, chapter 1, adiabatic mixing of
    two moist airstreams. }
function AdiabaticMixing(FirstAirFlow: Single; FirstDryBulb: Single; FirstMoistureContent: Single; SecondAirFlow:
  Single; SecondDryBulb: Single; SecondMoistureContent: Single): TAdiabaticMixing;

{ Moisture content of air from the reading of a wet-and-dry-bulb psychrometer.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  WetBulb: wet-bulb temperature [degC]; valid -100 to 200
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: moisture content, water vapour per dry air [kg/kg]
  Formula: g = 0.62197 f pv / (p - f pv)
  A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken when the wet bulb
    is below 0 degC.
  The enhancement factor takes its ice coefficients at 0 degC and below, where the saturation pressure counts exactly
    0 degC as water; the difference is deliberate.
  Not limited: a reading drier than any air gives a negative content, a vapour pressure above the atmospheric too.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Vapour pressure of VapourPressureFromPsychrometer; the enhancement factor f is a quadratic in absolute
    temperature whose coefficients are linear in pressure.
  (MoistureContentFromPsychrometer of QuorvelByReference) }
function MoistureContentFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;

{ Moisture content of air with a vapour pressure.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  VapourPressure: vapour pressure [Pa]; valid from 0
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: moisture content, water vapour per dry air [kg/kg]
  Formula: g = 0.62197 f pv / (p - f pv)
  Enhancement factor f of moisture_content_from_psychrometer, at the dry bulb.
  Not limited: neither to saturation, nor to vapour pressures below the atmospheric.
  Source: Definition for a mixture of ideal gases, ASHRAE Handbook Fundamentals 2017, chapter 1, with the enhancement
    factor of moisture_content_from_psychrometer. }
function MoistureContent(DryBulb: Single; VapourPressure: Single; Pressure: Single): Single;

{ Vapour pressure of air with a moisture content, the inverse of moisture_content.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: vapour pressure [Pa]
  Formula: pv = p g / (f (0.62197 + g))
  Not limited to saturation.
  Source: As moisture_content. }
function VapourPressureFromMoistureContent(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;

{ Moisture content of air with a percentage saturation, the inverse of percentage_saturation.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  PercentageSaturation: percentage saturation [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: moisture content, water vapour per dry air [kg/kg]
  Formula: g = percentage / 100 gs(t, p)
  Not limited. From boiling on, where the saturation pressure is above the atmospheric, it means nothing.
  Source: Definition, with the saturation moisture content of moisture_content_from_psychrometer. }
function MoistureContentFromPercentageSaturation(DryBulb: Single; PercentageSaturation: Single; Pressure: Single):
  Single;

{ Moisture content of air with a specific enthalpy, the inverse of specific_enthalpy.
  DryBulb: dry-bulb temperature [degC]; valid -50 to 100
  Enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
  Result: moisture content, water vapour per dry air [kg/kg]
  Formula: g = (h - ha(t)) / hv(t)
  Not limited: negative where dry air alone has more, and neither to saturation.
  Source: As specific_enthalpy. }
function MoistureContentFromEnthalpy(DryBulb: Single; Enthalpy: Single): Single;

{ Density of moist air.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: density of the moist air [kg/m3]
  Formula: (1 + g) / v, by specific_volume
  A moisture content above saturation counts as saturation.
  Source: Definition: ASHRAE Handbook Fundamentals 2017, chapter 1. }
function MoistAirDensity(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;

{ Percentage saturation: moisture content by that of saturated air at the same temperature and pressure.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: percentage saturation [%]
  Formula: 100 g / gs(t, p)
  Not limited: supersaturated air gives more than 100.
  Percentage saturation is not relative humidity, the ratio of vapour pressures, and is the lower of the two.
  Source: Definition, with the saturation moisture content of MoistureContentFromPsychrometer.
  (PercentageSaturation of QuorvelByReference) }
function PercentageSaturation(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;

{ Specific enthalpy of moist air.
  DryBulb: dry-bulb temperature [degC]; valid -50 to 100
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  Result: specific enthalpy, by mass of dry air [kJ/kg]
  Formula: h = ha(t) + g hv(t), by dry_air_enthalpy and water_vapour_enthalpy
  Per kilogram of dry air, from dry air and liquid water at 0 degC.
  All moisture counts as vapour: the moisture content is not limited to that of saturated air.
  Source: Sum over dry air and vapour, as for mixtures of ideal gases: ASHRAE Handbook Fundamentals 2017, chapter 1. }
function SpecificEnthalpy(DryBulb: Single; MoistureContent: Single): Single;

{ Specific enthalpy of moist air from the reading of a wet-and-dry-bulb psychrometer.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  WetBulb: wet-bulb temperature [degC]; valid -100 to 200
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: specific enthalpy, by mass of dry air [kJ/kg]
  Formula: h = DryAirEnthalpy(t) + g WaterVapourEnthalpy(t), g = MoistureContentFromPsychrometer(t, twb, p)
  A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken when the wet bulb
    is below 0 degC.
  Per kilogram of dry air, from dry air and liquid water at 0 degC.
  Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 degC, within 0.2 % up to 50
    degC.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Enthalpies of DryAirEnthalpy and WaterVapourEnthalpy, moisture content of MoistureContentFromPsychrometer.
  (SpecificEnthalpyFromPsychrometer of QuorvelByReference) }
function SpecificEnthalpyFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;

{ Specific volume of moist air.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: specific volume, by mass of dry air [m3/kg]
  Formula: v = 287.04 (t + 273.15) / pa - xa^2 B - 2 xa xv C - xv^2 D; xa = 0.62197 / (0.62197 + g), xv = 1 - xa, pa =
    p - p g / (1.0045 (0.62197 + g))
  A moisture content above saturation counts as saturation.
  Per kilogram of dry air: the reciprocal is not the density of the moist air.
  Virial coefficients of air, B = (4.542 - 0.082785 t + 0.0004353 t^2 - 2.1418e-6 t^3) / 10000, and of air with
    vapour, C = (1.45 - 0.0097 t + 0.32 (t / 100)^2) / 1000; that of vapour, D, follows straight lines, one below 0
    degC and one for each 10 K up to 50 degC and beyond.
  Source: Virial equation of the mixture, written for 101325 Pa (1.0045 is the enhancement factor there); its author
    is not known.
  (SpecificVolume of QuorvelByReference) }
function SpecificVolume(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;

{ Temperature at which saturated air has a specific enthalpy.
  Enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result: saturation temperature [degC]
  An enthalpy below -10 gives -13.4, above 460 it gives 60, whatever the pressure; at 101325 Pa the search itself
    gives -12.98 and 59.98 there.
  A stepping search with steps down to 0.01 K: the result is below the exact temperature by less than that, or above
    it by 0.001 K at most.
  Where the search would never end (a pressure so low that the water boils, an argument that is not a number), the
    value it has reached is returned: some ten thousand degrees.
  Source: Enthalpy of SpecificEnthalpyFromPsychrometer, solved by a step-and-refine search.
  (SaturationTemperatureFromEnthalpy of QuorvelByReference) }
function SaturationTemperatureFromEnthalpy(Enthalpy: Single; Pressure: Single): Single;

{ Evaporation from an indoor pool and its heat flows, for room air given by its moisture content.
  WaterArea: area of the water surface [m2]; valid from 0
  WettedArea: further wetted area, which adds to the latent load only [m2]; valid from 0
  WaterTemperature: water temperature [degC]; valid -100 to 200
  DryBulb: dry-bulb temperature of the room air [degC]; valid -100 to 200
  MoistureContent: moisture content of the room air [kg/kg]; valid 0 to 0.1
  ReferenceTemperature: second reference temperature [degC]; valid -100 to 200
  Bathers: number of bathers, below 1 unoccupied; valid from 0
  ReferenceCoefficient: coefficient of the exchange with the second reference temperature [W/m2K]; valid from 0
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result.EvaporationRate: evaporation rate [kg/(m2s)]
  Result.LatentLoad: latent load, 2.45 MJ per kg evaporated [W]
  Result.ConvectiveLoad: convection from the water to the room air at 10 W/m2K [W]
  Result.ReferenceLoad: exchange of the water with the second reference temperature [W]
  Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without bathers, 4.17e-8 dp
    bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6 evaporation_rate (water_area + wetted_area)
  The vapour pressure is that of a sling psychrometer at the wet bulb of WetBulbFromMoistureContent, and good to the
    step of that search.
  Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
  With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
  Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in kg/(m2h)),
    turned to kg/(m2s); fixed latent heat and convective coefficient.
  (PoolEvaporation of QuorvelByReference) }
function PoolEvaporation(WaterArea: Single; WettedArea: Single; WaterTemperature: Single; DryBulb: Single;
  MoistureContent: Single; ReferenceTemperature: Single; Bathers: LongInt; ReferenceCoefficient: Single; Pressure:
  Single): TPoolEvaporation;

{ Evaporation from an indoor pool and its heat flows, for room air given by its wet bulb.
  WaterArea: area of the water surface [m2]; valid from 0
  WettedArea: further wetted area, which adds to the latent load only [m2]; valid from 0
  WaterTemperature: water temperature [degC]; valid -100 to 200
  DryBulb: dry-bulb temperature of the room air [degC]; valid -100 to 200
  WetBulb: wet-bulb temperature of the room air, sling psychrometer [degC]; valid -100 to 200
  ReferenceTemperature: second reference temperature [degC]; valid -100 to 200
  Bathers: number of bathers, below 1 unoccupied; valid from 0
  ReferenceCoefficient: coefficient of the exchange with the second reference temperature [W/m2K]; valid from 0
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Result.EvaporationRate: evaporation rate [kg/(m2s)]
  Result.LatentLoad: latent load, 2.45 MJ per kg evaporated [W]
  Result.ConvectiveLoad: convection from the water to the room air at 10 W/m2K [W]
  Result.ReferenceLoad: exchange of the water with the second reference temperature [W]
  Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without bathers, 4.17e-8 dp
    bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6 evaporation_rate (water_area + wetted_area)
  A wet bulb at or above the dry bulb counts as saturated air.
  Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
  With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
  Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in kg/(m2h)),
    turned to kg/(m2s); fixed latent heat and convective coefficient.
  (PoolEvaporationFromWetBulb of QuorvelByReference) }
function PoolEvaporationFromWetBulb(WaterArea: Single; WettedArea: Single; WaterTemperature: Single; DryBulb: Single;
  WetBulb: Single; ReferenceTemperature: Single; Bathers: LongInt; ReferenceCoefficient: Single; Pressure: Single):
  TPoolEvaporationFromWetBulb;

{ Saturation vapour pressure over a plane surface of water, or of ice below 0 degC.
  Temperature: temperature [degC]; valid -100 to 200
  Result: saturation vapour pressure [Pa]
  Formula: log10(ps) = 33.59051 - 3142.31 / T - 8.2 log10(T) + 0.0024804 T over water, 12.538099 - 2663.91 / T over
    ice; T = temperature + 273.15
  Exactly 0 degC counts as water. The two branches meet there only to 0.04 Pa (610.34 over water, 610.30 over ice);
    the step is deliberate.
  Within 0.4 % of the international formulation from -20 to 150 degC, within 1 % down to -40 degC.
  Source: National Engineering Laboratory, Steam Tables 1964, in the reduced form that building services guides print.
  (SaturationPressure of QuorvelByReference) }
function SaturationPressure(Temperature: Single): Single;

{ Dew point of air with a vapour pressure, the inverse of the saturation pressure; below 0 degC the frost point.
  VapourPressure: vapour pressure [Pa]; valid from 0
  Result: dew-point temperature, of frost below 0 degC [degC]
  Formula: ps(dew_point) = pv
  Solved in double precision; saturation_pressure, in single precision, returns the vapour pressure to 0.002 %, and
    dew_point the temperature that was given to it to 0.001 K up to 100 degC.
  The vapour pressures between ice and water at 0 degC, 610.30 to 610.34 Pa, give 0 degC to 0.0001 K.
  Found from -200 to 400 degC. A pressure of 0 or less, or beyond those of this range, gives not a number.
  Source: Saturation pressure of saturation_pressure (National Engineering Laboratory, Steam Tables 1964), solved by
    Newton's method. }
function DewPoint(VapourPressure: Single): Single;

{ Vapour pressure of air at a dry-bulb temperature and relative humidity.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  RelativeHumidity: relative humidity [%]; valid 0 to 100
  Result: vapour pressure [Pa]
  Formula: pv = rh / 100 ps(t)
  Relative humidity is limited to 0 to 100 %, not rejected.
  Source: Definition of relative humidity, with the saturation pressure of SaturationPressure.
  (VapourPressure of QuorvelByReference) }
function VapourPressure(DryBulb: Single; RelativeHumidity: Single): Single;

{ Relative humidity of air with a vapour pressure.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  VapourPressure: vapour pressure [Pa]; valid from 0
  Result: relative humidity [%]
  Formula: rh = 100 pv / ps(t)
  Not limited: supersaturated air gives more than 100.
  Source: Definition of relative humidity, the ratio of vapour pressures, with saturation_pressure. }
function RelativeHumidity(DryBulb: Single; VapourPressure: Single): Single;

{ Vapour pressure from the reading of a wet-and-dry-bulb psychrometer.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  WetBulb: wet-bulb temperature [degC]; valid -100 to 200
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: vapour pressure [Pa]
  Formula: pv = ps(twb) - A p (t - twb)
  The coefficient of an iced bulb is taken when the wet bulb is below 0 degC.
  A wet bulb at or above the dry bulb gives the saturation pressure at the dry-bulb temperature.
  The result is not limited: a reading drier than any air gives a negative pressure.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  A is 0.000666 1/K for a sling psychrometer and 0.000799 for a screen one, 0.000594 and 0.00072 with an iced bulb.
  Source: Psychrometer equation with the customary coefficients A.
  (VapourPressureFromPsychrometer of QuorvelByReference) }
function VapourPressureFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;

{ Weighted temperature of two air temperatures.
  FirstTemperature: temperature with the greater weight [degC]; valid -100 to 200
  SecondTemperature: temperature with the lesser, negative weight [degC]; valid -100 to 200
  Result: weighted temperature [degC]
  Formula: (41.94 t1 - 7.33 t2) / (34.61 + t1 - t2)
  Two equal temperatures give that temperature. Infinite where the second is above the first by 34.61 K.
  Source: The derivation is not known, so the second temperature has no other meaning than the formula's.
  (WeightedTemperature of QuorvelByReference) }
function WeightedTemperature(FirstTemperature: Single; SecondTemperature: Single): Single;

{ Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and relative humidity.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  RelativeHumidity: relative humidity [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: wet-bulb temperature, never above the dry bulb [degC]
  The coefficient of an iced bulb is taken when the dry bulb is below 0 degC, where VapourPressureFromPsychrometer
    looks at the wet bulb; the asymmetry is deliberate.
  A stepping search that ends within 0.1 K: the result moves in small jumps with its arguments.
  Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure of zero or below, say), the
    value it has reached is returned.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Psychrometer equation of VapourPressureFromPsychrometer, solved by a step-and-refine search.
  (PsychrometerWetBulb of QuorvelByReference) }
function PsychrometerWetBulb(DryBulb: Single; RelativeHumidity: Single; Pressure: Single; Psychrometer: TPsychrometer):
  Single;

{ Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and percentage saturation.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  PercentageSaturation: percentage saturation [%]; valid 0 to 100
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: wet-bulb temperature [degC]
  A stepping search with steps down to 0.01 K: the result is above the exact wet bulb by less than that and moves in
    small jumps with its arguments.
  The percentage is not limited: 100 and more give the dry bulb.
  About 0 degC, where the coefficient changes to that of an iced bulb, two wet bulbs can belong to one percentage;
    which of them is found depends on the steps.
  Where the search would never end (below absolute zero, say), the value it has reached is returned.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Psychrometer equation of VapourPressureFromPsychrometer with the moisture content of
    MoistureContentFromPsychrometer, solved by a step-and-refine search.
  (WetBulbFromPercentageSaturation of QuorvelByReference) }
function WetBulbFromPercentageSaturation(DryBulb: Single; PercentageSaturation: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;

{ Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and moisture content.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  MoistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: wet-bulb temperature [degC]
  A stepping search with steps of 5 K down to 0.005 K and a last one of 0.0005 K: the result is within 0.005 K of the
    exact wet bulb.
  At saturation or above the result is the dry bulb, whatever that is. Otherwise a dry bulb above 10000 degC gives
    -100, one that is not a number -200.
  Where the search would never end (a moisture content that is not a number, or far below 0), the value it has reached
    is returned.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Psychrometer equation of VapourPressureFromPsychrometer with the moisture content of
    MoistureContentFromPsychrometer, solved by a step-and-refine search.
  (WetBulbFromMoistureContent of QuorvelByReference) }
function WetBulbFromMoistureContent(DryBulb: Single; MoistureContent: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;

{ Wet-bulb temperature that a psychrometer reads in air with a vapour pressure.
  DryBulb: dry-bulb temperature [degC]; valid -100 to 200
  VapourPressure: vapour pressure [Pa]; valid from 0
  Pressure: atmospheric pressure [Pa]; valid 50000 to 110000
  Psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
  Result: wet-bulb temperature [degC]
  Formula: ps(twb) - A p (t - twb) = pv
  The exact solution, in double precision; vapour_pressure_from_psychrometer gives the vapour pressure back to 0.002 %
    of saturation.
  About 0 degC an iced wet bulb and one that is not can belong to the same air: that which is not iced is found.
  At saturation or above the result is the dry bulb. A vapour pressure too far below 0 gives not a number.
  A psychrometer type below 1 counts as 1, above 2 as 2.
  Source: Psychrometer equation of vapour_pressure_from_psychrometer, solved by Newton's method. }
function WetBulb(DryBulb: Single; VapourPressure: Single; Pressure: Single; Psychrometer: TPsychrometer): Single;

{ Admittance, decrement factor and surface factor of a construction with their time shifts, and its U-value.
  Thickness: thickness of each layer, from the room outwards; below 0: a layer of given resistance, 0: no layer [m]
  Conductivity: conductivity of each layer; its resistance in m2K/W where the thickness is below 0 [W/mK]; valid from
    0
  Density: density of each layer [kg/m3]; valid from 0
  SpecificHeat: specific heat of each layer [J/kgK]; valid from 0
  InsideResistance: resistance of the surface at the room [m2K/W]; valid from 0
  OutsideResistance: resistance of the far surface [m2K/W]; valid from 0
  Harmonic: cycles in 24 hours; valid from 0
  ElementKind: kind of element: 1 element between two environments, 2 internal partition, the same swing on both sides
  Result.Admittance: admittance Y [W/m2K]
  Result.AdmittanceLead: time lead of the admittance, 0 to 24 / harmonic [h]
  Result.DecrementFactor: decrement factor f, 0 for a partition
  Result.DecrementLag: time lag of the decrement factor, 0 to 24 / harmonic, 0 for a partition [h]
  Result.SurfaceFactor: surface factor F
  Result.SurfaceFactorLag: time lag of the surface factor, 0 to 24 / harmonic [h]
  Result.UValue: U-value, as UValue gives it [W/m2K]
  Formula: M = Msi M1 ... Mn Mso; Y = m22 / m12, of a partition (m22 - 1) / m12; f = 1 / (u_value m12); F = 1 -
    inside_resistance Y
  Without layers the two surfaces are left.
  Any kind but 2 counts as 1. A harmonic of 0 is a steady temperature: the admittance is U, the time shifts are not
    numbers. One below 0 gives no numbers.
  A layer without heat capacity acts as its resistance. One with very little is the less accurate the smaller x is,
    its thickness over the depth at which the swing has sunk to 1/e (0.1 to 0.2 m in masonry): the relative error of
    its resistance is about 1e-7 / x, since sinh is formed as a difference in single precision.
  Shifts near 0 can come out near a whole cycle: rounding decides on which side of 0 an angle falls. One that is
    exactly 0 may be -0, as both lags of layers without heat capacity are.
  The moduli of all three factors are formed so that no square under- or overflows: a decrement factor of 2.8e-24
    (four layers of 0.6 m of concrete under harmonic 12) is one.
  Where the x of all layers add up to about 87 the elements of the matrix overflow: the admittance is infinite or not
    a number, and from 89 on nothing but U is a number. That is 12.3 m of concrete of 1.75 W/mK, 2400 kg/m3 and 1000
    J/kgK under the daily cycle; of 2 W/mK, 2000 kg/m3 and 880 J/kgK 15 m still have numbers.
  Density and specific heat enter as their product only.
  The formula's M is the product of the transmission matrices of the surfaces and the layers. Its complex Y, f and F
    are the admittance, the decrement factor and the surface factor with their time shifts.
  Source: Pipes, Matrix analysis of heat transfer problems, Journal of the Franklin Institute 263, 1957; Milbank and
    Harrington-Lynn, Thermal response and the admittance procedure, Building Research Establishment CP 61/74, 1974;
    ISO 13786.
  (CyclicResponse of QuorvelByReference) }
function CyclicResponse(const Thickness: array of Single; const Conductivity: array of Single; const Density: array of
  Single; const SpecificHeat: array of Single; InsideResistance: Single; OutsideResistance: Single; Harmonic: LongInt;
  ElementKind: TElementKind): TCyclicResponse;

{ Thermal resistance of a sealed vertical air cavity between ordinary building surfaces.
  CavityWidth: width [m]; valid from 0.001
  Result: cavity resistance, not below 0.1 [m2K/W]
  Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width), at least 0.1; Nu = 0.035 Ra^0.38, at least 1; Ra =
    793.00165 width^3 / 4.4e-7
  A width below 0.001 gives 0.1, where AirCavityResistance and GasCavityResistance give 0: deliberate. Not a number
    stays so.
  The emissivities e1 and e2 of the faces are 0.85 and 0.86.
  Source: As AirCavityResistance.
  (VerticalCavityResistance of QuorvelByReference) }
function VerticalCavityResistance(CavityWidth: Single): Single;

{ Thermal resistance of a sealed air cavity by convection and long-wave radiation.
  Tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
  CavityWidth: width [m]; valid from 0.001
  Emissivity1: long-wave emissivity of one face; valid 0 to 1
  Emissivity2: long-wave emissivity of the other face; valid 0 to 1
  Result: cavity resistance [m2K/W]
  Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width); Nu = C Ra^n, at least 1; Ra = 793.00165 width^3 /
    4.4e-7
  A tilt outside 0..3.1416 and a width below 0.001 give 0.
  C and n of the Nusselt number C Ra^n, which is at least 1, are interpolated over the tilt between 0, 0.785 and 1.57,
    and carried on as far as 1.59. From there the air rests and only conducts: the resistance jumps.
  Two faces of emissivity 0 leave the exchange undefined (0/0).
  Source: EN 673, Glass in building - Determination of thermal transmittance: C and n for vertical, inclined and
    horizontal cavities, and air at 10 degC with 15 K between the faces.
  (AirCavityResistance of QuorvelByReference) }
function AirCavityResistance(Tilt: Single; CavityWidth: Single; Emissivity1: Single; Emissivity2: Single): Single;

{ Thermal resistance of a sealed cavity filled with any gas.
  Tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
  CavityWidth: width [m]; valid from 0.001
  Emissivity1: long-wave emissivity of one face; valid 0 to 1
  Emissivity2: long-wave emissivity of the other face; valid 0 to 1
  Density: density of the gas [kg/m3]; valid from 0
  Conductivity: thermal conductivity of the gas [W/mK]; valid from 0
  SpecificHeat: specific heat of the gas at constant pressure [J/kgK]; valid from 0
  Viscosity: dynamic viscosity of the gas [Pa s]; valid from 0
  Result: cavity resistance [m2K/W]
  Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + conductivity Nu / width); Nu = C Ra^n, at least 1; Ra = 0.52
    specific_heat density^2 width^3 / (viscosity conductivity)
  Guards and correlation as in AirCavityResistance.
  The Rayleigh number has a factor of 0.52 m/s2 for gravity times expansion times temperature difference, whatever the
    gas and its temperature.
  A negative Rayleigh number has no power: not a number.
  Source: As AirCavityResistance.
  (GasCavityResistance of QuorvelByReference) }
function GasCavityResistance(Tilt: Single; CavityWidth: Single; Emissivity1: Single; Emissivity2: Single; Density:
  Single; Conductivity: Single; SpecificHeat: Single; Viscosity: Single): Single;

{ Vapour resistance of a construction.
  Thickness: thickness of each layer; below 0: a layer of given thermal resistance, 0: a membrane [m]
  VapourResistivity: vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg [GN s/(kg m)];
    valid from 0
  Result: total vapour resistance [N s/kg]
  Formula: sum of 1e9 thickness vapour_resistivity
  A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, whatever its
    resistivity: an air gap 0.05 m wide is entered as -0.05, not as -1.
  Without layers it is 0.
  Results are in N s/kg, resistivities in GN s/(kg m).
  Source: Vapour resistances in series; 5 GN s/(kg m) is the customary resistivity of still air.
  (TotalVapourResistance of QuorvelByReference) }
function TotalVapourResistance(const Thickness: array of Single; const VapourResistivity: array of Single): Single;

{ Steady temperature, vapour pressure and saturation pressure at the interfaces of a construction; the vapour pressure
    is held down to saturation where it would exceed it.
  Thickness: thickness of each layer from the inside; below 0: a layer of given thermal resistance, 0: a membrane [m]
  Conductivity: conductivity of each layer; its resistance in m2K/W where the thickness is below 0 [W/mK]; valid from
    0
  VapourResistivity: vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg [GN s/(kg m)];
    valid from 0
  InsideResistance: resistance of the inside surface [m2K/W]; valid from 0
  OutsideResistance: resistance of the outside surface [m2K/W]; valid from 0
  InsideTemperature: inside air temperature [degC]; valid -100 to 200
  OutsideTemperature: outside air temperature [degC]; valid -100 to 200
  InsideHumidity: inside relative humidity [%]; valid 0 to 100
  OutsideHumidity: outside relative humidity [%]; valid 0 to 100
  Result.InterfaceTemperature: temperature at the interfaces, from the inside surface to the outside one [degC]; not a
    number beyond element layers + 1
  Result.InterfaceVapourPressure: vapour pressure at them [Pa]; not a number beyond element layers + 1
  Result.InterfaceSaturationPressure: saturation pressure at them [Pa]; not a number beyond element layers + 1
  The first and the last interface are the surfaces. Without layers there is one surface, with the temperature and the
    vapour pressure of its inside.
  Vapour condenses at an interface where the vapour pressure equals the saturation pressure.
  Relative humidities are limited to 0 to 100 %, the vapour pressures at the two surfaces to saturation there. Between
    two surfaces without any vapour resistance the vapour pressure is no number.
  A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, as in
    TotalVapourResistance.
  Saturation inside a layer, between its interfaces, is not looked for: see CondensesWithinLayer.
  Source: Glaser's method in the stepwise form of ISO 13788: the vapour line is straight over the vapour resistance
    between the interfaces at which it is held to saturation.
  (CondensationProfile of QuorvelByReference) }
function CondensationProfile(const Thickness: array of Single; const Conductivity: array of Single; const
  VapourResistivity: array of Single; InsideResistance: Single; OutsideResistance: Single; InsideTemperature: Single;
  OutsideTemperature: Single; InsideHumidity: Single; OutsideHumidity: Single): TCondensationProfile;

{ Whether vapour condenses inside a layer, from the temperatures and vapour pressures of its two faces.
  WarmTemperature: temperature of the warm face [degC]; valid -100 to 200
  ColdTemperature: temperature of the cold face [degC]; valid -100 to 200
  WarmVapourPressure: vapour pressure at the warm face [Pa]; valid from 0
  ColdVapourPressure: vapour pressure at the cold face [Pa]; valid from 0
  Result: 1 if vapour condenses, 0 if not
  The layer is looked at in steps of 0.5 K from the warm face: the warm face itself is not, the cold face only if a
    step falls on it. Faces less than 0.5 K apart give 0.
  A cold face that is not below the warm one, or a temperature that is no number, gives 0.
  Where the temperature is so large that a step of 0.5 K is lost in its rounding (8.4 million degC), the search ends
    there with 0.
  Source: Straight lines of temperature and vapour pressure through a homogeneous layer, against the saturation
    pressure of SaturationPressure.
  (CondensesWithinLayer of QuorvelByReference) }
function CondensesWithinLayer(WarmTemperature: Single; ColdTemperature: Single; WarmVapourPressure: Single;
  ColdVapourPressure: Single): LongInt;

{ One property of one record of a construction, a list of elements from face to face.
  ElementRecords: ten fields of each record, counted from 1; the first is its type code [by field]
  RecordNumber: record asked about, counted from 1; valid from 1
  Item: property asked for; valid 1 to 72
  Result: the property [by item]; 1e20 where there is none
  The type code, 50 to 999, is 100 times the class plus the subtype: class 1 solid layer, 2 another layer, 3 gap (300
    of given resistance, 302 filled with gas), 4 translucent layer, 5 boundary, 6 end marker; other classes have no
    meaning. It is rounded after the limits are tested: 149.6 is class 1, subtype 50; 49.6 and what is no number are
    no codes.
  Items of every class: 1 type code.
  Items of classes 1, 3 and 4: 2 thickness in mm; 4 and 5 fields 4 and 5, of a layer the two factors of its volumetric
    heat capacity, of a gas specific heat and density. Of 1 and 4: 3 conductivity in W/mK. Of 1 and 3: 6 field 6.
  Items of class 3: 7 viscosity of the gas; 11 resistance in m2K/W, or conductivity of the gas; 61 and 62 field 8,
    with subtype 1 and 2.
  Items of classes 2, 4 and 5: 12 field 6. Of class 5 with subtype 1 or 2: 21 to 23 fields 2 to 4.
  Items of packed fields (PackThreeFractions), all classes but 3 and 6: 31 solar transmittance, 32 front and 33 back
    reflectance, 34 and 35 front and back absorptance, from field 9; 41 to 45 the same from field 7; 54 and 55 the
    long-wave fractions of the two faces, 52 and 53 one less these, from field 8.
  Items of every class: 71 and 72 are 1 if the list ends with a record of code 601 and 602, whichever valid record is
    asked about.
  The complements of an undefined packed field, items 34, 35, 44, 45, 52 and 53, are -1e20 or -2e20, not 1e20:
    deliberate.
  Source: Layout of the element records.
  (ElementProperty of QuorvelByReference) }
function ElementProperty(const ElementRecords: array of TSingle10; RecordNumber: LongInt; Item: LongInt): Single;

{ Coefficient of natural convection at a surface of a room.
  TemperatureDifference: difference between surface and air temperature; its sign makes no difference [K]
  CharacteristicLength: characteristic length: height of a vertical surface, four times the area over the perimeter of
    a horizontal one [m]; valid from 0
  HeatFlowDirection: direction of the heat flow: 1 heat flow upwards, 2 vertical surface, 3 heat flow downwards
  Result: convective coefficient [W/m2K]
  Formula: ((1.63 dT^(1/3))^6 + (1.40 (dT / L)^(1/4))^6)^(1/6) upwards, 1.23 and 1.50 for 1.63 and 1.40 at a vertical
    surface, 0.6 (dT / L^2)^(1/5) downwards; dT = |temperature_difference|, L = characteristic_length
  Any other direction gives 0.
  The coefficients 1.23 and 1.50 of a vertical surface have the laminar term larger than the turbulent one, with an
    upward flow it is the other way round; both are as published.
  A length of 0 gives an infinite coefficient, one below 0 no number but for a downward flow.
  Source: Alamdari and Hammond, Improved data correlations for buoyancy-driven convection in rooms, Building Services
    Engineering Research and Technology 4, 1983.
  (NaturalConvectionCoefficient of QuorvelByReference) }
function NaturalConvectionCoefficient(TemperatureDifference: Single; CharacteristicLength: Single; HeatFlowDirection:
  THeatFlowDirection): Single;

{ Packs two fractions of two decimals into one real, or unpacks them.
  Packing: direction: 1 pack, 2 unpack, as any other value
  PackedNumber: packed number; valid 0 to 9999.99
  Fraction1: fraction behind the point; valid 0 to 0.99
  Fraction2: fraction held as units and tens; valid 0 to 0.99
  Result.PackedNumber: packed number; 1e20 where there is none; as given when unpacking
  Result.Fraction1: fraction behind the point; 1e20 where there is none; as given when packing
  Result.Fraction2: fraction held as units and tens; 1e20 where there is none; as given when packing
  As PackThreeFractions with a third fraction of 0, which is not returned: what stands above 100 is ignored.
  Source: As PackThreeFractions.
  (PackTwoFractions of QuorvelByReference) }
function PackTwoFractions(Packing: TPacking; PackedNumber: Single; Fraction1: Single; Fraction2: Single):
  TPackTwoFractions;

{ Packs three fractions of two decimals into one real, or unpacks them.
  Packing: direction: 1 pack, 2 unpack, as any other value
  PackedNumber: packed number; valid 0 to 9999.99
  Fraction1: fraction behind the point; valid 0 to 0.99
  Fraction2: fraction held as units and tens; valid 0 to 0.99
  Fraction3: fraction held as hundreds and thousands; valid 0 to 0.99
  Result.PackedNumber: packed number; 1e20 where there is none; as given when unpacking
  Result.Fraction1: fraction behind the point; 1e20 where there is none; as given when packing
  Result.Fraction2: fraction held as units and tens; 1e20 where there is none; as given when packing
  Result.Fraction3: fraction held as hundreds and thousands; 1e20 where there is none; as given when packing
  0.25, 0.40, 0.07 are packed as 740.25.
  Fractions that add up to more than 1e10, and a packed number above 1e10, are undefined and give 1e20.
  Fractions 2 and 3 are cut to two decimals, with a tenth of a hundredth to spare; fraction 1 is added as it stands
    and cut when unpacked.
  All triples from 0.00 to 0.99 come back, as hundredths times the float 0.01: for 29 of the hundred fractions, 0.40
    among them, that is the float next to the nearest.
  A fraction of 1.00 is carried into the next one, 1 into 2 and 2 into 3.
  Source: Format of the packed property numbers of element records (ElementProperty).
  (PackThreeFractions of QuorvelByReference) }
function PackThreeFractions(Packing: TPacking; PackedNumber: Single; Fraction1: Single; Fraction2: Single; Fraction3:
  Single): TPackThreeFractions;

{ PackThreeFractions with its arguments in another order.
  Packing: direction: 1 pack, 2 unpack, as any other value
  PackedNumber: packed number; valid 0 to 9999.99
  Fraction3: fraction held as hundreds and thousands; valid 0 to 0.99
  Fraction1: fraction behind the point; valid 0 to 0.99
  Fraction2: fraction held as units and tens; valid 0 to 0.99
  Result.PackedNumber: packed number; 1e20 where there is none; as given when unpacking
  Result.Fraction3: fraction held as hundreds and thousands; 1e20 where there is none; as given when packing
  Result.Fraction1: fraction behind the point; 1e20 where there is none; as given when packing
  Result.Fraction2: fraction held as units and tens; 1e20 where there is none; as given when packing
  Source: As PackThreeFractions.
  (PackThreeFractionsThirdFirst of QuorvelByReference) }
function PackThreeFractionsThirdFirst(Packing: TPacking; PackedNumber: Single; Fraction3: Single; Fraction1: Single;
  Fraction2: Single): TPackThreeFractionsThirdFirst;

{ Packs the solar absorptance of a pane and the reflectances of its faces into one real, as absorptance and
    transmittances, or unpacks them.
  Packing: direction: 1 pack, 2 unpack, as any other value
  PackedNumber: packed number; valid 0 to 9999.99
  Absorptance: absorptance; valid 0 to 1
  Reflectance1: reflectance of the first face; valid 0 to 1
  Reflectance2: reflectance of the second face; valid 0 to 1
  Result.PackedNumber: packed number; 1e20 where there is none; as given when unpacking
  Result.Absorptance: absorptance; 1e20 where there is none; as given when packing
  Result.Reflectance1: reflectance of the first face; 1e20 where there is none; as given when packing
  Result.Reflectance2: reflectance of the second face; 1e20 where there is none; as given when packing
  Packed as PackThreeFractions packs the absorptance and the transmittances 1 - absorptance - reflectance of the two
    faces. Undefined values as there.
  A face that neither absorbs nor reflects transmits 1.00, which is carried into the next position.
  Absorptance and reflectance of a face that exceed 1 together do not come back.
  Source: As PackThreeFractions.
  (PackPane of QuorvelByReference) }
function PackPane(Packing: TPacking; PackedNumber: Single; Absorptance: Single; Reflectance1: Single; Reflectance2:
  Single): TPackPane;

{ Thermal resistance of the inside or outside surface of an element, for an emissivity of 0.9.
  Surface: surface: 1 outside, 2 inside
  Tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
  Exposure: exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe
  Result: surface resistance [m2K/W]
  Formula: inside 1 / (9.53 - 2.6 tilt / pi), outside 1 / (4.59 + a + 4 b (1 - tilt / pi)^2)
  Another surface type gives 0. Another exposure counts as the nearest one.
  An inside vertical surface has 1 / 8.23 = 0.12 m2K/W.
  The tilt is not tested.
  a is 4.3, 9.1 and 20.7 W/m2K by exposure, b is 1.3, 2.8 and 6.1.
  Source: Radiation and convection side by side. The customary values of inside surfaces (0.10 up, 0.12 horizontal,
    0.14 down) and of outside ones in normal and severe exposure (walls 0.06 and 0.03, roofs 0.04 and 0.02) are met to
    two decimals; the origin of the convective coefficients is not recorded.
  (SurfaceResistance of QuorvelByReference) }
function SurfaceResistance(Surface: TSurface; Tilt: Single; Exposure: TExposure): Single;

{ Thermal resistance of the inside or outside surface of an element of any emissivity.
  Surface: surface: 1 outside, 2 inside
  Tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
  Exposure: exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe
  Emissivity: long-wave emissivity of the surface; valid 0 to 1
  Result: surface resistance [m2K/W]
  Formula: inside 1 / (4.4 - 2.6 tilt / pi + 5.7 emissivity), outside 1 / (5.1 emissivity + a + 4 b (1 - tilt / pi)^2)
  Another surface type gives 0. Another exposure counts as the nearest one.
  At an emissivity of 0.9 it is SurfaceResistance to rounding.
  Tilt and emissivity are not tested.
  a and b are those of SurfaceResistance.
  Source: As SurfaceResistance, with black-body coefficients of 5.1 W/m2K outside and 5.7 W/m2K inside.
  (SurfaceResistanceAtEmissivity of QuorvelByReference) }
function SurfaceResistanceAtEmissivity(Surface: TSurface; Tilt: Single; Exposure: TExposure; Emissivity: Single):
  Single;

{ U-value of a construction of plane layers between two surface resistances.
  Thickness: thickness of each layer; below 0: a layer of given resistance, 0: no layer [m]
  Conductivity: conductivity of each layer; its resistance in m2K/W where the thickness is below 0 [W/mK]; valid from
    0
  SurfaceResistance1: resistance of one surface [m2K/W]; valid from 0
  SurfaceResistance2: resistance of the other [m2K/W]; valid from 0
  Result: U-value [W/m2K]
  Formula: 1 / (surface_resistance_1 + surface_resistance_2 + sum of thickness / conductivity)
  Without layers the two surfaces are left.
  How far below 0 a thickness is makes no difference here; it does in TotalVapourResistance and CondensationProfile.
  A thickness that is no number gives no number.
  Source: Resistances in series; ISO 6946.
  (UValue of QuorvelByReference) }
function UValue(const Thickness: array of Single; const Conductivity: array of Single; SurfaceResistance1: Single;
  SurfaceResistance2: Single): Single;

{ U-value of a construction at another tilt and exposure, from its U-value as a vertical wall in normal exposure.
  UValue: U-value with the surface resistances of a vertical wall at exposure 2 [W/m2K]; valid from 0
  Tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
  Exposure: wind exposure of the outside surface: 1 sheltered, 2 normal, 3 severe
  Result: U-value at that tilt and exposure [W/m2K]
  Formula: 1 / (1 / u_value - Rso - Rsi + Rso(tilt, exposure) + Rsi(tilt)), Rso and Rsi of a vertical surface in
    normal exposure where nothing else is said
  A U-value that is not above 0, or no number, comes back as it is.
  Above 5.49 W/m2K, what the two surfaces of the wall let through by themselves, the layers would have a negative
    resistance; the result is formed with it all the same.
  An exposure below 1 counts as 1, above 3 as 3. The tilt is not limited.
  Source: Surface resistances of SurfaceResistance, exchanged.
  (UValueAtTiltAndExposure of QuorvelByReference) }
function UValueAtTiltAndExposure(UValue: Single; Tilt: Single; Exposure: TExposure): Single;

{ U-value, admittance, decrement factor and surface factor of a glazing of one to three panes.
  Panes: number of panes, pane 1 nearest the room; valid 1 to 3
  PaneKind1: kind of pane 1: 1 closes the cavities on both sides, 2 closes none
  Emissivity1: long-wave emissivity of pane 1; valid 0 to 1
  PaneKind2: kind of pane 2: 1 closes the cavities on both sides, 2 closes none
  Emissivity2: long-wave emissivity of pane 2; valid 0 to 1
  PaneKind3: kind of pane 3: 1 closes the cavities on both sides, 2 closes none
  Emissivity3: long-wave emissivity of pane 3; valid 0 to 1
  CavityWidth1: width of the cavity between panes 1 and 2 [m]; valid from 0.001
  CavityWidth2: width of the cavity between panes 2 and 3 [m]; valid from 0.001
  OuterSurface: surface type of the outer face, normally 1: 1 outside, 2 inside
  Exposure: exposure of the outer face to the wind: 1 sheltered, 2 normal, 3 severe
  Tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
  Result.Admittance: admittance, the U-value [W/m2K]
  Result.AdmittanceLead: time lead of the admittance, 0 [h]
  Result.DecrementFactor: decrement factor, 1
  Result.DecrementLag: time lag of the decrement factor, 0 [h]
  Result.SurfaceFactor: surface factor, 1 - Rsi U
  Result.SurfaceFactorLag: time lag of the surface factor, 0 [h]
  Result.UValue: U-value [W/m2K]
  Formula: u_value = 1 / (Rso + Rsi + the resistances of the cavities), surface_factor = 1 - Rsi u_value
  The resistance of the glass is neglected and nothing is stored in it.
  Of three panes one may be open: the middle one leaves a single cavity as wide as both. With two open panes, and with
    one open pane of two, there is no cavity.
  The kinds of the panes are told by their sum: 0, 1, 2 count as three closed panes.
  Another number of panes counts as one pane, with the emissivity of pane 3 outside.
  Cavities as AirCavityResistance: one that it rejects has no resistance.
  Rsi and Rso are the resistances of the inner and the outer surface.
  Source: Surface resistances of SurfaceResistanceAtEmissivity and cavities of AirCavityResistance in series.
  (WindowParameters of QuorvelByReference) }
function WindowParameters(Panes: LongInt; PaneKind1: TPaneKind; Emissivity1: Single; PaneKind2: TPaneKind; Emissivity2:
  Single; PaneKind3: TPaneKind; Emissivity3: Single; CavityWidth1: Single; CavityWidth2: Single; OuterSurface: TSurface;
  Exposure: TExposure; Tilt: Single): TWindowParameters;

{ Transmittance, absorptance and reflectance of a pane for direct radiation, both polarisations.
  NormalTransmittance: normal transmittance; valid 0 to 0.92
  NormalReflectance: normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99
  Incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
  Result.ParallelTransmittance: transmittance, parallel polarisation
  Result.ParallelAbsorptance: absorptance, parallel
  Result.ParallelReflectance: reflectance, parallel
  Result.PerpendicularTransmittance: transmittance, perpendicular polarisation
  Result.PerpendicularAbsorptance: absorptance, perpendicular
  Result.PerpendicularReflectance: reflectance, perpendicular
  The unpolarised values are the means of the two polarisations.
  A normal reflectance in 0.01..0.99 means coated: factors on the normal transmittance and on 1 - normal_reflectance
    are interpolated from a table every 5 degrees, the same for both polarisations; beyond 1.57 rad everything is
    reflected. Any other means uncoated and is not used.
  Uncoated glass has the refractive index 1.52. Below a transmittance of 0.001 it is opaque and reflects everything.
  No uncoated glass has a normal transmittance above 0.9184: from there on its absorption would be below 0 and is held
    at 0, so that the three add up to more than 1. At 0.92 their unpolarised sum is 1.0018 at normal incidence, 1.0024
    at 1.5 rad and 1.011 at 1.57 rad.
  For nearly opaque uncoated glass the difference in AbsorptionProduct cancels: at normal incidence the transmittance
    comes back to within 4 % from 0.02 on and 34 % from 0.005 on; below that 0.002 gives 0 and 0.0025 gives 0.006.
  Uncoated, an angle beyond pi/2 is not tested, and the results mean nothing there.
  The transmittance of coated glass is not tested: where it exceeds 1 with the reflectance the three do not add up to
    1.
  Source: Uncoated glass: AbsorptionProduct, RefractionAngle, SurfaceReflectance, SinglePassAbsorption, SlabOptics in
    turn. Coated glass: tabulated angular factors whose origin is not recorded.
  (GlassDirect of QuorvelByReference) }
function GlassDirect(NormalTransmittance: Single; NormalReflectance: Single; Incidence: Single): TGlassDirect;

{ Transmittance and absorptance of a pane for isotropic diffuse radiation.
  NormalTransmittance: normal transmittance; valid 0 to 0.92
  NormalReflectance: normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99
  Result.Transmittance: diffuse transmittance
  Result.Absorptance: diffuse absorptance
  The pane is taken exactly as by GlassDirect, coated and opaque glass included.
  The bits are those of GlassDirect summed over the bands.
  Source: GlassDirect at the centres of 18 bands of 5 degrees, each weighted with the integral of 2 sin cos over the
    band.
  (GlassDiffuse of QuorvelByReference) }
function GlassDiffuse(NormalTransmittance: Single; NormalReflectance: Single): TGlassDiffuse;

{ Transmittance, absorptance and reflectance of a stack of layers, each reflection counted once.
  LayerTransmittances: transmittance of each layer; valid 0 to 1
  LayerReflectances: reflectance of each layer; valid 0 to 1
  Result.Transmittance: transmittance of the stack
  Result.Absorptance: absorptance, 1 - transmittance - reflectance
  Result.Reflectance: reflectance of the stack
  A layer's reflection passes the layers above it once each way; there is no further inter-reflection.
  Where transmittance and reflectance exceed 0.99 together, the reflectance is reduced until they do not. It turns
    negative if the transmittance alone is above 0.99.
  The last layer is met first. No layers are an empty stack, which transmits everything.
  Source: First-order combination of the layers.
  (StackedLayers of QuorvelByReference) }
function StackedLayers(const LayerTransmittances: array of Single; const LayerReflectances: array of Single):
  TStackedLayers;

{ Transmittance, absorptance and reflectance of a stack of layers with the inter-reflections between all of them.
  LayerTransmittances: transmittance of each layer, the same from both sides; valid 0 to 1
  LayerAbsorptances: absorptance of each layer; valid 0 to 1
  LayerReflectances: reflectance of each layer, the same from both sides; valid 0 to 1
  Result.Transmittance: transmittance of the stack
  Result.Absorptance: absorptance of the stack
  Result.Reflectance: reflectance of the stack
  In a pass the flux goes forward through all layers and back by one; nine passes are made. What needs more than eight
    steps back is missing from all three results: nothing of one layer; of two, the ninth power of the product of
    their reflectances as a share of the transmittance; of ten and eleven layers all that the last ones reflect.
  The last layer is met first. No layers are an empty stack, which transmits everything.
  That transmittance, absorptance and reflectance of a layer add up to 1 is left to the caller.
  Source: Tracing of one forward and one backward flux, which tends to the adding method.
  (TracedLayers of QuorvelByReference) }
function TracedLayers(const LayerTransmittances: array of Single; const LayerAbsorptances: array of Single; const
  LayerReflectances: array of Single): TTracedLayers;

{ Transmittance, absorptance and reflectance of a roller blind, the same at every angle.
  BlindTransmittance: transmittance of the blind; valid 0 to 1
  BlindReflectance: reflectance of the blind; valid 0 to 1
  Result.Transmittance: transmittance, that of the blind
  Result.Absorptance: absorptance, the rest
  Result.Reflectance: reflectance, that of the blind
  Formula: absorptance = 1 - blind_transmittance - blind_reflectance
  Nothing is limited: a blind that transmits and reflects more than 1 gives a negative absorptance.
  Source: Conservation of energy.
  (RollerBlind of QuorvelByReference) }
function RollerBlind(BlindTransmittance: Single; BlindReflectance: Single): TRollerBlind;

{ Transmittance, absorptance and reflectance of a roller blind for diffuse radiation.
  BlindTransmittance: transmittance of the blind; valid 0 to 1
  BlindReflectance: reflectance of the blind; valid 0 to 1
  Result.Transmittance: transmittance, that of the blind to rounding
  Result.Absorptance: absorptance, the rest to rounding
  Result.Reflectance: reflectance, 1 - transmittance - absorptance
  The blind is the same at every angle; the sum of the bands' weights, 0.9999999, remains as a factor.
  Nothing is limited: a blind that transmits and reflects more than 1 gives a negative absorptance.
  Source: RollerBlind, integrated as in SlatDiffuse.
  (DiffuseRollerBlind of QuorvelByReference) }
function DiffuseRollerBlind(BlindTransmittance: Single; BlindReflectance: Single): TDiffuseRollerBlind;

{ Angle of a ray inside the glass, by Snell's law.
  Incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
  RefractiveIndex: refractive index of the glass; valid 1 to 4
  Result: refraction angle [rad]
  Formula: asin(sin(incidence) / refractive_index)
  Where the sine of the incidence is below 0.01 in size the result is incidence / refractive_index, the ratio of the
    angles in place of that of the sines.
  An index so far below 1 that the reflection is total gives no number.
  Source: Snell's law.
  (RefractionAngle of QuorvelByReference) }
function RefractionAngle(Incidence: Single; RefractiveIndex: Single): Single;

{ Reflectance of one face of the glass for the two polarisations, by Fresnel's equations.
  Incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
  RefractionAngle: refraction angle, of the sign of the incidence [rad]; valid -1.5708 to 1.5708
  RefractiveIndex: refractive index, used at normal incidence only; valid 1 to 4
  Result.ParallelReflectance: reflectance, polarised parallel to the plane of incidence
  Result.PerpendicularReflectance: reflectance, polarised perpendicular to it
  Formula: perpendicular (sin(i - r) / sin(i + r))^2, parallel (tan(i - r) / tan(i + r))^2; i = incidence, r =
    refraction_angle
  Up to an angle of 0.01 in size, and for an incidence that is no number, both are the value at normal incidence, ((1
    - n) / (1 + n))^2 with the refractive index n. RefractionAngle tests the sine of the angle instead; the two limits
    differ deliberately.
  Source: Fresnel's equations; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.
  (SurfaceReflectance of QuorvelByReference) }
function SurfaceReflectance(Incidence: Single; RefractionAngle: Single; RefractiveIndex: Single): TSurfaceReflectance;

{ Share of a ray that is absorbed in one pass through the body of a pane.
  RefractionAngle: refraction angle [rad]; valid -1.5708 to 1.5708
  AbsorptionProduct: absorption coefficient times thickness; valid 0 to 20
  Result: absorbed share
  Formula: 1 - exp(-absorption_product / cos(refraction_angle))
  Source: Bouguer's law of absorption.
  (SinglePassAbsorption of QuorvelByReference) }
function SinglePassAbsorption(RefractionAngle: Single; AbsorptionProduct: Single): Single;

{ Transmittance, absorptance and reflectance of a pane for one polarisation, with all inter-reflections between its
    two faces.
  SinglePassAbsorptance: share absorbed in a single pass; valid 0 to 1
  FaceReflectance: reflectance of either face; valid 0 to 1
  Result.Transmittance: transmittance
  Result.Absorptance: absorptance, not below 0
  Result.Reflectance: reflectance
  Formula: transmittance = (1 - r)^2 tau / (1 - r^2 tau^2), reflectance = r + r (1 - r)^2 tau^2 / (1 - r^2 tau^2),
    absorptance = 1 - transmittance - reflectance; tau = 1 - single_pass_absorptance, r = face_reflectance
  Faces that reflect everything around a body that absorbs nothing leave the result undefined (0/0).
  What is no number stays so; the limit at 0 touches only numbers.
  Source: Stokes, On the intensity of the light reflected from or transmitted through a pile of plates, 1862; Duffie
    and Beckman, Solar Engineering of Thermal Processes, chapter 5.
  (SlabOptics of QuorvelByReference) }
function SlabOptics(SinglePassAbsorptance: Single; FaceReflectance: Single): TSlabOptics;

{ Absorption coefficient times thickness of a pane, from its transmittance at normal incidence.
  NormalTransmittance: normal transmittance of the pane; valid 0 to 0.92
  RefractiveIndex: refractive index; valid 1 to 4
  Result: absorption coefficient times thickness
  Formula: -ln((sqrt((1 - r)^4 + 4 r^2 T^2) - (1 - r)^2) / (2 T r^2)); T = normal_transmittance, r =
    ((refractive_index - 1) / (refractive_index + 1))^2
  Evaluated as written in single precision, where a difference of roots cancels for nearly opaque glass: the relative
    error of the transmittance T, given back by NormalTransmittance, is up to 1.5e-5 / T^2, which is 0.02 % at 0.3,
    0.15 % at 0.1 and 0.6 % at 0.05; at 0.002 and less the result is infinite.
  Above the transmittance of glass that absorbs nothing, 0.918 for an index of 1.52, the result is negative.
  A transmittance of 0 and an index of 1 divide by zero and give no finite number.
  Source: The slab of SlabOptics at normal incidence, solved for the absorption.
  (AbsorptionProduct of QuorvelByReference) }
function AbsorptionProduct(NormalTransmittance: Single; RefractiveIndex: Single): Single;

{ Transmittance of a pane at normal incidence: the inverse of AbsorptionProduct.
  AbsorptionProduct: absorption coefficient times thickness; valid 0 to 20
  NormalReflectance: normal reflectance of one face; valid 0 to 0.99
  Result: normal transmittance of the pane
  Formula: (1 - r)^2 tau / (1 - r^2 tau^2); tau = exp(-absorption_product), r = normal_reflectance
  The second argument is a reflectance, ((n - 1) / (n + 1))^2, where AbsorptionProduct takes the refractive index.
  Source: The slab of SlabOptics at normal incidence.
  (NormalTransmittance of QuorvelByReference) }
function NormalTransmittance(AbsorptionProduct: Single; NormalReflectance: Single): Single;

{ Steady temperatures of the panes of a glazing from the air temperatures on both sides and the solar radiation that
    each pane absorbs.
  InsideTemperature: air temperature in the room [degC]; valid -100 to 200
  OutsideTemperature: air temperature outdoors [degC]; valid -100 to 200
  Panes: number of panes; valid 1 to 5
  Absorbed1: absorbed in pane 1, nearest the room [W/m2]; valid from 0
  Absorbed2: absorbed in pane 2 [W/m2]; valid from 0
  Absorbed3: absorbed in pane 3 [W/m2]; valid from 0
  Absorbed4: absorbed in pane 4 [W/m2]; valid from 0
  Absorbed5: absorbed in pane 5 [W/m2]; valid from 0
  Result.PaneTemperature1: temperature of pane 1, nearest the room [degC]; not a number with panes outside 1 to 5
  Result.PaneTemperature2: temperature of pane 2 [degC]; not a number with panes outside 2 to 5
  Result.PaneTemperature3: temperature of pane 3 [degC]; not a number with panes outside 3 to 5
  Result.PaneTemperature4: temperature of pane 4 [degC]; not a number with panes outside 4 to 5
  Result.PaneTemperature5: temperature of pane 5 [degC]; not a number with panes outside 4 to 5
  What is given as absorbed in panes that are not there has no influence. Four panes are calculated as five: what the
    fifth absorbs counts (give 0 for it), and it has a temperature.
  Source: Heat balance of the panes with fixed resistances: 0.12 m2K/W at the room side, 0.06 m2K/W outdoors;
    coefficients rounded to two decimals.
  (PaneTemperatures of QuorvelByReference) }
function PaneTemperatures(InsideTemperature: Single; OutsideTemperature: Single; Panes: LongInt; Absorbed1: Single;
  Absorbed2: Single; Absorbed3: Single; Absorbed4: Single; Absorbed5: Single): TPaneTemperatures;

{ Transmittance, absorptance and reflectance for direct radiation of a glazing unit known only by its shading
    coefficients.
  ShortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
    to 1.05
  LongwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
  Incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
  Result.Transmittance: transmittance
  Result.Absorptance: absorptance
  Result.Reflectance: reflectance, 1 - transmittance - absorptance, at least 0.01 to rounding
  A long-wave coefficient below 0.0001 counts as missing: the other is then split into 0.9 short-wave and 0.1
    long-wave.
  An uncoated pane of index 1.52 and normal transmittance 0.87 times the short-wave coefficient carries the angular
    behaviour.
  If the two coefficients add up to at most 1, the absorptance is 2.61 times the long-wave one at normal incidence and
    follows the pane over the angle; otherwise it is that of the pane. A total of 1 belongs to the former, but only as
    single precision rounds.
  The absorptance is at most 0.99 - transmittance. An opaque unit, whose equivalent pane absorbs nothing, gets just
    that: coefficients of 0 give an absorptance of 0.99.
  An angle beyond pi/2 is not tested, and the results mean nothing there: coefficients of 0.9 and 0.05 give a
    transmittance of -0.54 at 1.6 rad.
  Source: Shading coefficients relative to clear float glass of total transmittance 0.87, of whose absorbed part a
    third flows inwards.
  (UnitDirect of QuorvelByReference) }
function UnitDirect(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Incidence: Single):
  TUnitDirect;

{ Transmittance, absorptance and reflectance for isotropic diffuse radiation of a glazing unit known only by its
    shading coefficients.
  ShortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
    to 1.05
  LongwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
  Result.Transmittance: diffuse transmittance
  Result.Absorptance: diffuse absorptance
  Result.Reflectance: diffuse reflectance, 1 - transmittance - absorptance
  Coefficients as in UnitDirect. If they add up to at most 1 the absorptance is 2.61 times the long-wave one,
    otherwise that of the equivalent pane.
  The absorptance is at most 0.99 - transmittance. Unlike UnitDirect, coefficients of 0 give a reflectance of 1.
  Source: UnitDirect, with the equivalent pane integrated as in GlassDiffuse.
  (UnitDiffuse of QuorvelByReference) }
function UnitDiffuse(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single): TUnitDiffuse;

{ UnitDirect, with the remainder that is neither transmitted nor absorbed split among the panes of the unit.
  ShortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
    to 1.05
  LongwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
  Incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
  Panes: number of panes; valid 1 to 5
  Result.Transmittance: transmittance
  Result.PaneShares: share of each pane in 1 - transmittance - absorptance
  Result.Absorptance: absorptance
  What is split is the remainder, not the absorptance.
  Source: UnitDirect; the shares by number of panes are fixed, 0.4 and 0.6 for two, their origin is not recorded.
  (UnitDirectShares of QuorvelByReference) }
function UnitDirectShares(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Incidence: Single;
  Panes: LongInt): TUnitDirectShares;

{ UnitDiffuse, with the remainder that is neither transmitted nor absorbed split among the panes of the unit.
  ShortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
    to 1.05
  LongwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
  Panes: number of panes; valid 1 to 5
  Result.Transmittance: diffuse transmittance
  Result.PaneShares: share of each pane in 1 - transmittance - absorptance
  Result.Absorptance: diffuse absorptance
  The remainder is split as in UnitDirectShares.
  Source: UnitDiffuse, with the shares of UnitDirectShares.
  (UnitDiffuseShares of QuorvelByReference) }
function UnitDiffuseShares(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Panes: LongInt):
  TUnitDiffuseShares;

{ UnitDirectShares or UnitDiffuseShares, by a selector.
  Radiation: kind of radiation: 1 direct radiation (UnitDirectShares), 2 diffuse radiation (UnitDiffuseShares), as any
    other value
  ShortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
    to 1.05
  LongwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
  Incidence: angle of incidence, read for direct radiation only [rad]; valid -1.5708 to 1.5708
  Panes: number of panes; valid 1 to 5
  Result.Transmittance: transmittance
  Result.PaneShares: share of each pane in 1 - transmittance - absorptance
  Result.Absorptance: absorptance
  The remainder is split as in UnitDirectShares.
  Source: UnitDirectShares and UnitDiffuseShares.
  (UnitShares of QuorvelByReference) }
function UnitShares(Radiation: TRadiation; ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single;
  Incidence: Single; Panes: LongInt): TUnitShares;

{ Transmittance, absorptance and reflectance of a slatted blind for a beam, both faces of the slats alike.
  SlatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
  SlatWidth: width of a slat [m]; valid from 0
  SlatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
  ProfileAngle: profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708
  SlatAbsorptance: absorptance of the slats; valid 0 to 1
  Result.Transmittance: transmittance
  Result.Absorptance: absorptance
  Result.Reflectance: reflectance, 1 - transmittance - absorptance
  The slats are flat, thin, opaque and diffusely reflecting. After the first reflection each slat is taken as evenly
    lit.
  For slat angles up to 90 degrees and an absorptance in 0..1 all three are in 0..1, but for the rounding of single
    precision: 1e-4 for slats that are nearly closed, 4e-7 over the cosine of the profile angle for grazing beams.
  A beam within 0.01 rad of the slats' plane passes whole. A beam along the blind (cosine of the profile angle below
    1e-6, or the angle 1.570796 or more in size) meets an opaque sheet with the absorptance of the slats.
  The mirror image, with both angles negative, gives the same bits.
  Source: Exchange factors by H. C. Hottel's crossed strings, and the inter-reflection between two neighbouring slats.
  (SlatDirect of QuorvelByReference) }
function SlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single; SlatAbsorptance:
  Single): TSlatDirect;

{ Transmittance, absorptance and reflectance of a blind for a beam, whose slats have two different faces.
  SlatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
  SlatWidth: width of a slat [m]; valid from 0
  SlatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
  ProfileAngle: profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708
  StruckAbsorptance: absorptance of the face that the beam strikes first; valid 0 to 1
  OppositeAbsorptance: absorptance of the opposite face; valid 0 to 1
  Result.Transmittance: transmittance
  Result.Absorptance: absorptance
  Result.Reflectance: reflectance, 1 - transmittance - absorptance, not limited
  Equal faces give the bits of SlatDirect and keep the balance.
  Unequal faces do not: whatever is absorbed after the first reflection counts with that of the face struck, as if
    both faces absorbed like the one struck and reflected like the opposite one. A bright face opposite a dark one
    absorbs too little, and the reflectance holds the rest; a dark face opposite a bright one absorbs too much, in
    dense blinds many times what arrives, and the reflectance is negative by as much. Where the face struck absorbs at
    most what the opposite one does, all three stay in 0..1.
  The face struck first is the upper one where profile angle and slat angle have a positive sum and the lower one
    else; the absorptances are to be chosen accordingly.
  Source: As SlatDirect.
  (TwoFacedSlatDirect of QuorvelByReference) }
function TwoFacedSlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single;
  StruckAbsorptance: Single; OppositeAbsorptance: Single): TTwoFacedSlatDirect;

{ TwoFacedSlatDirect for a blind that leaves a share of the radiation to pass untouched.
  SlatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
  SlatWidth: width of a slat [m]; valid from 0
  SlatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
  ProfileAngle: profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708
  OpenShare: open share of the blind; 0 or less for none; valid 0 to 1
  StruckAbsorptance: absorptance of the face that the beam strikes first; valid 0 to 1
  OppositeAbsorptance: absorptance of the opposite face; valid 0 to 1
  Result.Transmittance: transmittance, the open share included
  Result.Absorptance: absorptance
  Result.Reflectance: reflectance
  Without an open share these are the bits of TwoFacedSlatDirect; a share that is not a number is none.
  A beam along the blind is transmitted by the open share and absorbed as by the face struck: the share does not
    reduce the absorptance there, and the reflectance, 1 less both, may be negative: deliberate.
  Source: As SlatDirect.
  (OpenSlatDirect of QuorvelByReference) }
function OpenSlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single; OpenShare:
  Single; StruckAbsorptance: Single; OppositeAbsorptance: Single): TOpenSlatDirect;

{ Transmittance and absorptance of a slatted blind for the diffuse radiation from the sky's and from the ground's
    side, both faces of the slats alike.
  SlatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
  SlatWidth: width of a slat [m]; valid from 0
  SlatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
  SlatAbsorptance: absorptance of the slats; valid 0 to 1
  Result.SkyTransmittance: transmittance for radiation from above the horizon
  Result.GroundTransmittance: transmittance for radiation from below it
  Result.SkyAbsorptance: absorptance for radiation from above the horizon
  Result.GroundAbsorptance: absorptance for radiation from below it
  The bits are those of SlatDirect summed over the bands.
  Slats at an angle of 5, 15, ... 85 degrees have a band within 0.01 rad of their plane, which passes whole.
  The opposite angle swaps sky and ground.
  Source: SlatDirect at the centres of nine bands of 10 degrees on either side of the horizon, each weighted with the
    integral of the cosine over the band: radiance uniform in the profile angle.
  (SlatDiffuse of QuorvelByReference) }
function SlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; SlatAbsorptance: Single): TSlatDiffuse;

{ SlatDiffuse for slats with two different faces.
  SlatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
  SlatWidth: width of a slat [m]; valid from 0
  SlatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
  StruckAbsorptance: absorptance of the face that the beam strikes first; valid 0 to 1
  OppositeAbsorptance: absorptance of the opposite face; valid 0 to 1
  Result.SkyTransmittance: transmittance for radiation from above the horizon
  Result.GroundTransmittance: transmittance for radiation from below it
  Result.SkyAbsorptance: absorptance for radiation from above the horizon
  Result.GroundAbsorptance: absorptance for radiation from below it
  The absorptances belong to whichever face a beam strikes first. Slats with different upper and lower faces need two
    calls: with the upper face struck for the results of the sky, with the lower face for those of the ground. Beams
    between the horizon and the plane of the slats strike the other face all the same.
  Unequal faces as in TwoFacedSlatDirect.
  Source: TwoFacedSlatDirect, integrated as in SlatDiffuse.
  (TwoFacedSlatDiffuse of QuorvelByReference) }
function TwoFacedSlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; StruckAbsorptance: Single;
  OppositeAbsorptance: Single): TTwoFacedSlatDiffuse;

{ TwoFacedSlatDiffuse for a blind that leaves a share of the radiation to pass untouched.
  SlatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
  SlatWidth: width of a slat [m]; valid from 0
  SlatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
  OpenShare: open share of the blind; 0 or less for none; valid 0 to 1
  StruckAbsorptance: absorptance of the face that the beam strikes first; valid 0 to 1
  OppositeAbsorptance: absorptance of the opposite face; valid 0 to 1
  Result.SkyTransmittance: transmittance for radiation from above the horizon
  Result.GroundTransmittance: transmittance for radiation from below it
  Result.SkyAbsorptance: absorptance for radiation from above the horizon
  Result.GroundAbsorptance: absorptance for radiation from below it
  Faces as in TwoFacedSlatDiffuse, the open share as in OpenSlatDirect.
  Source: OpenSlatDirect, integrated as in SlatDiffuse.
  (OpenSlatDiffuse of QuorvelByReference) }
function OpenSlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; OpenShare: Single;
  StruckAbsorptance: Single; OppositeAbsorptance: Single): TOpenSlatDiffuse;

{ Where a cumulative fraction of days lies among the ten bands of a month, in frequencies of the caller.
  Fraction: cumulative fraction of days; valid 0 to 1
  Month: month; valid 1 to 12
  Frequencies: cumulative frequencies of each band in each month, not falling with the band; valid 0 to 1
  Result.LowerBand: lower band, 1 to 9
  Result.UpperBand: upper band, 2 to 10
  Result.BandWeight: (fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1
  Fractions, where BandClimate takes a percentage.
  At or below the first band's frequency the weight is 0 or negative. Bands of equal frequency are skipped upwards, to
    band 10 at most; for a fraction equal to the frequencies of all the rest the weight is not a number.
  A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands 9 and 10 and a weight
    that is not a number.
  Source: Search for linear interpolation.
  (LocateBand of QuorvelByReference) }
function LocateBand(Fraction: Single; Month: LongInt; const Frequencies: TSingle10x12): TLocateBand;

{ Monthly climate of one of ten bands of days, or interpolated at a cumulative percentage of days.
  Band: band, or 0 to interpolate at the percentage; valid 0 to 10
  Month: month; valid 1 to 12
  BandSet: set of bands: 1 bands from the warmest to the coldest days, 2 bands from the highest to the lowest Q1
  Percentage: cumulative percentage of days: given with band 0, otherwise returned [%]; valid 0 to 100
  Result.Percentage: cumulative percentage of days: given with band 0, otherwise returned [%]; as given with band 0
  Result.Q1: quantity Q1: beam factor
  Result.Q2: quantity Q2: diffuse factor
  Result.Q3: quantity Q3: air temperature at time A [degC]
  Result.Q4: quantity Q4: air temperature at time B [degC]
  Result.Q5: quantity Q5: wet-bulb temperature at time A [degC]
  Result.Q6: quantity Q6: wet-bulb temperature at time B [degC]
  Result.TimeA: time A, in the afternoon [h]
  Result.TimeB: time B, about sunrise [h]
  Result.Q7: quantity Q7: cloud-free share of the sky [%]
  Result.Q8: quantity Q8: wind speed [m/s]
  A percentage below band 1 extrapolates backwards from it, by the step to band 2 at most; one above 100 gives band
    10.
  A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a set other than 2 as 1. A
    percentage that is not a number makes Q1 to Q8 not numbers.
  The table built in is representative and not measured; data/bands tells how it was made and how to build with data
    of your own. Q1 to Q8 mean what the table's maker says; the meanings here are those of the table built in.
  Source: Linear interpolation in the band table.
  (BandClimate of QuorvelByReference) }
function BandClimate(Band: LongInt; Month: LongInt; BandSet: TBandSet; Percentage: Single): TBandClimate;

{ Value between two rows of the band table.
  BaseRow: row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and so on in set 1; 92 more in set 2; valid
    0 to 174
  LowerBand: lower band; valid 1 to 10
  UpperBand: upper band; valid 1 to 10
  Month: month; valid 1 to 12
  BandWeight: share of the step from the lower to the upper row; valid -1 to 1
  Result: value, in the quantity's unit
  Rows base_row + lower_band and base_row + upper_band outside 1 to 184 count as the nearest row, a month outside 1 to
    12 as the nearest month.
  Source: Linear interpolation in the band table.
  (InterpolateBandRows of QuorvelByReference) }
function InterpolateBandRows(BaseRow: LongInt; LowerBand: LongInt; UpperBand: LongInt; Month: LongInt; BandWeight:
  Single): Single;

{ One row of the band table, a value per month.
  Row: row: 1 to 92 in set 1, 93 to 184 in set 2; valid 1 to 184
  Result: values from January to December, in the row's unit
  Rows of a set: 1 time A, 2 time B, 3 to 12 cumulative frequency F of bands 1 to 10, 13 to 22 Q1, 23 to 32 Q2 and so
    on to Q8.
  A row below 1 counts as 1, above 184 as 184.
  Source: The band table; see data/bands.
  (BandRow of QuorvelByReference) }
function BandRow(Row: LongInt): TSingle12;

{ Design day of a month as a day of the year, as DesignDay gives it.
  Month: month; valid 1 to 12
  Result: design day of the year
  A month outside 1 to 12 gives 0.
  The year has 365 days.
  Source: Table of customary design days, close to the 21st of each month.
  (StoreDesignDay of QuorvelByReference) }
function StoreDesignDay(Month: LongInt): LongInt;

{ Design day of a month as a day of the year or of the month, as DesignDayByOption gives it.
  Month: month; valid 1 to 12
  DayKind: how the day is counted: 1 day of the month, 2 day of the year
  Result: design day
  The two counts are separate sets and not the same date: in February day 52 of the year (the 21st) stands beside the
    20th.
  A month outside 1 to 12 gives 0; another way of counting counts as 2.
  Source: Table of customary design days, close to the 21st of each month.
  (StoreDesignDayByOption of QuorvelByReference) }
function StoreDesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;

{ Design day of a month as a day of the year.
  Month: month; valid 1 to 12
  Result: design day of the year
  A month outside 1 to 12 gives 0.
  The year has 365 days.
  Source: Table of customary design days, close to the 21st of each month.
  (DesignDay of QuorvelByReference) }
function DesignDay(Month: LongInt): LongInt;

{ Design day of a month as a day of the year or of the month.
  Month: month; valid 1 to 12
  DayKind: how the day is counted: 1 day of the month, 2 day of the year
  Result: design day
  The two counts are separate sets and not the same date: in February day 52 of the year (the 21st) stands beside the
    20th.
  A month outside 1 to 12 gives 0; another way of counting counts as 2.
  Source: Table of customary design days, close to the 21st of each month.
  (DesignDayByOption of QuorvelByReference) }
function DesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;

{ Second design day of a month as a day of the year.
  Month: month; valid 1 to 12
  Result: second design day of the year
  A month outside 1 to 12 gives 0.
  The year has 365 days.
  Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
  (SecondDesignDay of QuorvelByReference) }
function SecondDesignDay(Month: LongInt): LongInt;

{ Second design day of a month as a day of the year or of the month.
  Month: month; valid 1 to 12
  DayKind: how the day is counted: 1 day of the month, 2 day of the year
  Result: second design day
  Both counts are the same date here.
  A month outside 1 to 12 gives 0; another way of counting counts as 2.
  Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
  (SecondDesignDayByOption of QuorvelByReference) }
function SecondDesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;

{ Temperature at an hour of a day, by half cosine waves between its highest and its lowest.
  Hour: hour [h]; valid 0 to 24
  HighestTemperature: highest temperature of the day [degC]; valid -100 to 200
  LowestTemperature: lowest temperature of the day [degC]; valid -100 to 200
  HourOfHighest: hour of the highest [h]; valid 0 to 24
  HourOfLowest: hour of the lowest [h]; valid 0 to 24
  Result: temperature [degC]
  Formula: m + a cos(pi h / L) after the highest, m - a cos(pi h / L) after the lowest; m = mean of both, a = half
    their difference, h = hours since the one passed last, L = hours from it to the other
  The same before and after midnight if the next day is like this one.
  Hours of the extremes that coincide give the mean at every hour. With one at 0 and the other at 24 the wave through
    midnight has no length: at the later of the two the result is no number.
  Pi is 3.141593 here, a step above the float nearest to it, so the extremes are met to rounding.
  Source: Two half cosine waves.
  (DailyTemperature of QuorvelByReference) }
function DailyTemperature(Hour: Single; HighestTemperature: Single; LowestTemperature: Single; HourOfHighest: Single;
  HourOfLowest: Single): Single;

{ Value at an hour of a day that swings about its mean by half cosine waves between two hours.
  Hour: hour [h]; valid 0 to 24
  Mean: mean, in the unit of the result
  Amplitude: half the difference of the extremes, in the same unit
  FirstHour: hour of the first extreme, the highest if amplitude times amplitude_factor is positive [h]; valid 0 to 24
  SecondHour: hour of the second extreme, after the first [h]; valid 0 to 24
  AmplitudeFactor: factor on the amplitude
  Result: value
  Formula: mean + a cos(pi (hour - first_hour) / (second_hour - first_hour)) between the two hours, mean - a cos(pi h
    / (first_hour + 24 - second_hour)) h hours after the second; a = amplitude_factor amplitude
  The order of the hours is not checked: with the second before the first, the wave that should go through midnight
    runs beyond its extreme.
  Pi as in DailyTemperature.
  Source: Two half cosine waves.
  (DailyValue of QuorvelByReference) }
function DailyValue(Hour: Single; Mean: Single; Amplitude: Single; FirstHour: Single; SecondHour: Single;
  AmplitudeFactor: Single): Single;

{ Design irradiance by solar altitude: direct normal and diffuse horizontal.
  SolarAltitude: solar altitude [rad]; valid 0 to 1.5707964
  SiteHeight: height of the site above sea level [m]; valid 0 to 4000
  SkyKind: kind of sky: 0 clear, 1 cloudy: the larger diffuse irradiance
  Result.DirectNormal: direct normal irradiance, the same for both skies [W/m2]
  Result.DiffuseHorizontal: diffuse irradiance on the horizontal [W/m2]
  Formula: direct_normal = 1035.49 - 156.13 / a - 1.91863 / a^2 + 2.51353 / a^3 - 0.148842 / a^4; diffuse_horizontal =
    1.52269 + 280.358 a - 375.111 a^2 + 253.716 a^3 - 63.3311 a^4 of the clear sky, 0.331322 + 283.1 a + 4.42111 a^2
    of the cloudy one; a = solar_altitude above 0.087
  Both grow with the height by the factor of HeightFactor.
  Up to 0.087 rad both are proportional to the altitude, also below 0, where they are negative. The direct irradiance
    falls by 2 W/m2 where the polynomial takes over.
  An altitude beyond 1.5707964 in size gives two zeros. A sky kind below 0 counts as 0, above 1 as 1.
  Source: Polynomials through the design irradiances of a clear and a cloudy sky that building services guides print.
  (DesignIrradiance of QuorvelByReference) }
function DesignIrradiance(SolarAltitude: Single; SiteHeight: Single; SkyKind: TSkyKind): TDesignIrradiance;

{ Factor by which irradiance grows with the height of the site.
  SiteHeight: height of the site above sea level [m]; valid 0 to 4000
  SolarAltitude: solar altitude [rad]; valid 0 to 1.5707964
  Result: factor
  Formula: 1.02 + site_height (0.00002 + 0.00005 / sin(solar_altitude))
  1 below 300 m, and for suns whose sine of altitude is below 0.08; the factor jumps from 1 to 1.041 or more at 300 m.
  Source: Linear fit to height corrections of design irradiance.
  (HeightFactor of QuorvelByReference) }
function HeightFactor(SiteHeight: Single; SolarAltitude: Single): Single;

{ Irradiance outside the atmosphere on a day, by that at the mean distance of the sun.
  Day: day of the year; valid 1 to 366
  Result: factor
  Formula: 1 + 0.03344 cos((360 day / 365.25 - 2.8) pi / 180)
  0.967 to 1.033; greatest in the first days of January.
  Source: Correction of the European Solar Radiation Atlas, 1 + 0.03344 cos(day angle - 2.8 degrees).
  (EccentricityFactor of QuorvelByReference) }
function EccentricityFactor(Day: LongInt): Single;

{ Global horizontal irradiance by that outside the atmosphere.
  Day: day of the year; valid 1 to 366
  SolarAltitude: solar altitude [rad]; valid 0 to 1.5707964
  GlobalHorizontal: global horizontal irradiance [W/m2]; valid from 0
  Result: clearness index
  Formula: global_horizontal / (1367 EccentricityFactor(day) sin(solar_altitude))
  An altitude of 0 divides by zero: infinite, or not a number for an irradiance of 0.
  Source: B. Y. H. Liu and R. C. Jordan, Solar Energy 4 (1960), with a solar constant of 1367 W/m2 and the
    eccentricity of EccentricityFactor.
  (ClearnessIndex of QuorvelByReference) }
function ClearnessIndex(Day: LongInt; SolarAltitude: Single; GlobalHorizontal: Single): Single;

{ Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and ground-reflected.
  SolarAltitude: solar altitude [rad]; valid 0 to 1.5707964
  SolarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
  SurfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
  Tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
  BeamHorizontal: beam irradiance on the horizontal [W/m2]; valid from 0
  DiffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
  ExtraterrestrialHorizontal: irradiance on the horizontal outside the atmosphere [W/m2]; valid 0 to 1415
  GroundReflectance: reflectance of the ground; valid 0 to 1
  Result.SurfaceBeam: beam irradiance on the surface, 0 with the sun behind it [W/m2]
  Result.SurfaceDiffuse: diffuse irradiance of the sky on the surface [W/m2]
  Result.GroundReflected: ground-reflected irradiance on the surface [W/m2]
  Result.Incidence: angle of incidence, 1.5707964 with the sun behind the surface [rad]
  Formula: surface_beam = beam_horizontal cos(i) / sin(h); surface_diffuse = diffuse_horizontal (f (1 - K) + K cos(i)
    / sin(h)); ground_reflected = ground_reflectance (beam_horizontal + diffuse_horizontal) sin(b / 2)^2; f = cos(b /
    2)^2 + 2 r / (pi (2 r + 3)) (sin(b) - b cos(b) - pi sin(b / 2)^2), K = beam_horizontal /
    extraterrestrial_horizontal, h = solar_altitude, b = tilt, i = angle of incidence
  Radiance index r = 5.73 with the sun behind the surface; else 1.68 for a beam below 5 W/m2 and -0.62 from there on.
    The circumsolar part starts above 5: exactly 5 takes -0.62 without it: deliberate.
  With the sun behind the surface cos(i) counts as 0; there, and up to a beam of 5 W/m2, K does too.
  A sun up to 0.1 rad above the horizon has a form of its own: the diffuse irradiance times the cosine of the angle of
    incidence, brightened with the tilt. The result jumps there and at the thresholds of the beam.
  That form does not become the diffuse irradiance on the horizontal, as it does above 0.1 rad: there it is the
    diffuse irradiance times the sine of the altitude, 10 of 100 W/m2 at 0.0999 rad and 1 at 0.01 rad, and on a wall
    that faces the sun 135.
  Computed in double precision: 0.1 as a single-precision altitude lies above the limit.
  The beam is divided by the sine of the altitude: an altitude of 0 gives an infinite beam on the surface, or no
    number.
  Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and Technology 11
    (1990); radiance of the sky after P. Moon and D. E. Spencer (1942).
  (MuneerSlope of QuorvelByReference) }
function MuneerSlope(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single; BeamHorizontal:
  Single; DiffuseHorizontal: Single; ExtraterrestrialHorizontal: Single; GroundReflectance: Single): TMuneerSlope;

{ Diffuse irradiance of the sky on a tilted surface by the anisotropic sky of Perez.
  SolarAltitude: solar altitude [rad]; valid 0 to 1.5707964
  Tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
  BeamHorizontal: beam irradiance on the horizontal [W/m2]; valid from 0
  DiffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
  Incidence: angle of incidence of the sun on the surface [rad]; valid 0 to 3.1416
  ExtraterrestrialNormal: normal irradiance outside the atmosphere [W/m2]; valid 1320 to 1415
  Result: diffuse irradiance of the sky on the surface [W/m2]
  Formula: diffuse_horizontal ((1 - F1) cos(tilt / 2)^2 + F1 a / b + F2 sin(tilt)); a = cos(incidence), at least 0, b
    = sin(solar_altitude), at least 0.0871557; F1 = f11 + f12 D + f13 Z, at least 0, F2 = f21 + f22 D + f23 Z
  The air mass is that of Kasten and Young with the altitude in radians in place of degrees: 16 % too small for the
    sun at 2.5 degrees, 4 % at 30 and 2 % in the zenith: deliberate.
  The circumsolar part is not below 0, the horizon's part may be; the sum is not limited.
  Computed in double precision, coefficients and limits included; a clearness on the limit of two rows of coefficients
    belongs to the lower. The result jumps between rows, as the published model does.
  Altitude, diffuse and extraterrestrial irradiance of 0 divide by zero.
  The formula's Z is the sun's angle from the zenith, D the brightness: the air mass times diffuse_horizontal /
    extraterrestrial_normal. The coefficients f are those of the row of the clearness.
  Source: R. Perez, P. Ineichen, R. Seals, J. Michalsky and R. Stewart, Modeling daylight availability and irradiance
    components from direct and global irradiance, Solar Energy 44 (1990): composite of all sites, coefficients with
    all their places. Air mass: F. Kasten and A. T. Young, Applied Optics 28 (1989).
  (PerezDiffuse of QuorvelByReference) }
function PerezDiffuse(SolarAltitude: Single; Tilt: Single; BeamHorizontal: Single; DiffuseHorizontal: Single; Incidence:
  Single; ExtraterrestrialNormal: Single): Single;

{ Radiation constants of a site class in a month.
  SiteClass: site class; valid 1 to 6
  Month: month; valid 1 to 12
  Result.GroundReflectance: reflectance of the ground
  Result.BeamFactor: factor on the direct normal irradiance
  Result.DiffuseFactor: factor on the diffuse horizontal irradiance
  Result.AlternativeDiffuseFactor: factor that takes its place where it is 0
  Only class 1 varies over the year. Classes 4 and 6 have a diffuse factor of 0 and the alternative one in its place;
    the caller chooses.
  A site class outside 1 to 6 or a month outside 1 to 12 gives four zeros.
  Source: Table of design constants of the library.
  (SiteConstants of QuorvelByReference) }
function SiteConstants(SiteClass: LongInt; Month: LongInt): TSiteConstants;

{ Diffuse irradiance of the sky on a tilted surface without circumsolar part, by that on the horizontal.
  Day: day of the year; valid 1 to 366
  SolarAltitude: solar altitude [rad]; valid 0 to 1.5707964
  BeamHorizontal: beam irradiance on the horizontal [W/m2]; valid from 0
  Tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
  SkyModel: model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern Europe, 2 clearness, southern
    Europe, as any other value
  Result: factor, 1 for a horizontal surface
  Formula: cos(b / 2)^2 + a (sin(b) - b cos(b) - pi sin(b / 2)^2), b = tilt; model 0: a = 2 r / (pi (2 r + 3)), model
    1: 0.00333 - 0.415 K - 0.6987 K^2, model 2: 0.00263 - 0.712 K - 0.6883 K^2; K = beam_horizontal / (1367
    EccentricityFactor(day) sin(solar_altitude))
  Model 0 takes the radiance index r = 5.73 up to an altitude of 0, 1.68 for a beam below 5 W/m2 and -0.62 otherwise;
    the side of the surface does not matter here.
  Models 1 and 2 divide by the sine of the altitude: at 0 the factor is infinite or no number.
  Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and Technology 11
    (1990), with a solar constant of 1367 W/m2 and the eccentricity of EccentricityFactor.
  (DiffuseTiltFactor of QuorvelByReference) }
function DiffuseTiltFactor(Day: LongInt; SolarAltitude: Single; BeamHorizontal: Single; Tilt: Single; SkyModel:
  TSkyModel): Single;

{ Diffuse irradiance of the sky on a tilted surface by day of the year and model of the sky.
  Day: day of the year; valid 1 to 366
  SolarAltitude: solar altitude [rad]; valid 0 to 1.5707964
  SolarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
  SurfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
  Tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
  BeamHorizontal: beam irradiance on the horizontal [W/m2]; valid from 0
  DiffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
  SkyModel: model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern Europe, 2 clearness, southern
    Europe, as any other value
  Result: diffuse irradiance of the sky on the surface [W/m2]
  Formula: diffuse_horizontal (f (1 - K) + K cos(i) / sin(solar_altitude)); f = DiffuseTiltFactor, i = angle of
    incidence
  The factor of DiffuseTiltFactor and a circumsolar part, weighted by the clearness of the beam. A sun behind the
    surface has no circumsolar part, as one whose direction is not a number.
  From a beam of 5 W/m2 on, a sun below 0.1 rad has a form of its own, which follows the clearness but not the model.
    The result jumps there.
  On the horizontal the result is the diffuse irradiance, but for that form, which brightens it around the sun: at
    0.0999 rad by 0.4 % for a beam of 50 W/m2 and by 4.5 % for 600.
  Divides by the sine of the altitude: at 0 the result is infinite or no number.
  K is that of DiffuseTiltFactor.
  Source: As DiffuseTiltFactor. Low sun: the clear sky of R. C. Temps and K. L. Coulson (Solar Energy 19, 1977) with
    the modulation by T. M. Klucher (Solar Energy 23, 1979), the beam clearness in place of his factor.
  (SlopeDiffuse of QuorvelByReference) }
function SlopeDiffuse(Day: LongInt; SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single;
  BeamHorizontal: Single; DiffuseHorizontal: Single; SkyModel: TSkyModel): Single;

{ Temperature of the sol-air kind: a base temperature raised by a net gain of heat.
  BaseTemperature: base temperature, as of the air outdoors [degC]; valid -100 to 200
  SurfaceCoefficient: heat transfer coefficient of the surface [W/m2K]; valid from 0
  Absorptance: absorptance; valid 0 to 1
  Irradiance: solar irradiance on the surface [W/m2]; valid from 0
  LongWaveLoss: net loss [W/m2]; valid from 0
  Result: sol-air temperature [degC]
  Formula: base_temperature + absorptance (irradiance - long_wave_loss) / surface_coefficient
  The absorptance weighs the long-wave loss as it does the irradiance.
  A coefficient of 0 divides by zero.
  Source: Heat balance of an outer surface.
  (SolAirTemperature of QuorvelByReference) }
function SolAirTemperature(BaseTemperature: Single; SurfaceCoefficient: Single; Absorptance: Single; Irradiance: Single;
  LongWaveLoss: Single): Single;

{ Net long-wave radiation that a surface loses to its surroundings, never negative.
  Tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
  CloudCover: share of the sky that is covered by cloud; valid 0 to 1
  Result: net loss [W/m2]
  Formula: 72 cos(tilt) + 21 - (62 cos(tilt) + 17) cloud_cover, at least 0
  Horizontal 93 - 79 cloud_cover, vertical 21 - 17 cloud_cover, between them by the cosine of the tilt. Less than
    nothing is 0; not a number stays so.
  Source: Net long-wave losses of horizontal and vertical surfaces by cloud cover, as building services guides print
    them; meaning of the arguments inferred from these values.
  (LongWaveLoss of QuorvelByReference) }
function LongWaveLoss(Tilt: Single; CloudCover: Single): Single;

{ What is to be added to clock time to get solar time.
  ClockOffset: hours by which the clock is put forward, as in summer time [h]
  Day: day of the year; valid 1 to 366
  Longitude: longitude of the site, positive west [rad]; valid -3.1416 to 3.1416
  ReferenceLongitude: longitude of the clock's meridian, positive west [rad]; valid -3.1416 to 3.1416
  Result: correction [h]
  Formula: equation of time - clock_offset - (longitude - reference_longitude) / 0.2618
  Only the difference of the longitudes counts. Given positive east instead, it enters with the wrong sign.
  The equation of time stays within 0.7 min of the true one.
  The hour is rounded to 0.2618 rad here and not in SolarGeometry: deliberate.
  Source: Fourier series of the equation of time to the third harmonic, of the kind given by J. W. Spencer, Search 2
    (1971); coefficients refitted.
  (SolarTimeCorrection of QuorvelByReference) }
function SolarTimeCorrection(ClockOffset: Single; Day: LongInt; Longitude: Single; ReferenceLongitude: Single): Single;

{ Altitude, azimuth and declination of the sun by calendar date and clock.
  TimeKind: what the time is: 1 solar time; longitude and zone meridian are set to 0, 2 clock of the zone, at the
    longitude, 3 solar time; the zone meridian only dates the declination
  Year: year; valid 1976 to 2099
  Month: month; valid 1 to 12
  DayOfMonth: day of the month; valid 1 to 31
  ClockTime: clock hour [h]; valid 0 to 24
  Latitude: latitude, positive north [rad]; valid -1.5707964 to 1.5707964
  Longitude: longitude, positive west [rad]; valid -3.1416 to 3.1416
  ZoneMeridian: longitude of the clock's meridian, positive west [rad]; valid -3.1416 to 3.1416
  Result.Longitude: longitude, positive west [rad]; as given except with solar time
  Result.ZoneMeridian: longitude of the clock's meridian, positive west [rad]; as given except with solar time
  Result.SolarAltitude: altitude, negative below the horizon; no refraction [rad]
  Result.SolarAzimuth: azimuth [rad]
  Result.Declination: declination [rad]
  Within 0.03 degrees, and of the azimuth 0.1 degrees where the sun is near due south or north, since a cosine of
    azimuth beyond 0.999999 in size counts as 1. Of this 0.02 degrees come from a misplaced degree factor in the
    equation of the centre: deliberate.
  The hour angle is not brought into -180 to 180 degrees. Its sign decides between morning and afternoon, so within an
    hour of midnight the azimuth may be the mirror image.
  A kind of time other than 1 and 2 counts as 3. Date and hour are not checked: a day beyond the month's end counts on
    into the next month. Before March 1976 three years of four are a day late; 2100 is given a leap day.
  Source: Low-precision formulas of B. D. Yallop for the sun, as printed in T. Muneer, Solar Radiation and Daylight
    Models for the Energy Efficient Design of Buildings, 1997.
  (AlmanacPosition of QuorvelByReference) }
function AlmanacPosition(TimeKind: TTimeKind; Year: LongInt; Month: LongInt; DayOfMonth: LongInt; ClockTime: Single;
  Latitude: Single; Longitude: Single; ZoneMeridian: Single): TAlmanacPosition;

{ Sunrise and sunset in solar time by calendar date.
  Year: year; valid 1976 to 2099
  Month: month; valid 1 to 12
  DayOfMonth: day of the month; valid 1 to 31
  Latitude: latitude, positive north [rad]; valid -1.5707964 to 1.5707964
  Result.Sunrise: sunrise; 25 when the sun does not rise, 0 when it does not set [h]
  Result.Sunset: sunset; 25 when the sun does not set, 0 when it does not rise [h]
  The centre of the sun on a level horizon without refraction, with the declination of noon at Greenwich.
  Dates as in AlmanacPosition. A latitude of 1.5707964, or its negative, is by rounding just beyond the pole: midnight
    sun and polar night change places there.
  Source: Declination as AlmanacPosition; sunrise equation.
  (AlmanacSunHours of QuorvelByReference) }
function AlmanacSunHours(Year: LongInt; Month: LongInt; DayOfMonth: LongInt; Latitude: Single): TAlmanacSunHours;

{ Declination, altitude and azimuth of the sun, sunrise and sunset, by latitude, day of the year and solar hour.
  Latitude: latitude, positive north [rad]; valid -1.5707964 to 1.5707964
  Day: day of the year; valid 1 to 365
  SolarTime: solar time, noon at 12 [h]; valid 0 to 24
  Result.Declination: declination [rad]
  Result.SolarAltitude: altitude, 0 when the sun is below the horizon [rad]
  Result.SolarAzimuth: azimuth, 0 when the sun is below the horizon [rad]
  Result.Sunrise: sunrise; 25 when the sun does not rise, 0 when it does not set [h]; not a number with latitude, day
    or hour outside its range
  Result.Sunset: sunset; 25 when the sun does not set, 0 when it does not rise [h]; not a number with latitude, day or
    hour outside its range
  Formula: sin(declination) = 0.398 sin(d - 1.4096 + 0.03347 sin(d)), d = 0.01721 day; sin(altitude) =
    sin(declination) sin(latitude) + cos(declination) cos(latitude) cos(H), H = 0.261799395 (12 - solar_time); sunrise
    = 12 / pi acos(tan(latitude) tan(declination)), sunset = 24 - sunrise
  Latitude, day or hour outside its range (day 366 too) gives a declination, altitude and azimuth of 0.
  Within 0.5 degrees of the true position; no leap years, no refraction, the sun a point.
  Noon counts as morning. With the sun in the zenith the azimuth is arbitrary.
  A latitude of 1.5707964, or its negative, is by rounding just beyond the pole: midnight sun and polar night change
    places there.
  Not a number for the latitude or the hour makes what depends on it not a number.
  Source: Spherical astronomy; sine of the declination as 0.398 times the sine of the sun's ecliptic longitude, with
    the first-order equation of the centre.
  (SolarGeometry of QuorvelByReference) }
function SolarGeometry(Latitude: Single; Day: LongInt; SolarTime: Single): TSolarGeometry;

{ Angle of incidence of the sun on a surface, and its angles in the vertical and the horizontal sense.
  SolarAltitude: solar altitude [rad]; valid -1.5707964 to 1.5707964
  SolarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
  SurfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
  Tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
  Result.Incidence: angle of incidence, 0 to pi; above pi/2 the sun is behind the surface [rad]
  Result.VerticalShadowAngle: angle off the normal in the plane of normal and slope, positive up the slope; the
    profile angle of a vertical surface [rad]
  Result.HorizontalShadowAngle: angle off the normal in the plane of normal and level line, positive clockwise seen
    from above [rad]
  Formula: cos(incidence) = cos(solar_altitude) sin(tilt) cos(solar_azimuth - surface_azimuth) + sin(solar_altitude)
    cos(tilt)
  With the sun behind the surface the two angles exceed pi/2 in size.
  With the sun along the level line the vertical angle is pi/2, with the sun along the slope line the horizontal angle
    is -pi/2: exactly so only where the components vanish, anything by rounding otherwise.
  The components are rounded, so angles below 0.0005 rad are not resolved.
  Source: Vector algebra: the sun's direction in the frame of level line, slope line and outward normal.
  (SurfaceAngles of QuorvelByReference) }
function SurfaceAngles(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single):
  TSurfaceAngles;

{ Irradiance on the plane of a surface: direct from the sun, diffuse from the sky, reflected from the ground.
  SolarAltitude: solar altitude [rad]; valid 0 to 1.5707964
  SolarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
  SurfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
  Tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
  DirectNormal: direct normal irradiance [W/m2]; valid from 0
  DiffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
  GroundReflectance: reflectance of the ground; valid 0 to 1
  BeamFactor: factor on the direct normal irradiance; valid from 0
  DiffuseFactor: factor on the diffuse horizontal irradiance; valid from 0
  Result.SurfaceBeam: beam irradiance on the surface, 0 with the sun behind it [W/m2]
  Result.SurfaceDiffuse: diffuse irradiance of the sky on the surface [W/m2]
  Result.GroundReflected: ground-reflected irradiance on the surface [W/m2]
  Formula: surface_beam = direct_normal beam_factor cos(i); surface_diffuse = d (1 + cos(tilt)) / 2 (1 - 0.1 sin(tilt)
    (1 + cos(surface_azimuth))); ground_reflected = ground_reflectance (1 - cos(tilt)) / 2 (d + direct_normal
    beam_factor sin(solar_altitude)); d = diffuse_horizontal diffuse_factor, i = angle of incidence, the beam 0 behind
    the surface
  A vertical surface gets up to 20 % less diffuse irradiance the more it faces north, whatever the hemisphere.
  Nothing is limited: a negative altitude or irradiance gives negative parts. An angle that is not a number gives a
    direct irradiance of 0.
  Source: Cosine law; isotropic sky and ground by view factors (B. Y. H. Liu and R. C. Jordan, Solar Energy 4, 1960),
    with an empirical darkening to the north.
  (SurfaceIrradiance of QuorvelByReference) }
function SurfaceIrradiance(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single;
  DirectNormal: Single; DiffuseHorizontal: Single; GroundReflectance: Single; BeamFactor: Single; DiffuseFactor:
  Single): TSurfaceIrradiance;

{ Irradiance on the plane of a surface as SurfaceIrradiance, and the angle of incidence.
  SolarAltitude: solar altitude [rad]; valid 0 to 1.5707964
  SolarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
  SurfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
  Tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
  DirectNormal: direct normal irradiance [W/m2]; valid from 0
  DiffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
  GroundReflectance: reflectance of the ground; valid 0 to 1
  BeamFactor: factor on the direct normal irradiance; valid from 0
  DiffuseFactor: factor on the diffuse horizontal irradiance; valid from 0
  Result.SurfaceBeam: beam irradiance on the surface, 0 with the sun behind it [W/m2]
  Result.SurfaceDiffuse: diffuse irradiance of the sky on the surface [W/m2]
  Result.GroundReflected: ground-reflected irradiance on the surface [W/m2]
  Result.Incidence: angle of incidence, 1.5707964 with the sun behind the surface [rad]
  The irradiances are those of SurfaceIrradiance, bit for bit; see there.
  SurfaceAngles gives the angle of incidence behind the surface too.
  Source: As SurfaceIrradiance.
  (SurfaceIrradianceAndIncidence of QuorvelByReference) }
function SurfaceIrradianceAndIncidence(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt:
  Single; DirectNormal: Single; DiffuseHorizontal: Single; GroundReflectance: Single; BeamFactor: Single; DiffuseFactor:
  Single): TSurfaceIrradianceAndIncidence;

{ Pieces and area of the overlap of two simple polygons in plan.
  X1: x of polygon 1 [m]
  Y1: y of polygon 1 [m]
  X2: x of polygon 2 [m]
  Y2: y of polygon 2 [m]
  Result.PieceX: x of the vertices of the pieces, a column each; 0 beyond them [m]
  Result.PieceY: y of the vertices of the pieces [m]
  Result.PieceVertices: number of vertices of each piece, 0 beyond the last
  Result.Area: area of the overlap [m2]
  The overlap of Clip with polygon 2 as A and polygon 1 as B, and with its accuracy. The pieces run in the sense of
    polygon 2.
  A coordinate nearer to 0 than 1e-4 is taken as 0.
  The outputs are all 0 where the polygons do not overlap, and where Clip fails: a polygon that crosses itself, more
    than 10 crossings, more than 50 vertices and crossings in all. Likewise for more than 5 pieces, or more than 24
    vertices in one. Of pairs of real polygons 0.75 % exceed one of these capacities.
  The outputs are also 0 where polygon 1 lies in polygon 2 and the two have 42 vertices or more together: what is left
    of polygon 2 around it does not fit. Where polygon 2 lies in polygon 1 they may have 50, as anywhere else.
  Source: As Clip.
  (Overlap of QuorvelByReference) }
function Overlap(const X1: array of Single; const Y1: array of Single; const X2: array of Single; const Y2: array of
  Single): TOverlap;

{ The same as Overlap.
  X1: x of polygon 1 [m]
  Y1: y of polygon 1 [m]
  X2: x of polygon 2 [m]
  Y2: y of polygon 2 [m]
  Result.PieceX: x of the vertices of the pieces, a column each; 0 beyond them [m]
  Result.PieceY: y of the vertices of the pieces [m]
  Result.PieceVertices: number of vertices of each piece, 0 beyond the last
  Result.Area: area of the overlap [m2]
  As Overlap, in all.
  Source: As Clip.
  (OverlapAlias of QuorvelByReference) }
function OverlapAlias(const X1: array of Single; const Y1: array of Single; const X2: array of Single; const Y2: array
  of Single): TOverlapAlias;

{ Whether points in plan lie on one straight line.
  X: x of the vertices [m]
  Y: y of the vertices [m]
  Result: 1 on one line; otherwise the number, counted from 1, of the first point whose y differs from that of the
    first of all
  The points are held against the line through the first two that differ by 1e-5 or more in both coordinates. A point
    is off it when the ratios of its offsets to theirs, in x and in y, differ by more than 1e-5: what is tolerated
    grows with the distance between the two.
  Points that all have the x or the y of the first, to within 1e-5, are on one line. Not a number counts as equal to
    anything.
  Coordinates near one another within 1e-5 can leave no two points to draw the line through; then the points are not
    on one line, and finding that out takes n2/2 comparisons.
  Source: Intercept theorem.
  (Collinearity of QuorvelByReference) }
function Collinearity(const X: array of Single; const Y: array of Single): LongInt;

{ How many points lie in a convex polygon with clockwise vertices or on its boundary, and which.
  X: x of the vertices [m]
  Y: y of the vertices [m]
  PointX: x of the points [m]
  PointY: y of the points [m]
  Enclosed: 1 for points that are enclosed: 0 not enclosed, 1 enclosed
  Result.Enclosed: 1 for points that are enclosed; as given for points that are not enclosed
  Result.EnclosedPoints: number of enclosed points
  A point is enclosed when it is left of no edge, as SideOfLine sees it, or is at a vertex (to less than 1e-5 in each
    coordinate) that comes before any such edge.
  Points that are not numbers are left of no edge, and so enclosed.
  Source: A convex polygon is the intersection of half-planes.
  (CountEnclosed of QuorvelByReference) }
function CountEnclosed(const X: array of Single; const Y: array of Single; const PointX: array of Single; const PointY:
  array of Single; const Enclosed: array of LongInt): TCountEnclosed;

{ Where a segment crosses the boundary of a polygon in plan.
  SegmentStart: start of the segment [m]
  SegmentEnd: end of the segment [m]
  X: x of the vertices [m]
  Y: y of the vertices [m]
  Result.CrossingPoint: crossing point, or what the notes say [m]; 1e20 where there is none
  Result.CrossingCode: number, counted from 1, of the vertex that ends the crossed edge, or what the notes say
  The edges are tried in turn, from that between the first two vertices on, as CrossingPoint does; the first one that
    is crossed away from the start ends the search. A crossing beyond 100000 is none.
  No such edge, but the start at a vertex (to less than 1e-5): the code is its number with a minus, and the point is
    the last outcome of the search, the start or 1e20.
  Otherwise, the start on edges: the code is 999 + the number of the vertex that ends the last of them, and the point
    that vertex. (The sum is taken modulo 2^32. Of a polygon with 1000 vertices or more, small codes of this kind
    cannot be told from edges by the code alone.)
  Otherwise the code is 0, and the point 1e20.
  Source: As CrossingPoint.
  (BoundaryCrossing of QuorvelByReference) }
function BoundaryCrossing(const SegmentStart: array of Single; const SegmentEnd: array of Single; const X: array of
  Single; const Y: array of Single): TBoundaryCrossing;

{ Whether a point in the plane of a polygon in space lies inside or on its boundary.
  Point: point [m]
  Polygon: vertices, the last of which repeats the first [m]
  Result: 1 inside, 0 outside
  The first edge with whose line the point is in line (twice the area of the triangle between them at most 1e-6)
    decides alone: 1 if the point is in the span of the edge, as InSpan sees it, else 0. So a point may be found
    outside a polygon that is not convex because it is in line with an edge.
  That the point is in the plane is not tested: over the middle of a square it is inside up to half the length of a
    side.
  Not a number gives 0.
  Source: Sum of the angles under which the point sees the edges.
  (Inside of QuorvelByReference) }
function Inside(const Point: array of Single; const Polygon: array of TSingle3): LongInt;

{ Whether the planes of two triangles are parallel.
  Triangle1: corners of one triangle [m]
  Triangle2: corners of the other [m]
  Result: whether they are parallel
  So they are when the cross product of their normals, each as long as twice the triangle's area, is shorter than
    0.001: small triangles are parallel to any.
  Source: Definition.
  (ParallelPlanes of QuorvelByReference) }
function ParallelPlanes(const Triangle1: TDouble3x3; const Triangle2: TDouble3x3): Boolean;

{ Whether two triangles have parallel sides, and which.
  Triangle1: corners of one triangle [m]
  Triangle2: corners of the other [m]
  Result.Truth: whether there are any
  Result.Side1: side of one triangle: 1 between its first two corners, 2 between its last two; 3 none
  Result.Side2: side of the other, likewise
  Sides are parallel when their cross product is shorter than 0.001, so that short sides are parallel to any.
  The sides between last and first corner are not tested.
  Source: Definition.
  (ParallelSides of QuorvelByReference) }
function ParallelSides(const Triangle1: TDouble3x3; const Triangle2: TDouble3x3): TParallelSides;

{ Whether a quadrilateral is rectangular.
  Quadrilateral: corners in turn [m]
  Result: whether it is rectangular
  So it is when at all corners but the first the dot product of the two sides is at most 1e-6 in magnitude.
  Source: Definition.
  (Rectangular of QuorvelByReference) }
function Rectangular(const Quadrilateral: TDouble4x3): Boolean;

{ Azimuth and tilt of the plane of a triangle.
  Triangle: corners, clockwise seen from outside [m]
  Azimuth: azimuth of the outward normal; given, what a level triangle gets, in radians [deg]; valid 0 to 6.2832
  Result.Azimuth: azimuth of the outward normal; given, what a level triangle gets, in radians [deg]
  Result.Tilt: tilt: 0 horizontal facing up, 90 vertical, 180 facing down [deg]
  A level triangle, the level part of whose normal (as long as twice its area) is shorter than 1e-10, gets the given
    azimuth times 180/pi.
  Azimuths of 360 or more are reduced by 360 once; from 359.99 on they become 0.
  A triangle without area gives a tilt that is not a number.
  Source: Definition.
  (Facing of QuorvelByReference) }
function Facing(const Triangle: TDouble3x3; Azimuth: Double): TFacing;

{ Two quadrilaterals in local coordinates of the first.
  Quadrilateral1: corners of the first [m]
  Quadrilateral2: corners of the second [m]
  Result.Local1: the first in local coordinates [m]
  Result.Local2: the second in local coordinates [m]
  The origin is the first corner of the first; from there x points to the second corner, y to the fourth, z along the
    cross product of the ways to the second and the third.
  Coordinates are dot products with the axes, so that lengths are kept only where that has a right angle at its first
    corner.
  Coincident corners give what is not a number.
  Source: Definition.
  (LocalCoordinates of QuorvelByReference) }
function LocalCoordinates(const Quadrilateral1: TDouble4x3; const Quadrilateral2: TDouble4x3): TLocalCoordinates;

{ Components of each of four points along three axes.
  Corners: points [m]
  XAxis: x axis
  YAxis: y axis
  ZAxis: z axis
  Result: points [m]
  Source: Definition.
  (ToLocal of QuorvelByReference) }
function ToLocal(const Corners: TDouble4x3; const XAxis: array of Double; const YAxis: array of Double; const ZAxis:
  array of Double): TDouble4x3;

{ Where two infinite lines in plan meet.
  Line1Start: point of line 1 [m]
  Line1End: another point of line 1 [m]
  Line2Start: point of line 2 [m]
  Line2End: another point of line 2 [m]
  Result: meeting point [m]; 1e20 where there is none
  Parallel lines give 1e20 in both coordinates: those for which |ab| |cd| times the sine of the angle between them is
    below 1e-10.
  Any of the points may be vectors; their z is not read.
  Source: Elementary analytic geometry.
  (MeetingPoint of QuorvelByReference) }
function MeetingPoint(const Line1Start: array of Single; const Line1End: array of Single; const Line2Start: array of
  Single; const Line2End: array of Single): TSingle2;

{ Where two segments in plan cross or touch.
  Segment1Start: start of segment 1 [m]
  Segment1End: end of segment 1 [m]
  Segment2Start: start of segment 2 [m]
  Segment2End: end of segment 2 [m]
  Result: crossing point [m]; 1e20 where there is none
  Segments that do not meet, and parallel ones whether they meet or not, give 1e20 in both coordinates. Not a number
    counts as not meeting.
  A segment reaches almost 0.0001 beyond its ends in x and in y.
  Source: As MeetingPoint.
  (CrossingPoint of QuorvelByReference) }
function CrossingPoint(const Segment1Start: array of Single; const Segment1End: array of Single; const Segment2Start:
  array of Single; const Segment2End: array of Single): TSingle2;

{ Whether a point of the line AB lies between A and B.
  FirstEnd: one end [m]
  SecondEnd: other end [m]
  Point: point on the line AB [m]
  Result: 1 between them or at an end, else 0
  That the point is on the line is not tested: the answer is whether it is in the box of which A and B are corners.
  Not a number in y or z of the point does not exclude it.
  Source: Definition.
  (InSpan of QuorvelByReference) }
function InSpan(const FirstEnd: array of Single; const SecondEnd: array of Single; const Point: array of Single):
  Single;

{ Whether a point lies on B's side of A and nearer to A than B does.
  FirstEnd: one end [m]
  SecondEnd: other end [m]
  Point: point [m]
  Result: 1 if so, else 0
  A itself counts, B does not; so nothing does where the two coincide.
  Not a number anywhere gives 1.
  Source: Definition.
  (AheadAndNearer of QuorvelByReference) }
function AheadAndNearer(const FirstEnd: array of Single; const SecondEnd: array of Single; const Point: array of
  Single): Single;

{ Whether two points in plan coincide.
  X1: x of one point [m]
  Y1: y of one point [m]
  X2: x of the other [m]
  Y2: y of the other [m]
  Result: whether both coordinates differ by less than 1e-5
  Source: Definition.
  (Coincide of QuorvelByReference) }
function Coincide(X1: Single; Y1: Single; X2: Single; Y2: Single): Boolean;

{ Side of a directed line in plan on which a point lies.
  LineStart: start of the line [m]
  LineEnd: point towards which it runs [m]
  Point: point [m]
  Result: 1 right of the line, -1 left of it, 0 nearer to it than 1e-5
  Where the two points of the line are the same the line runs north.
  Not a number gives 0.
  Source: Distance of a point from a line by its bearing.
  (SideOfLine of QuorvelByReference) }
function SideOfLine(const LineStart: array of Single; const LineEnd: array of Single; const Point: array of Single):
  LongInt;

{ Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the angle of an azimuth.
  Angle: angle from east, anticlockwise, or azimuth [deg]; valid 0 to 360
  Result: azimuth of the opposite direction, or angle of it [deg]
  It is the remainder of 630 - angle by 360 with the sign of the dividend: angles above 630 give negative results.
  Magnitudes from 1000 on are no angles and are returned as they are.
  Source: Definition.
  (BackAzimuth of QuorvelByReference) }
function BackAzimuth(Angle: Single): Single;

{ Unit vector of a direction, such as that to the sun.
  SolarAltitude: altitude [rad]; valid -1.5708 to 1.5708
  SolarAzimuth: azimuth [rad]; valid 0 to 6.2832
  Result: direction
  Formula: (sin(solar_azimuth) cos(solar_altitude), cos(solar_azimuth) cos(solar_altitude), sin(solar_altitude))
  Source: Spherical to rectangular coordinates.
  (DirectionTo of QuorvelByReference) }
function DirectionTo(SolarAltitude: Single; SolarAzimuth: Single): TSingle3;

{ Rotation matrix of a surface, from local to global coordinates, and its inverse.
  SurfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
  Tilt: tilt: 0 horizontal facing up, pi/2 vertical [rad]; valid 0 to 3.1416
  Result.RotationMatrix: matrix; its columns are the local axes in global coordinates
  Result.InverseMatrix: inverse of it
  Formula: columns (-cos(a), sin(a), 0), (-sin(a) cos(b), -cos(a) cos(b), sin(b)), (sin(a) sin(b), cos(a) sin(b),
    cos(b)); a = surface_azimuth, b = tilt
  Local x is level and points to the right seen from outside, y points up the slope, z outwards; the axes are
    right-handed.
  Elements of the matrix below 1e-5 in magnitude are set to 0. The inverse, by elimination with full pivoting, is the
    transpose to rounding.
  Source: Rotation matrices; Gauss-Jordan elimination.
  (SurfaceAxes of QuorvelByReference) }
function SurfaceAxes(SurfaceAzimuth: Single; Tilt: Single): TSurfaceAxes;

{ Local to global coordinates: the rotation matrix times the vector.
  LocalVector: vector in local coordinates [m]
  RotationMatrix: rotation matrix; valid -1 to 1
  Result: vector in global coordinates [m]
  Source: Definition.
  (LocalToGlobal of QuorvelByReference) }
function LocalToGlobal(const LocalVector: array of Single; const RotationMatrix: TSingle3x3): TSingle3;

{ Global to local coordinates: the transpose of the rotation matrix times the vector.
  GlobalVector: vector in global coordinates [m]
  RotationMatrix: rotation matrix; valid -1 to 1
  Result: vector in local coordinates [m]
  Source: Definition.
  (GlobalToLocal of QuorvelByReference) }
function GlobalToLocal(const GlobalVector: array of Single; const RotationMatrix: TSingle3x3): TSingle3;

{ Area of a polygon in plan.
  X: x of the vertices [m]
  Y: y of the vertices [m]
  Result: area [m2]
  Formula: half the size of the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
  A polygon far from the origin beside its size loses digits.
  Source: Shoelace formula.
  (PlanArea of QuorvelByReference) }
function PlanArea(const X: array of Single; const Y: array of Single): Single;

{ Area of a polygon in plan, positive for clockwise vertices.
  X: x of the vertices [m]
  Y: y of the vertices [m]
  Result: area, negative for anticlockwise vertices [m2]
  Formula: half the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
  As PlanArea.
  Source: Shoelace formula.
  (SignedPlanArea of QuorvelByReference) }
function SignedPlanArea(const X: array of Single; const Y: array of Single): Single;

{ Area of a plane polygon in space.
  X: x of the vertices [m]
  Y: y of the vertices [m]
  Z: z of the vertices [m]
  Result: area [m2]
  It is the sum of the triangles over the edges with the mean of the vertices as apex, all counted as positive: too
    large for a polygon that is not seen whole from there. Of the surfaces of real buildings 3.3 % come out too large
    by more than 0.1 %, half of these by more than 7 %.
  Source: Elementary geometry.
  (AreaInSpace of QuorvelByReference) }
function AreaInSpace(const X: array of Single; const Y: array of Single; const Z: array of Single): Single;

{ Area, tilt and orientation of a plane polygon in space.
  Polygon: vertices [m]
  Result.Area: area, positive when the vertices run as the corner at the first one turns [m2]
  Result.Tilt: angle between the normal and the vertical [deg]
  Result.BackAzimuth: azimuth opposite to the normal [deg]
  The normal points to where the corner at the first vertex is seen to turn anticlockwise: its opposite is the outward
    normal of a convex polygon that runs clockwise seen from outside.
  Only the corner at the first vertex gives the plane. Of 31605 surfaces of real buildings 141 begin within a straight
    side, and for 7 of these rounding alone decides the normal, so that area, tilt and orientation are wrong: let the
    first vertex be a true corner.
  The orientation of a nearly level polygon (the cosine of its tilt beyond 0.999) is the azimuth opposite to its first
    side if the normal points up, and that of the side if it points down.
  Degrees are radians times 180 by 3.141593, so that right angles can be one step off, and what faces north may get
    0.00003.
  Source: Shoelace formula in the plane of the polygon.
  (PolygonOrientation of QuorvelByReference) }
function PolygonOrientation(const Polygon: array of TSingle3): TPolygonOrientation;

{ Projection of a point along a direction, forwards or backwards, onto a plane.
  PlanePoint: a point of the plane [m]
  PlaneNormal: normal of the plane, of any length
  Point: the point [m]
  Direction: direction, of any length
  Result: projected point [m]; 1e20 where there is none
  Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction . plane_normal)
  A direction parallel to the plane (its dot product with the normal of magnitude 1e-15 or less, or not a number)
    gives 1e20 in all coordinates.
  Source: Elementary analytic geometry.
  (Projection of QuorvelByReference) }
function Projection(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point: array of Single;
  const Direction: array of Single): TSingle3;

{ Projection of a point along a direction, forwards only, onto a plane.
  PlanePoint: a point of the plane [m]
  PlaneNormal: normal of the plane, of any length
  Point: the point [m]
  Direction: direction, of any length
  Result: projected point [m]; 1e20 where there is none
  Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction . plane_normal)
  A direction parallel to the plane or away from it, and a point that is in the plane already, give 1e20 in all
    coordinates.
  Forwards means that the way from the point to its projection, scaled to length 1, differs from the direction, scaled
    so, by 1e-6 at most in each component. Coordinates that are large beside the way to the plane can spoil that by
    rounding: at site coordinates of real buildings, about 7 % of the points whose projection lies ahead are not
    found.
  Source: As Projection.
  (ForwardProjection of QuorvelByReference) }
function ForwardProjection(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point: array of
  Single; const Direction: array of Single): TSingle3;

{ Projection of a point along a direction onto a plane, or the point itself where the plane does not lie ahead.
  PlanePoint: a point of the plane [m]
  PlaneNormal: normal of the plane, of any length
  Point: the point [m]
  Direction: direction, of any length
  Result: projected point, or the point itself [m]
  Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction . plane_normal)
  A direction whose product with the normal is exactly 0 gives what the division by zero makes of it: infinities or
    not a number. There is no other limit for parallel directions, so that the length of the normal does not matter.
  Ahead is as in ForwardProjection, and so about 7 % of the points at site coordinates of real buildings are returned
    as they are, although the plane lies ahead.
  Source: As Projection.
  (ForwardProjectionOrStart of QuorvelByReference) }
function ForwardProjectionOrStart(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point:
  array of Single; const Direction: array of Single): TSingle3;

{ Dot product of two vectors.
  VectorA: vector [m]
  VectorB: vector [m]
  Result: a . b [m2]
  Formula: a1 b1 + a2 b2 + a3 b3
  Source: Definition.
  (DotProduct of QuorvelByReference) }
function DotProduct(const VectorA: array of Single; const VectorB: array of Single): Single;

{ Dot product of two vectors in double precision.
  VectorA: vector [m]
  VectorB: vector [m]
  Result: a . b [m2]
  Formula: a1 b1 + a2 b2 + a3 b3
  Source: Definition.
  (DotProductInDouble of QuorvelByReference) }
function DotProductInDouble(const VectorA: array of Double; const VectorB: array of Double): Double;

{ Cross product of two vectors.
  VectorA: vector [m]
  VectorB: vector [m]
  Result: a x b [m2]
  Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
  Source: Definition.
  (CrossProduct of QuorvelByReference) }
function CrossProduct(const VectorA: array of Single; const VectorB: array of Single): TSingle3;

{ Cross product of two vectors in double precision.
  VectorA: vector [m]
  VectorB: vector [m]
  Result: a x b [m2]
  Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
  Source: Definition.
  (CrossProductInDouble of QuorvelByReference) }
function CrossProductInDouble(const VectorA: array of Double; const VectorB: array of Double): TDouble3;

{ Length of a vector.
  Vector: vector [m]
  Result: length [m]
  Formula: sqrt(v1^2 + v2^2 + v3^2)
  Squares beyond the range of a float make the length infinite or 0: from about 1e19, below about 1e-23.
  Source: Definition.
  (VectorLength of QuorvelByReference) }
function VectorLength(const Vector: array of Single): Single;

{ Length of a vector in double precision.
  Vector: vector [m]
  Result: length [m]
  Formula: sqrt(v1^2 + v2^2 + v3^2)
  Source: Definition.
  (LengthInDouble of QuorvelByReference) }
function LengthInDouble(const Vector: array of Double): Double;

implementation

uses
  Math, QuorvelUnchecked;

function DryAirEnthalpy(Temperature: Single): Single;
begin
  ExpectSingle('DryAirEnthalpy', 'Temperature', Temperature, -50, 100, 'valid -50 to 100 degC');
  Result := QuorvelUnchecked.DryAirEnthalpy(Temperature);
end;

function WaterVapourEnthalpy(Temperature: Single): Single;
begin
  ExpectSingle('WaterVapourEnthalpy', 'Temperature', Temperature, -50, 100, 'valid -50 to 100 degC');
  Result := QuorvelUnchecked.WaterVapourEnthalpy(Temperature);
end;

function DryAirSpecificHeat(Temperature: Single): Single;
begin
  ExpectSingle('DryAirSpecificHeat', 'Temperature', Temperature, -50, 100, 'valid -50 to 100 degC');
  Result := QuorvelUnchecked.DryAirSpecificHeat(Temperature);
end;

function WaterVapourSpecificHeat(Temperature: Single): Single;
begin
  ExpectSingle('WaterVapourSpecificHeat', 'Temperature', Temperature, -50, 100, 'valid -50 to 100 degC');
  Result := QuorvelUnchecked.WaterVapourSpecificHeat(Temperature);
end;

function LatentHeat(Temperature: Single): Single;
begin
  ExpectSingle('LatentHeat', 'Temperature', Temperature, -50, 100, 'valid -50 to 100 degC');
  Result := QuorvelUnchecked.LatentHeat(Temperature);
end;

function DryBulbFromVapourPressureAndRelativeHumidity(VapourPressure: Single; RelativeHumidity: Single): Single;
begin
  ExpectSingle('DryBulbFromVapourPressureAndRelativeHumidity', 'VapourPressure', VapourPressure, 0, Infinity,
    'valid from 0 Pa');
  ExpectSingle('DryBulbFromVapourPressureAndRelativeHumidity', 'RelativeHumidity', RelativeHumidity, 0, 100,
    'valid 0 to 100 %');
  Result := QuorvelUnchecked.DryBulbFromVapourPressureAndRelativeHumidity(VapourPressure, RelativeHumidity);
end;

function DryBulbFromVapourPressureAndPercentageSaturation(VapourPressure: Single; PercentageSaturation: Single;
  Pressure: Single): Single;
begin
  ExpectSingle('DryBulbFromVapourPressureAndPercentageSaturation', 'VapourPressure', VapourPressure, 0, Infinity,
    'valid from 0 Pa');
  ExpectSingle('DryBulbFromVapourPressureAndPercentageSaturation', 'PercentageSaturation', PercentageSaturation, 0, 100,
    'valid 0 to 100 %');
  ExpectSingle('DryBulbFromVapourPressureAndPercentageSaturation', 'Pressure', Pressure, 50000, 110000,
    'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.DryBulbFromVapourPressureAndPercentageSaturation(VapourPressure, PercentageSaturation,
    Pressure);
end;

function DryBulbFromMoistureContentAndRelativeHumidity(MoistureContent: Single; RelativeHumidity: Single; Pressure:
  Single): Single;
begin
  ExpectSingle('DryBulbFromMoistureContentAndRelativeHumidity', 'MoistureContent', MoistureContent, 0, 0.1,
    'valid 0 to 0.1 kg/kg');
  ExpectSingle('DryBulbFromMoistureContentAndRelativeHumidity', 'RelativeHumidity', RelativeHumidity, 0, 100,
    'valid 0 to 100 %');
  ExpectSingle('DryBulbFromMoistureContentAndRelativeHumidity', 'Pressure', Pressure, 50000, 110000,
    'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.DryBulbFromMoistureContentAndRelativeHumidity(MoistureContent, RelativeHumidity, Pressure);
end;

function DryBulbFromMoistureContentAndPercentageSaturation(MoistureContent: Single; PercentageSaturation: Single;
  Pressure: Single): Single;
begin
  ExpectSingle('DryBulbFromMoistureContentAndPercentageSaturation', 'MoistureContent', MoistureContent, 0, 0.1,
    'valid 0 to 0.1 kg/kg');
  ExpectSingle('DryBulbFromMoistureContentAndPercentageSaturation', 'PercentageSaturation', PercentageSaturation, 0,
    100, 'valid 0 to 100 %');
  ExpectSingle('DryBulbFromMoistureContentAndPercentageSaturation', 'Pressure', Pressure, 50000, 110000,
    'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.DryBulbFromMoistureContentAndPercentageSaturation(MoistureContent, PercentageSaturation,
    Pressure);
end;

function DryBulbFromEnthalpyAndMoistureContent(Enthalpy: Single; MoistureContent: Single): Single;
begin
  ExpectSingle('DryBulbFromEnthalpyAndMoistureContent', 'Enthalpy', Enthalpy, -10, 460, 'valid -10 to 460 kJ/kg');
  ExpectSingle('DryBulbFromEnthalpyAndMoistureContent', 'MoistureContent', MoistureContent, 0, 0.1,
    'valid 0 to 0.1 kg/kg');
  Result := QuorvelUnchecked.DryBulbFromEnthalpyAndMoistureContent(Enthalpy, MoistureContent);
end;

function DryBulbFromEnthalpyAndVapourPressure(Enthalpy: Single; VapourPressure: Single; Pressure: Single): Single;
begin
  ExpectSingle('DryBulbFromEnthalpyAndVapourPressure', 'Enthalpy', Enthalpy, -10, 460, 'valid -10 to 460 kJ/kg');
  ExpectSingle('DryBulbFromEnthalpyAndVapourPressure', 'VapourPressure', VapourPressure, 0, Infinity,
    'valid from 0 Pa');
  ExpectSingle('DryBulbFromEnthalpyAndVapourPressure', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.DryBulbFromEnthalpyAndVapourPressure(Enthalpy, VapourPressure, Pressure);
end;

function DryBulbFromEnthalpyAndRelativeHumidity(Enthalpy: Single; RelativeHumidity: Single; Pressure: Single): Single;
begin
  ExpectSingle('DryBulbFromEnthalpyAndRelativeHumidity', 'Enthalpy', Enthalpy, -10, 460, 'valid -10 to 460 kJ/kg');
  ExpectSingle('DryBulbFromEnthalpyAndRelativeHumidity', 'RelativeHumidity', RelativeHumidity, 0, 100,
    'valid 0 to 100 %');
  ExpectSingle('DryBulbFromEnthalpyAndRelativeHumidity', 'Pressure', Pressure, 50000, 110000,
    'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.DryBulbFromEnthalpyAndRelativeHumidity(Enthalpy, RelativeHumidity, Pressure);
end;

function DryBulbFromEnthalpyAndPercentageSaturation(Enthalpy: Single; PercentageSaturation: Single; Pressure: Single):
  Single;
begin
  ExpectSingle('DryBulbFromEnthalpyAndPercentageSaturation', 'Enthalpy', Enthalpy, -10, 460, 'valid -10 to 460 kJ/kg');
  ExpectSingle('DryBulbFromEnthalpyAndPercentageSaturation', 'PercentageSaturation', PercentageSaturation, 0, 100,
    'valid 0 to 100 %');
  ExpectSingle('DryBulbFromEnthalpyAndPercentageSaturation', 'Pressure', Pressure, 50000, 110000,
    'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.DryBulbFromEnthalpyAndPercentageSaturation(Enthalpy, PercentageSaturation, Pressure);
end;

function DryBulbFromWetBulbAndVapourPressure(WetBulb: Single; VapourPressure: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
begin
  ExpectSingle('DryBulbFromWetBulbAndVapourPressure', 'WetBulb', WetBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('DryBulbFromWetBulbAndVapourPressure', 'VapourPressure', VapourPressure, 0, Infinity, 'valid from 0 Pa');
  ExpectSingle('DryBulbFromWetBulbAndVapourPressure', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('DryBulbFromWetBulbAndVapourPressure', 'Psychrometer', Ord(Psychrometer), 1, 2,
    'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.DryBulbFromWetBulbAndVapourPressure(WetBulb, VapourPressure, Pressure, Psychrometer);
end;

function DryBulbFromWetBulbAndMoistureContent(WetBulb: Single; MoistureContent: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
begin
  ExpectSingle('DryBulbFromWetBulbAndMoistureContent', 'WetBulb', WetBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('DryBulbFromWetBulbAndMoistureContent', 'MoistureContent', MoistureContent, 0, 0.1,
    'valid 0 to 0.1 kg/kg');
  ExpectSingle('DryBulbFromWetBulbAndMoistureContent', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('DryBulbFromWetBulbAndMoistureContent', 'Psychrometer', Ord(Psychrometer), 1, 2,
    'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.DryBulbFromWetBulbAndMoistureContent(WetBulb, MoistureContent, Pressure, Psychrometer);
end;

function DryBulbFromWetBulbAndRelativeHumidity(WetBulb: Single; RelativeHumidity: Single; Pressure: Single;
  Psychrometer: TPsychrometer): Single;
begin
  ExpectSingle('DryBulbFromWetBulbAndRelativeHumidity', 'WetBulb', WetBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('DryBulbFromWetBulbAndRelativeHumidity', 'RelativeHumidity', RelativeHumidity, 0, 100,
    'valid 0 to 100 %');
  ExpectSingle('DryBulbFromWetBulbAndRelativeHumidity', 'Pressure', Pressure, 50000, 110000,
    'valid 50000 to 110000 Pa');
  ExpectLongInt('DryBulbFromWetBulbAndRelativeHumidity', 'Psychrometer', Ord(Psychrometer), 1, 2,
    'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.DryBulbFromWetBulbAndRelativeHumidity(WetBulb, RelativeHumidity, Pressure, Psychrometer);
end;

function DryBulbFromWetBulbAndPercentageSaturation(WetBulb: Single; PercentageSaturation: Single; Pressure: Single;
  Psychrometer: TPsychrometer): Single;
begin
  ExpectSingle('DryBulbFromWetBulbAndPercentageSaturation', 'WetBulb', WetBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('DryBulbFromWetBulbAndPercentageSaturation', 'PercentageSaturation', PercentageSaturation, 0, 100,
    'valid 0 to 100 %');
  ExpectSingle('DryBulbFromWetBulbAndPercentageSaturation', 'Pressure', Pressure, 50000, 110000,
    'valid 50000 to 110000 Pa');
  ExpectLongInt('DryBulbFromWetBulbAndPercentageSaturation', 'Psychrometer', Ord(Psychrometer), 1, 2,
    'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.DryBulbFromWetBulbAndPercentageSaturation(WetBulb, PercentageSaturation, Pressure,
    Psychrometer);
end;

function DryBulbFromWetBulbAndEnthalpy(WetBulb: Single; Enthalpy: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
begin
  ExpectSingle('DryBulbFromWetBulbAndEnthalpy', 'WetBulb', WetBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('DryBulbFromWetBulbAndEnthalpy', 'Enthalpy', Enthalpy, -10, 460, 'valid -10 to 460 kJ/kg');
  ExpectSingle('DryBulbFromWetBulbAndEnthalpy', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('DryBulbFromWetBulbAndEnthalpy', 'Psychrometer', Ord(Psychrometer), 1, 2,
    'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.DryBulbFromWetBulbAndEnthalpy(WetBulb, Enthalpy, Pressure, Psychrometer);
end;

function AdiabaticMixing(FirstAirFlow: Single; FirstDryBulb: Single; FirstMoistureContent: Single; SecondAirFlow:
  Single; SecondDryBulb: Single; SecondMoistureContent: Single): TAdiabaticMixing;
begin
  ExpectSingle('AdiabaticMixing', 'FirstAirFlow', FirstAirFlow, 0, Infinity, 'valid from 0 kg/s');
  ExpectSingle('AdiabaticMixing', 'FirstDryBulb', FirstDryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('AdiabaticMixing', 'FirstMoistureContent', FirstMoistureContent, 0, 0.1, 'valid 0 to 0.1 kg/kg');
  ExpectSingle('AdiabaticMixing', 'SecondAirFlow', SecondAirFlow, 0, Infinity, 'valid from 0 kg/s');
  ExpectSingle('AdiabaticMixing', 'SecondDryBulb', SecondDryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('AdiabaticMixing', 'SecondMoistureContent', SecondMoistureContent, 0, 0.1, 'valid 0 to 0.1 kg/kg');
  Result := QuorvelUnchecked.AdiabaticMixing(FirstAirFlow, FirstDryBulb, FirstMoistureContent, SecondAirFlow,
    SecondDryBulb, SecondMoistureContent);
end;

function MoistureContentFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
begin
  ExpectSingle('MoistureContentFromPsychrometer', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('MoistureContentFromPsychrometer', 'WetBulb', WetBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('MoistureContentFromPsychrometer', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('MoistureContentFromPsychrometer', 'Psychrometer', Ord(Psychrometer), 1, 2,
    'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.MoistureContentFromPsychrometer(DryBulb, WetBulb, Pressure, Psychrometer);
end;

function MoistureContent(DryBulb: Single; VapourPressure: Single; Pressure: Single): Single;
begin
  ExpectSingle('MoistureContent', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('MoistureContent', 'VapourPressure', VapourPressure, 0, Infinity, 'valid from 0 Pa');
  ExpectSingle('MoistureContent', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.MoistureContent(DryBulb, VapourPressure, Pressure);
end;

function VapourPressureFromMoistureContent(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
begin
  ExpectSingle('VapourPressureFromMoistureContent', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('VapourPressureFromMoistureContent', 'MoistureContent', MoistureContent, 0, 0.1, 'valid 0 to 0.1 kg/kg');
  ExpectSingle('VapourPressureFromMoistureContent', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.VapourPressureFromMoistureContent(DryBulb, MoistureContent, Pressure);
end;

function MoistureContentFromPercentageSaturation(DryBulb: Single; PercentageSaturation: Single; Pressure: Single):
  Single;
begin
  ExpectSingle('MoistureContentFromPercentageSaturation', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('MoistureContentFromPercentageSaturation', 'PercentageSaturation', PercentageSaturation, 0, 100,
    'valid 0 to 100 %');
  ExpectSingle('MoistureContentFromPercentageSaturation', 'Pressure', Pressure, 50000, 110000,
    'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.MoistureContentFromPercentageSaturation(DryBulb, PercentageSaturation, Pressure);
end;

function MoistureContentFromEnthalpy(DryBulb: Single; Enthalpy: Single): Single;
begin
  ExpectSingle('MoistureContentFromEnthalpy', 'DryBulb', DryBulb, -50, 100, 'valid -50 to 100 degC');
  ExpectSingle('MoistureContentFromEnthalpy', 'Enthalpy', Enthalpy, -10, 460, 'valid -10 to 460 kJ/kg');
  Result := QuorvelUnchecked.MoistureContentFromEnthalpy(DryBulb, Enthalpy);
end;

function MoistAirDensity(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
begin
  ExpectSingle('MoistAirDensity', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('MoistAirDensity', 'MoistureContent', MoistureContent, 0, 0.1, 'valid 0 to 0.1 kg/kg');
  ExpectSingle('MoistAirDensity', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.MoistAirDensity(DryBulb, MoistureContent, Pressure);
end;

function PercentageSaturation(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
begin
  ExpectSingle('PercentageSaturation', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('PercentageSaturation', 'MoistureContent', MoistureContent, 0, 0.1, 'valid 0 to 0.1 kg/kg');
  ExpectSingle('PercentageSaturation', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.PercentageSaturation(DryBulb, MoistureContent, Pressure);
end;

function SpecificEnthalpy(DryBulb: Single; MoistureContent: Single): Single;
begin
  ExpectSingle('SpecificEnthalpy', 'DryBulb', DryBulb, -50, 100, 'valid -50 to 100 degC');
  ExpectSingle('SpecificEnthalpy', 'MoistureContent', MoistureContent, 0, 0.1, 'valid 0 to 0.1 kg/kg');
  Result := QuorvelUnchecked.SpecificEnthalpy(DryBulb, MoistureContent);
end;

function SpecificEnthalpyFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
begin
  ExpectSingle('SpecificEnthalpyFromPsychrometer', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('SpecificEnthalpyFromPsychrometer', 'WetBulb', WetBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('SpecificEnthalpyFromPsychrometer', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('SpecificEnthalpyFromPsychrometer', 'Psychrometer', Ord(Psychrometer), 1, 2,
    'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.SpecificEnthalpyFromPsychrometer(DryBulb, WetBulb, Pressure, Psychrometer);
end;

function SpecificVolume(DryBulb: Single; MoistureContent: Single; Pressure: Single): Single;
begin
  ExpectSingle('SpecificVolume', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('SpecificVolume', 'MoistureContent', MoistureContent, 0, 0.1, 'valid 0 to 0.1 kg/kg');
  ExpectSingle('SpecificVolume', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.SpecificVolume(DryBulb, MoistureContent, Pressure);
end;

function SaturationTemperatureFromEnthalpy(Enthalpy: Single; Pressure: Single): Single;
begin
  ExpectSingle('SaturationTemperatureFromEnthalpy', 'Enthalpy', Enthalpy, -10, 460, 'valid -10 to 460 kJ/kg');
  ExpectSingle('SaturationTemperatureFromEnthalpy', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.SaturationTemperatureFromEnthalpy(Enthalpy, Pressure);
end;

function PoolEvaporation(WaterArea: Single; WettedArea: Single; WaterTemperature: Single; DryBulb: Single;
  MoistureContent: Single; ReferenceTemperature: Single; Bathers: LongInt; ReferenceCoefficient: Single; Pressure:
  Single): TPoolEvaporation;
begin
  ExpectSingle('PoolEvaporation', 'WaterArea', WaterArea, 0, Infinity, 'valid from 0 m2');
  ExpectSingle('PoolEvaporation', 'WettedArea', WettedArea, 0, Infinity, 'valid from 0 m2');
  ExpectSingle('PoolEvaporation', 'WaterTemperature', WaterTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('PoolEvaporation', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('PoolEvaporation', 'MoistureContent', MoistureContent, 0, 0.1, 'valid 0 to 0.1 kg/kg');
  ExpectSingle('PoolEvaporation', 'ReferenceTemperature', ReferenceTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectLongInt('PoolEvaporation', 'Bathers', Bathers, 0, 2147483647, 'valid from 0');
  ExpectSingle('PoolEvaporation', 'ReferenceCoefficient', ReferenceCoefficient, 0, Infinity, 'valid from 0 W/m2K');
  ExpectSingle('PoolEvaporation', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.PoolEvaporation(WaterArea, WettedArea, WaterTemperature, DryBulb, MoistureContent,
    ReferenceTemperature, Bathers, ReferenceCoefficient, Pressure);
end;

function PoolEvaporationFromWetBulb(WaterArea: Single; WettedArea: Single; WaterTemperature: Single; DryBulb: Single;
  WetBulb: Single; ReferenceTemperature: Single; Bathers: LongInt; ReferenceCoefficient: Single; Pressure: Single):
  TPoolEvaporationFromWetBulb;
begin
  ExpectSingle('PoolEvaporationFromWetBulb', 'WaterArea', WaterArea, 0, Infinity, 'valid from 0 m2');
  ExpectSingle('PoolEvaporationFromWetBulb', 'WettedArea', WettedArea, 0, Infinity, 'valid from 0 m2');
  ExpectSingle('PoolEvaporationFromWetBulb', 'WaterTemperature', WaterTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('PoolEvaporationFromWetBulb', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('PoolEvaporationFromWetBulb', 'WetBulb', WetBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('PoolEvaporationFromWetBulb', 'ReferenceTemperature', ReferenceTemperature, -100, 200,
    'valid -100 to 200 degC');
  ExpectLongInt('PoolEvaporationFromWetBulb', 'Bathers', Bathers, 0, 2147483647, 'valid from 0');
  ExpectSingle('PoolEvaporationFromWetBulb', 'ReferenceCoefficient', ReferenceCoefficient, 0, Infinity,
    'valid from 0 W/m2K');
  ExpectSingle('PoolEvaporationFromWetBulb', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  Result := QuorvelUnchecked.PoolEvaporationFromWetBulb(WaterArea, WettedArea, WaterTemperature, DryBulb, WetBulb,
    ReferenceTemperature, Bathers, ReferenceCoefficient, Pressure);
end;

function SaturationPressure(Temperature: Single): Single;
begin
  ExpectSingle('SaturationPressure', 'Temperature', Temperature, -100, 200, 'valid -100 to 200 degC');
  Result := QuorvelUnchecked.SaturationPressure(Temperature);
end;

function DewPoint(VapourPressure: Single): Single;
begin
  ExpectSingle('DewPoint', 'VapourPressure', VapourPressure, 0, Infinity, 'valid from 0 Pa');
  Result := QuorvelUnchecked.DewPoint(VapourPressure);
end;

function VapourPressure(DryBulb: Single; RelativeHumidity: Single): Single;
begin
  ExpectSingle('VapourPressure', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('VapourPressure', 'RelativeHumidity', RelativeHumidity, 0, 100, 'valid 0 to 100 %');
  Result := QuorvelUnchecked.VapourPressure(DryBulb, RelativeHumidity);
end;

function RelativeHumidity(DryBulb: Single; VapourPressure: Single): Single;
begin
  ExpectSingle('RelativeHumidity', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('RelativeHumidity', 'VapourPressure', VapourPressure, 0, Infinity, 'valid from 0 Pa');
  Result := QuorvelUnchecked.RelativeHumidity(DryBulb, VapourPressure);
end;

function VapourPressureFromPsychrometer(DryBulb: Single; WetBulb: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
begin
  ExpectSingle('VapourPressureFromPsychrometer', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('VapourPressureFromPsychrometer', 'WetBulb', WetBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('VapourPressureFromPsychrometer', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('VapourPressureFromPsychrometer', 'Psychrometer', Ord(Psychrometer), 1, 2,
    'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.VapourPressureFromPsychrometer(DryBulb, WetBulb, Pressure, Psychrometer);
end;

function WeightedTemperature(FirstTemperature: Single; SecondTemperature: Single): Single;
begin
  ExpectSingle('WeightedTemperature', 'FirstTemperature', FirstTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('WeightedTemperature', 'SecondTemperature', SecondTemperature, -100, 200, 'valid -100 to 200 degC');
  Result := QuorvelUnchecked.WeightedTemperature(FirstTemperature, SecondTemperature);
end;

function PsychrometerWetBulb(DryBulb: Single; RelativeHumidity: Single; Pressure: Single; Psychrometer: TPsychrometer):
  Single;
begin
  ExpectSingle('PsychrometerWetBulb', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('PsychrometerWetBulb', 'RelativeHumidity', RelativeHumidity, 0, 100, 'valid 0 to 100 %');
  ExpectSingle('PsychrometerWetBulb', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('PsychrometerWetBulb', 'Psychrometer', Ord(Psychrometer), 1, 2, 'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.PsychrometerWetBulb(DryBulb, RelativeHumidity, Pressure, Psychrometer);
end;

function WetBulbFromPercentageSaturation(DryBulb: Single; PercentageSaturation: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
begin
  ExpectSingle('WetBulbFromPercentageSaturation', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('WetBulbFromPercentageSaturation', 'PercentageSaturation', PercentageSaturation, 0, 100,
    'valid 0 to 100 %');
  ExpectSingle('WetBulbFromPercentageSaturation', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('WetBulbFromPercentageSaturation', 'Psychrometer', Ord(Psychrometer), 1, 2,
    'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.WetBulbFromPercentageSaturation(DryBulb, PercentageSaturation, Pressure, Psychrometer);
end;

function WetBulbFromMoistureContent(DryBulb: Single; MoistureContent: Single; Pressure: Single; Psychrometer:
  TPsychrometer): Single;
begin
  ExpectSingle('WetBulbFromMoistureContent', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('WetBulbFromMoistureContent', 'MoistureContent', MoistureContent, 0, 0.1, 'valid 0 to 0.1 kg/kg');
  ExpectSingle('WetBulbFromMoistureContent', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('WetBulbFromMoistureContent', 'Psychrometer', Ord(Psychrometer), 1, 2, 'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.WetBulbFromMoistureContent(DryBulb, MoistureContent, Pressure, Psychrometer);
end;

function WetBulb(DryBulb: Single; VapourPressure: Single; Pressure: Single; Psychrometer: TPsychrometer): Single;
begin
  ExpectSingle('WetBulb', 'DryBulb', DryBulb, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('WetBulb', 'VapourPressure', VapourPressure, 0, Infinity, 'valid from 0 Pa');
  ExpectSingle('WetBulb', 'Pressure', Pressure, 50000, 110000, 'valid 50000 to 110000 Pa');
  ExpectLongInt('WetBulb', 'Psychrometer', Ord(Psychrometer), 1, 2, 'valid 1 (Sling), 2 (Screen)');
  Result := QuorvelUnchecked.WetBulb(DryBulb, VapourPressure, Pressure, Psychrometer);
end;

function CyclicResponse(const Thickness: array of Single; const Conductivity: array of Single; const Density: array of
  Single; const SpecificHeat: array of Single; InsideResistance: Single; OutsideResistance: Single; Harmonic: LongInt;
  ElementKind: TElementKind): TCyclicResponse;
begin
  ExpectAsMany('CyclicResponse', 'Conductivity', System.Length(Conductivity), 'Thickness', System.Length(Thickness));
  ExpectAsMany('CyclicResponse', 'Density', System.Length(Density), 'Thickness', System.Length(Thickness));
  ExpectAsMany('CyclicResponse', 'SpecificHeat', System.Length(SpecificHeat), 'Thickness', System.Length(Thickness));
  ExpectCount('CyclicResponse', 'Thickness', System.Length(Thickness), 0, 20);
  ExpectSingles('CyclicResponse', 'Thickness', PSingle(@Thickness[0]), System.Length(Thickness), -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('CyclicResponse', 'Conductivity', PSingle(@Conductivity[0]), System.Length(Conductivity), 0, Infinity,
    'valid from 0 W/mK');
  ExpectSingles('CyclicResponse', 'Density', PSingle(@Density[0]), System.Length(Density), 0, Infinity,
    'valid from 0 kg/m3');
  ExpectSingles('CyclicResponse', 'SpecificHeat', PSingle(@SpecificHeat[0]), System.Length(SpecificHeat), 0, Infinity,
    'valid from 0 J/kgK');
  ExpectSingle('CyclicResponse', 'InsideResistance', InsideResistance, 0, Infinity, 'valid from 0 m2K/W');
  ExpectSingle('CyclicResponse', 'OutsideResistance', OutsideResistance, 0, Infinity, 'valid from 0 m2K/W');
  ExpectLongInt('CyclicResponse', 'Harmonic', Harmonic, 0, 2147483647, 'valid from 0');
  ExpectLongInt('CyclicResponse', 'ElementKind', Ord(ElementKind), 1, 2, 'valid 1 (Between), 2 (Partition)');
  Result := QuorvelUnchecked.CyclicResponse(Thickness, Conductivity, Density, SpecificHeat, InsideResistance,
    OutsideResistance, Harmonic, ElementKind);
end;

function VerticalCavityResistance(CavityWidth: Single): Single;
begin
  ExpectSingle('VerticalCavityResistance', 'CavityWidth', CavityWidth, 0.001, Infinity, 'valid from 0.001 m');
  Result := QuorvelUnchecked.VerticalCavityResistance(CavityWidth);
end;

function AirCavityResistance(Tilt: Single; CavityWidth: Single; Emissivity1: Single; Emissivity2: Single): Single;
begin
  ExpectSingle('AirCavityResistance', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectSingle('AirCavityResistance', 'CavityWidth', CavityWidth, 0.001, Infinity, 'valid from 0.001 m');
  ExpectSingle('AirCavityResistance', 'Emissivity1', Emissivity1, 0, 1, 'valid 0 to 1');
  ExpectSingle('AirCavityResistance', 'Emissivity2', Emissivity2, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.AirCavityResistance(Tilt, CavityWidth, Emissivity1, Emissivity2);
end;

function GasCavityResistance(Tilt: Single; CavityWidth: Single; Emissivity1: Single; Emissivity2: Single; Density:
  Single; Conductivity: Single; SpecificHeat: Single; Viscosity: Single): Single;
begin
  ExpectSingle('GasCavityResistance', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectSingle('GasCavityResistance', 'CavityWidth', CavityWidth, 0.001, Infinity, 'valid from 0.001 m');
  ExpectSingle('GasCavityResistance', 'Emissivity1', Emissivity1, 0, 1, 'valid 0 to 1');
  ExpectSingle('GasCavityResistance', 'Emissivity2', Emissivity2, 0, 1, 'valid 0 to 1');
  ExpectSingle('GasCavityResistance', 'Density', Density, 0, Infinity, 'valid from 0 kg/m3');
  ExpectSingle('GasCavityResistance', 'Conductivity', Conductivity, 0, Infinity, 'valid from 0 W/mK');
  ExpectSingle('GasCavityResistance', 'SpecificHeat', SpecificHeat, 0, Infinity, 'valid from 0 J/kgK');
  ExpectSingle('GasCavityResistance', 'Viscosity', Viscosity, 0, Infinity, 'valid from 0 Pa s');
  Result := QuorvelUnchecked.GasCavityResistance(Tilt, CavityWidth, Emissivity1, Emissivity2, Density, Conductivity,
    SpecificHeat, Viscosity);
end;

function TotalVapourResistance(const Thickness: array of Single; const VapourResistivity: array of Single): Single;
begin
  ExpectAsMany('TotalVapourResistance', 'VapourResistivity', System.Length(VapourResistivity), 'Thickness',
    System.Length(Thickness));
  ExpectCount('TotalVapourResistance', 'Thickness', System.Length(Thickness), 0, 20);
  ExpectSingles('TotalVapourResistance', 'Thickness', PSingle(@Thickness[0]), System.Length(Thickness), -Infinity,
    Infinity, 'valid is any number');
  ExpectSingles('TotalVapourResistance', 'VapourResistivity', PSingle(@VapourResistivity[0]),
    System.Length(VapourResistivity), 0, Infinity, 'valid from 0 GN s/(kg m)');
  Result := QuorvelUnchecked.TotalVapourResistance(Thickness, VapourResistivity);
end;

function CondensationProfile(const Thickness: array of Single; const Conductivity: array of Single; const
  VapourResistivity: array of Single; InsideResistance: Single; OutsideResistance: Single; InsideTemperature: Single;
  OutsideTemperature: Single; InsideHumidity: Single; OutsideHumidity: Single): TCondensationProfile;
begin
  ExpectAsMany('CondensationProfile', 'Conductivity', System.Length(Conductivity), 'Thickness',
    System.Length(Thickness));
  ExpectAsMany('CondensationProfile', 'VapourResistivity', System.Length(VapourResistivity), 'Thickness',
    System.Length(Thickness));
  ExpectCount('CondensationProfile', 'Thickness', System.Length(Thickness), 0, 20);
  ExpectSingles('CondensationProfile', 'Thickness', PSingle(@Thickness[0]), System.Length(Thickness), -Infinity,
    Infinity, 'valid is any number');
  ExpectSingles('CondensationProfile', 'Conductivity', PSingle(@Conductivity[0]), System.Length(Conductivity), 0,
    Infinity, 'valid from 0 W/mK');
  ExpectSingles('CondensationProfile', 'VapourResistivity', PSingle(@VapourResistivity[0]),
    System.Length(VapourResistivity), 0, Infinity, 'valid from 0 GN s/(kg m)');
  ExpectSingle('CondensationProfile', 'InsideResistance', InsideResistance, 0, Infinity, 'valid from 0 m2K/W');
  ExpectSingle('CondensationProfile', 'OutsideResistance', OutsideResistance, 0, Infinity, 'valid from 0 m2K/W');
  ExpectSingle('CondensationProfile', 'InsideTemperature', InsideTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('CondensationProfile', 'OutsideTemperature', OutsideTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('CondensationProfile', 'InsideHumidity', InsideHumidity, 0, 100, 'valid 0 to 100 %');
  ExpectSingle('CondensationProfile', 'OutsideHumidity', OutsideHumidity, 0, 100, 'valid 0 to 100 %');
  Result := QuorvelUnchecked.CondensationProfile(Thickness, Conductivity, VapourResistivity, InsideResistance,
    OutsideResistance, InsideTemperature, OutsideTemperature, InsideHumidity, OutsideHumidity);
end;

function CondensesWithinLayer(WarmTemperature: Single; ColdTemperature: Single; WarmVapourPressure: Single;
  ColdVapourPressure: Single): LongInt;
begin
  ExpectSingle('CondensesWithinLayer', 'WarmTemperature', WarmTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('CondensesWithinLayer', 'ColdTemperature', ColdTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('CondensesWithinLayer', 'WarmVapourPressure', WarmVapourPressure, 0, Infinity, 'valid from 0 Pa');
  ExpectSingle('CondensesWithinLayer', 'ColdVapourPressure', ColdVapourPressure, 0, Infinity, 'valid from 0 Pa');
  Result := QuorvelUnchecked.CondensesWithinLayer(WarmTemperature, ColdTemperature, WarmVapourPressure,
    ColdVapourPressure);
end;

function ElementProperty(const ElementRecords: array of TSingle10; RecordNumber: LongInt; Item: LongInt): Single;
begin
  ExpectCount('ElementProperty', 'ElementRecords', System.Length(ElementRecords), 1, 2147483647);
  ExpectSingles('ElementProperty', 'ElementRecords', PSingle(@ElementRecords[0]), 10 * System.Length(ElementRecords),
    -Infinity, Infinity, 'valid is any number');
  ExpectLongInt('ElementProperty', 'RecordNumber', RecordNumber, 1, 2147483647, 'valid from 1');
  ExpectLongInt('ElementProperty', 'Item', Item, 1, 72, 'valid 1 to 72');
  Result := QuorvelUnchecked.ElementProperty(ElementRecords, RecordNumber, Item);
end;

function NaturalConvectionCoefficient(TemperatureDifference: Single; CharacteristicLength: Single; HeatFlowDirection:
  THeatFlowDirection): Single;
begin
  ExpectSingle('NaturalConvectionCoefficient', 'TemperatureDifference', TemperatureDifference, -Infinity, Infinity,
    'valid is any number');
  ExpectSingle('NaturalConvectionCoefficient', 'CharacteristicLength', CharacteristicLength, 0, Infinity,
    'valid from 0 m');
  ExpectLongInt('NaturalConvectionCoefficient', 'HeatFlowDirection', Ord(HeatFlowDirection), 1, 3,
    'valid 1 (Upward), 2 (Horizontal), 3 (Downward)');
  Result := QuorvelUnchecked.NaturalConvectionCoefficient(TemperatureDifference, CharacteristicLength,
    HeatFlowDirection);
end;

function PackTwoFractions(Packing: TPacking; PackedNumber: Single; Fraction1: Single; Fraction2: Single):
  TPackTwoFractions;
begin
  ExpectLongInt('PackTwoFractions', 'Packing', Ord(Packing), 1, 2, 'valid 1 (Pack), 2 (Unpack)');
  ExpectSingle('PackTwoFractions', 'PackedNumber', PackedNumber, 0, 9999.99, 'valid 0 to 9999.99');
  ExpectSingle('PackTwoFractions', 'Fraction1', Fraction1, 0, 0.99, 'valid 0 to 0.99');
  ExpectSingle('PackTwoFractions', 'Fraction2', Fraction2, 0, 0.99, 'valid 0 to 0.99');
  Result := QuorvelUnchecked.PackTwoFractions(Packing, PackedNumber, Fraction1, Fraction2);
end;

function PackThreeFractions(Packing: TPacking; PackedNumber: Single; Fraction1: Single; Fraction2: Single; Fraction3:
  Single): TPackThreeFractions;
begin
  ExpectLongInt('PackThreeFractions', 'Packing', Ord(Packing), 1, 2, 'valid 1 (Pack), 2 (Unpack)');
  ExpectSingle('PackThreeFractions', 'PackedNumber', PackedNumber, 0, 9999.99, 'valid 0 to 9999.99');
  ExpectSingle('PackThreeFractions', 'Fraction1', Fraction1, 0, 0.99, 'valid 0 to 0.99');
  ExpectSingle('PackThreeFractions', 'Fraction2', Fraction2, 0, 0.99, 'valid 0 to 0.99');
  ExpectSingle('PackThreeFractions', 'Fraction3', Fraction3, 0, 0.99, 'valid 0 to 0.99');
  Result := QuorvelUnchecked.PackThreeFractions(Packing, PackedNumber, Fraction1, Fraction2, Fraction3);
end;

function PackThreeFractionsThirdFirst(Packing: TPacking; PackedNumber: Single; Fraction3: Single; Fraction1: Single;
  Fraction2: Single): TPackThreeFractionsThirdFirst;
begin
  ExpectLongInt('PackThreeFractionsThirdFirst', 'Packing', Ord(Packing), 1, 2, 'valid 1 (Pack), 2 (Unpack)');
  ExpectSingle('PackThreeFractionsThirdFirst', 'PackedNumber', PackedNumber, 0, 9999.99, 'valid 0 to 9999.99');
  ExpectSingle('PackThreeFractionsThirdFirst', 'Fraction3', Fraction3, 0, 0.99, 'valid 0 to 0.99');
  ExpectSingle('PackThreeFractionsThirdFirst', 'Fraction1', Fraction1, 0, 0.99, 'valid 0 to 0.99');
  ExpectSingle('PackThreeFractionsThirdFirst', 'Fraction2', Fraction2, 0, 0.99, 'valid 0 to 0.99');
  Result := QuorvelUnchecked.PackThreeFractionsThirdFirst(Packing, PackedNumber, Fraction3, Fraction1, Fraction2);
end;

function PackPane(Packing: TPacking; PackedNumber: Single; Absorptance: Single; Reflectance1: Single; Reflectance2:
  Single): TPackPane;
begin
  ExpectLongInt('PackPane', 'Packing', Ord(Packing), 1, 2, 'valid 1 (Pack), 2 (Unpack)');
  ExpectSingle('PackPane', 'PackedNumber', PackedNumber, 0, 9999.99, 'valid 0 to 9999.99');
  ExpectSingle('PackPane', 'Absorptance', Absorptance, 0, 1, 'valid 0 to 1');
  ExpectSingle('PackPane', 'Reflectance1', Reflectance1, 0, 1, 'valid 0 to 1');
  ExpectSingle('PackPane', 'Reflectance2', Reflectance2, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.PackPane(Packing, PackedNumber, Absorptance, Reflectance1, Reflectance2);
end;

function SurfaceResistance(Surface: TSurface; Tilt: Single; Exposure: TExposure): Single;
begin
  ExpectLongInt('SurfaceResistance', 'Surface', Ord(Surface), 1, 2, 'valid 1 (Outside), 2 (Inside)');
  ExpectSingle('SurfaceResistance', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectLongInt('SurfaceResistance', 'Exposure', Ord(Exposure), 1, 3, 'valid 1 (Sheltered), 2 (Normal), 3 (Severe)');
  Result := QuorvelUnchecked.SurfaceResistance(Surface, Tilt, Exposure);
end;

function SurfaceResistanceAtEmissivity(Surface: TSurface; Tilt: Single; Exposure: TExposure; Emissivity: Single):
  Single;
begin
  ExpectLongInt('SurfaceResistanceAtEmissivity', 'Surface', Ord(Surface), 1, 2, 'valid 1 (Outside), 2 (Inside)');
  ExpectSingle('SurfaceResistanceAtEmissivity', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectLongInt('SurfaceResistanceAtEmissivity', 'Exposure', Ord(Exposure), 1, 3,
    'valid 1 (Sheltered), 2 (Normal), 3 (Severe)');
  ExpectSingle('SurfaceResistanceAtEmissivity', 'Emissivity', Emissivity, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.SurfaceResistanceAtEmissivity(Surface, Tilt, Exposure, Emissivity);
end;

function UValue(const Thickness: array of Single; const Conductivity: array of Single; SurfaceResistance1: Single;
  SurfaceResistance2: Single): Single;
begin
  ExpectAsMany('UValue', 'Conductivity', System.Length(Conductivity), 'Thickness', System.Length(Thickness));
  ExpectCount('UValue', 'Thickness', System.Length(Thickness), 0, 20);
  ExpectSingles('UValue', 'Thickness', PSingle(@Thickness[0]), System.Length(Thickness), -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('UValue', 'Conductivity', PSingle(@Conductivity[0]), System.Length(Conductivity), 0, Infinity,
    'valid from 0 W/mK');
  ExpectSingle('UValue', 'SurfaceResistance1', SurfaceResistance1, 0, Infinity, 'valid from 0 m2K/W');
  ExpectSingle('UValue', 'SurfaceResistance2', SurfaceResistance2, 0, Infinity, 'valid from 0 m2K/W');
  Result := QuorvelUnchecked.UValue(Thickness, Conductivity, SurfaceResistance1, SurfaceResistance2);
end;

function UValueAtTiltAndExposure(UValue: Single; Tilt: Single; Exposure: TExposure): Single;
begin
  ExpectSingle('UValueAtTiltAndExposure', 'UValue', UValue, 0, Infinity, 'valid from 0 W/m2K');
  ExpectSingle('UValueAtTiltAndExposure', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectLongInt('UValueAtTiltAndExposure', 'Exposure', Ord(Exposure), 1, 3,
    'valid 1 (Sheltered), 2 (Normal), 3 (Severe)');
  Result := QuorvelUnchecked.UValueAtTiltAndExposure(UValue, Tilt, Exposure);
end;

function WindowParameters(Panes: LongInt; PaneKind1: TPaneKind; Emissivity1: Single; PaneKind2: TPaneKind; Emissivity2:
  Single; PaneKind3: TPaneKind; Emissivity3: Single; CavityWidth1: Single; CavityWidth2: Single; OuterSurface: TSurface;
  Exposure: TExposure; Tilt: Single): TWindowParameters;
begin
  ExpectLongInt('WindowParameters', 'Panes', Panes, 1, 3, 'valid 1 to 3');
  ExpectLongInt('WindowParameters', 'PaneKind1', Ord(PaneKind1), 1, 2, 'valid 1 (Closing), 2 (Vented)');
  ExpectSingle('WindowParameters', 'Emissivity1', Emissivity1, 0, 1, 'valid 0 to 1');
  ExpectLongInt('WindowParameters', 'PaneKind2', Ord(PaneKind2), 1, 2, 'valid 1 (Closing), 2 (Vented)');
  ExpectSingle('WindowParameters', 'Emissivity2', Emissivity2, 0, 1, 'valid 0 to 1');
  ExpectLongInt('WindowParameters', 'PaneKind3', Ord(PaneKind3), 1, 2, 'valid 1 (Closing), 2 (Vented)');
  ExpectSingle('WindowParameters', 'Emissivity3', Emissivity3, 0, 1, 'valid 0 to 1');
  ExpectSingle('WindowParameters', 'CavityWidth1', CavityWidth1, 0.001, Infinity, 'valid from 0.001 m');
  ExpectSingle('WindowParameters', 'CavityWidth2', CavityWidth2, 0.001, Infinity, 'valid from 0.001 m');
  ExpectLongInt('WindowParameters', 'OuterSurface', Ord(OuterSurface), 1, 2, 'valid 1 (Outside), 2 (Inside)');
  ExpectLongInt('WindowParameters', 'Exposure', Ord(Exposure), 1, 3, 'valid 1 (Sheltered), 2 (Normal), 3 (Severe)');
  ExpectSingle('WindowParameters', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  Result := QuorvelUnchecked.WindowParameters(Panes, PaneKind1, Emissivity1, PaneKind2, Emissivity2, PaneKind3,
    Emissivity3, CavityWidth1, CavityWidth2, OuterSurface, Exposure, Tilt);
end;

function GlassDirect(NormalTransmittance: Single; NormalReflectance: Single; Incidence: Single): TGlassDirect;
begin
  ExpectSingle('GlassDirect', 'NormalTransmittance', NormalTransmittance, 0, 0.92, 'valid 0 to 0.92');
  ExpectSingle('GlassDirect', 'NormalReflectance', NormalReflectance, 0, 0.99, 'valid 0 to 0.99');
  ExpectSingle('GlassDirect', 'Incidence', Incidence, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  Result := QuorvelUnchecked.GlassDirect(NormalTransmittance, NormalReflectance, Incidence);
end;

function GlassDiffuse(NormalTransmittance: Single; NormalReflectance: Single): TGlassDiffuse;
begin
  ExpectSingle('GlassDiffuse', 'NormalTransmittance', NormalTransmittance, 0, 0.92, 'valid 0 to 0.92');
  ExpectSingle('GlassDiffuse', 'NormalReflectance', NormalReflectance, 0, 0.99, 'valid 0 to 0.99');
  Result := QuorvelUnchecked.GlassDiffuse(NormalTransmittance, NormalReflectance);
end;

function StackedLayers(const LayerTransmittances: array of Single; const LayerReflectances: array of Single):
  TStackedLayers;
begin
  ExpectAsMany('StackedLayers', 'LayerReflectances', System.Length(LayerReflectances), 'LayerTransmittances',
    System.Length(LayerTransmittances));
  ExpectCount('StackedLayers', 'LayerTransmittances', System.Length(LayerTransmittances), 0, 2147483647);
  ExpectSingles('StackedLayers', 'LayerTransmittances', PSingle(@LayerTransmittances[0]),
    System.Length(LayerTransmittances), 0, 1, 'valid 0 to 1');
  ExpectSingles('StackedLayers', 'LayerReflectances', PSingle(@LayerReflectances[0]), System.Length(LayerReflectances),
    0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.StackedLayers(LayerTransmittances, LayerReflectances);
end;

function TracedLayers(const LayerTransmittances: array of Single; const LayerAbsorptances: array of Single; const
  LayerReflectances: array of Single): TTracedLayers;
begin
  ExpectAsMany('TracedLayers', 'LayerAbsorptances', System.Length(LayerAbsorptances), 'LayerTransmittances',
    System.Length(LayerTransmittances));
  ExpectAsMany('TracedLayers', 'LayerReflectances', System.Length(LayerReflectances), 'LayerTransmittances',
    System.Length(LayerTransmittances));
  ExpectCount('TracedLayers', 'LayerTransmittances', System.Length(LayerTransmittances), 0, 11);
  ExpectSingles('TracedLayers', 'LayerTransmittances', PSingle(@LayerTransmittances[0]),
    System.Length(LayerTransmittances), 0, 1, 'valid 0 to 1');
  ExpectSingles('TracedLayers', 'LayerAbsorptances', PSingle(@LayerAbsorptances[0]), System.Length(LayerAbsorptances),
    0, 1, 'valid 0 to 1');
  ExpectSingles('TracedLayers', 'LayerReflectances', PSingle(@LayerReflectances[0]), System.Length(LayerReflectances),
    0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.TracedLayers(LayerTransmittances, LayerAbsorptances, LayerReflectances);
end;

function RollerBlind(BlindTransmittance: Single; BlindReflectance: Single): TRollerBlind;
begin
  ExpectSingle('RollerBlind', 'BlindTransmittance', BlindTransmittance, 0, 1, 'valid 0 to 1');
  ExpectSingle('RollerBlind', 'BlindReflectance', BlindReflectance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.RollerBlind(BlindTransmittance, BlindReflectance);
end;

function DiffuseRollerBlind(BlindTransmittance: Single; BlindReflectance: Single): TDiffuseRollerBlind;
begin
  ExpectSingle('DiffuseRollerBlind', 'BlindTransmittance', BlindTransmittance, 0, 1, 'valid 0 to 1');
  ExpectSingle('DiffuseRollerBlind', 'BlindReflectance', BlindReflectance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.DiffuseRollerBlind(BlindTransmittance, BlindReflectance);
end;

function RefractionAngle(Incidence: Single; RefractiveIndex: Single): Single;
begin
  ExpectSingle('RefractionAngle', 'Incidence', Incidence, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  ExpectSingle('RefractionAngle', 'RefractiveIndex', RefractiveIndex, 1, 4, 'valid 1 to 4');
  Result := QuorvelUnchecked.RefractionAngle(Incidence, RefractiveIndex);
end;

function SurfaceReflectance(Incidence: Single; RefractionAngle: Single; RefractiveIndex: Single): TSurfaceReflectance;
begin
  ExpectSingle('SurfaceReflectance', 'Incidence', Incidence, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  ExpectSingle('SurfaceReflectance', 'RefractionAngle', RefractionAngle, -1.5708, 1.5708,
    'valid -1.5708 to 1.5708 rad');
  ExpectSingle('SurfaceReflectance', 'RefractiveIndex', RefractiveIndex, 1, 4, 'valid 1 to 4');
  Result := QuorvelUnchecked.SurfaceReflectance(Incidence, RefractionAngle, RefractiveIndex);
end;

function SinglePassAbsorption(RefractionAngle: Single; AbsorptionProduct: Single): Single;
begin
  ExpectSingle('SinglePassAbsorption', 'RefractionAngle', RefractionAngle, -1.5708, 1.5708,
    'valid -1.5708 to 1.5708 rad');
  ExpectSingle('SinglePassAbsorption', 'AbsorptionProduct', AbsorptionProduct, 0, 20, 'valid 0 to 20');
  Result := QuorvelUnchecked.SinglePassAbsorption(RefractionAngle, AbsorptionProduct);
end;

function SlabOptics(SinglePassAbsorptance: Single; FaceReflectance: Single): TSlabOptics;
begin
  ExpectSingle('SlabOptics', 'SinglePassAbsorptance', SinglePassAbsorptance, 0, 1, 'valid 0 to 1');
  ExpectSingle('SlabOptics', 'FaceReflectance', FaceReflectance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.SlabOptics(SinglePassAbsorptance, FaceReflectance);
end;

function AbsorptionProduct(NormalTransmittance: Single; RefractiveIndex: Single): Single;
begin
  ExpectSingle('AbsorptionProduct', 'NormalTransmittance', NormalTransmittance, 0, 0.92, 'valid 0 to 0.92');
  ExpectSingle('AbsorptionProduct', 'RefractiveIndex', RefractiveIndex, 1, 4, 'valid 1 to 4');
  Result := QuorvelUnchecked.AbsorptionProduct(NormalTransmittance, RefractiveIndex);
end;

function NormalTransmittance(AbsorptionProduct: Single; NormalReflectance: Single): Single;
begin
  ExpectSingle('NormalTransmittance', 'AbsorptionProduct', AbsorptionProduct, 0, 20, 'valid 0 to 20');
  ExpectSingle('NormalTransmittance', 'NormalReflectance', NormalReflectance, 0, 0.99, 'valid 0 to 0.99');
  Result := QuorvelUnchecked.NormalTransmittance(AbsorptionProduct, NormalReflectance);
end;

function PaneTemperatures(InsideTemperature: Single; OutsideTemperature: Single; Panes: LongInt; Absorbed1: Single;
  Absorbed2: Single; Absorbed3: Single; Absorbed4: Single; Absorbed5: Single): TPaneTemperatures;
begin
  ExpectSingle('PaneTemperatures', 'InsideTemperature', InsideTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('PaneTemperatures', 'OutsideTemperature', OutsideTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectLongInt('PaneTemperatures', 'Panes', Panes, 1, 5, 'valid 1 to 5');
  ExpectSingle('PaneTemperatures', 'Absorbed1', Absorbed1, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('PaneTemperatures', 'Absorbed2', Absorbed2, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('PaneTemperatures', 'Absorbed3', Absorbed3, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('PaneTemperatures', 'Absorbed4', Absorbed4, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('PaneTemperatures', 'Absorbed5', Absorbed5, 0, Infinity, 'valid from 0 W/m2');
  Result := QuorvelUnchecked.PaneTemperatures(InsideTemperature, OutsideTemperature, Panes, Absorbed1, Absorbed2,
    Absorbed3, Absorbed4, Absorbed5);
end;

function UnitDirect(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Incidence: Single):
  TUnitDirect;
begin
  ExpectSingle('UnitDirect', 'ShortwaveShadingCoefficient', ShortwaveShadingCoefficient, 0, 1.05, 'valid 0 to 1.05');
  ExpectSingle('UnitDirect', 'LongwaveShadingCoefficient', LongwaveShadingCoefficient, 0, 1, 'valid 0 to 1');
  ExpectSingle('UnitDirect', 'Incidence', Incidence, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  Result := QuorvelUnchecked.UnitDirect(ShortwaveShadingCoefficient, LongwaveShadingCoefficient, Incidence);
end;

function UnitDiffuse(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single): TUnitDiffuse;
begin
  ExpectSingle('UnitDiffuse', 'ShortwaveShadingCoefficient', ShortwaveShadingCoefficient, 0, 1.05, 'valid 0 to 1.05');
  ExpectSingle('UnitDiffuse', 'LongwaveShadingCoefficient', LongwaveShadingCoefficient, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.UnitDiffuse(ShortwaveShadingCoefficient, LongwaveShadingCoefficient);
end;

function UnitDirectShares(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Incidence: Single;
  Panes: LongInt): TUnitDirectShares;
begin
  ExpectSingle('UnitDirectShares', 'ShortwaveShadingCoefficient', ShortwaveShadingCoefficient, 0, 1.05,
    'valid 0 to 1.05');
  ExpectSingle('UnitDirectShares', 'LongwaveShadingCoefficient', LongwaveShadingCoefficient, 0, 1, 'valid 0 to 1');
  ExpectSingle('UnitDirectShares', 'Incidence', Incidence, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  ExpectLongInt('UnitDirectShares', 'Panes', Panes, 1, 5, 'valid 1 to 5');
  Result := QuorvelUnchecked.UnitDirectShares(ShortwaveShadingCoefficient, LongwaveShadingCoefficient, Incidence,
    Panes);
end;

function UnitDiffuseShares(ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single; Panes: LongInt):
  TUnitDiffuseShares;
begin
  ExpectSingle('UnitDiffuseShares', 'ShortwaveShadingCoefficient', ShortwaveShadingCoefficient, 0, 1.05,
    'valid 0 to 1.05');
  ExpectSingle('UnitDiffuseShares', 'LongwaveShadingCoefficient', LongwaveShadingCoefficient, 0, 1, 'valid 0 to 1');
  ExpectLongInt('UnitDiffuseShares', 'Panes', Panes, 1, 5, 'valid 1 to 5');
  Result := QuorvelUnchecked.UnitDiffuseShares(ShortwaveShadingCoefficient, LongwaveShadingCoefficient, Panes);
end;

function UnitShares(Radiation: TRadiation; ShortwaveShadingCoefficient: Single; LongwaveShadingCoefficient: Single;
  Incidence: Single; Panes: LongInt): TUnitShares;
begin
  ExpectLongInt('UnitShares', 'Radiation', Ord(Radiation), 1, 2, 'valid 1 (Direct), 2 (Diffuse)');
  ExpectSingle('UnitShares', 'ShortwaveShadingCoefficient', ShortwaveShadingCoefficient, 0, 1.05, 'valid 0 to 1.05');
  ExpectSingle('UnitShares', 'LongwaveShadingCoefficient', LongwaveShadingCoefficient, 0, 1, 'valid 0 to 1');
  ExpectSingle('UnitShares', 'Incidence', Incidence, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  ExpectLongInt('UnitShares', 'Panes', Panes, 1, 5, 'valid 1 to 5');
  Result := QuorvelUnchecked.UnitShares(Radiation, ShortwaveShadingCoefficient, LongwaveShadingCoefficient, Incidence,
    Panes);
end;

function SlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single; SlatAbsorptance:
  Single): TSlatDirect;
begin
  ExpectSingle('SlatDirect', 'SlatSpacing', SlatSpacing, 0, Infinity, 'valid from 0 m');
  ExpectSingle('SlatDirect', 'SlatWidth', SlatWidth, 0, Infinity, 'valid from 0 m');
  ExpectSingle('SlatDirect', 'SlatAngle', SlatAngle, -90, 90, 'valid -90 to 90 deg');
  ExpectSingle('SlatDirect', 'ProfileAngle', ProfileAngle, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  ExpectSingle('SlatDirect', 'SlatAbsorptance', SlatAbsorptance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.SlatDirect(SlatSpacing, SlatWidth, SlatAngle, ProfileAngle, SlatAbsorptance);
end;

function TwoFacedSlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single;
  StruckAbsorptance: Single; OppositeAbsorptance: Single): TTwoFacedSlatDirect;
begin
  ExpectSingle('TwoFacedSlatDirect', 'SlatSpacing', SlatSpacing, 0, Infinity, 'valid from 0 m');
  ExpectSingle('TwoFacedSlatDirect', 'SlatWidth', SlatWidth, 0, Infinity, 'valid from 0 m');
  ExpectSingle('TwoFacedSlatDirect', 'SlatAngle', SlatAngle, -90, 90, 'valid -90 to 90 deg');
  ExpectSingle('TwoFacedSlatDirect', 'ProfileAngle', ProfileAngle, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  ExpectSingle('TwoFacedSlatDirect', 'StruckAbsorptance', StruckAbsorptance, 0, 1, 'valid 0 to 1');
  ExpectSingle('TwoFacedSlatDirect', 'OppositeAbsorptance', OppositeAbsorptance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.TwoFacedSlatDirect(SlatSpacing, SlatWidth, SlatAngle, ProfileAngle, StruckAbsorptance,
    OppositeAbsorptance);
end;

function OpenSlatDirect(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; ProfileAngle: Single; OpenShare:
  Single; StruckAbsorptance: Single; OppositeAbsorptance: Single): TOpenSlatDirect;
begin
  ExpectSingle('OpenSlatDirect', 'SlatSpacing', SlatSpacing, 0, Infinity, 'valid from 0 m');
  ExpectSingle('OpenSlatDirect', 'SlatWidth', SlatWidth, 0, Infinity, 'valid from 0 m');
  ExpectSingle('OpenSlatDirect', 'SlatAngle', SlatAngle, -90, 90, 'valid -90 to 90 deg');
  ExpectSingle('OpenSlatDirect', 'ProfileAngle', ProfileAngle, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  ExpectSingle('OpenSlatDirect', 'OpenShare', OpenShare, 0, 1, 'valid 0 to 1');
  ExpectSingle('OpenSlatDirect', 'StruckAbsorptance', StruckAbsorptance, 0, 1, 'valid 0 to 1');
  ExpectSingle('OpenSlatDirect', 'OppositeAbsorptance', OppositeAbsorptance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.OpenSlatDirect(SlatSpacing, SlatWidth, SlatAngle, ProfileAngle, OpenShare,
    StruckAbsorptance, OppositeAbsorptance);
end;

function SlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; SlatAbsorptance: Single): TSlatDiffuse;
begin
  ExpectSingle('SlatDiffuse', 'SlatSpacing', SlatSpacing, 0, Infinity, 'valid from 0 m');
  ExpectSingle('SlatDiffuse', 'SlatWidth', SlatWidth, 0, Infinity, 'valid from 0 m');
  ExpectSingle('SlatDiffuse', 'SlatAngle', SlatAngle, -90, 90, 'valid -90 to 90 deg');
  ExpectSingle('SlatDiffuse', 'SlatAbsorptance', SlatAbsorptance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.SlatDiffuse(SlatSpacing, SlatWidth, SlatAngle, SlatAbsorptance);
end;

function TwoFacedSlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; StruckAbsorptance: Single;
  OppositeAbsorptance: Single): TTwoFacedSlatDiffuse;
begin
  ExpectSingle('TwoFacedSlatDiffuse', 'SlatSpacing', SlatSpacing, 0, Infinity, 'valid from 0 m');
  ExpectSingle('TwoFacedSlatDiffuse', 'SlatWidth', SlatWidth, 0, Infinity, 'valid from 0 m');
  ExpectSingle('TwoFacedSlatDiffuse', 'SlatAngle', SlatAngle, -90, 90, 'valid -90 to 90 deg');
  ExpectSingle('TwoFacedSlatDiffuse', 'StruckAbsorptance', StruckAbsorptance, 0, 1, 'valid 0 to 1');
  ExpectSingle('TwoFacedSlatDiffuse', 'OppositeAbsorptance', OppositeAbsorptance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.TwoFacedSlatDiffuse(SlatSpacing, SlatWidth, SlatAngle, StruckAbsorptance,
    OppositeAbsorptance);
end;

function OpenSlatDiffuse(SlatSpacing: Single; SlatWidth: Single; SlatAngle: Single; OpenShare: Single;
  StruckAbsorptance: Single; OppositeAbsorptance: Single): TOpenSlatDiffuse;
begin
  ExpectSingle('OpenSlatDiffuse', 'SlatSpacing', SlatSpacing, 0, Infinity, 'valid from 0 m');
  ExpectSingle('OpenSlatDiffuse', 'SlatWidth', SlatWidth, 0, Infinity, 'valid from 0 m');
  ExpectSingle('OpenSlatDiffuse', 'SlatAngle', SlatAngle, -90, 90, 'valid -90 to 90 deg');
  ExpectSingle('OpenSlatDiffuse', 'OpenShare', OpenShare, 0, 1, 'valid 0 to 1');
  ExpectSingle('OpenSlatDiffuse', 'StruckAbsorptance', StruckAbsorptance, 0, 1, 'valid 0 to 1');
  ExpectSingle('OpenSlatDiffuse', 'OppositeAbsorptance', OppositeAbsorptance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.OpenSlatDiffuse(SlatSpacing, SlatWidth, SlatAngle, OpenShare, StruckAbsorptance,
    OppositeAbsorptance);
end;

function LocateBand(Fraction: Single; Month: LongInt; const Frequencies: TSingle10x12): TLocateBand;
begin
  ExpectSingle('LocateBand', 'Fraction', Fraction, 0, 1, 'valid 0 to 1');
  ExpectLongInt('LocateBand', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectSingles('LocateBand', 'Frequencies', PSingle(@Frequencies), 120, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.LocateBand(Fraction, Month, Frequencies);
end;

function BandClimate(Band: LongInt; Month: LongInt; BandSet: TBandSet; Percentage: Single): TBandClimate;
begin
  ExpectLongInt('BandClimate', 'Band', Band, 0, 10, 'valid 0 to 10');
  ExpectLongInt('BandClimate', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectLongInt('BandClimate', 'BandSet', Ord(BandSet), 1, 2, 'valid 1 (First), 2 (Second)');
  ExpectSingle('BandClimate', 'Percentage', Percentage, 0, 100, 'valid 0 to 100 %');
  Result := QuorvelUnchecked.BandClimate(Band, Month, BandSet, Percentage);
end;

function InterpolateBandRows(BaseRow: LongInt; LowerBand: LongInt; UpperBand: LongInt; Month: LongInt; BandWeight:
  Single): Single;
begin
  ExpectLongInt('InterpolateBandRows', 'BaseRow', BaseRow, 0, 174, 'valid 0 to 174');
  ExpectLongInt('InterpolateBandRows', 'LowerBand', LowerBand, 1, 10, 'valid 1 to 10');
  ExpectLongInt('InterpolateBandRows', 'UpperBand', UpperBand, 1, 10, 'valid 1 to 10');
  ExpectLongInt('InterpolateBandRows', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectSingle('InterpolateBandRows', 'BandWeight', BandWeight, -1, 1, 'valid -1 to 1');
  Result := QuorvelUnchecked.InterpolateBandRows(BaseRow, LowerBand, UpperBand, Month, BandWeight);
end;

function BandRow(Row: LongInt): TSingle12;
begin
  ExpectLongInt('BandRow', 'Row', Row, 1, 184, 'valid 1 to 184');
  Result := QuorvelUnchecked.BandRow(Row);
end;

function StoreDesignDay(Month: LongInt): LongInt;
begin
  ExpectLongInt('StoreDesignDay', 'Month', Month, 1, 12, 'valid 1 to 12');
  Result := QuorvelUnchecked.StoreDesignDay(Month);
end;

function StoreDesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;
begin
  ExpectLongInt('StoreDesignDayByOption', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectLongInt('StoreDesignDayByOption', 'DayKind', Ord(DayKind), 1, 2, 'valid 1 (OfMonth), 2 (OfYear)');
  Result := QuorvelUnchecked.StoreDesignDayByOption(Month, DayKind);
end;

function DesignDay(Month: LongInt): LongInt;
begin
  ExpectLongInt('DesignDay', 'Month', Month, 1, 12, 'valid 1 to 12');
  Result := QuorvelUnchecked.DesignDay(Month);
end;

function DesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;
begin
  ExpectLongInt('DesignDayByOption', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectLongInt('DesignDayByOption', 'DayKind', Ord(DayKind), 1, 2, 'valid 1 (OfMonth), 2 (OfYear)');
  Result := QuorvelUnchecked.DesignDayByOption(Month, DayKind);
end;

function SecondDesignDay(Month: LongInt): LongInt;
begin
  ExpectLongInt('SecondDesignDay', 'Month', Month, 1, 12, 'valid 1 to 12');
  Result := QuorvelUnchecked.SecondDesignDay(Month);
end;

function SecondDesignDayByOption(Month: LongInt; DayKind: TDayKind): LongInt;
begin
  ExpectLongInt('SecondDesignDayByOption', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectLongInt('SecondDesignDayByOption', 'DayKind', Ord(DayKind), 1, 2, 'valid 1 (OfMonth), 2 (OfYear)');
  Result := QuorvelUnchecked.SecondDesignDayByOption(Month, DayKind);
end;

function DailyTemperature(Hour: Single; HighestTemperature: Single; LowestTemperature: Single; HourOfHighest: Single;
  HourOfLowest: Single): Single;
begin
  ExpectSingle('DailyTemperature', 'Hour', Hour, 0, 24, 'valid 0 to 24 h');
  ExpectSingle('DailyTemperature', 'HighestTemperature', HighestTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('DailyTemperature', 'LowestTemperature', LowestTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('DailyTemperature', 'HourOfHighest', HourOfHighest, 0, 24, 'valid 0 to 24 h');
  ExpectSingle('DailyTemperature', 'HourOfLowest', HourOfLowest, 0, 24, 'valid 0 to 24 h');
  Result := QuorvelUnchecked.DailyTemperature(Hour, HighestTemperature, LowestTemperature, HourOfHighest, HourOfLowest);
end;

function DailyValue(Hour: Single; Mean: Single; Amplitude: Single; FirstHour: Single; SecondHour: Single;
  AmplitudeFactor: Single): Single;
begin
  ExpectSingle('DailyValue', 'Hour', Hour, 0, 24, 'valid 0 to 24 h');
  ExpectSingle('DailyValue', 'Mean', Mean, -Infinity, Infinity, 'valid is any number');
  ExpectSingle('DailyValue', 'Amplitude', Amplitude, -Infinity, Infinity, 'valid is any number');
  ExpectSingle('DailyValue', 'FirstHour', FirstHour, 0, 24, 'valid 0 to 24 h');
  ExpectSingle('DailyValue', 'SecondHour', SecondHour, 0, 24, 'valid 0 to 24 h');
  ExpectSingle('DailyValue', 'AmplitudeFactor', AmplitudeFactor, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.DailyValue(Hour, Mean, Amplitude, FirstHour, SecondHour, AmplitudeFactor);
end;

function DesignIrradiance(SolarAltitude: Single; SiteHeight: Single; SkyKind: TSkyKind): TDesignIrradiance;
begin
  ExpectSingle('DesignIrradiance', 'SolarAltitude', SolarAltitude, 0, 1.5707964, 'valid 0 to 1.5707964 rad');
  ExpectSingle('DesignIrradiance', 'SiteHeight', SiteHeight, 0, 4000, 'valid 0 to 4000 m');
  ExpectLongInt('DesignIrradiance', 'SkyKind', Ord(SkyKind), 0, 1, 'valid 0 (Clear), 1 (Cloudy)');
  Result := QuorvelUnchecked.DesignIrradiance(SolarAltitude, SiteHeight, SkyKind);
end;

function HeightFactor(SiteHeight: Single; SolarAltitude: Single): Single;
begin
  ExpectSingle('HeightFactor', 'SiteHeight', SiteHeight, 0, 4000, 'valid 0 to 4000 m');
  ExpectSingle('HeightFactor', 'SolarAltitude', SolarAltitude, 0, 1.5707964, 'valid 0 to 1.5707964 rad');
  Result := QuorvelUnchecked.HeightFactor(SiteHeight, SolarAltitude);
end;

function EccentricityFactor(Day: LongInt): Single;
begin
  ExpectLongInt('EccentricityFactor', 'Day', Day, 1, 366, 'valid 1 to 366');
  Result := QuorvelUnchecked.EccentricityFactor(Day);
end;

function ClearnessIndex(Day: LongInt; SolarAltitude: Single; GlobalHorizontal: Single): Single;
begin
  ExpectLongInt('ClearnessIndex', 'Day', Day, 1, 366, 'valid 1 to 366');
  ExpectSingle('ClearnessIndex', 'SolarAltitude', SolarAltitude, 0, 1.5707964, 'valid 0 to 1.5707964 rad');
  ExpectSingle('ClearnessIndex', 'GlobalHorizontal', GlobalHorizontal, 0, Infinity, 'valid from 0 W/m2');
  Result := QuorvelUnchecked.ClearnessIndex(Day, SolarAltitude, GlobalHorizontal);
end;

function MuneerSlope(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single; BeamHorizontal:
  Single; DiffuseHorizontal: Single; ExtraterrestrialHorizontal: Single; GroundReflectance: Single): TMuneerSlope;
begin
  ExpectSingle('MuneerSlope', 'SolarAltitude', SolarAltitude, 0, 1.5707964, 'valid 0 to 1.5707964 rad');
  ExpectSingle('MuneerSlope', 'SolarAzimuth', SolarAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('MuneerSlope', 'SurfaceAzimuth', SurfaceAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('MuneerSlope', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectSingle('MuneerSlope', 'BeamHorizontal', BeamHorizontal, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('MuneerSlope', 'DiffuseHorizontal', DiffuseHorizontal, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('MuneerSlope', 'ExtraterrestrialHorizontal', ExtraterrestrialHorizontal, 0, 1415,
    'valid 0 to 1415 W/m2');
  ExpectSingle('MuneerSlope', 'GroundReflectance', GroundReflectance, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.MuneerSlope(SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt, BeamHorizontal,
    DiffuseHorizontal, ExtraterrestrialHorizontal, GroundReflectance);
end;

function PerezDiffuse(SolarAltitude: Single; Tilt: Single; BeamHorizontal: Single; DiffuseHorizontal: Single; Incidence:
  Single; ExtraterrestrialNormal: Single): Single;
begin
  ExpectSingle('PerezDiffuse', 'SolarAltitude', SolarAltitude, 0, 1.5707964, 'valid 0 to 1.5707964 rad');
  ExpectSingle('PerezDiffuse', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectSingle('PerezDiffuse', 'BeamHorizontal', BeamHorizontal, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('PerezDiffuse', 'DiffuseHorizontal', DiffuseHorizontal, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('PerezDiffuse', 'Incidence', Incidence, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectSingle('PerezDiffuse', 'ExtraterrestrialNormal', ExtraterrestrialNormal, 1320, 1415, 'valid 1320 to 1415 W/m2');
  Result := QuorvelUnchecked.PerezDiffuse(SolarAltitude, Tilt, BeamHorizontal, DiffuseHorizontal, Incidence,
    ExtraterrestrialNormal);
end;

function SiteConstants(SiteClass: LongInt; Month: LongInt): TSiteConstants;
begin
  ExpectLongInt('SiteConstants', 'SiteClass', SiteClass, 1, 6, 'valid 1 to 6');
  ExpectLongInt('SiteConstants', 'Month', Month, 1, 12, 'valid 1 to 12');
  Result := QuorvelUnchecked.SiteConstants(SiteClass, Month);
end;

function DiffuseTiltFactor(Day: LongInt; SolarAltitude: Single; BeamHorizontal: Single; Tilt: Single; SkyModel:
  TSkyModel): Single;
begin
  ExpectLongInt('DiffuseTiltFactor', 'Day', Day, 1, 366, 'valid 1 to 366');
  ExpectSingle('DiffuseTiltFactor', 'SolarAltitude', SolarAltitude, 0, 1.5707964, 'valid 0 to 1.5707964 rad');
  ExpectSingle('DiffuseTiltFactor', 'BeamHorizontal', BeamHorizontal, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('DiffuseTiltFactor', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectLongInt('DiffuseTiltFactor', 'SkyModel', Ord(SkyModel), 0, 2,
    'valid 0 (RadianceIndex), 1 (NorthernEurope), 2 (SouthernEurope)');
  Result := QuorvelUnchecked.DiffuseTiltFactor(Day, SolarAltitude, BeamHorizontal, Tilt, SkyModel);
end;

function SlopeDiffuse(Day: LongInt; SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single;
  BeamHorizontal: Single; DiffuseHorizontal: Single; SkyModel: TSkyModel): Single;
begin
  ExpectLongInt('SlopeDiffuse', 'Day', Day, 1, 366, 'valid 1 to 366');
  ExpectSingle('SlopeDiffuse', 'SolarAltitude', SolarAltitude, 0, 1.5707964, 'valid 0 to 1.5707964 rad');
  ExpectSingle('SlopeDiffuse', 'SolarAzimuth', SolarAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('SlopeDiffuse', 'SurfaceAzimuth', SurfaceAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('SlopeDiffuse', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectSingle('SlopeDiffuse', 'BeamHorizontal', BeamHorizontal, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('SlopeDiffuse', 'DiffuseHorizontal', DiffuseHorizontal, 0, Infinity, 'valid from 0 W/m2');
  ExpectLongInt('SlopeDiffuse', 'SkyModel', Ord(SkyModel), 0, 2,
    'valid 0 (RadianceIndex), 1 (NorthernEurope), 2 (SouthernEurope)');
  Result := QuorvelUnchecked.SlopeDiffuse(Day, SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt, BeamHorizontal,
    DiffuseHorizontal, SkyModel);
end;

function SolAirTemperature(BaseTemperature: Single; SurfaceCoefficient: Single; Absorptance: Single; Irradiance: Single;
  LongWaveLoss: Single): Single;
begin
  ExpectSingle('SolAirTemperature', 'BaseTemperature', BaseTemperature, -100, 200, 'valid -100 to 200 degC');
  ExpectSingle('SolAirTemperature', 'SurfaceCoefficient', SurfaceCoefficient, 0, Infinity, 'valid from 0 W/m2K');
  ExpectSingle('SolAirTemperature', 'Absorptance', Absorptance, 0, 1, 'valid 0 to 1');
  ExpectSingle('SolAirTemperature', 'Irradiance', Irradiance, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('SolAirTemperature', 'LongWaveLoss', LongWaveLoss, 0, Infinity, 'valid from 0 W/m2');
  Result := QuorvelUnchecked.SolAirTemperature(BaseTemperature, SurfaceCoefficient, Absorptance, Irradiance,
    LongWaveLoss);
end;

function LongWaveLoss(Tilt: Single; CloudCover: Single): Single;
begin
  ExpectSingle('LongWaveLoss', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectSingle('LongWaveLoss', 'CloudCover', CloudCover, 0, 1, 'valid 0 to 1');
  Result := QuorvelUnchecked.LongWaveLoss(Tilt, CloudCover);
end;

function SolarTimeCorrection(ClockOffset: Single; Day: LongInt; Longitude: Single; ReferenceLongitude: Single): Single;
begin
  ExpectSingle('SolarTimeCorrection', 'ClockOffset', ClockOffset, -Infinity, Infinity, 'valid is any number');
  ExpectLongInt('SolarTimeCorrection', 'Day', Day, 1, 366, 'valid 1 to 366');
  ExpectSingle('SolarTimeCorrection', 'Longitude', Longitude, -3.1416, 3.1416, 'valid -3.1416 to 3.1416 rad');
  ExpectSingle('SolarTimeCorrection', 'ReferenceLongitude', ReferenceLongitude, -3.1416, 3.1416,
    'valid -3.1416 to 3.1416 rad');
  Result := QuorvelUnchecked.SolarTimeCorrection(ClockOffset, Day, Longitude, ReferenceLongitude);
end;

function AlmanacPosition(TimeKind: TTimeKind; Year: LongInt; Month: LongInt; DayOfMonth: LongInt; ClockTime: Single;
  Latitude: Single; Longitude: Single; ZoneMeridian: Single): TAlmanacPosition;
begin
  ExpectLongInt('AlmanacPosition', 'TimeKind', Ord(TimeKind), 1, 3, 'valid 1 (Solar), 2 (Zone), 3 (DatedSolar)');
  ExpectLongInt('AlmanacPosition', 'Year', Year, 1976, 2099, 'valid 1976 to 2099');
  ExpectLongInt('AlmanacPosition', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectLongInt('AlmanacPosition', 'DayOfMonth', DayOfMonth, 1, 31, 'valid 1 to 31');
  ExpectSingle('AlmanacPosition', 'ClockTime', ClockTime, 0, 24, 'valid 0 to 24 h');
  ExpectSingle('AlmanacPosition', 'Latitude', Latitude, -1.5707964, 1.5707964, 'valid -1.5707964 to 1.5707964 rad');
  ExpectSingle('AlmanacPosition', 'Longitude', Longitude, -3.1416, 3.1416, 'valid -3.1416 to 3.1416 rad');
  ExpectSingle('AlmanacPosition', 'ZoneMeridian', ZoneMeridian, -3.1416, 3.1416, 'valid -3.1416 to 3.1416 rad');
  Result := QuorvelUnchecked.AlmanacPosition(TimeKind, Year, Month, DayOfMonth, ClockTime, Latitude, Longitude,
    ZoneMeridian);
end;

function AlmanacSunHours(Year: LongInt; Month: LongInt; DayOfMonth: LongInt; Latitude: Single): TAlmanacSunHours;
begin
  ExpectLongInt('AlmanacSunHours', 'Year', Year, 1976, 2099, 'valid 1976 to 2099');
  ExpectLongInt('AlmanacSunHours', 'Month', Month, 1, 12, 'valid 1 to 12');
  ExpectLongInt('AlmanacSunHours', 'DayOfMonth', DayOfMonth, 1, 31, 'valid 1 to 31');
  ExpectSingle('AlmanacSunHours', 'Latitude', Latitude, -1.5707964, 1.5707964, 'valid -1.5707964 to 1.5707964 rad');
  Result := QuorvelUnchecked.AlmanacSunHours(Year, Month, DayOfMonth, Latitude);
end;

function SolarGeometry(Latitude: Single; Day: LongInt; SolarTime: Single): TSolarGeometry;
begin
  ExpectSingle('SolarGeometry', 'Latitude', Latitude, -1.5707964, 1.5707964, 'valid -1.5707964 to 1.5707964 rad');
  ExpectLongInt('SolarGeometry', 'Day', Day, 1, 365, 'valid 1 to 365');
  ExpectSingle('SolarGeometry', 'SolarTime', SolarTime, 0, 24, 'valid 0 to 24 h');
  Result := QuorvelUnchecked.SolarGeometry(Latitude, Day, SolarTime);
end;

function SurfaceAngles(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single):
  TSurfaceAngles;
begin
  ExpectSingle('SurfaceAngles', 'SolarAltitude', SolarAltitude, -1.5707964, 1.5707964,
    'valid -1.5707964 to 1.5707964 rad');
  ExpectSingle('SurfaceAngles', 'SolarAzimuth', SolarAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('SurfaceAngles', 'SurfaceAzimuth', SurfaceAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('SurfaceAngles', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  Result := QuorvelUnchecked.SurfaceAngles(SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt);
end;

function SurfaceIrradiance(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt: Single;
  DirectNormal: Single; DiffuseHorizontal: Single; GroundReflectance: Single; BeamFactor: Single; DiffuseFactor:
  Single): TSurfaceIrradiance;
begin
  ExpectSingle('SurfaceIrradiance', 'SolarAltitude', SolarAltitude, 0, 1.5707964, 'valid 0 to 1.5707964 rad');
  ExpectSingle('SurfaceIrradiance', 'SolarAzimuth', SolarAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('SurfaceIrradiance', 'SurfaceAzimuth', SurfaceAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('SurfaceIrradiance', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectSingle('SurfaceIrradiance', 'DirectNormal', DirectNormal, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('SurfaceIrradiance', 'DiffuseHorizontal', DiffuseHorizontal, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('SurfaceIrradiance', 'GroundReflectance', GroundReflectance, 0, 1, 'valid 0 to 1');
  ExpectSingle('SurfaceIrradiance', 'BeamFactor', BeamFactor, 0, Infinity, 'valid from 0');
  ExpectSingle('SurfaceIrradiance', 'DiffuseFactor', DiffuseFactor, 0, Infinity, 'valid from 0');
  Result := QuorvelUnchecked.SurfaceIrradiance(SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt, DirectNormal,
    DiffuseHorizontal, GroundReflectance, BeamFactor, DiffuseFactor);
end;

function SurfaceIrradianceAndIncidence(SolarAltitude: Single; SolarAzimuth: Single; SurfaceAzimuth: Single; Tilt:
  Single; DirectNormal: Single; DiffuseHorizontal: Single; GroundReflectance: Single; BeamFactor: Single; DiffuseFactor:
  Single): TSurfaceIrradianceAndIncidence;
begin
  ExpectSingle('SurfaceIrradianceAndIncidence', 'SolarAltitude', SolarAltitude, 0, 1.5707964,
    'valid 0 to 1.5707964 rad');
  ExpectSingle('SurfaceIrradianceAndIncidence', 'SolarAzimuth', SolarAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('SurfaceIrradianceAndIncidence', 'SurfaceAzimuth', SurfaceAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('SurfaceIrradianceAndIncidence', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  ExpectSingle('SurfaceIrradianceAndIncidence', 'DirectNormal', DirectNormal, 0, Infinity, 'valid from 0 W/m2');
  ExpectSingle('SurfaceIrradianceAndIncidence', 'DiffuseHorizontal', DiffuseHorizontal, 0, Infinity,
    'valid from 0 W/m2');
  ExpectSingle('SurfaceIrradianceAndIncidence', 'GroundReflectance', GroundReflectance, 0, 1, 'valid 0 to 1');
  ExpectSingle('SurfaceIrradianceAndIncidence', 'BeamFactor', BeamFactor, 0, Infinity, 'valid from 0');
  ExpectSingle('SurfaceIrradianceAndIncidence', 'DiffuseFactor', DiffuseFactor, 0, Infinity, 'valid from 0');
  Result := QuorvelUnchecked.SurfaceIrradianceAndIncidence(SolarAltitude, SolarAzimuth, SurfaceAzimuth, Tilt,
    DirectNormal, DiffuseHorizontal, GroundReflectance, BeamFactor, DiffuseFactor);
end;

function Overlap(const X1: array of Single; const Y1: array of Single; const X2: array of Single; const Y2: array of
  Single): TOverlap;
begin
  ExpectAsMany('Overlap', 'Y1', System.Length(Y1), 'X1', System.Length(X1));
  ExpectCount('Overlap', 'X1', System.Length(X1), 3, 2147483647);
  ExpectAsMany('Overlap', 'Y2', System.Length(Y2), 'X2', System.Length(X2));
  ExpectCount('Overlap', 'X2', System.Length(X2), 3, 2147483647);
  ExpectSingles('Overlap', 'X1', PSingle(@X1[0]), System.Length(X1), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('Overlap', 'Y1', PSingle(@Y1[0]), System.Length(Y1), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('Overlap', 'X2', PSingle(@X2[0]), System.Length(X2), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('Overlap', 'Y2', PSingle(@Y2[0]), System.Length(Y2), -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.Overlap(X1, Y1, X2, Y2);
end;

function OverlapAlias(const X1: array of Single; const Y1: array of Single; const X2: array of Single; const Y2: array
  of Single): TOverlapAlias;
begin
  ExpectAsMany('OverlapAlias', 'Y1', System.Length(Y1), 'X1', System.Length(X1));
  ExpectCount('OverlapAlias', 'X1', System.Length(X1), 3, 2147483647);
  ExpectAsMany('OverlapAlias', 'Y2', System.Length(Y2), 'X2', System.Length(X2));
  ExpectCount('OverlapAlias', 'X2', System.Length(X2), 3, 2147483647);
  ExpectSingles('OverlapAlias', 'X1', PSingle(@X1[0]), System.Length(X1), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('OverlapAlias', 'Y1', PSingle(@Y1[0]), System.Length(Y1), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('OverlapAlias', 'X2', PSingle(@X2[0]), System.Length(X2), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('OverlapAlias', 'Y2', PSingle(@Y2[0]), System.Length(Y2), -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.OverlapAlias(X1, Y1, X2, Y2);
end;

function Collinearity(const X: array of Single; const Y: array of Single): LongInt;
begin
  ExpectAsMany('Collinearity', 'Y', System.Length(Y), 'X', System.Length(X));
  ExpectCount('Collinearity', 'X', System.Length(X), 1, 2147483647);
  ExpectSingles('Collinearity', 'X', PSingle(@X[0]), System.Length(X), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('Collinearity', 'Y', PSingle(@Y[0]), System.Length(Y), -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.Collinearity(X, Y);
end;

function CountEnclosed(const X: array of Single; const Y: array of Single; const PointX: array of Single; const PointY:
  array of Single; const Enclosed: array of LongInt): TCountEnclosed;
begin
  ExpectAsMany('CountEnclosed', 'Y', System.Length(Y), 'X', System.Length(X));
  ExpectCount('CountEnclosed', 'X', System.Length(X), 3, 2147483647);
  ExpectAsMany('CountEnclosed', 'PointY', System.Length(PointY), 'PointX', System.Length(PointX));
  ExpectAsMany('CountEnclosed', 'Enclosed', System.Length(Enclosed), 'PointX', System.Length(PointX));
  ExpectCount('CountEnclosed', 'PointX', System.Length(PointX), 1, 2147483647);
  ExpectSingles('CountEnclosed', 'X', PSingle(@X[0]), System.Length(X), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('CountEnclosed', 'Y', PSingle(@Y[0]), System.Length(Y), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('CountEnclosed', 'PointX', PSingle(@PointX[0]), System.Length(PointX), -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('CountEnclosed', 'PointY', PSingle(@PointY[0]), System.Length(PointY), -Infinity, Infinity,
    'valid is any number');
  ExpectLongInts('CountEnclosed', 'Enclosed', PLongInt(@Enclosed[0]), System.Length(Enclosed), 0, 1,
    'valid 0 (Outside), 1 (Inside)');
  Result := QuorvelUnchecked.CountEnclosed(X, Y, PointX, PointY, Enclosed);
end;

function BoundaryCrossing(const SegmentStart: array of Single; const SegmentEnd: array of Single; const X: array of
  Single; const Y: array of Single): TBoundaryCrossing;
begin
  ExpectLength('BoundaryCrossing', 'SegmentStart', System.Length(SegmentStart), 2);
  ExpectLength('BoundaryCrossing', 'SegmentEnd', System.Length(SegmentEnd), 2);
  ExpectAsMany('BoundaryCrossing', 'Y', System.Length(Y), 'X', System.Length(X));
  ExpectCount('BoundaryCrossing', 'X', System.Length(X), 3, 2147483647);
  ExpectSingles('BoundaryCrossing', 'SegmentStart', PSingle(@SegmentStart[0]), 2, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('BoundaryCrossing', 'SegmentEnd', PSingle(@SegmentEnd[0]), 2, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('BoundaryCrossing', 'X', PSingle(@X[0]), System.Length(X), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('BoundaryCrossing', 'Y', PSingle(@Y[0]), System.Length(Y), -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.BoundaryCrossing(SegmentStart, SegmentEnd, X, Y);
end;

function Inside(const Point: array of Single; const Polygon: array of TSingle3): LongInt;
begin
  ExpectLength('Inside', 'Point', System.Length(Point), 3);
  ExpectCount('Inside', 'Polygon', System.Length(Polygon), 4, 2147483647);
  ExpectSingles('Inside', 'Point', PSingle(@Point[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('Inside', 'Polygon', PSingle(@Polygon[0]), 3 * System.Length(Polygon), -Infinity, Infinity,
    'valid is any number');
  Result := QuorvelUnchecked.Inside(Point, Polygon);
end;

function ParallelPlanes(const Triangle1: TDouble3x3; const Triangle2: TDouble3x3): Boolean;
begin
  ExpectDoubles('ParallelPlanes', 'Triangle1', PDouble(@Triangle1), 9, -Infinity, Infinity, 'valid is any number');
  ExpectDoubles('ParallelPlanes', 'Triangle2', PDouble(@Triangle2), 9, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.ParallelPlanes(Triangle1, Triangle2);
end;

function ParallelSides(const Triangle1: TDouble3x3; const Triangle2: TDouble3x3): TParallelSides;
begin
  ExpectDoubles('ParallelSides', 'Triangle1', PDouble(@Triangle1), 9, -Infinity, Infinity, 'valid is any number');
  ExpectDoubles('ParallelSides', 'Triangle2', PDouble(@Triangle2), 9, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.ParallelSides(Triangle1, Triangle2);
end;

function Rectangular(const Quadrilateral: TDouble4x3): Boolean;
begin
  ExpectDoubles('Rectangular', 'Quadrilateral', PDouble(@Quadrilateral), 12, -Infinity, Infinity,
    'valid is any number');
  Result := QuorvelUnchecked.Rectangular(Quadrilateral);
end;

function Facing(const Triangle: TDouble3x3; Azimuth: Double): TFacing;
begin
  ExpectDoubles('Facing', 'Triangle', PDouble(@Triangle), 9, -Infinity, Infinity, 'valid is any number');
  ExpectDouble('Facing', 'Azimuth', Azimuth, 0, 6.2832, 'valid 0 to 6.2832 deg');
  Result := QuorvelUnchecked.Facing(Triangle, Azimuth);
end;

function LocalCoordinates(const Quadrilateral1: TDouble4x3; const Quadrilateral2: TDouble4x3): TLocalCoordinates;
begin
  ExpectDoubles('LocalCoordinates', 'Quadrilateral1', PDouble(@Quadrilateral1), 12, -Infinity, Infinity,
    'valid is any number');
  ExpectDoubles('LocalCoordinates', 'Quadrilateral2', PDouble(@Quadrilateral2), 12, -Infinity, Infinity,
    'valid is any number');
  Result := QuorvelUnchecked.LocalCoordinates(Quadrilateral1, Quadrilateral2);
end;

function ToLocal(const Corners: TDouble4x3; const XAxis: array of Double; const YAxis: array of Double; const ZAxis:
  array of Double): TDouble4x3;
begin
  ExpectLength('ToLocal', 'XAxis', System.Length(XAxis), 3);
  ExpectLength('ToLocal', 'YAxis', System.Length(YAxis), 3);
  ExpectLength('ToLocal', 'ZAxis', System.Length(ZAxis), 3);
  ExpectDoubles('ToLocal', 'Corners', PDouble(@Corners), 12, -Infinity, Infinity, 'valid is any number');
  ExpectDoubles('ToLocal', 'XAxis', PDouble(@XAxis[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectDoubles('ToLocal', 'YAxis', PDouble(@YAxis[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectDoubles('ToLocal', 'ZAxis', PDouble(@ZAxis[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.ToLocal(Corners, XAxis, YAxis, ZAxis);
end;

function MeetingPoint(const Line1Start: array of Single; const Line1End: array of Single; const Line2Start: array of
  Single; const Line2End: array of Single): TSingle2;
begin
  ExpectLength('MeetingPoint', 'Line1Start', System.Length(Line1Start), 2);
  ExpectLength('MeetingPoint', 'Line1End', System.Length(Line1End), 2);
  ExpectLength('MeetingPoint', 'Line2Start', System.Length(Line2Start), 2);
  ExpectLength('MeetingPoint', 'Line2End', System.Length(Line2End), 2);
  ExpectSingles('MeetingPoint', 'Line1Start', PSingle(@Line1Start[0]), 2, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('MeetingPoint', 'Line1End', PSingle(@Line1End[0]), 2, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('MeetingPoint', 'Line2Start', PSingle(@Line2Start[0]), 2, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('MeetingPoint', 'Line2End', PSingle(@Line2End[0]), 2, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.MeetingPoint(Line1Start, Line1End, Line2Start, Line2End);
end;

function CrossingPoint(const Segment1Start: array of Single; const Segment1End: array of Single; const Segment2Start:
  array of Single; const Segment2End: array of Single): TSingle2;
begin
  ExpectLength('CrossingPoint', 'Segment1Start', System.Length(Segment1Start), 2);
  ExpectLength('CrossingPoint', 'Segment1End', System.Length(Segment1End), 2);
  ExpectLength('CrossingPoint', 'Segment2Start', System.Length(Segment2Start), 2);
  ExpectLength('CrossingPoint', 'Segment2End', System.Length(Segment2End), 2);
  ExpectSingles('CrossingPoint', 'Segment1Start', PSingle(@Segment1Start[0]), 2, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('CrossingPoint', 'Segment1End', PSingle(@Segment1End[0]), 2, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('CrossingPoint', 'Segment2Start', PSingle(@Segment2Start[0]), 2, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('CrossingPoint', 'Segment2End', PSingle(@Segment2End[0]), 2, -Infinity, Infinity,
    'valid is any number');
  Result := QuorvelUnchecked.CrossingPoint(Segment1Start, Segment1End, Segment2Start, Segment2End);
end;

function InSpan(const FirstEnd: array of Single; const SecondEnd: array of Single; const Point: array of Single):
  Single;
begin
  ExpectLength('InSpan', 'FirstEnd', System.Length(FirstEnd), 3);
  ExpectLength('InSpan', 'SecondEnd', System.Length(SecondEnd), 3);
  ExpectLength('InSpan', 'Point', System.Length(Point), 3);
  ExpectSingles('InSpan', 'FirstEnd', PSingle(@FirstEnd[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('InSpan', 'SecondEnd', PSingle(@SecondEnd[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('InSpan', 'Point', PSingle(@Point[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.InSpan(FirstEnd, SecondEnd, Point);
end;

function AheadAndNearer(const FirstEnd: array of Single; const SecondEnd: array of Single; const Point: array of
  Single): Single;
begin
  ExpectLength('AheadAndNearer', 'FirstEnd', System.Length(FirstEnd), 3);
  ExpectLength('AheadAndNearer', 'SecondEnd', System.Length(SecondEnd), 3);
  ExpectLength('AheadAndNearer', 'Point', System.Length(Point), 3);
  ExpectSingles('AheadAndNearer', 'FirstEnd', PSingle(@FirstEnd[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('AheadAndNearer', 'SecondEnd', PSingle(@SecondEnd[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('AheadAndNearer', 'Point', PSingle(@Point[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.AheadAndNearer(FirstEnd, SecondEnd, Point);
end;

function Coincide(X1: Single; Y1: Single; X2: Single; Y2: Single): Boolean;
begin
  ExpectSingle('Coincide', 'X1', X1, -Infinity, Infinity, 'valid is any number');
  ExpectSingle('Coincide', 'Y1', Y1, -Infinity, Infinity, 'valid is any number');
  ExpectSingle('Coincide', 'X2', X2, -Infinity, Infinity, 'valid is any number');
  ExpectSingle('Coincide', 'Y2', Y2, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.Coincide(X1, Y1, X2, Y2);
end;

function SideOfLine(const LineStart: array of Single; const LineEnd: array of Single; const Point: array of Single):
  LongInt;
begin
  ExpectLength('SideOfLine', 'LineStart', System.Length(LineStart), 2);
  ExpectLength('SideOfLine', 'LineEnd', System.Length(LineEnd), 2);
  ExpectLength('SideOfLine', 'Point', System.Length(Point), 2);
  ExpectSingles('SideOfLine', 'LineStart', PSingle(@LineStart[0]), 2, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('SideOfLine', 'LineEnd', PSingle(@LineEnd[0]), 2, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('SideOfLine', 'Point', PSingle(@Point[0]), 2, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.SideOfLine(LineStart, LineEnd, Point);
end;

function BackAzimuth(Angle: Single): Single;
begin
  ExpectSingle('BackAzimuth', 'Angle', Angle, 0, 360, 'valid 0 to 360 deg');
  Result := QuorvelUnchecked.BackAzimuth(Angle);
end;

function DirectionTo(SolarAltitude: Single; SolarAzimuth: Single): TSingle3;
begin
  ExpectSingle('DirectionTo', 'SolarAltitude', SolarAltitude, -1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad');
  ExpectSingle('DirectionTo', 'SolarAzimuth', SolarAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  Result := QuorvelUnchecked.DirectionTo(SolarAltitude, SolarAzimuth);
end;

function SurfaceAxes(SurfaceAzimuth: Single; Tilt: Single): TSurfaceAxes;
begin
  ExpectSingle('SurfaceAxes', 'SurfaceAzimuth', SurfaceAzimuth, 0, 6.2832, 'valid 0 to 6.2832 rad');
  ExpectSingle('SurfaceAxes', 'Tilt', Tilt, 0, 3.1416, 'valid 0 to 3.1416 rad');
  Result := QuorvelUnchecked.SurfaceAxes(SurfaceAzimuth, Tilt);
end;

function LocalToGlobal(const LocalVector: array of Single; const RotationMatrix: TSingle3x3): TSingle3;
begin
  ExpectLength('LocalToGlobal', 'LocalVector', System.Length(LocalVector), 3);
  ExpectSingles('LocalToGlobal', 'LocalVector', PSingle(@LocalVector[0]), 3, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('LocalToGlobal', 'RotationMatrix', PSingle(@RotationMatrix), 9, -1, 1, 'valid -1 to 1');
  Result := QuorvelUnchecked.LocalToGlobal(LocalVector, RotationMatrix);
end;

function GlobalToLocal(const GlobalVector: array of Single; const RotationMatrix: TSingle3x3): TSingle3;
begin
  ExpectLength('GlobalToLocal', 'GlobalVector', System.Length(GlobalVector), 3);
  ExpectSingles('GlobalToLocal', 'GlobalVector', PSingle(@GlobalVector[0]), 3, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('GlobalToLocal', 'RotationMatrix', PSingle(@RotationMatrix), 9, -1, 1, 'valid -1 to 1');
  Result := QuorvelUnchecked.GlobalToLocal(GlobalVector, RotationMatrix);
end;

function PlanArea(const X: array of Single; const Y: array of Single): Single;
begin
  ExpectAsMany('PlanArea', 'Y', System.Length(Y), 'X', System.Length(X));
  ExpectCount('PlanArea', 'X', System.Length(X), 3, 2147483647);
  ExpectSingles('PlanArea', 'X', PSingle(@X[0]), System.Length(X), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('PlanArea', 'Y', PSingle(@Y[0]), System.Length(Y), -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.PlanArea(X, Y);
end;

function SignedPlanArea(const X: array of Single; const Y: array of Single): Single;
begin
  ExpectAsMany('SignedPlanArea', 'Y', System.Length(Y), 'X', System.Length(X));
  ExpectCount('SignedPlanArea', 'X', System.Length(X), 3, 2147483647);
  ExpectSingles('SignedPlanArea', 'X', PSingle(@X[0]), System.Length(X), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('SignedPlanArea', 'Y', PSingle(@Y[0]), System.Length(Y), -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.SignedPlanArea(X, Y);
end;

function AreaInSpace(const X: array of Single; const Y: array of Single; const Z: array of Single): Single;
begin
  ExpectAsMany('AreaInSpace', 'Y', System.Length(Y), 'X', System.Length(X));
  ExpectAsMany('AreaInSpace', 'Z', System.Length(Z), 'X', System.Length(X));
  ExpectCount('AreaInSpace', 'X', System.Length(X), 3, 2147483647);
  ExpectSingles('AreaInSpace', 'X', PSingle(@X[0]), System.Length(X), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('AreaInSpace', 'Y', PSingle(@Y[0]), System.Length(Y), -Infinity, Infinity, 'valid is any number');
  ExpectSingles('AreaInSpace', 'Z', PSingle(@Z[0]), System.Length(Z), -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.AreaInSpace(X, Y, Z);
end;

function PolygonOrientation(const Polygon: array of TSingle3): TPolygonOrientation;
begin
  ExpectCount('PolygonOrientation', 'Polygon', System.Length(Polygon), 3, 2147483647);
  ExpectSingles('PolygonOrientation', 'Polygon', PSingle(@Polygon[0]), 3 * System.Length(Polygon), -Infinity, Infinity,
    'valid is any number');
  Result := QuorvelUnchecked.PolygonOrientation(Polygon);
end;

function Projection(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point: array of Single;
  const Direction: array of Single): TSingle3;
begin
  ExpectLength('Projection', 'PlanePoint', System.Length(PlanePoint), 3);
  ExpectLength('Projection', 'PlaneNormal', System.Length(PlaneNormal), 3);
  ExpectLength('Projection', 'Point', System.Length(Point), 3);
  ExpectLength('Projection', 'Direction', System.Length(Direction), 3);
  ExpectSingles('Projection', 'PlanePoint', PSingle(@PlanePoint[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('Projection', 'PlaneNormal', PSingle(@PlaneNormal[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('Projection', 'Point', PSingle(@Point[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('Projection', 'Direction', PSingle(@Direction[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.Projection(PlanePoint, PlaneNormal, Point, Direction);
end;

function ForwardProjection(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point: array of
  Single; const Direction: array of Single): TSingle3;
begin
  ExpectLength('ForwardProjection', 'PlanePoint', System.Length(PlanePoint), 3);
  ExpectLength('ForwardProjection', 'PlaneNormal', System.Length(PlaneNormal), 3);
  ExpectLength('ForwardProjection', 'Point', System.Length(Point), 3);
  ExpectLength('ForwardProjection', 'Direction', System.Length(Direction), 3);
  ExpectSingles('ForwardProjection', 'PlanePoint', PSingle(@PlanePoint[0]), 3, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('ForwardProjection', 'PlaneNormal', PSingle(@PlaneNormal[0]), 3, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('ForwardProjection', 'Point', PSingle(@Point[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('ForwardProjection', 'Direction', PSingle(@Direction[0]), 3, -Infinity, Infinity,
    'valid is any number');
  Result := QuorvelUnchecked.ForwardProjection(PlanePoint, PlaneNormal, Point, Direction);
end;

function ForwardProjectionOrStart(const PlanePoint: array of Single; const PlaneNormal: array of Single; const Point:
  array of Single; const Direction: array of Single): TSingle3;
begin
  ExpectLength('ForwardProjectionOrStart', 'PlanePoint', System.Length(PlanePoint), 3);
  ExpectLength('ForwardProjectionOrStart', 'PlaneNormal', System.Length(PlaneNormal), 3);
  ExpectLength('ForwardProjectionOrStart', 'Point', System.Length(Point), 3);
  ExpectLength('ForwardProjectionOrStart', 'Direction', System.Length(Direction), 3);
  ExpectSingles('ForwardProjectionOrStart', 'PlanePoint', PSingle(@PlanePoint[0]), 3, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('ForwardProjectionOrStart', 'PlaneNormal', PSingle(@PlaneNormal[0]), 3, -Infinity, Infinity,
    'valid is any number');
  ExpectSingles('ForwardProjectionOrStart', 'Point', PSingle(@Point[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('ForwardProjectionOrStart', 'Direction', PSingle(@Direction[0]), 3, -Infinity, Infinity,
    'valid is any number');
  Result := QuorvelUnchecked.ForwardProjectionOrStart(PlanePoint, PlaneNormal, Point, Direction);
end;

function DotProduct(const VectorA: array of Single; const VectorB: array of Single): Single;
begin
  ExpectLength('DotProduct', 'VectorA', System.Length(VectorA), 3);
  ExpectLength('DotProduct', 'VectorB', System.Length(VectorB), 3);
  ExpectSingles('DotProduct', 'VectorA', PSingle(@VectorA[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('DotProduct', 'VectorB', PSingle(@VectorB[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.DotProduct(VectorA, VectorB);
end;

function DotProductInDouble(const VectorA: array of Double; const VectorB: array of Double): Double;
begin
  ExpectLength('DotProductInDouble', 'VectorA', System.Length(VectorA), 3);
  ExpectLength('DotProductInDouble', 'VectorB', System.Length(VectorB), 3);
  ExpectDoubles('DotProductInDouble', 'VectorA', PDouble(@VectorA[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectDoubles('DotProductInDouble', 'VectorB', PDouble(@VectorB[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.DotProductInDouble(VectorA, VectorB);
end;

function CrossProduct(const VectorA: array of Single; const VectorB: array of Single): TSingle3;
begin
  ExpectLength('CrossProduct', 'VectorA', System.Length(VectorA), 3);
  ExpectLength('CrossProduct', 'VectorB', System.Length(VectorB), 3);
  ExpectSingles('CrossProduct', 'VectorA', PSingle(@VectorA[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectSingles('CrossProduct', 'VectorB', PSingle(@VectorB[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.CrossProduct(VectorA, VectorB);
end;

function CrossProductInDouble(const VectorA: array of Double; const VectorB: array of Double): TDouble3;
begin
  ExpectLength('CrossProductInDouble', 'VectorA', System.Length(VectorA), 3);
  ExpectLength('CrossProductInDouble', 'VectorB', System.Length(VectorB), 3);
  ExpectDoubles('CrossProductInDouble', 'VectorA', PDouble(@VectorA[0]), 3, -Infinity, Infinity, 'valid is any number');
  ExpectDoubles('CrossProductInDouble', 'VectorB', PDouble(@VectorB[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.CrossProductInDouble(VectorA, VectorB);
end;

function VectorLength(const Vector: array of Single): Single;
begin
  ExpectLength('VectorLength', 'Vector', System.Length(Vector), 3);
  ExpectSingles('VectorLength', 'Vector', PSingle(@Vector[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.VectorLength(Vector);
end;

function LengthInDouble(const Vector: array of Double): Double;
begin
  ExpectLength('LengthInDouble', 'Vector', System.Length(Vector), 3);
  ExpectDoubles('LengthInDouble', 'Vector', PDouble(@Vector[0]), 3, -Infinity, Infinity, 'valid is any number');
  Result := QuorvelUnchecked.LengthInDouble(Vector);
end;

end.
