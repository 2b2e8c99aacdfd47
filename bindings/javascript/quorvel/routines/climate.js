// Produced from the catalogue of routines (catalogue/); do not edit.
import { routine } from '../routine.js';
import * as selectors from '../selectors.js';

export const locateBand = routine('climate.locateBand', 'CLBAN1', 'locate_band', [
  { dir: 'in', name: 'fraction', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'in', name: 'frequencies', type: 'Real', shape: [12, 10], range: [0, 1] },
  { dir: 'out', name: 'lowerBand', type: 'Integer' },
  { dir: 'out', name: 'upperBand', type: 'Integer' },
  { dir: 'out', name: 'bandWeight', type: 'Real' },
]);

export const bandClimate = routine('climate.bandClimate', 'CLBAND', 'band_climate', [
  { dir: 'in', name: 'band', type: 'Integer', range: [0, 10] },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'in', name: 'bandSet', type: 'Integer', selector: selectors.BandSet },
  { dir: 'inout', name: 'percentage', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'out', name: 'q1', type: 'Real' },
  { dir: 'out', name: 'q2', type: 'Real' },
  { dir: 'out', name: 'q3', type: 'Real', unit: '°C' },
  { dir: 'out', name: 'q4', type: 'Real', unit: '°C' },
  { dir: 'out', name: 'q5', type: 'Real', unit: '°C' },
  { dir: 'out', name: 'q6', type: 'Real', unit: '°C' },
  { dir: 'out', name: 'timeA', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'timeB', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'q7', type: 'Real', unit: '%' },
  { dir: 'out', name: 'q8', type: 'Real', unit: 'm/s' },
]);

export const interpolateBandRows = routine('climate.interpolateBandRows', 'CLBAN2', 'interpolate_band_rows', [
  { dir: 'in', name: 'baseRow', type: 'Integer', range: [0, 174] },
  { dir: 'in', name: 'lowerBand', type: 'Integer', range: [1, 10] },
  { dir: 'in', name: 'upperBand', type: 'Integer', range: [1, 10] },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'in', name: 'bandWeight', type: 'Real', range: [-1, 1] },
  { dir: 'out', name: 'value', type: 'Real' },
]);

export const bandRow = routine('climate.bandRow', 'CLBAN3', 'band_row', [
  { dir: 'in', name: 'row', type: 'Integer', range: [1, 184] },
  { dir: 'out', name: 'values', type: 'Real', shape: [12] },
]);

export const storeDesignDay = routine('climate.storeDesignDay', 'CLDAY', 'store_design_day', [
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'out', name: 'day', type: 'Integer' },
]);

export const storeDesignDayByOption = routine(
  'climate.storeDesignDayByOption',
  'CLDAYEX',
  'store_design_day_by_option', [
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'out', name: 'day', type: 'Integer' },
  { dir: 'in', name: 'dayKind', type: 'Integer', selector: selectors.DayKind },
]);

export const designDay = routine('climate.designDay', 'ICLDAY', 'design_day', [
  { dir: 'result', name: 'day', type: 'Integer' },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
]);

export const designDayByOption = routine('climate.designDayByOption', 'ICLDAYEX', 'design_day_by_option', [
  { dir: 'result', name: 'day', type: 'Integer' },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'in', name: 'dayKind', type: 'Integer', selector: selectors.DayKind },
]);

export const secondDesignDay = routine('climate.secondDesignDay', 'ICLDA2', 'second_design_day', [
  { dir: 'result', name: 'day', type: 'Integer' },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
]);

export const secondDesignDayByOption = routine(
  'climate.secondDesignDayByOption',
  'ICLDA2EX',
  'second_design_day_by_option', [
  { dir: 'result', name: 'day', type: 'Integer' },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'in', name: 'dayKind', type: 'Integer', selector: selectors.DayKind },
]);

export const stationRecords = routine('climate.stationRecords', 'CLBNF0', null, [
  { dir: 'in', name: 'fileName', type: 'Text' },
  { dir: 'in', name: 'station', type: 'Integer', range: [1, Infinity] },
  { dir: 'in', name: 'month', type: 'Integer', range: [0, 12] },
  { dir: 'inout', name: 'stationRecords', type: 'Real', shape: [11, 12] },
]);

export const stationClimate = routine('climate.stationClimate', 'CLBNFI', null, [
  { dir: 'in', name: 'fileUnit', type: 'Integer', selector: selectors.FileUnit },
  { dir: 'in', name: 'station', type: 'Integer', range: [1, Infinity] },
  { dir: 'in', name: 'band', type: 'Integer', range: [0, 10] },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'in', name: 'bandSet', type: 'Integer', selector: selectors.BandSet },
  { dir: 'in', name: 'percentage', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'out', name: 'q1', type: 'Real' },
  { dir: 'out', name: 'q2', type: 'Real' },
  { dir: 'out', name: 'q3', type: 'Real' },
  { dir: 'out', name: 'q4', type: 'Real' },
  { dir: 'out', name: 'q5', type: 'Real' },
  { dir: 'out', name: 'q6', type: 'Real' },
  { dir: 'out', name: 'q7', type: 'Real' },
  { dir: 'out', name: 'timeA', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'timeB', type: 'Real', unit: 'h' },
]);

export const locateStationBand = routine('climate.locateStationBand', 'CLBNF1', null, [
  { dir: 'in', name: 'fraction', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'out', name: 'lowerBand', type: 'Integer' },
  { dir: 'out', name: 'upperBand', type: 'Integer' },
  { dir: 'out', name: 'bandWeight', type: 'Real' },
]);

export const interpolateStationRows = routine('climate.interpolateStationRows', 'CLBNF2', null, [
  { dir: 'in', name: 'baseRow', type: 'Integer', range: [2, 154] },
  { dir: 'in', name: 'lowerBand', type: 'Integer', range: [1, 10] },
  { dir: 'in', name: 'upperBand', type: 'Integer', range: [1, 10] },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'in', name: 'bandWeight', type: 'Real', range: [-1, 1] },
  { dir: 'out', name: 'value', type: 'Real' },
]);

export const stationRow = routine('climate.stationRow', 'CLBNF3', null, [
  { dir: 'in', name: 'row', type: 'Integer', range: [1, 171] },
  { dir: 'out', name: 'values', type: 'Real', shape: [12] },
]);

export const dailyTemperature = routine('climate.dailyTemperature', 'CLTAO', 'daily_temperature', [
  { dir: 'result', name: 'temperature', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'hour', type: 'Real', unit: 'h', range: [0, 24] },
  { dir: 'in', name: 'highestTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'lowestTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'hourOfHighest', type: 'Real', unit: 'h', range: [0, 24] },
  { dir: 'in', name: 'hourOfLowest', type: 'Real', unit: 'h', range: [0, 24] },
]);

export const dailyValue = routine('climate.dailyValue', 'CLTAOX', 'daily_value', [
  { dir: 'result', name: 'value', type: 'Real' },
  { dir: 'in', name: 'hour', type: 'Real', unit: 'h', range: [0, 24] },
  { dir: 'in', name: 'mean', type: 'Real' },
  { dir: 'in', name: 'amplitude', type: 'Real' },
  { dir: 'in', name: 'firstHour', type: 'Real', unit: 'h', range: [0, 24] },
  { dir: 'in', name: 'secondHour', type: 'Real', unit: 'h', range: [0, 24] },
  { dir: 'in', name: 'amplitudeFactor', type: 'Real' },
]);

export const designIrradiance = routine('climate.designIrradiance', 'CLSNNR', 'design_irradiance', [
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [0, 1.5707964] },
  { dir: 'unread', name: 'solarAzimuth', type: 'Real' },
  { dir: 'in', name: 'siteHeight', type: 'Real', unit: 'm', range: [0, 4000] },
  { dir: 'in', name: 'skyKind', type: 'Integer', selector: selectors.SkyKind },
  { dir: 'out', name: 'directNormal', type: 'Real', unit: 'W/m²' },
  { dir: 'out', name: 'diffuseHorizontal', type: 'Real', unit: 'W/m²' },
]);

export const heightFactor = routine('climate.heightFactor', 'CLHIGH', 'height_factor', [
  { dir: 'result', name: 'factor', type: 'Real' },
  { dir: 'in', name: 'siteHeight', type: 'Real', unit: 'm', range: [0, 4000] },
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [0, 1.5707964] },
]);

export const eccentricityFactor = routine('climate.eccentricityFactor', 'CLETAJ', 'eccentricity_factor', [
  { dir: 'result', name: 'factor', type: 'Real' },
  { dir: 'in', name: 'day', type: 'Integer', range: [1, 366] },
]);

export const clearnessIndex = routine('climate.clearnessIndex', 'CLMODUL', 'clearness_index', [
  { dir: 'result', name: 'clearnessIndex', type: 'Real' },
  { dir: 'in', name: 'day', type: 'Integer', range: [1, 366] },
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [0, 1.5707964] },
  { dir: 'in', name: 'globalHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
]);

export const muneerSlope = routine('climate.muneerSlope', 'CLMUNRAD', 'muneer_slope', [
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [0, 1.5707964] },
  { dir: 'in', name: 'solarAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'surfaceAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'beamHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'diffuseHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'extraterrestrialHorizontal', type: 'Real', unit: 'W/m²', range: [0, 1415] },
  { dir: 'in', name: 'groundReflectance', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'surfaceBeam', type: 'Real', unit: 'W/m²' },
  { dir: 'out', name: 'surfaceDiffuse', type: 'Real', unit: 'W/m²' },
  { dir: 'out', name: 'groundReflected', type: 'Real', unit: 'W/m²' },
  { dir: 'out', name: 'incidence', type: 'Real', unit: 'rad' },
]);

export const perezDiffuse = routine('climate.perezDiffuse', 'CLPERSKY', 'perez_diffuse', [
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [0, 1.5707964] },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'beamHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'diffuseHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'out', name: 'surfaceDiffuse', type: 'Real', unit: 'W/m²' },
  { dir: 'in', name: 'incidence', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'extraterrestrialNormal', type: 'Real', unit: 'W/m²', range: [1320, 1415] },
]);

export const siteConstants = routine('climate.siteConstants', 'CLCONS', 'site_constants', [
  { dir: 'in', name: 'siteClass', type: 'Integer', range: [1, 6] },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'out', name: 'groundReflectance', type: 'Real' },
  { dir: 'out', name: 'beamFactor', type: 'Real' },
  { dir: 'out', name: 'diffuseFactor', type: 'Real' },
  { dir: 'out', name: 'alternativeDiffuseFactor', type: 'Real' },
]);

export const diffuseTiltFactor = routine('climate.diffuseTiltFactor', 'CLDIFRAD', 'diffuse_tilt_factor', [
  { dir: 'result', name: 'factor', type: 'Real' },
  { dir: 'in', name: 'day', type: 'Integer', range: [1, 366] },
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [0, 1.5707964] },
  { dir: 'in', name: 'beamHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'unread', name: 'unused', type: 'Real' },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'skyModel', type: 'Integer', selector: selectors.SkyModel },
]);

export const slopeDiffuse = routine('climate.slopeDiffuse', 'CLDIFSLO', 'slope_diffuse', [
  { dir: 'result', name: 'surfaceDiffuse', type: 'Real', unit: 'W/m²' },
  { dir: 'in', name: 'day', type: 'Integer', range: [1, 366] },
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [0, 1.5707964] },
  { dir: 'in', name: 'solarAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'surfaceAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'beamHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'diffuseHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'skyModel', type: 'Integer', selector: selectors.SkyModel },
]);

export const solAirTemperature = routine('climate.solAirTemperature', 'CLTEO', 'sol_air_temperature', [
  { dir: 'result', name: 'temperature', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'baseTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'surfaceCoefficient', type: 'Real', unit: 'W/m²K', range: [0, Infinity] },
  { dir: 'in', name: 'absorptance', type: 'Real', range: [0, 1] },
  { dir: 'unread', name: 'unused1', type: 'Real' },
  { dir: 'unread', name: 'unused2', type: 'Real' },
  { dir: 'in', name: 'irradiance', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'longWaveLoss', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
]);

export const longWaveLoss = routine('climate.longWaveLoss', 'CLRERD', 'long_wave_loss', [
  { dir: 'result', name: 'longWaveLoss', type: 'Real', unit: 'W/m²' },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'cloudCover', type: 'Real', range: [0, 1] },
]);

export const solarTimeCorrection = routine('climate.solarTimeCorrection', 'CLTCOR', 'solar_time_correction', [
  { dir: 'result', name: 'timeShift', type: 'Real', unit: 'h' },
  { dir: 'in', name: 'clockOffset', type: 'Real', unit: 'h' },
  { dir: 'in', name: 'day', type: 'Integer', range: [1, 366] },
  { dir: 'in', name: 'longitude', type: 'Real', unit: 'rad', range: [-3.1416, 3.1416] },
  { dir: 'in', name: 'referenceLongitude', type: 'Real', unit: 'rad', range: [-3.1416, 3.1416] },
]);

export const almanacPosition = routine('climate.almanacPosition', 'CLYALLOP', 'almanac_position', [
  { dir: 'in', name: 'timeKind', type: 'Integer', selector: selectors.TimeKind },
  { dir: 'in', name: 'year', type: 'Integer', range: [1976, 2099] },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'in', name: 'dayOfMonth', type: 'Integer', range: [1, 31] },
  { dir: 'in', name: 'clockTime', type: 'Real', unit: 'h', range: [0, 24] },
  { dir: 'in', name: 'latitude', type: 'Real', unit: 'rad', range: [-1.5707964, 1.5707964] },
  { dir: 'inout', name: 'longitude', type: 'Real', unit: 'rad', range: [-3.1416, 3.1416] },
  { dir: 'inout', name: 'zoneMeridian', type: 'Real', unit: 'rad', range: [-3.1416, 3.1416] },
  { dir: 'out', name: 'solarAltitude', type: 'Real', unit: 'rad' },
  { dir: 'out', name: 'solarAzimuth', type: 'Real', unit: 'rad' },
  { dir: 'out', name: 'declination', type: 'Real', unit: 'rad' },
]);

export const almanacSunHours = routine('climate.almanacSunHours', 'CLRISESET', 'almanac_sun_hours', [
  { dir: 'in', name: 'year', type: 'Integer', range: [1976, 2099] },
  { dir: 'in', name: 'month', type: 'Integer', range: [1, 12] },
  { dir: 'in', name: 'dayOfMonth', type: 'Integer', range: [1, 31] },
  { dir: 'in', name: 'latitude', type: 'Real', unit: 'rad', range: [-1.5707964, 1.5707964] },
  { dir: 'out', name: 'sunrise', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'sunset', type: 'Real', unit: 'h' },
]);

export const solarGeometry = routine('climate.solarGeometry', 'CLSNGE', 'solar_geometry', [
  { dir: 'in', name: 'latitude', type: 'Real', unit: 'rad', range: [-1.5707964, 1.5707964] },
  { dir: 'in', name: 'day', type: 'Integer', range: [1, 365] },
  { dir: 'in', name: 'solarTime', type: 'Real', unit: 'h', range: [0, 24] },
  { dir: 'out', name: 'declination', type: 'Real', unit: 'rad' },
  { dir: 'out', name: 'solarAltitude', type: 'Real', unit: 'rad' },
  { dir: 'out', name: 'solarAzimuth', type: 'Real', unit: 'rad' },
  { dir: 'out', name: 'sunrise', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'sunset', type: 'Real', unit: 'h' },
]);

export const surfaceAngles = routine('climate.surfaceAngles', 'CLSNSR', 'surface_angles', [
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [-1.5707964, 1.5707964] },
  { dir: 'in', name: 'solarAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'surfaceAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'out', name: 'incidence', type: 'Real', unit: 'rad' },
  { dir: 'out', name: 'verticalShadowAngle', type: 'Real', unit: 'rad' },
  { dir: 'out', name: 'horizontalShadowAngle', type: 'Real', unit: 'rad' },
]);

export const surfaceIrradiance = routine('climate.surfaceIrradiance', 'CLSORD', 'surface_irradiance', [
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [0, 1.5707964] },
  { dir: 'in', name: 'solarAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'surfaceAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'directNormal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'diffuseHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'groundReflectance', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'beamFactor', type: 'Real', range: [0, Infinity] },
  { dir: 'in', name: 'diffuseFactor', type: 'Real', range: [0, Infinity] },
  { dir: 'out', name: 'surfaceBeam', type: 'Real', unit: 'W/m²' },
  { dir: 'out', name: 'surfaceDiffuse', type: 'Real', unit: 'W/m²' },
  { dir: 'out', name: 'groundReflected', type: 'Real', unit: 'W/m²' },
]);

export const surfaceIrradianceAndIncidence = routine(
  'climate.surfaceIrradianceAndIncidence',
  'CLSOR2',
  'surface_irradiance_and_incidence', [
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [0, 1.5707964] },
  { dir: 'in', name: 'solarAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'surfaceAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'directNormal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'diffuseHorizontal', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'groundReflectance', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'beamFactor', type: 'Real', range: [0, Infinity] },
  { dir: 'in', name: 'diffuseFactor', type: 'Real', range: [0, Infinity] },
  { dir: 'out', name: 'surfaceBeam', type: 'Real', unit: 'W/m²' },
  { dir: 'out', name: 'surfaceDiffuse', type: 'Real', unit: 'W/m²' },
  { dir: 'out', name: 'groundReflected', type: 'Real', unit: 'W/m²' },
  { dir: 'out', name: 'incidence', type: 'Real', unit: 'rad' },
]);
