// Produced from the catalogue of routines (catalogue/); do not edit.
import { routine } from '../routine.js';
import * as selectors from '../selectors.js';

export const glassDirect = routine('glazing.glassDirect', 'WNDRGL', 'glass_direct', [
  { dir: 'in', name: 'normalTransmittance', type: 'Real', range: [0, 0.92] },
  { dir: 'in', name: 'normalReflectance', type: 'Real', range: [0, 0.99] },
  { dir: 'in', name: 'incidence', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'out', name: 'parallelTransmittance', type: 'Real' },
  { dir: 'out', name: 'parallelAbsorptance', type: 'Real' },
  { dir: 'out', name: 'parallelReflectance', type: 'Real' },
  { dir: 'out', name: 'perpendicularTransmittance', type: 'Real' },
  { dir: 'out', name: 'perpendicularAbsorptance', type: 'Real' },
  { dir: 'out', name: 'perpendicularReflectance', type: 'Real' },
]);

export const glassDiffuse = routine('glazing.glassDiffuse', 'WNDFGL', 'glass_diffuse', [
  { dir: 'in', name: 'normalTransmittance', type: 'Real', range: [0, 0.92] },
  { dir: 'in', name: 'normalReflectance', type: 'Real', range: [0, 0.99] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
]);

export const stackedLayers = routine('glazing.stackedLayers', 'WNCOM2', 'stacked_layers', [
  { dir: 'count', name: 'layers', type: 'Integer', range: [0, Infinity] },
  { dir: 'in', name: 'layerTransmittances', type: 'Real', shape: ['layers'], range: [0, 1] },
  { dir: 'unread', name: 'unused', type: 'Real' },
  { dir: 'in', name: 'layerReflectances', type: 'Real', shape: ['layers'], range: [0, 1] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const tracedLayers = routine('glazing.tracedLayers', 'WNCOMP', 'traced_layers', [
  { dir: 'count', name: 'layers', type: 'Integer', range: [0, 11] },
  { dir: 'in', name: 'layerTransmittances', type: 'Real', shape: ['layers'], range: [0, 1] },
  { dir: 'in', name: 'layerAbsorptances', type: 'Real', shape: ['layers'], range: [0, 1] },
  { dir: 'in', name: 'layerReflectances', type: 'Real', shape: ['layers'], range: [0, 1] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const rollerBlind = routine('glazing.rollerBlind', 'WNDRRO', 'roller_blind', [
  { dir: 'in', name: 'blindTransmittance', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'blindReflectance', type: 'Real', range: [0, 1] },
  { dir: 'unread', name: 'incidence', type: 'Real' },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const diffuseRollerBlind = routine('glazing.diffuseRollerBlind', 'WNDFRO', 'diffuse_roller_blind', [
  { dir: 'in', name: 'blindTransmittance', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'blindReflectance', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const refractionAngle = routine('glazing.refractionAngle', 'WNRANG', 'refraction_angle', [
  { dir: 'result', name: 'refractionAngle', type: 'Real', unit: 'rad' },
  { dir: 'in', name: 'incidence', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'refractiveIndex', type: 'Real', range: [1, 4] },
]);

export const surfaceReflectance = routine('glazing.surfaceReflectance', 'WNREFL', 'surface_reflectance', [
  { dir: 'in', name: 'incidence', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'refractionAngle', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'refractiveIndex', type: 'Real', range: [1, 4] },
  { dir: 'out', name: 'parallelReflectance', type: 'Real' },
  { dir: 'out', name: 'perpendicularReflectance', type: 'Real' },
]);

export const singlePassAbsorption = routine('glazing.singlePassAbsorption', 'WNABEN', 'single_pass_absorption', [
  { dir: 'result', name: 'absorptance', type: 'Real' },
  { dir: 'in', name: 'refractionAngle', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'absorptionProduct', type: 'Real', range: [0, 20] },
  { dir: 'unread', name: 'unused', type: 'Real' },
]);

export const slabOptics = routine('glazing.slabOptics', 'WNTAR', 'slab_optics', [
  { dir: 'in', name: 'singlePassAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'faceReflectance', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const absorptionProduct = routine('glazing.absorptionProduct', 'WNKL', 'absorption_product', [
  { dir: 'result', name: 'absorptionProduct', type: 'Real' },
  { dir: 'in', name: 'normalTransmittance', type: 'Real', range: [0, 0.92] },
  { dir: 'in', name: 'refractiveIndex', type: 'Real', range: [1, 4] },
]);

export const normalTransmittance = routine('glazing.normalTransmittance', 'WNTNOR', 'normal_transmittance', [
  { dir: 'result', name: 'normalTransmittance', type: 'Real' },
  { dir: 'in', name: 'absorptionProduct', type: 'Real', range: [0, 20] },
  { dir: 'in', name: 'normalReflectance', type: 'Real', range: [0, 0.99] },
]);

export const paneTemperatures = routine('glazing.paneTemperatures', 'WNTEMP', 'pane_temperatures', [
  { dir: 'in', name: 'insideTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'outsideTemperature', type: 'Real', unit: '°C', range: [-100, 200] },
  { dir: 'in', name: 'panes', type: 'Integer', range: [1, 5] },
  { dir: 'in', name: 'absorbed1', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'absorbed2', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'absorbed3', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'absorbed4', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'in', name: 'absorbed5', type: 'Real', unit: 'W/m²', range: [0, Infinity] },
  { dir: 'out', name: 'paneTemperature1', type: 'Real', unit: '°C' },
  { dir: 'out', name: 'paneTemperature2', type: 'Real', unit: '°C' },
  { dir: 'out', name: 'paneTemperature3', type: 'Real', unit: '°C' },
  { dir: 'out', name: 'paneTemperature4', type: 'Real', unit: '°C' },
  { dir: 'out', name: 'paneTemperature5', type: 'Real', unit: '°C' },
]);

export const unitDirect = routine('glazing.unitDirect', 'WNDRSC', 'unit_direct', [
  { dir: 'in', name: 'shortwaveShadingCoefficient', type: 'Real', range: [0, 1.05] },
  { dir: 'in', name: 'longwaveShadingCoefficient', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'incidence', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const unitDiffuse = routine('glazing.unitDiffuse', 'WNDFSC', 'unit_diffuse', [
  { dir: 'in', name: 'shortwaveShadingCoefficient', type: 'Real', range: [0, 1.05] },
  { dir: 'in', name: 'longwaveShadingCoefficient', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const unitDirectShares = routine('glazing.unitDirectShares', 'WNDRSM', 'unit_direct_shares', [
  { dir: 'in', name: 'shortwaveShadingCoefficient', type: 'Real', range: [0, 1.05] },
  { dir: 'in', name: 'longwaveShadingCoefficient', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'incidence', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'panes', type: 'Integer', range: [1, 5] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'paneShares', type: 'Real', shape: ['panes'] },
  { dir: 'out', name: 'absorptance', type: 'Real' },
]);

export const unitDiffuseShares = routine('glazing.unitDiffuseShares', 'WNDFSM', 'unit_diffuse_shares', [
  { dir: 'in', name: 'shortwaveShadingCoefficient', type: 'Real', range: [0, 1.05] },
  { dir: 'in', name: 'longwaveShadingCoefficient', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'panes', type: 'Integer', range: [1, 5] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'paneShares', type: 'Real', shape: ['panes'] },
  { dir: 'out', name: 'absorptance', type: 'Real' },
]);

export const unitShares = routine('glazing.unitShares', 'WNDRS0', 'unit_shares', [
  { dir: 'in', name: 'radiation', type: 'Integer', selector: selectors.Radiation },
  { dir: 'in', name: 'shortwaveShadingCoefficient', type: 'Real', range: [0, 1.05] },
  { dir: 'in', name: 'longwaveShadingCoefficient', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'incidence', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'panes', type: 'Integer', range: [1, 5] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'paneShares', type: 'Real', shape: ['panes'] },
  { dir: 'out', name: 'absorptance', type: 'Real' },
]);

export const slatDirect = routine('glazing.slatDirect', 'WNDRSL', 'slat_direct', [
  { dir: 'in', name: 'slatSpacing', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatWidth', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatAngle', type: 'Real', unit: '°', range: [-90, 90] },
  { dir: 'in', name: 'profileAngle', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'slatAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const twoFacedSlatDirect = routine('glazing.twoFacedSlatDirect', 'WNDRS2', 'two_faced_slat_direct', [
  { dir: 'in', name: 'slatSpacing', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatWidth', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatAngle', type: 'Real', unit: '°', range: [-90, 90] },
  { dir: 'in', name: 'profileAngle', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'struckAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'oppositeAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const openSlatDirect = routine('glazing.openSlatDirect', 'WNDRS3', 'open_slat_direct', [
  { dir: 'in', name: 'slatSpacing', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatWidth', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatAngle', type: 'Real', unit: '°', range: [-90, 90] },
  { dir: 'in', name: 'profileAngle', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'openShare', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'struckAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'oppositeAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'transmittance', type: 'Real' },
  { dir: 'out', name: 'absorptance', type: 'Real' },
  { dir: 'out', name: 'reflectance', type: 'Real' },
]);

export const slatDiffuse = routine('glazing.slatDiffuse', 'WNDFSL', 'slat_diffuse', [
  { dir: 'in', name: 'slatSpacing', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatWidth', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatAngle', type: 'Real', unit: '°', range: [-90, 90] },
  { dir: 'in', name: 'slatAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'skyTransmittance', type: 'Real' },
  { dir: 'out', name: 'groundTransmittance', type: 'Real' },
  { dir: 'out', name: 'skyAbsorptance', type: 'Real' },
  { dir: 'out', name: 'groundAbsorptance', type: 'Real' },
]);

export const twoFacedSlatDiffuse = routine('glazing.twoFacedSlatDiffuse', 'WNDFS2', 'two_faced_slat_diffuse', [
  { dir: 'in', name: 'slatSpacing', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatWidth', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatAngle', type: 'Real', unit: '°', range: [-90, 90] },
  { dir: 'in', name: 'struckAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'oppositeAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'skyTransmittance', type: 'Real' },
  { dir: 'out', name: 'groundTransmittance', type: 'Real' },
  { dir: 'out', name: 'skyAbsorptance', type: 'Real' },
  { dir: 'out', name: 'groundAbsorptance', type: 'Real' },
]);

export const openSlatDiffuse = routine('glazing.openSlatDiffuse', 'WNDFS3', 'open_slat_diffuse', [
  { dir: 'in', name: 'slatSpacing', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatWidth', type: 'Real', unit: 'm', range: [0, Infinity] },
  { dir: 'in', name: 'slatAngle', type: 'Real', unit: '°', range: [-90, 90] },
  { dir: 'in', name: 'openShare', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'struckAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'in', name: 'oppositeAbsorptance', type: 'Real', range: [0, 1] },
  { dir: 'out', name: 'skyTransmittance', type: 'Real' },
  { dir: 'out', name: 'groundTransmittance', type: 'Real' },
  { dir: 'out', name: 'skyAbsorptance', type: 'Real' },
  { dir: 'out', name: 'groundAbsorptance', type: 'Real' },
]);
