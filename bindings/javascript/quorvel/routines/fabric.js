// Produced from the catalogue of routines (catalogue/); do not edit.
import { routine } from '../routine.js';
import * as selectors from '../selectors.js';

export const cyclicResponse = routine('fabric.cyclicResponse', 'TPADMT', 'cyclic_response', [
  { dir: 'in', name: 'thickness', type: 'Real', unit: 'm', shape: ['layers'] },
  { dir: 'in', name: 'conductivity', type: 'Real', unit: 'W/mK', shape: ['layers'], range: [0, Infinity] },
  { dir: 'in', name: 'density', type: 'Real', unit: 'kg/m³', shape: ['layers'], range: [0, Infinity] },
  { dir: 'in', name: 'specificHeat', type: 'Real', unit: 'J/kgK', shape: ['layers'], range: [0, Infinity] },
  { dir: 'in', name: 'insideResistance', type: 'Real', unit: 'm²K/W', range: [0, Infinity] },
  { dir: 'in', name: 'outsideResistance', type: 'Real', unit: 'm²K/W', range: [0, Infinity] },
  { dir: 'count', name: 'layers', type: 'Integer', range: [0, 20] },
  { dir: 'in', name: 'harmonic', type: 'Integer', range: [0, Infinity] },
  { dir: 'in', name: 'elementKind', type: 'Integer', selector: selectors.ElementKind },
  { dir: 'out', name: 'admittance', type: 'Real', unit: 'W/m²K' },
  { dir: 'out', name: 'admittanceLead', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'decrementFactor', type: 'Real' },
  { dir: 'out', name: 'decrementLag', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'surfaceFactor', type: 'Real' },
  { dir: 'out', name: 'surfaceFactorLag', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'uValue', type: 'Real', unit: 'W/m²K' },
]);

export const verticalCavityResistance = routine(
  'fabric.verticalCavityResistance',
  'TPRCAV',
  'vertical_cavity_resistance', [
  { dir: 'result', name: 'cavityResistance', type: 'Real', unit: 'm²K/W' },
  { dir: 'in', name: 'cavityWidth', type: 'Real', unit: 'm', range: [0.001, Infinity] },
]);

export const airCavityResistance = routine('fabric.airCavityResistance', 'TPRCA2', 'air_cavity_resistance', [
  { dir: 'result', name: 'cavityResistance', type: 'Real', unit: 'm²K/W' },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'cavityWidth', type: 'Real', unit: 'm', range: [0.001, Infinity] },
  { dir: 'in', name: 'emissivity1', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'emissivity2', type: 'Real', range: [0, 1] },
]);

export const gasCavityResistance = routine('fabric.gasCavityResistance', 'TPRCAX', 'gas_cavity_resistance', [
  { dir: 'result', name: 'cavityResistance', type: 'Real', unit: 'm²K/W' },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'cavityWidth', type: 'Real', unit: 'm', range: [0.001, Infinity] },
  { dir: 'in', name: 'emissivity1', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'emissivity2', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'density', type: 'Real', unit: 'kg/m³', range: [0, Infinity] },
  { dir: 'in', name: 'conductivity', type: 'Real', unit: 'W/mK', range: [0, Infinity] },
  { dir: 'in', name: 'specificHeat', type: 'Real', unit: 'J/kgK', range: [0, Infinity] },
  { dir: 'in', name: 'viscosity', type: 'Real', unit: 'Pa s', range: [0, Infinity] },
]);

export const totalVapourResistance = routine('fabric.totalVapourResistance', 'TPDAMP', 'total_vapour_resistance', [
  { dir: 'in', name: 'thickness', type: 'Real', unit: 'm', shape: ['layers'] },
  { dir: 'in', name: 'vapourResistivity', type: 'Real', unit: 'GN s/(kg m)', shape: ['layers'], range: [0, Infinity] },
  { dir: 'count', name: 'layers', type: 'Integer', range: [0, 20] },
  { dir: 'out', name: 'vapourResistance', type: 'Real', unit: 'N s/kg' },
]);

export const condensationProfile = routine('fabric.condensationProfile', 'TPGRAD', 'condensation_profile', [
  { dir: 'in', name: 'thickness', type: 'Real', unit: 'm', shape: ['layers'] },
  { dir: 'in', name: 'conductivity', type: 'Real', unit: 'W/mK', shape: ['layers'], range: [0, Infinity] },
  { dir: 'in', name: 'vapourResistivity', type: 'Real', unit: 'GN s/(kg m)', shape: ['layers'], range: [0, Infinity] },
  { dir: 'in', name: 'insideResistance', type: 'Real', unit: 'm²K/W', range: [0, Infinity] },
  { dir: 'in', name: 'outsideResistance', type: 'Real', unit: 'm²K/W', range: [0, Infinity] },
  { dir: 'count', name: 'layers', type: 'Integer', range: [0, 20] },
  { dir: 'in', name: 'insideTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'outsideTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'insideHumidity', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'in', name: 'outsideHumidity', type: 'Real', unit: '%', range: [0, 100] },
  { dir: 'out', name: 'interfaceTemperature', type: 'Real', unit: '°C', shape: [21] },
  { dir: 'out', name: 'interfaceVapourPressure', type: 'Real', unit: 'Pa', shape: [21] },
  { dir: 'out', name: 'interfaceSaturationPressure', type: 'Real', unit: 'Pa', shape: [21] },
]);

export const condensesWithinLayer = routine('fabric.condensesWithinLayer', 'ITPCON', 'condenses_within_layer', [
  { dir: 'result', name: 'indicator', type: 'Integer' },
  { dir: 'in', name: 'warmTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'coldTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'warmVapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
  { dir: 'in', name: 'coldVapourPressure', type: 'Real', unit: 'Pa', range: [0, Infinity] },
]);

export const elementProperty = routine('fabric.elementProperty', 'BELDAT', 'element_property', [
  { dir: 'result', name: 'propertyValue', type: 'Real', unit: 'by item' },
  { dir: 'in', name: 'elementRecords', type: 'Real', unit: 'by field', shape: [10, 'recordCount'] },
  { dir: 'count', name: 'recordCount', type: 'Integer', range: [1, Infinity] },
  { dir: 'in', name: 'recordNumber', type: 'Integer', range: [1, Infinity] },
  { dir: 'in', name: 'item', type: 'Integer', range: [1, 72] },
]);

export const naturalConvectionCoefficient = routine(
  'fabric.naturalConvectionCoefficient',
  'TPHCON',
  'natural_convection_coefficient', [
  { dir: 'result', name: 'heatTransferCoefficient', type: 'Real', unit: 'W/m²K' },
  { dir: 'in', name: 'temperatureDifference', type: 'Real', unit: 'K' },
  { dir: 'in', name: 'characteristicLength', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'heatFlowDirection', type: 'Integer', selector: selectors.HeatFlowDirection },
]);

export const packTwoFractions = routine('fabric.packTwoFractions', 'TPCOLW', 'pack_two_fractions', [
  { dir: 'in', name: 'packing', type: 'Integer', selector: selectors.Packing },
  { dir: 'inout', name: 'packedNumber', type: 'Real', range: [0, 9999.99] },
  { dir: 'inout', name: 'fraction1', type: 'Real', range: [0, 0.99] },
  { dir: 'inout', name: 'fraction2', type: 'Real', range: [0, 0.99] },
]);

export const packThreeFractions = routine('fabric.packThreeFractions', 'TPCOLT', 'pack_three_fractions', [
  { dir: 'in', name: 'packing', type: 'Integer', selector: selectors.Packing },
  { dir: 'inout', name: 'packedNumber', type: 'Real', range: [0, 9999.99] },
  { dir: 'inout', name: 'fraction1', type: 'Real', range: [0, 0.99] },
  { dir: 'inout', name: 'fraction2', type: 'Real', range: [0, 0.99] },
  { dir: 'inout', name: 'fraction3', type: 'Real', range: [0, 0.99] },
]);

export const packThreeFractionsThirdFirst = routine(
  'fabric.packThreeFractionsThirdFirst',
  'TPCOLW2',
  'pack_three_fractions_third_first', [
  { dir: 'in', name: 'packing', type: 'Integer', selector: selectors.Packing },
  { dir: 'inout', name: 'packedNumber', type: 'Real', range: [0, 9999.99] },
  { dir: 'inout', name: 'fraction3', type: 'Real', range: [0, 0.99] },
  { dir: 'inout', name: 'fraction1', type: 'Real', range: [0, 0.99] },
  { dir: 'inout', name: 'fraction2', type: 'Real', range: [0, 0.99] },
]);

export const packPane = routine('fabric.packPane', 'TPCOSW', 'pack_pane', [
  { dir: 'in', name: 'packing', type: 'Integer', selector: selectors.Packing },
  { dir: 'inout', name: 'packedNumber', type: 'Real', range: [0, 9999.99] },
  { dir: 'inout', name: 'absorptance', type: 'Real', range: [0, 1] },
  { dir: 'inout', name: 'reflectance1', type: 'Real', range: [0, 1] },
  { dir: 'inout', name: 'reflectance2', type: 'Real', range: [0, 1] },
]);

export const surfaceResistance = routine('fabric.surfaceResistance', 'TPRSUR', 'surface_resistance', [
  { dir: 'result', name: 'surfaceResistance', type: 'Real', unit: 'm²K/W' },
  { dir: 'in', name: 'surface', type: 'Integer', selector: selectors.Surface },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'exposure', type: 'Integer', selector: selectors.Exposure },
]);

export const surfaceResistanceAtEmissivity = routine(
  'fabric.surfaceResistanceAtEmissivity',
  'TPRSU2',
  'surface_resistance_at_emissivity', [
  { dir: 'result', name: 'surfaceResistance', type: 'Real', unit: 'm²K/W' },
  { dir: 'in', name: 'surface', type: 'Integer', selector: selectors.Surface },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'exposure', type: 'Integer', selector: selectors.Exposure },
  { dir: 'in', name: 'emissivity', type: 'Real', range: [0, 1] },
]);

export const uValue = routine('fabric.uValue', 'TPUVAL', 'u_value', [
  { dir: 'in', name: 'thickness', type: 'Real', unit: 'm', shape: ['layers'] },
  { dir: 'in', name: 'conductivity', type: 'Real', unit: 'W/mK', shape: ['layers'], range: [0, Infinity] },
  { dir: 'in', name: 'surfaceResistance1', type: 'Real', unit: 'm²K/W', range: [0, Infinity] },
  { dir: 'in', name: 'surfaceResistance2', type: 'Real', unit: 'm²K/W', range: [0, Infinity] },
  { dir: 'count', name: 'layers', type: 'Integer', range: [0, 20] },
  { dir: 'out', name: 'uValue', type: 'Real', unit: 'W/m²K' },
]);

export const uValueAtTiltAndExposure = routine(
  'fabric.uValueAtTiltAndExposure',
  'TPUMOD',
  'u_value_at_tilt_and_exposure', [
  { dir: 'result', name: 'uValue', type: 'Real', unit: 'W/m²K' },
  { dir: 'in', name: 'uValue', type: 'Real', unit: 'W/m²K', range: [0, Infinity] },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'in', name: 'exposure', type: 'Integer', selector: selectors.Exposure },
]);

export const windowParameters = routine('fabric.windowParameters', 'TPWNDO', 'window_parameters', [
  { dir: 'in', name: 'panes', type: 'Integer', range: [1, 3] },
  { dir: 'in', name: 'paneKind1', type: 'Integer', selector: selectors.PaneKind },
  { dir: 'in', name: 'emissivity1', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'paneKind2', type: 'Integer', selector: selectors.PaneKind },
  { dir: 'in', name: 'emissivity2', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'paneKind3', type: 'Integer', selector: selectors.PaneKind },
  { dir: 'in', name: 'emissivity3', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'cavityWidth1', type: 'Real', unit: 'm', range: [0.001, Infinity] },
  { dir: 'in', name: 'cavityWidth2', type: 'Real', unit: 'm', range: [0.001, Infinity] },
  { dir: 'in', name: 'outerSurface', type: 'Integer', selector: selectors.Surface },
  { dir: 'in', name: 'exposure', type: 'Integer', selector: selectors.Exposure },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'unread', name: 'unused', type: 'Real' },
  { dir: 'out', name: 'admittance', type: 'Real', unit: 'W/m²K' },
  { dir: 'out', name: 'admittanceLead', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'decrementFactor', type: 'Real' },
  { dir: 'out', name: 'decrementLag', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'surfaceFactor', type: 'Real' },
  { dir: 'out', name: 'surfaceFactorLag', type: 'Real', unit: 'h' },
  { dir: 'out', name: 'uValue', type: 'Real', unit: 'W/m²K' },
]);
