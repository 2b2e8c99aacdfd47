// Produced from the catalogue of routines (catalogue/); do not edit.
import { routine } from '../routine.js';
import * as selectors from '../selectors.js';

export const dryAirEnthalpy = routine('psychro.dryAirEnthalpy', 'PSHDRY', 'dry_air_enthalpy', [
  { dir: 'result', name: 'enthalpy', type: 'Real', unit: 'kJ/kg' },
  { dir: 'in', name: 'temperature', type: 'Real', unit: '°C', range: [-50, 100] },
]);

export const waterVapourEnthalpy = routine('psychro.waterVapourEnthalpy', 'PSHVAP', 'water_vapour_enthalpy', [
  { dir: 'result', name: 'enthalpy', type: 'Real', unit: 'kJ/kg' },
  { dir: 'in', name: 'temperature', type: 'Real', unit: '°C', range: [-50, 100] },
]);

export const dryAirSpecificHeat = routine('psychro.dryAirSpecificHeat', 'PSCPDR', 'dry_air_specific_heat', [
  { dir: 'result', name: 'specificHeat', type: 'Real', unit: 'kJ/kgK' },
  { dir: 'in', name: 'temperature', type: 'Real', unit: '°C', range: [-50, 100] },
]);

export const waterVapourSpecificHeat = routine(
  'psychro.waterVapourSpecificHeat',
  'PSCPVA',
  'water_vapour_specific_heat', [
  { dir: 'result', name: 'specificHeat', type: 'Real', unit: 'kJ/kgK' },
  { dir: 'in', name: 'temperature', type: 'Real', unit: '°C', range: [-50, 100] },
]);

export const latentHeat = routine('psychro.latentHeat', 'PSHFG', 'latent_heat', [
  { dir: 'result', name: 'enthalpy', type: 'Real', unit: 'kJ/kg' },
  { dir: 'in', name: 'temperature', type: 'Real', unit: '°C', range: [-50, 100] },
]);

export const dryBulbFromVapourPressureAndRelativeHumidity = routine(
  'psychro.dryBulbFromVapourPressureAndRelativeHumidity',
  null,
  'dry_bulb_from_vapour_pressure_and_relative_humidity', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'vapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
  { dir: 'in', name: 'relativeHumidity', type: 'Real', unit: '%', range: [0, 100] },
]);

export const dryBulbFromVapourPressureAndPercentageSaturation = routine(
  'psychro.dryBulbFromVapourPressureAndPercentageSaturation',
  null,
  'dry_bulb_from_vapour_pressure_and_percentage_saturation', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'vapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
  { dir: 'in', name: 'percentageSaturation', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const dryBulbFromMoistureContentAndRelativeHumidity = routine(
  'psychro.dryBulbFromMoistureContentAndRelativeHumidity',
  null,
  'dry_bulb_from_moisture_content_and_relative_humidity', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'relativeHumidity', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const dryBulbFromMoistureContentAndPercentageSaturation = routine(
  'psychro.dryBulbFromMoistureContentAndPercentageSaturation',
  null,
  'dry_bulb_from_moisture_content_and_percentage_saturation', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'percentageSaturation', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const dryBulbFromEnthalpyAndMoistureContent = routine(
  'psychro.dryBulbFromEnthalpyAndMoistureContent',
  null,
  'dry_bulb_from_enthalpy_and_moisture_content', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'enthalpy', type: 'Real', unit: 'kJ/kg', range: [-10, 460] },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
]);

export const dryBulbFromEnthalpyAndVapourPressure = routine(
  'psychro.dryBulbFromEnthalpyAndVapourPressure',
  null,
  'dry_bulb_from_enthalpy_and_vapour_pressure', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'enthalpy', type: 'Real', unit: 'kJ/kg', range: [-10, 460] },
  { dir: 'in', name: 'vapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const dryBulbFromEnthalpyAndRelativeHumidity = routine(
  'psychro.dryBulbFromEnthalpyAndRelativeHumidity',
  null,
  'dry_bulb_from_enthalpy_and_relative_humidity', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'enthalpy', type: 'Real', unit: 'kJ/kg', range: [-10, 460] },
  { dir: 'in', name: 'relativeHumidity', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const dryBulbFromEnthalpyAndPercentageSaturation = routine(
  'psychro.dryBulbFromEnthalpyAndPercentageSaturation',
  null,
  'dry_bulb_from_enthalpy_and_percentage_saturation', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'enthalpy', type: 'Real', unit: 'kJ/kg', range: [-10, 460] },
  { dir: 'in', name: 'percentageSaturation', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const dryBulbFromWetBulbAndVapourPressure = routine(
  'psychro.dryBulbFromWetBulbAndVapourPressure',
  null,
  'dry_bulb_from_wet_bulb_and_vapour_pressure', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'wetBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'vapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const dryBulbFromWetBulbAndMoistureContent = routine(
  'psychro.dryBulbFromWetBulbAndMoistureContent',
  null,
  'dry_bulb_from_wet_bulb_and_moisture_content', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'wetBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const dryBulbFromWetBulbAndRelativeHumidity = routine(
  'psychro.dryBulbFromWetBulbAndRelativeHumidity',
  null,
  'dry_bulb_from_wet_bulb_and_relative_humidity', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'wetBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'relativeHumidity', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const dryBulbFromWetBulbAndPercentageSaturation = routine(
  'psychro.dryBulbFromWetBulbAndPercentageSaturation',
  null,
  'dry_bulb_from_wet_bulb_and_percentage_saturation', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'wetBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'percentageSaturation', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const dryBulbFromWetBulbAndEnthalpy = routine(
  'psychro.dryBulbFromWetBulbAndEnthalpy',
  null,
  'dry_bulb_from_wet_bulb_and_enthalpy', [
  { dir: 'result', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'wetBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'enthalpy', type: 'Real', unit: 'kJ/kg', range: [-10, 460] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const adiabaticMixing = routine('psychro.adiabaticMixing', null, 'adiabatic_mixing', [
  { dir: 'in', name: 'firstAirFlow', type: 'Real', unit: 'kg/s', range: [0, Infinity] },
  { dir: 'in', name: 'firstDryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'firstMoistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'secondAirFlow', type: 'Real', unit: 'kg/s', range: [0, Infinity] },
  { dir: 'in', name: 'secondDryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'secondMoistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'out', name: 'dryBulb', type: 'Real', unit: '°C' },
  { dir: 'out', name: 'moistureContent', type: 'Real', unit: 'kg/kg' },
  { dir: 'out', name: 'enthalpy', type: 'Real', unit: 'kJ/kg' },
]);

export const moistureContentFromPsychrometer = routine(
  'psychro.moistureContentFromPsychrometer',
  'PSGS',
  'moisture_content_from_psychrometer', [
  { dir: 'result', name: 'moistureContent', type: 'Real', unit: 'kg/kg' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'wetBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const moistureContent = routine('psychro.moistureContent', null, 'moisture_content', [
  { dir: 'result', name: 'moistureContent', type: 'Real', unit: 'kg/kg' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'vapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const vapourPressureFromMoistureContent = routine(
  'psychro.vapourPressureFromMoistureContent',
  null,
  'vapour_pressure_from_moisture_content', [
  { dir: 'result', name: 'vapourPressure', type: 'Real', unit: 'Pa' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const moistureContentFromPercentageSaturation = routine(
  'psychro.moistureContentFromPercentageSaturation',
  null,
  'moisture_content_from_percentage_saturation', [
  { dir: 'result', name: 'moistureContent', type: 'Real', unit: 'kg/kg' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'percentageSaturation', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const moistureContentFromEnthalpy = routine(
  'psychro.moistureContentFromEnthalpy',
  null,
  'moisture_content_from_enthalpy', [
  { dir: 'result', name: 'moistureContent', type: 'Real', unit: 'kg/kg' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-50, 100] },
  { dir: 'in', name: 'enthalpy', type: 'Real', unit: 'kJ/kg', range: [-10, 460] },
]);

export const moistAirDensity = routine('psychro.moistAirDensity', null, 'moist_air_density', [
  { dir: 'result', name: 'moistAirDensity', type: 'Real', unit: 'kg/m³' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const percentageSaturation = routine('psychro.percentageSaturation', 'PSPCST', 'percentage_saturation', [
  { dir: 'result', name: 'percentageSaturation', type: 'Real', unit: '%' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const specificEnthalpy = routine('psychro.specificEnthalpy', null, 'specific_enthalpy', [
  { dir: 'result', name: 'enthalpy', type: 'Real', unit: 'kJ/kg' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-50, 100] },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
]);

export const specificEnthalpyFromPsychrometer = routine(
  'psychro.specificEnthalpyFromPsychrometer',
  'PSHWET',
  'specific_enthalpy_from_psychrometer', [
  { dir: 'result', name: 'enthalpy', type: 'Real', unit: 'kJ/kg' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'wetBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const specificVolume = routine('psychro.specificVolume', 'PSSPVL', 'specific_volume', [
  { dir: 'result', name: 'specificVolume', type: 'Real', unit: 'm³/kg' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const saturationTemperatureFromEnthalpy = routine(
  'psychro.saturationTemperatureFromEnthalpy',
  'PSTSAT',
  'saturation_temperature_from_enthalpy', [
  { dir: 'result', name: 'temperature', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'enthalpy', type: 'Real', unit: 'kJ/kg', range: [-10, 460] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
]);

export const poolEvaporation = routine('psychro.poolEvaporation', 'TPPOOL', 'pool_evaporation', [
  { dir: 'in', name: 'waterArea', type: 'Real', unit: 'm²', range: [0, Infinity] },
  { dir: 'in', name: 'wettedArea', type: 'Real', unit: 'm²', range: [0, Infinity] },
  { dir: 'in', name: 'waterTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'referenceTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'bathers', type: 'Integer', range: [0, Infinity] },
  { dir: 'in', name: 'referenceCoefficient', type: 'Real', unit: 'W/m²K', range: [0, Infinity] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'out', name: 'evaporationRate', type: 'Real', unit: 'kg/(m²s)' },
  { dir: 'out', name: 'latentLoad', type: 'Real', unit: 'W' },
  { dir: 'out', name: 'convectiveLoad', type: 'Real', unit: 'W' },
  { dir: 'out', name: 'referenceLoad', type: 'Real', unit: 'W' },
]);

export const poolEvaporationFromWetBulb = routine(
  'psychro.poolEvaporationFromWetBulb',
  'TPPOOL2',
  'pool_evaporation_from_wet_bulb', [
  { dir: 'in', name: 'waterArea', type: 'Real', unit: 'm²', range: [0, Infinity] },
  { dir: 'in', name: 'wettedArea', type: 'Real', unit: 'm²', range: [0, Infinity] },
  { dir: 'in', name: 'waterTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'wetBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'referenceTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'bathers', type: 'Integer', range: [0, Infinity] },
  { dir: 'in', name: 'referenceCoefficient', type: 'Real', unit: 'W/m²K', range: [0, Infinity] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'out', name: 'evaporationRate', type: 'Real', unit: 'kg/(m²s)' },
  { dir: 'out', name: 'latentLoad', type: 'Real', unit: 'W' },
  { dir: 'out', name: 'convectiveLoad', type: 'Real', unit: 'W' },
  { dir: 'out', name: 'referenceLoad', type: 'Real', unit: 'W' },
]);

export const saturationPressure = routine('psychro.saturationPressure', 'PSSVP', 'saturation_pressure', [
  { dir: 'result', name: 'saturationPressure', type: 'Real', unit: 'Pa' },
  { dir: 'in', name: 'temperature', type: 'Real', unit: '°C', range: [-100, 200] },
]);

export const dewPoint = routine('psychro.dewPoint', null, 'dew_point', [
  { dir: 'result', name: 'dewPoint', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'vapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
]);

export const vapourPressure = routine('psychro.vapourPressure', 'PSVP', 'vapour_pressure', [
  { dir: 'result', name: 'vapourPressure', type: 'Real', unit: 'Pa' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'relativeHumidity', type: 'Real', unit: '%', range: [0, 100] },
]);

export const relativeHumidity = routine('psychro.relativeHumidity', null, 'relative_humidity', [
  { dir: 'result', name: 'relativeHumidity', type: 'Real', unit: '%' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'vapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
]);

export const vapourPressureFromPsychrometer = routine(
  'psychro.vapourPressureFromPsychrometer',
  'PSVAP',
  'vapour_pressure_from_psychrometer', [
  { dir: 'result', name: 'vapourPressure', type: 'Real', unit: 'Pa' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'wetBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const weightedTemperature = routine('psychro.weightedTemperature', 'PSTEFF', 'weighted_temperature', [
  { dir: 'result', name: 'temperature', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'firstTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'secondTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
]);

export const psychrometerWetBulb = routine('psychro.psychrometerWetBulb', 'PSTWET', 'psychrometer_wet_bulb', [
  { dir: 'result', name: 'wetBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'relativeHumidity', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const wetBulbFromPercentageSaturation = routine(
  'psychro.wetBulbFromPercentageSaturation',
  'PSTWB',
  'wet_bulb_from_percentage_saturation', [
  { dir: 'result', name: 'wetBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'percentageSaturation', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const wetBulbFromMoistureContent = routine(
  'psychro.wetBulbFromMoistureContent',
  'PSWBLB',
  'wet_bulb_from_moisture_content', [
  { dir: 'result', name: 'wetBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'moistureContent', type: 'Real', unit: 'kg/kg', range: [0, 0.1] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);

export const wetBulb = routine('psychro.wetBulb', null, 'wet_bulb', [
  { dir: 'result', name: 'wetBulb', type: 'Real', unit: '°C' },
  { dir: 'in', name: 'dryBulb', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'vapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
  { dir: 'in', name: 'pressure', type: 'Real', unit: 'Pa', range: [50000, 110000] },
  { dir: 'in', name: 'psychrometer', type: 'Integer', selector: selectors.Psychrometer },
]);
