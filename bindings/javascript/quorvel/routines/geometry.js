// Produced from the catalogue of routines (catalogue/); do not edit.
import { routine } from '../routine.js';
import * as selectors from '../selectors.js';

export const clip = routine('geometry.clip', 'HOHOLEDP', 'clip', [
  { dir: 'inout', name: 'x', type: 'DoubleReal', unit: 'm', shape: ['pointCapacity'] },
  { dir: 'inout', name: 'y', type: 'DoubleReal', unit: 'm', shape: ['pointCapacity'] },
  { dir: 'count', name: 'verticesA', type: 'Integer', range: [3, Infinity] },
  { dir: 'in', name: 'positionsA', type: 'Integer', shape: ['verticesA'], range: [1, Infinity] },
  { dir: 'count', name: 'verticesB', type: 'Integer', range: [3, Infinity] },
  { dir: 'in', name: 'positionsB', type: 'Integer', shape: ['verticesB'], range: [1, Infinity] },
  { dir: 'count', name: 'pointCapacity', type: 'Integer', range: [0, Infinity] },
  { dir: 'in', name: 'crossingCapacity', type: 'Integer', range: [0, 1024] },
  { dir: 'in', name: 'differenceCapacity', type: 'Integer', range: [0, Infinity] },
  { dir: 'in', name: 'overlapCapacity', type: 'Integer', range: [0, Infinity] },
  { dir: 'inout', name: 'usedPoints', type: 'Integer', range: [1, Infinity] },
  { dir: 'out', name: 'differencePieces', type: 'Integer', shape: ['differenceCapacity'] },
  { dir: 'out', name: 'overlapPieces', type: 'Integer', shape: ['overlapCapacity'] },
  { dir: 'out', name: 'status', type: 'Integer' },
]);

export const overlap = routine('geometry.overlap', 'GEOVER', 'overlap', [
  { dir: 'in', name: 'x1', type: 'Real', unit: 'm', shape: ['vertices1'] },
  { dir: 'in', name: 'y1', type: 'Real', unit: 'm', shape: ['vertices1'] },
  { dir: 'count', name: 'vertices1', type: 'Integer', range: [3, Infinity] },
  { dir: 'in', name: 'x2', type: 'Real', unit: 'm', shape: ['vertices2'] },
  { dir: 'in', name: 'y2', type: 'Real', unit: 'm', shape: ['vertices2'] },
  { dir: 'count', name: 'vertices2', type: 'Integer', range: [3, Infinity] },
  { dir: 'out', name: 'pieceX', type: 'Real', unit: 'm', shape: [25, 5] },
  { dir: 'out', name: 'pieceY', type: 'Real', unit: 'm', shape: [25, 5] },
  { dir: 'out', name: 'pieceVertices', type: 'Integer', shape: [5] },
  { dir: 'out', name: 'area', type: 'Real', unit: 'm²' },
]);

export const overlapAlias = routine('geometry.overlapAlias', 'GEHOLE', 'overlap_alias', [
  { dir: 'in', name: 'x1', type: 'Real', unit: 'm', shape: ['vertices1'] },
  { dir: 'in', name: 'y1', type: 'Real', unit: 'm', shape: ['vertices1'] },
  { dir: 'count', name: 'vertices1', type: 'Integer', range: [3, Infinity] },
  { dir: 'in', name: 'x2', type: 'Real', unit: 'm', shape: ['vertices2'] },
  { dir: 'in', name: 'y2', type: 'Real', unit: 'm', shape: ['vertices2'] },
  { dir: 'count', name: 'vertices2', type: 'Integer', range: [3, Infinity] },
  { dir: 'out', name: 'pieceX', type: 'Real', unit: 'm', shape: [25, 5] },
  { dir: 'out', name: 'pieceY', type: 'Real', unit: 'm', shape: [25, 5] },
  { dir: 'out', name: 'pieceVertices', type: 'Integer', shape: [5] },
  { dir: 'out', name: 'area', type: 'Real', unit: 'm²' },
]);

export const collinearity = routine('geometry.collinearity', 'IGELIN', 'collinearity', [
  { dir: 'result', name: 'code', type: 'Integer' },
  { dir: 'in', name: 'x', type: 'Real', unit: 'm', shape: ['points'] },
  { dir: 'in', name: 'y', type: 'Real', unit: 'm', shape: ['points'] },
  { dir: 'count', name: 'points', type: 'Integer', range: [1, Infinity] },
]);

export const countEnclosed = routine('geometry.countEnclosed', 'GECLOS', 'count_enclosed', [
  { dir: 'in', name: 'x', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'in', name: 'y', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'count', name: 'vertices', type: 'Integer', range: [3, Infinity] },
  { dir: 'in', name: 'pointX', type: 'Real', unit: 'm', shape: ['points'] },
  { dir: 'in', name: 'pointY', type: 'Real', unit: 'm', shape: ['points'] },
  { dir: 'count', name: 'points', type: 'Integer', range: [1, Infinity] },
  { dir: 'inout', name: 'enclosed', type: 'Integer', shape: ['points'], selector: selectors.Enclosed },
  { dir: 'out', name: 'enclosedPoints', type: 'Integer' },
]);

export const boundaryCrossing = routine('geometry.boundaryCrossing', 'GESIDE', 'boundary_crossing', [
  { dir: 'in', name: 'segmentStart', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'segmentEnd', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'x', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'in', name: 'y', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'count', name: 'vertices', type: 'Integer', range: [3, Infinity] },
  { dir: 'out', name: 'crossingPoint', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'out', name: 'crossingCode', type: 'Integer' },
]);

export const inside = routine('geometry.inside', 'GEINSI', 'inside', [
  { dir: 'in', name: 'point', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'polygon', type: 'Real', unit: 'm', shape: [3, 'vertices'] },
  { dir: 'count', name: 'vertices', type: 'Integer', range: [4, Infinity] },
  { dir: 'out', name: 'inside', type: 'Integer' },
]);

export const parallelPlanes = routine('geometry.parallelPlanes', 'GEPLEL', 'parallel_planes', [
  { dir: 'result', name: 'truth', type: 'Logical' },
  { dir: 'in', name: 'triangle1', type: 'DoubleReal', unit: 'm', shape: [3, 3] },
  { dir: 'in', name: 'triangle2', type: 'DoubleReal', unit: 'm', shape: [3, 3] },
]);

export const parallelSides = routine('geometry.parallelSides', 'GEPSID', 'parallel_sides', [
  { dir: 'result', name: 'truth', type: 'Logical' },
  { dir: 'in', name: 'triangle1', type: 'DoubleReal', unit: 'm', shape: [3, 3] },
  { dir: 'in', name: 'triangle2', type: 'DoubleReal', unit: 'm', shape: [3, 3] },
  { dir: 'out', name: 'side1', type: 'Integer' },
  { dir: 'out', name: 'side2', type: 'Integer' },
]);

export const rectangular = routine('geometry.rectangular', 'GERECT', 'rectangular', [
  { dir: 'result', name: 'truth', type: 'Logical' },
  { dir: 'in', name: 'quadrilateral', type: 'DoubleReal', unit: 'm', shape: [3, 4] },
]);

export const facing = routine('geometry.facing', 'GETILT', 'facing', [
  { dir: 'in', name: 'triangle', type: 'DoubleReal', unit: 'm', shape: [3, 3] },
  { dir: 'inout', name: 'azimuth', type: 'DoubleReal', unit: '°', range: [0, 6.2832] },
  { dir: 'out', name: 'tilt', type: 'DoubleReal', unit: '°' },
]);

export const localCoordinates = routine('geometry.localCoordinates', 'GELCAL', 'local_coordinates', [
  { dir: 'in', name: 'quadrilateral1', type: 'DoubleReal', unit: 'm', shape: [3, 4] },
  { dir: 'in', name: 'quadrilateral2', type: 'DoubleReal', unit: 'm', shape: [3, 4] },
  { dir: 'out', name: 'local1', type: 'DoubleReal', unit: 'm', shape: [3, 4] },
  { dir: 'out', name: 'local2', type: 'DoubleReal', unit: 'm', shape: [3, 4] },
]);

export const toLocal = routine('geometry.toLocal', 'GETRNS', 'to_local', [
  { dir: 'inout', name: 'corners', type: 'DoubleReal', unit: 'm', shape: [3, 4] },
  { dir: 'in', name: 'xAxis', type: 'DoubleReal', shape: [3] },
  { dir: 'in', name: 'yAxis', type: 'DoubleReal', shape: [3] },
  { dir: 'in', name: 'zAxis', type: 'DoubleReal', shape: [3] },
]);

export const meetingPoint = routine('geometry.meetingPoint', 'GEMEET', 'meeting_point', [
  { dir: 'in', name: 'line1Start', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'line1End', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'line2Start', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'line2End', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'out', name: 'meetingPoint', type: 'Real', unit: 'm', shape: [2] },
]);

export const crossingPoint = routine('geometry.crossingPoint', 'GECROS', 'crossing_point', [
  { dir: 'in', name: 'segment1Start', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'segment1End', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'segment2Start', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'segment2End', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'out', name: 'crossingPoint', type: 'Real', unit: 'm', shape: [2] },
]);

export const inSpan = routine('geometry.inSpan', 'GEINLN', 'in_span', [
  { dir: 'result', name: 'indicator', type: 'Real' },
  { dir: 'in', name: 'firstEnd', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'secondEnd', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'point', type: 'Real', unit: 'm', shape: [3] },
]);

export const aheadAndNearer = routine('geometry.aheadAndNearer', 'GEINLN2', 'ahead_and_nearer', [
  { dir: 'result', name: 'indicator', type: 'Real' },
  { dir: 'in', name: 'firstEnd', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'secondEnd', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'point', type: 'Real', unit: 'm', shape: [3] },
]);

export const coincide = routine('geometry.coincide', 'GECOIN', 'coincide', [
  { dir: 'result', name: 'truth', type: 'Logical' },
  { dir: 'in', name: 'x1', type: 'Real', unit: 'm' },
  { dir: 'in', name: 'y1', type: 'Real', unit: 'm' },
  { dir: 'in', name: 'x2', type: 'Real', unit: 'm' },
  { dir: 'in', name: 'y2', type: 'Real', unit: 'm' },
]);

export const sideOfLine = routine('geometry.sideOfLine', 'IGEPNT', 'side_of_line', [
  { dir: 'result', name: 'code', type: 'Integer' },
  { dir: 'in', name: 'lineStart', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'lineEnd', type: 'Real', unit: 'm', shape: [2] },
  { dir: 'in', name: 'point', type: 'Real', unit: 'm', shape: [2] },
]);

export const backAzimuth = routine('geometry.backAzimuth', 'BORI', 'back_azimuth', [
  { dir: 'result', name: 'azimuth', type: 'Real', unit: '°' },
  { dir: 'in', name: 'angle', type: 'Real', unit: '°', range: [0, 360] },
]);

export const directionTo = routine('geometry.directionTo', 'GESUNV', 'direction_to', [
  { dir: 'in', name: 'solarAltitude', type: 'Real', unit: 'rad', range: [-1.5708, 1.5708] },
  { dir: 'in', name: 'solarAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'out', name: 'direction', type: 'Real', shape: [3] },
]);

export const surfaceAxes = routine('geometry.surfaceAxes', 'GERSET', 'surface_axes', [
  { dir: 'in', name: 'surfaceAzimuth', type: 'Real', unit: 'rad', range: [0, 6.2832] },
  { dir: 'in', name: 'tilt', type: 'Real', unit: 'rad', range: [0, 3.1416] },
  { dir: 'out', name: 'rotationMatrix', type: 'Real', shape: [3, 3] },
  { dir: 'out', name: 'inverseMatrix', type: 'Real', shape: [3, 3] },
]);

export const localToGlobal = routine('geometry.localToGlobal', 'GERAXI', 'local_to_global', [
  { dir: 'in', name: 'localVector', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'rotationMatrix', type: 'Real', shape: [3, 3], range: [-1, 1] },
  { dir: 'out', name: 'globalVector', type: 'Real', unit: 'm', shape: [3] },
]);

export const globalToLocal = routine('geometry.globalToLocal', 'GERAX2', 'global_to_local', [
  { dir: 'in', name: 'globalVector', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'rotationMatrix', type: 'Real', shape: [3, 3], range: [-1, 1] },
  { dir: 'out', name: 'localVector', type: 'Real', unit: 'm', shape: [3] },
]);

export const planArea = routine('geometry.planArea', 'GEAPOL', 'plan_area', [
  { dir: 'result', name: 'area', type: 'Real', unit: 'm²' },
  { dir: 'in', name: 'x', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'in', name: 'y', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'count', name: 'vertices', type: 'Integer', range: [3, Infinity] },
]);

export const signedPlanArea = routine('geometry.signedPlanArea', 'GEAPO2', 'signed_plan_area', [
  { dir: 'result', name: 'area', type: 'Real', unit: 'm²' },
  { dir: 'in', name: 'x', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'in', name: 'y', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'count', name: 'vertices', type: 'Integer', range: [3, Infinity] },
]);

export const areaInSpace = routine('geometry.areaInSpace', 'GEAPO3', 'area_in_space', [
  { dir: 'result', name: 'area', type: 'Real', unit: 'm²' },
  { dir: 'in', name: 'x', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'in', name: 'y', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'in', name: 'z', type: 'Real', unit: 'm', shape: ['vertices'] },
  { dir: 'count', name: 'vertices', type: 'Integer', range: [3, Infinity] },
]);

export const polygonOrientation = routine('geometry.polygonOrientation', 'GEASO', 'polygon_orientation', [
  { dir: 'count', name: 'vertices', type: 'Integer', range: [3, Infinity] },
  { dir: 'in', name: 'polygon', type: 'Real', unit: 'm', shape: [3, 'vertices'] },
  { dir: 'out', name: 'area', type: 'Real', unit: 'm²' },
  { dir: 'out', name: 'tilt', type: 'Real', unit: '°' },
  { dir: 'out', name: 'backAzimuth', type: 'Real', unit: '°' },
]);

export const projection = routine('geometry.projection', 'GEPROJ', 'projection', [
  { dir: 'in', name: 'planePoint', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'planeNormal', type: 'Real', shape: [3] },
  { dir: 'in', name: 'point', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'direction', type: 'Real', shape: [3] },
  { dir: 'out', name: 'projectedPoint', type: 'Real', unit: 'm', shape: [3] },
]);

export const forwardProjection = routine('geometry.forwardProjection', 'GEPROJ2', 'forward_projection', [
  { dir: 'in', name: 'planePoint', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'planeNormal', type: 'Real', shape: [3] },
  { dir: 'in', name: 'point', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'direction', type: 'Real', shape: [3] },
  { dir: 'out', name: 'projectedPoint', type: 'Real', unit: 'm', shape: [3] },
]);

export const forwardProjectionOrStart = routine(
  'geometry.forwardProjectionOrStart',
  'GEPROJ3',
  'forward_projection_or_start', [
  { dir: 'in', name: 'planePoint', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'planeNormal', type: 'Real', shape: [3] },
  { dir: 'in', name: 'point', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'direction', type: 'Real', shape: [3] },
  { dir: 'out', name: 'projectedPoint', type: 'Real', unit: 'm', shape: [3] },
]);

export const dotProduct = routine('geometry.dotProduct', 'GEDOTP', 'dot_product', [
  { dir: 'result', name: 'dotProduct', type: 'Real', unit: 'm²' },
  { dir: 'in', name: 'vectorA', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'vectorB', type: 'Real', unit: 'm', shape: [3] },
]);

export const dotProductInDouble = routine('geometry.dotProductInDouble', 'GEDTDP', 'dot_product_in_double', [
  { dir: 'result', name: 'dotProduct', type: 'DoubleReal', unit: 'm²' },
  { dir: 'in', name: 'vectorA', type: 'DoubleReal', unit: 'm', shape: [3] },
  { dir: 'in', name: 'vectorB', type: 'DoubleReal', unit: 'm', shape: [3] },
]);

export const crossProduct = routine('geometry.crossProduct', 'GEXPRO', 'cross_product', [
  { dir: 'in', name: 'vectorA', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'in', name: 'vectorB', type: 'Real', unit: 'm', shape: [3] },
  { dir: 'out', name: 'crossProduct', type: 'Real', unit: 'm²', shape: [3] },
]);

export const crossProductInDouble = routine('geometry.crossProductInDouble', 'GEXPDP', 'cross_product_in_double', [
  { dir: 'in', name: 'vectorA', type: 'DoubleReal', unit: 'm', shape: [3] },
  { dir: 'in', name: 'vectorB', type: 'DoubleReal', unit: 'm', shape: [3] },
  { dir: 'out', name: 'crossProduct', type: 'DoubleReal', unit: 'm²', shape: [3] },
]);

export const length = routine('geometry.length', 'GEVMOD', 'length', [
  { dir: 'result', name: 'length', type: 'Real', unit: 'm' },
  { dir: 'in', name: 'vector', type: 'Real', unit: 'm', shape: [3] },
]);

export const lengthInDouble = routine('geometry.lengthInDouble', 'GEVMDP', 'length_in_double', [
  { dir: 'result', name: 'length', type: 'DoubleReal', unit: 'm' },
  { dir: 'in', name: 'vector', type: 'DoubleReal', unit: 'm', shape: [3] },
]);
