"""What the add-in knows of each routine. Produced from the catalogue of routines (catalogue/); do not edit."""

from math import inf

from quorvel_calc.model import Parameter, Result, Routine

ROUTINES = {routine.name: routine for routine in (
    Routine(
        'dry_air_enthalpy', 'dryAirEnthalpy',
        parameters=(
            Parameter('temperature', 'Real', unit='°C', limits=(-50, 100)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'water_vapour_enthalpy', 'waterVapourEnthalpy',
        parameters=(
            Parameter('temperature', 'Real', unit='°C', limits=(-50, 100)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_air_specific_heat', 'dryAirSpecificHeat',
        parameters=(
            Parameter('temperature', 'Real', unit='°C', limits=(-50, 100)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'water_vapour_specific_heat', 'waterVapourSpecificHeat',
        parameters=(
            Parameter('temperature', 'Real', unit='°C', limits=(-50, 100)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'latent_heat', 'latentHeat',
        parameters=(
            Parameter('temperature', 'Real', unit='°C', limits=(-50, 100)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_vapour_pressure_and_relative_humidity', 'dryBulbFromVapourPressureAndRelativeHumidity',
        parameters=(
            Parameter('vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
            Parameter('relative_humidity', 'Real', unit='%', limits=(0, 100)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_vapour_pressure_and_percentage_saturation', 'dryBulbFromVapourPressureAndPercentageSaturation',
        parameters=(
            Parameter('vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
            Parameter('percentage_saturation', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_moisture_content_and_relative_humidity', 'dryBulbFromMoistureContentAndRelativeHumidity',
        parameters=(
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('relative_humidity', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_moisture_content_and_percentage_saturation', 'dryBulbFromMoistureContentAndPercentageSaturation',
        parameters=(
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('percentage_saturation', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_enthalpy_and_moisture_content', 'dryBulbFromEnthalpyAndMoistureContent',
        parameters=(
            Parameter('enthalpy', 'Real', unit='kJ/kg', limits=(-10, 460)),
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_enthalpy_and_vapour_pressure', 'dryBulbFromEnthalpyAndVapourPressure',
        parameters=(
            Parameter('enthalpy', 'Real', unit='kJ/kg', limits=(-10, 460)),
            Parameter('vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_enthalpy_and_relative_humidity', 'dryBulbFromEnthalpyAndRelativeHumidity',
        parameters=(
            Parameter('enthalpy', 'Real', unit='kJ/kg', limits=(-10, 460)),
            Parameter('relative_humidity', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_enthalpy_and_percentage_saturation', 'dryBulbFromEnthalpyAndPercentageSaturation',
        parameters=(
            Parameter('enthalpy', 'Real', unit='kJ/kg', limits=(-10, 460)),
            Parameter('percentage_saturation', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_wet_bulb_and_vapour_pressure', 'dryBulbFromWetBulbAndVapourPressure',
        parameters=(
            Parameter('wet_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_wet_bulb_and_moisture_content', 'dryBulbFromWetBulbAndMoistureContent',
        parameters=(
            Parameter('wet_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_wet_bulb_and_relative_humidity', 'dryBulbFromWetBulbAndRelativeHumidity',
        parameters=(
            Parameter('wet_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('relative_humidity', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_wet_bulb_and_percentage_saturation', 'dryBulbFromWetBulbAndPercentageSaturation',
        parameters=(
            Parameter('wet_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('percentage_saturation', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dry_bulb_from_wet_bulb_and_enthalpy', 'dryBulbFromWetBulbAndEnthalpy',
        parameters=(
            Parameter('wet_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('enthalpy', 'Real', unit='kJ/kg', limits=(-10, 460)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'adiabatic_mixing', 'adiabaticMixing',
        parameters=(
            Parameter('first_air_flow', 'Real', unit='kg/s', limits=(0, inf)),
            Parameter('first_dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('first_moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('second_air_flow', 'Real', unit='kg/s', limits=(0, inf)),
            Parameter('second_dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('second_moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
        ),
        results=(
            Result('dry_bulb', 'Real'),
            Result('moisture_content', 'Real'),
            Result('enthalpy', 'Real'),
        ),
    ),
    Routine(
        'moisture_content_from_psychrometer', 'moistureContentFromPsychrometer',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('wet_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'moisture_content', 'moistureContent',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'vapour_pressure_from_moisture_content', 'vapourPressureFromMoistureContent',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'moisture_content_from_percentage_saturation', 'moistureContentFromPercentageSaturation',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('percentage_saturation', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'moisture_content_from_enthalpy', 'moistureContentFromEnthalpy',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-50, 100)),
            Parameter('enthalpy', 'Real', unit='kJ/kg', limits=(-10, 460)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'moist_air_density', 'moistAirDensity',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'percentage_saturation', 'percentageSaturation',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'specific_enthalpy', 'specificEnthalpy',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-50, 100)),
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'specific_enthalpy_from_psychrometer', 'specificEnthalpyFromPsychrometer',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('wet_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'specific_volume', 'specificVolume',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'saturation_temperature_from_enthalpy', 'saturationTemperatureFromEnthalpy',
        parameters=(
            Parameter('enthalpy', 'Real', unit='kJ/kg', limits=(-10, 460)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'pool_evaporation', 'poolEvaporation',
        parameters=(
            Parameter('water_area', 'Real', unit='m²', limits=(0, inf)),
            Parameter('wetted_area', 'Real', unit='m²', limits=(0, inf)),
            Parameter('water_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('reference_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('bathers', 'Integer', limits=(0, inf)),
            Parameter('reference_coefficient', 'Real', unit='W/m²K', limits=(0, inf)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('evaporation_rate', 'Real'),
            Result('latent_load', 'Real'),
            Result('convective_load', 'Real'),
            Result('reference_load', 'Real'),
        ),
    ),
    Routine(
        'pool_evaporation_from_wet_bulb', 'poolEvaporationFromWetBulb',
        parameters=(
            Parameter('water_area', 'Real', unit='m²', limits=(0, inf)),
            Parameter('wetted_area', 'Real', unit='m²', limits=(0, inf)),
            Parameter('water_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('wet_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('reference_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('bathers', 'Integer', limits=(0, inf)),
            Parameter('reference_coefficient', 'Real', unit='W/m²K', limits=(0, inf)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
        ),
        results=(
            Result('evaporation_rate', 'Real'),
            Result('latent_load', 'Real'),
            Result('convective_load', 'Real'),
            Result('reference_load', 'Real'),
        ),
    ),
    Routine(
        'saturation_pressure', 'saturationPressure',
        parameters=(
            Parameter('temperature', 'Real', unit='°C', limits=(-100, 200)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dew_point', 'dewPoint',
        parameters=(
            Parameter('vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'vapour_pressure', 'vapourPressure',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('relative_humidity', 'Real', unit='%', limits=(0, 100)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'relative_humidity', 'relativeHumidity',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'vapour_pressure_from_psychrometer', 'vapourPressureFromPsychrometer',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('wet_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'weighted_temperature', 'weightedTemperature',
        parameters=(
            Parameter('first_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('second_temperature', 'Real', unit='°C', limits=(-100, 200)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'psychrometer_wet_bulb', 'psychrometerWetBulb',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('relative_humidity', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'wet_bulb_from_percentage_saturation', 'wetBulbFromPercentageSaturation',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('percentage_saturation', 'Real', unit='%', limits=(0, 100)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'wet_bulb_from_moisture_content', 'wetBulbFromMoistureContent',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('moisture_content', 'Real', unit='kg/kg', limits=(0, 0.1)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'wet_bulb', 'wetBulb',
        parameters=(
            Parameter('dry_bulb', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
            Parameter('pressure', 'Real', unit='Pa', limits=(50000, 110000), otherwise=101325),
            Parameter('psychrometer', 'Integer', limits=(1, 2), words={'sling': 1, 'screen': 2}, otherwise='sling'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'cyclic_response', 'cyclicResponse',
        parameters=(
            Parameter('thickness', 'Real', unit='m', shape=('layers',)),
            Parameter('conductivity', 'Real', unit='W/mK', limits=(0, inf), shape=('layers',)),
            Parameter('density', 'Real', unit='kg/m³', limits=(0, inf), shape=('layers',)),
            Parameter('specific_heat', 'Real', unit='J/kgK', limits=(0, inf), shape=('layers',)),
            Parameter('inside_resistance', 'Real', unit='m²K/W', limits=(0, inf)),
            Parameter('outside_resistance', 'Real', unit='m²K/W', limits=(0, inf)),
            Parameter('harmonic', 'Integer', limits=(0, inf)),
            Parameter('element_kind', 'Integer', limits=(1, 2), words={'between': 1, 'partition': 2}),
        ),
        results=(
            Result('admittance', 'Real'),
            Result('admittance_lead', 'Real'),
            Result('decrement_factor', 'Real'),
            Result('decrement_lag', 'Real'),
            Result('surface_factor', 'Real'),
            Result('surface_factor_lag', 'Real'),
            Result('u_value', 'Real'),
        ),
    ),
    Routine(
        'vertical_cavity_resistance', 'verticalCavityResistance',
        parameters=(
            Parameter('cavity_width', 'Real', unit='m', limits=(0.001, inf)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'air_cavity_resistance', 'airCavityResistance',
        parameters=(
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('cavity_width', 'Real', unit='m', limits=(0.001, inf)),
            Parameter('emissivity_1', 'Real', limits=(0, 1)),
            Parameter('emissivity_2', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'gas_cavity_resistance', 'gasCavityResistance',
        parameters=(
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('cavity_width', 'Real', unit='m', limits=(0.001, inf)),
            Parameter('emissivity_1', 'Real', limits=(0, 1)),
            Parameter('emissivity_2', 'Real', limits=(0, 1)),
            Parameter('density', 'Real', unit='kg/m³', limits=(0, inf)),
            Parameter('conductivity', 'Real', unit='W/mK', limits=(0, inf)),
            Parameter('specific_heat', 'Real', unit='J/kgK', limits=(0, inf)),
            Parameter('viscosity', 'Real', unit='Pa s', limits=(0, inf)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'total_vapour_resistance', 'totalVapourResistance',
        parameters=(
            Parameter('thickness', 'Real', unit='m', shape=('layers',)),
            Parameter('vapour_resistivity', 'Real', unit='GN s/(kg m)', limits=(0, inf), shape=('layers',)),
        ),
        results=(
            Result('vapour_resistance', 'Real'),
        ),
    ),
    Routine(
        'condensation_profile', 'condensationProfile',
        parameters=(
            Parameter('thickness', 'Real', unit='m', shape=('layers',)),
            Parameter('conductivity', 'Real', unit='W/mK', limits=(0, inf), shape=('layers',)),
            Parameter('vapour_resistivity', 'Real', unit='GN s/(kg m)', limits=(0, inf), shape=('layers',)),
            Parameter('inside_resistance', 'Real', unit='m²K/W', limits=(0, inf)),
            Parameter('outside_resistance', 'Real', unit='m²K/W', limits=(0, inf)),
            Parameter('inside_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('outside_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('inside_humidity', 'Real', unit='%', limits=(0, 100)),
            Parameter('outside_humidity', 'Real', unit='%', limits=(0, 100)),
        ),
        results=(
            Result('interface_temperature', 'Real', shape=(21,)),
            Result('interface_vapour_pressure', 'Real', shape=(21,)),
            Result('interface_saturation_pressure', 'Real', shape=(21,)),
        ),
    ),
    Routine(
        'condenses_within_layer', 'condensesWithinLayer',
        parameters=(
            Parameter('warm_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('cold_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('warm_vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
            Parameter('cold_vapour_pressure', 'Real', unit='Pa', limits=(0, inf)),
        ),
        results=(
            Result('result', 'Integer'),
        ),
    ),
    Routine(
        'element_property', 'elementProperty',
        parameters=(
            Parameter('element_records', 'Real', unit='by field', shape=(10, 'record_count')),
            Parameter('record_number', 'Integer', limits=(1, inf)),
            Parameter('item', 'Integer', limits=(1, 72)),
        ),
        results=(
            Result('result', 'Real', none=True),
        ),
    ),
    Routine(
        'natural_convection_coefficient', 'naturalConvectionCoefficient',
        parameters=(
            Parameter('temperature_difference', 'Real', unit='K'),
            Parameter('characteristic_length', 'Real', unit='m', limits=(0, inf)),
            Parameter('heat_flow_direction', 'Integer', limits=(1, 3), words={'upward': 1, 'horizontal': 2, 'downward': 3}),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'pack_two_fractions', 'packTwoFractions',
        parameters=(
            Parameter('packing', 'Integer', limits=(1, 2), words={'pack': 1, 'unpack': 2}),
            Parameter('packed_number', 'Real', limits=(0, 9999.99)),
            Parameter('fraction_1', 'Real', limits=(0, 0.99)),
            Parameter('fraction_2', 'Real', limits=(0, 0.99)),
        ),
        results=(
            Result('new_packed_number', 'Real', none=True),
            Result('new_fraction_1', 'Real', none=True),
            Result('new_fraction_2', 'Real', none=True),
        ),
    ),
    Routine(
        'pack_three_fractions', 'packThreeFractions',
        parameters=(
            Parameter('packing', 'Integer', limits=(1, 2), words={'pack': 1, 'unpack': 2}),
            Parameter('packed_number', 'Real', limits=(0, 9999.99)),
            Parameter('fraction_1', 'Real', limits=(0, 0.99)),
            Parameter('fraction_2', 'Real', limits=(0, 0.99)),
            Parameter('fraction_3', 'Real', limits=(0, 0.99)),
        ),
        results=(
            Result('new_packed_number', 'Real', none=True),
            Result('new_fraction_1', 'Real', none=True),
            Result('new_fraction_2', 'Real', none=True),
            Result('new_fraction_3', 'Real', none=True),
        ),
    ),
    Routine(
        'pack_three_fractions_third_first', 'packThreeFractionsThirdFirst',
        parameters=(
            Parameter('packing', 'Integer', limits=(1, 2), words={'pack': 1, 'unpack': 2}),
            Parameter('packed_number', 'Real', limits=(0, 9999.99)),
            Parameter('fraction_3', 'Real', limits=(0, 0.99)),
            Parameter('fraction_1', 'Real', limits=(0, 0.99)),
            Parameter('fraction_2', 'Real', limits=(0, 0.99)),
        ),
        results=(
            Result('new_packed_number', 'Real', none=True),
            Result('new_fraction_3', 'Real', none=True),
            Result('new_fraction_1', 'Real', none=True),
            Result('new_fraction_2', 'Real', none=True),
        ),
    ),
    Routine(
        'pack_pane', 'packPane',
        parameters=(
            Parameter('packing', 'Integer', limits=(1, 2), words={'pack': 1, 'unpack': 2}),
            Parameter('packed_number', 'Real', limits=(0, 9999.99)),
            Parameter('absorptance', 'Real', limits=(0, 1)),
            Parameter('reflectance_1', 'Real', limits=(0, 1)),
            Parameter('reflectance_2', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('new_packed_number', 'Real', none=True),
            Result('new_absorptance', 'Real', none=True),
            Result('new_reflectance_1', 'Real', none=True),
            Result('new_reflectance_2', 'Real', none=True),
        ),
    ),
    Routine(
        'surface_resistance', 'surfaceResistance',
        parameters=(
            Parameter('surface', 'Integer', limits=(1, 2), words={'outside': 1, 'inside': 2}),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('exposure', 'Integer', limits=(1, 3), words={'sheltered': 1, 'normal': 2, 'severe': 3}),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'surface_resistance_at_emissivity', 'surfaceResistanceAtEmissivity',
        parameters=(
            Parameter('surface', 'Integer', limits=(1, 2), words={'outside': 1, 'inside': 2}),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('exposure', 'Integer', limits=(1, 3), words={'sheltered': 1, 'normal': 2, 'severe': 3}),
            Parameter('emissivity', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'u_value', 'uValue',
        parameters=(
            Parameter('thickness', 'Real', unit='m', shape=('layers',)),
            Parameter('conductivity', 'Real', unit='W/mK', limits=(0, inf), shape=('layers',)),
            Parameter('surface_resistance_1', 'Real', unit='m²K/W', limits=(0, inf)),
            Parameter('surface_resistance_2', 'Real', unit='m²K/W', limits=(0, inf)),
        ),
        results=(
            Result('u_value', 'Real'),
        ),
    ),
    Routine(
        'u_value_at_tilt_and_exposure', 'uValueAtTiltAndExposure',
        parameters=(
            Parameter('u_value', 'Real', unit='W/m²K', limits=(0, inf)),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('exposure', 'Integer', limits=(1, 3), words={'sheltered': 1, 'normal': 2, 'severe': 3}),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'window_parameters', 'windowParameters',
        parameters=(
            Parameter('panes', 'Integer', limits=(1, 3)),
            Parameter('pane_kind_1', 'Integer', limits=(1, 2), words={'closing': 1, 'vented': 2}),
            Parameter('emissivity_1', 'Real', limits=(0, 1)),
            Parameter('pane_kind_2', 'Integer', limits=(1, 2), words={'closing': 1, 'vented': 2}),
            Parameter('emissivity_2', 'Real', limits=(0, 1)),
            Parameter('pane_kind_3', 'Integer', limits=(1, 2), words={'closing': 1, 'vented': 2}),
            Parameter('emissivity_3', 'Real', limits=(0, 1)),
            Parameter('cavity_width_1', 'Real', unit='m', limits=(0.001, inf)),
            Parameter('cavity_width_2', 'Real', unit='m', limits=(0.001, inf)),
            Parameter('outer_surface', 'Integer', limits=(1, 2), words={'outside': 1, 'inside': 2}),
            Parameter('exposure', 'Integer', limits=(1, 3), words={'sheltered': 1, 'normal': 2, 'severe': 3}),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
        ),
        results=(
            Result('admittance', 'Real'),
            Result('admittance_lead', 'Real'),
            Result('decrement_factor', 'Real'),
            Result('decrement_lag', 'Real'),
            Result('surface_factor', 'Real'),
            Result('surface_factor_lag', 'Real'),
            Result('u_value', 'Real'),
        ),
    ),
    Routine(
        'glass_direct', 'glassDirect',
        parameters=(
            Parameter('normal_transmittance', 'Real', limits=(0, 0.92)),
            Parameter('normal_reflectance', 'Real', limits=(0, 0.99)),
            Parameter('incidence', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
        ),
        results=(
            Result('parallel_transmittance', 'Real'),
            Result('parallel_absorptance', 'Real'),
            Result('parallel_reflectance', 'Real'),
            Result('perpendicular_transmittance', 'Real'),
            Result('perpendicular_absorptance', 'Real'),
            Result('perpendicular_reflectance', 'Real'),
        ),
    ),
    Routine(
        'glass_diffuse', 'glassDiffuse',
        parameters=(
            Parameter('normal_transmittance', 'Real', limits=(0, 0.92)),
            Parameter('normal_reflectance', 'Real', limits=(0, 0.99)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
        ),
    ),
    Routine(
        'stacked_layers', 'stackedLayers',
        parameters=(
            Parameter('layer_transmittances', 'Real', limits=(0, 1), shape=('layers',)),
            Parameter('layer_reflectances', 'Real', limits=(0, 1), shape=('layers',)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'traced_layers', 'tracedLayers',
        parameters=(
            Parameter('layer_transmittances', 'Real', limits=(0, 1), shape=('layers',)),
            Parameter('layer_absorptances', 'Real', limits=(0, 1), shape=('layers',)),
            Parameter('layer_reflectances', 'Real', limits=(0, 1), shape=('layers',)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'roller_blind', 'rollerBlind',
        parameters=(
            Parameter('blind_transmittance', 'Real', limits=(0, 1)),
            Parameter('blind_reflectance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'diffuse_roller_blind', 'diffuseRollerBlind',
        parameters=(
            Parameter('blind_transmittance', 'Real', limits=(0, 1)),
            Parameter('blind_reflectance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'refraction_angle', 'refractionAngle',
        parameters=(
            Parameter('incidence', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('refractive_index', 'Real', limits=(1, 4)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'surface_reflectance', 'surfaceReflectance',
        parameters=(
            Parameter('incidence', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('refraction_angle', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('refractive_index', 'Real', limits=(1, 4)),
        ),
        results=(
            Result('parallel_reflectance', 'Real'),
            Result('perpendicular_reflectance', 'Real'),
        ),
    ),
    Routine(
        'single_pass_absorption', 'singlePassAbsorption',
        parameters=(
            Parameter('refraction_angle', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('absorption_product', 'Real', limits=(0, 20)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'slab_optics', 'slabOptics',
        parameters=(
            Parameter('single_pass_absorptance', 'Real', limits=(0, 1)),
            Parameter('face_reflectance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'absorption_product', 'absorptionProduct',
        parameters=(
            Parameter('normal_transmittance', 'Real', limits=(0, 0.92)),
            Parameter('refractive_index', 'Real', limits=(1, 4)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'normal_transmittance', 'normalTransmittance',
        parameters=(
            Parameter('absorption_product', 'Real', limits=(0, 20)),
            Parameter('normal_reflectance', 'Real', limits=(0, 0.99)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'pane_temperatures', 'paneTemperatures',
        parameters=(
            Parameter('inside_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('outside_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('panes', 'Integer', limits=(1, 5)),
            Parameter('absorbed_1', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('absorbed_2', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('absorbed_3', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('absorbed_4', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('absorbed_5', 'Real', unit='W/m²', limits=(0, inf)),
        ),
        results=(
            Result('pane_temperature_1', 'Real'),
            Result('pane_temperature_2', 'Real'),
            Result('pane_temperature_3', 'Real'),
            Result('pane_temperature_4', 'Real'),
            Result('pane_temperature_5', 'Real'),
        ),
    ),
    Routine(
        'unit_direct', 'unitDirect',
        parameters=(
            Parameter('shortwave_shading_coefficient', 'Real', limits=(0, 1.05)),
            Parameter('longwave_shading_coefficient', 'Real', limits=(0, 1)),
            Parameter('incidence', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'unit_diffuse', 'unitDiffuse',
        parameters=(
            Parameter('shortwave_shading_coefficient', 'Real', limits=(0, 1.05)),
            Parameter('longwave_shading_coefficient', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'unit_direct_shares', 'unitDirectShares',
        parameters=(
            Parameter('shortwave_shading_coefficient', 'Real', limits=(0, 1.05)),
            Parameter('longwave_shading_coefficient', 'Real', limits=(0, 1)),
            Parameter('incidence', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('panes', 'Integer', limits=(1, 5)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('pane_shares', 'Real', shape=('panes',)),
            Result('absorptance', 'Real'),
        ),
    ),
    Routine(
        'unit_diffuse_shares', 'unitDiffuseShares',
        parameters=(
            Parameter('shortwave_shading_coefficient', 'Real', limits=(0, 1.05)),
            Parameter('longwave_shading_coefficient', 'Real', limits=(0, 1)),
            Parameter('panes', 'Integer', limits=(1, 5)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('pane_shares', 'Real', shape=('panes',)),
            Result('absorptance', 'Real'),
        ),
    ),
    Routine(
        'unit_shares', 'unitShares',
        parameters=(
            Parameter('radiation', 'Integer', limits=(1, 2), words={'direct': 1, 'diffuse': 2}),
            Parameter('shortwave_shading_coefficient', 'Real', limits=(0, 1.05)),
            Parameter('longwave_shading_coefficient', 'Real', limits=(0, 1)),
            Parameter('incidence', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('panes', 'Integer', limits=(1, 5)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('pane_shares', 'Real', shape=('panes',)),
            Result('absorptance', 'Real'),
        ),
    ),
    Routine(
        'slat_direct', 'slatDirect',
        parameters=(
            Parameter('slat_spacing', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_width', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_angle', 'Real', unit='°', limits=(-90, 90)),
            Parameter('profile_angle', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('slat_absorptance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'two_faced_slat_direct', 'twoFacedSlatDirect',
        parameters=(
            Parameter('slat_spacing', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_width', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_angle', 'Real', unit='°', limits=(-90, 90)),
            Parameter('profile_angle', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('struck_absorptance', 'Real', limits=(0, 1)),
            Parameter('opposite_absorptance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'open_slat_direct', 'openSlatDirect',
        parameters=(
            Parameter('slat_spacing', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_width', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_angle', 'Real', unit='°', limits=(-90, 90)),
            Parameter('profile_angle', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('open_share', 'Real', limits=(0, 1)),
            Parameter('struck_absorptance', 'Real', limits=(0, 1)),
            Parameter('opposite_absorptance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('transmittance', 'Real'),
            Result('absorptance', 'Real'),
            Result('reflectance', 'Real'),
        ),
    ),
    Routine(
        'slat_diffuse', 'slatDiffuse',
        parameters=(
            Parameter('slat_spacing', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_width', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_angle', 'Real', unit='°', limits=(-90, 90)),
            Parameter('slat_absorptance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('sky_transmittance', 'Real'),
            Result('ground_transmittance', 'Real'),
            Result('sky_absorptance', 'Real'),
            Result('ground_absorptance', 'Real'),
        ),
    ),
    Routine(
        'two_faced_slat_diffuse', 'twoFacedSlatDiffuse',
        parameters=(
            Parameter('slat_spacing', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_width', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_angle', 'Real', unit='°', limits=(-90, 90)),
            Parameter('struck_absorptance', 'Real', limits=(0, 1)),
            Parameter('opposite_absorptance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('sky_transmittance', 'Real'),
            Result('ground_transmittance', 'Real'),
            Result('sky_absorptance', 'Real'),
            Result('ground_absorptance', 'Real'),
        ),
    ),
    Routine(
        'open_slat_diffuse', 'openSlatDiffuse',
        parameters=(
            Parameter('slat_spacing', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_width', 'Real', unit='m', limits=(0, inf)),
            Parameter('slat_angle', 'Real', unit='°', limits=(-90, 90)),
            Parameter('open_share', 'Real', limits=(0, 1)),
            Parameter('struck_absorptance', 'Real', limits=(0, 1)),
            Parameter('opposite_absorptance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('sky_transmittance', 'Real'),
            Result('ground_transmittance', 'Real'),
            Result('sky_absorptance', 'Real'),
            Result('ground_absorptance', 'Real'),
        ),
    ),
    Routine(
        'locate_band', 'locateBand',
        parameters=(
            Parameter('fraction', 'Real', limits=(0, 1)),
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('frequencies', 'Real', limits=(0, 1), shape=(12, 10)),
        ),
        results=(
            Result('lower_band', 'Integer'),
            Result('upper_band', 'Integer'),
            Result('band_weight', 'Real'),
        ),
    ),
    Routine(
        'band_climate', 'bandClimate',
        parameters=(
            Parameter('band', 'Integer', limits=(0, 10)),
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('band_set', 'Integer', limits=(1, 2), words={'first': 1, 'second': 2}),
            Parameter('percentage', 'Real', unit='%', limits=(0, 100)),
        ),
        results=(
            Result('new_percentage', 'Real'),
            Result('q1', 'Real'),
            Result('q2', 'Real'),
            Result('q3', 'Real'),
            Result('q4', 'Real'),
            Result('q5', 'Real'),
            Result('q6', 'Real'),
            Result('time_a', 'Real'),
            Result('time_b', 'Real'),
            Result('q7', 'Real'),
            Result('q8', 'Real'),
        ),
    ),
    Routine(
        'interpolate_band_rows', 'interpolateBandRows',
        parameters=(
            Parameter('base_row', 'Integer', limits=(0, 174)),
            Parameter('lower_band', 'Integer', limits=(1, 10)),
            Parameter('upper_band', 'Integer', limits=(1, 10)),
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('band_weight', 'Real', limits=(-1, 1)),
        ),
        results=(
            Result('value', 'Real'),
        ),
    ),
    Routine(
        'band_row', 'bandRow',
        parameters=(
            Parameter('row', 'Integer', limits=(1, 184)),
        ),
        results=(
            Result('values', 'Real', shape=(12,)),
        ),
    ),
    Routine(
        'store_design_day', 'storeDesignDay',
        parameters=(
            Parameter('month', 'Integer', limits=(1, 12)),
        ),
        results=(
            Result('day', 'Integer'),
        ),
    ),
    Routine(
        'store_design_day_by_option', 'storeDesignDayByOption',
        parameters=(
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('day_kind', 'Integer', limits=(1, 2), words={'of_month': 1, 'of_year': 2}),
        ),
        results=(
            Result('day', 'Integer'),
        ),
    ),
    Routine(
        'design_day', 'designDay',
        parameters=(
            Parameter('month', 'Integer', limits=(1, 12)),
        ),
        results=(
            Result('result', 'Integer'),
        ),
    ),
    Routine(
        'design_day_by_option', 'designDayByOption',
        parameters=(
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('day_kind', 'Integer', limits=(1, 2), words={'of_month': 1, 'of_year': 2}),
        ),
        results=(
            Result('result', 'Integer'),
        ),
    ),
    Routine(
        'second_design_day', 'secondDesignDay',
        parameters=(
            Parameter('month', 'Integer', limits=(1, 12)),
        ),
        results=(
            Result('result', 'Integer'),
        ),
    ),
    Routine(
        'second_design_day_by_option', 'secondDesignDayByOption',
        parameters=(
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('day_kind', 'Integer', limits=(1, 2), words={'of_month': 1, 'of_year': 2}),
        ),
        results=(
            Result('result', 'Integer'),
        ),
    ),
    Routine(
        'station_records', 'stationRecords', of_file=True,
        parameters=(
            Parameter('file_name', 'Text'),
            Parameter('station', 'Integer', limits=(1, inf)),
            Parameter('month', 'Integer', limits=(0, 12)),
            Parameter('station_records', 'Real', shape=(11, 12)),
        ),
        results=(
            Result('new_station_records', 'Real', shape=(11, 12)),
        ),
    ),
    Routine(
        'station_climate', 'stationClimate', of_file=True,
        parameters=(
            Parameter('file_name', 'Text'),
            Parameter('station', 'Integer', limits=(1, inf)),
            Parameter('band', 'Integer', limits=(0, 10)),
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('band_set', 'Integer', limits=(1, 2), words={'first': 1, 'second': 2}),
            Parameter('percentage', 'Real', unit='%', limits=(0, 100)),
        ),
        results=(
            Result('q1', 'Real'),
            Result('q2', 'Real'),
            Result('q3', 'Real'),
            Result('q4', 'Real'),
            Result('q5', 'Real'),
            Result('q6', 'Real'),
            Result('q7', 'Real'),
            Result('time_a', 'Real'),
            Result('time_b', 'Real'),
        ),
    ),
    Routine(
        'locate_station_band', 'locateStationBand', of_file=True,
        parameters=(
            Parameter('file_name', 'Text'),
            Parameter('station', 'Integer', limits=(1, inf)),
            Parameter('band_set', 'Integer', limits=(1, 2), words={'first': 1, 'second': 2}),
            Parameter('fraction', 'Real', limits=(0, 1)),
            Parameter('month', 'Integer', limits=(1, 12)),
        ),
        results=(
            Result('lower_band', 'Integer'),
            Result('upper_band', 'Integer'),
            Result('band_weight', 'Real'),
        ),
    ),
    Routine(
        'interpolate_station_rows', 'interpolateStationRows', of_file=True,
        parameters=(
            Parameter('file_name', 'Text'),
            Parameter('station', 'Integer', limits=(1, inf)),
            Parameter('base_row', 'Integer', limits=(2, 154)),
            Parameter('lower_band', 'Integer', limits=(1, 10)),
            Parameter('upper_band', 'Integer', limits=(1, 10)),
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('band_weight', 'Real', limits=(-1, 1)),
        ),
        results=(
            Result('value', 'Real'),
        ),
    ),
    Routine(
        'station_row', 'stationRow', of_file=True,
        parameters=(
            Parameter('file_name', 'Text'),
            Parameter('station', 'Integer', limits=(1, inf)),
            Parameter('row', 'Integer', limits=(1, 171)),
        ),
        results=(
            Result('values', 'Real', shape=(12,)),
        ),
    ),
    Routine(
        'daily_temperature', 'dailyTemperature',
        parameters=(
            Parameter('hour', 'Real', unit='h', limits=(0, 24)),
            Parameter('highest_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('lowest_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('hour_of_highest', 'Real', unit='h', limits=(0, 24)),
            Parameter('hour_of_lowest', 'Real', unit='h', limits=(0, 24)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'daily_value', 'dailyValue',
        parameters=(
            Parameter('hour', 'Real', unit='h', limits=(0, 24)),
            Parameter('mean', 'Real'),
            Parameter('amplitude', 'Real'),
            Parameter('first_hour', 'Real', unit='h', limits=(0, 24)),
            Parameter('second_hour', 'Real', unit='h', limits=(0, 24)),
            Parameter('amplitude_factor', 'Real'),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'design_irradiance', 'designIrradiance',
        parameters=(
            Parameter('solar_altitude', 'Real', unit='rad', limits=(0, 1.5707964)),
            Parameter('site_height', 'Real', unit='m', limits=(0, 4000)),
            Parameter('sky_kind', 'Integer', limits=(0, 1), words={'clear': 0, 'cloudy': 1}),
        ),
        results=(
            Result('direct_normal', 'Real'),
            Result('diffuse_horizontal', 'Real'),
        ),
    ),
    Routine(
        'height_factor', 'heightFactor',
        parameters=(
            Parameter('site_height', 'Real', unit='m', limits=(0, 4000)),
            Parameter('solar_altitude', 'Real', unit='rad', limits=(0, 1.5707964)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'eccentricity_factor', 'eccentricityFactor',
        parameters=(
            Parameter('day', 'Integer', limits=(1, 366)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'clearness_index', 'clearnessIndex',
        parameters=(
            Parameter('day', 'Integer', limits=(1, 366)),
            Parameter('solar_altitude', 'Real', unit='rad', limits=(0, 1.5707964)),
            Parameter('global_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'muneer_slope', 'muneerSlope',
        parameters=(
            Parameter('solar_altitude', 'Real', unit='rad', limits=(0, 1.5707964)),
            Parameter('solar_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('surface_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('beam_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('diffuse_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('extraterrestrial_horizontal', 'Real', unit='W/m²', limits=(0, 1415)),
            Parameter('ground_reflectance', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('surface_beam', 'Real'),
            Result('surface_diffuse', 'Real'),
            Result('ground_reflected', 'Real'),
            Result('incidence', 'Real'),
        ),
    ),
    Routine(
        'perez_diffuse', 'perezDiffuse',
        parameters=(
            Parameter('solar_altitude', 'Real', unit='rad', limits=(0, 1.5707964)),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('beam_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('diffuse_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('incidence', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('extraterrestrial_normal', 'Real', unit='W/m²', limits=(1320, 1415)),
        ),
        results=(
            Result('surface_diffuse', 'Real'),
        ),
    ),
    Routine(
        'site_constants', 'siteConstants',
        parameters=(
            Parameter('site_class', 'Integer', limits=(1, 6)),
            Parameter('month', 'Integer', limits=(1, 12)),
        ),
        results=(
            Result('ground_reflectance', 'Real'),
            Result('beam_factor', 'Real'),
            Result('diffuse_factor', 'Real'),
            Result('alternative_diffuse_factor', 'Real'),
        ),
    ),
    Routine(
        'diffuse_tilt_factor', 'diffuseTiltFactor',
        parameters=(
            Parameter('day', 'Integer', limits=(1, 366)),
            Parameter('solar_altitude', 'Real', unit='rad', limits=(0, 1.5707964)),
            Parameter('beam_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('sky_model', 'Integer', limits=(0, 2), words={'radiance_index': 0, 'northern_europe': 1, 'southern_europe': 2}),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'slope_diffuse', 'slopeDiffuse',
        parameters=(
            Parameter('day', 'Integer', limits=(1, 366)),
            Parameter('solar_altitude', 'Real', unit='rad', limits=(0, 1.5707964)),
            Parameter('solar_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('surface_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('beam_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('diffuse_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('sky_model', 'Integer', limits=(0, 2), words={'radiance_index': 0, 'northern_europe': 1, 'southern_europe': 2}),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'sol_air_temperature', 'solAirTemperature',
        parameters=(
            Parameter('base_temperature', 'Real', unit='°C', limits=(-100, 200)),
            Parameter('surface_coefficient', 'Real', unit='W/m²K', limits=(0, inf)),
            Parameter('absorptance', 'Real', limits=(0, 1)),
            Parameter('irradiance', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('long_wave_loss', 'Real', unit='W/m²', limits=(0, inf)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'long_wave_loss', 'longWaveLoss',
        parameters=(
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('cloud_cover', 'Real', limits=(0, 1)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'solar_time_correction', 'solarTimeCorrection',
        parameters=(
            Parameter('clock_offset', 'Real', unit='h'),
            Parameter('day', 'Integer', limits=(1, 366)),
            Parameter('longitude', 'Real', unit='rad', limits=(-3.1416, 3.1416)),
            Parameter('reference_longitude', 'Real', unit='rad', limits=(-3.1416, 3.1416)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'almanac_position', 'almanacPosition',
        parameters=(
            Parameter('time_kind', 'Integer', limits=(1, 3), words={'solar': 1, 'zone': 2, 'dated_solar': 3}),
            Parameter('year', 'Integer', limits=(1976, 2099)),
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('day_of_month', 'Integer', limits=(1, 31)),
            Parameter('clock_time', 'Real', unit='h', limits=(0, 24)),
            Parameter('latitude', 'Real', unit='rad', limits=(-1.5707964, 1.5707964)),
            Parameter('longitude', 'Real', unit='rad', limits=(-3.1416, 3.1416)),
            Parameter('zone_meridian', 'Real', unit='rad', limits=(-3.1416, 3.1416)),
        ),
        results=(
            Result('new_longitude', 'Real'),
            Result('new_zone_meridian', 'Real'),
            Result('solar_altitude', 'Real'),
            Result('solar_azimuth', 'Real'),
            Result('declination', 'Real'),
        ),
    ),
    Routine(
        'almanac_sun_hours', 'almanacSunHours',
        parameters=(
            Parameter('year', 'Integer', limits=(1976, 2099)),
            Parameter('month', 'Integer', limits=(1, 12)),
            Parameter('day_of_month', 'Integer', limits=(1, 31)),
            Parameter('latitude', 'Real', unit='rad', limits=(-1.5707964, 1.5707964)),
        ),
        results=(
            Result('sunrise', 'Real'),
            Result('sunset', 'Real'),
        ),
    ),
    Routine(
        'solar_geometry', 'solarGeometry',
        parameters=(
            Parameter('latitude', 'Real', unit='rad', limits=(-1.5707964, 1.5707964)),
            Parameter('day', 'Integer', limits=(1, 365)),
            Parameter('solar_time', 'Real', unit='h', limits=(0, 24)),
        ),
        results=(
            Result('declination', 'Real'),
            Result('solar_altitude', 'Real'),
            Result('solar_azimuth', 'Real'),
            Result('sunrise', 'Real'),
            Result('sunset', 'Real'),
        ),
    ),
    Routine(
        'surface_angles', 'surfaceAngles',
        parameters=(
            Parameter('solar_altitude', 'Real', unit='rad', limits=(-1.5707964, 1.5707964)),
            Parameter('solar_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('surface_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
        ),
        results=(
            Result('incidence', 'Real'),
            Result('vertical_shadow_angle', 'Real'),
            Result('horizontal_shadow_angle', 'Real'),
        ),
    ),
    Routine(
        'surface_irradiance', 'surfaceIrradiance',
        parameters=(
            Parameter('solar_altitude', 'Real', unit='rad', limits=(0, 1.5707964)),
            Parameter('solar_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('surface_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('direct_normal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('diffuse_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('ground_reflectance', 'Real', limits=(0, 1)),
            Parameter('beam_factor', 'Real', limits=(0, inf)),
            Parameter('diffuse_factor', 'Real', limits=(0, inf)),
        ),
        results=(
            Result('surface_beam', 'Real'),
            Result('surface_diffuse', 'Real'),
            Result('ground_reflected', 'Real'),
        ),
    ),
    Routine(
        'surface_irradiance_and_incidence', 'surfaceIrradianceAndIncidence',
        parameters=(
            Parameter('solar_altitude', 'Real', unit='rad', limits=(0, 1.5707964)),
            Parameter('solar_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('surface_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
            Parameter('direct_normal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('diffuse_horizontal', 'Real', unit='W/m²', limits=(0, inf)),
            Parameter('ground_reflectance', 'Real', limits=(0, 1)),
            Parameter('beam_factor', 'Real', limits=(0, inf)),
            Parameter('diffuse_factor', 'Real', limits=(0, inf)),
        ),
        results=(
            Result('surface_beam', 'Real'),
            Result('surface_diffuse', 'Real'),
            Result('ground_reflected', 'Real'),
            Result('incidence', 'Real'),
        ),
    ),
    Routine(
        'overlap', 'overlap',
        parameters=(
            Parameter('x_1', 'Real', unit='m', shape=('vertices_1',)),
            Parameter('y_1', 'Real', unit='m', shape=('vertices_1',)),
            Parameter('x_2', 'Real', unit='m', shape=('vertices_2',)),
            Parameter('y_2', 'Real', unit='m', shape=('vertices_2',)),
        ),
        results=(
            Result('piece_x', 'Real', shape=(25, 5)),
            Result('piece_y', 'Real', shape=(25, 5)),
            Result('piece_vertices', 'Integer', shape=(5,)),
            Result('area', 'Real'),
        ),
    ),
    Routine(
        'overlap_alias', 'overlapAlias',
        parameters=(
            Parameter('x_1', 'Real', unit='m', shape=('vertices_1',)),
            Parameter('y_1', 'Real', unit='m', shape=('vertices_1',)),
            Parameter('x_2', 'Real', unit='m', shape=('vertices_2',)),
            Parameter('y_2', 'Real', unit='m', shape=('vertices_2',)),
        ),
        results=(
            Result('piece_x', 'Real', shape=(25, 5)),
            Result('piece_y', 'Real', shape=(25, 5)),
            Result('piece_vertices', 'Integer', shape=(5,)),
            Result('area', 'Real'),
        ),
    ),
    Routine(
        'collinearity', 'collinearity',
        parameters=(
            Parameter('x', 'Real', unit='m', shape=('points',)),
            Parameter('y', 'Real', unit='m', shape=('points',)),
        ),
        results=(
            Result('result', 'Integer'),
        ),
    ),
    Routine(
        'count_enclosed', 'countEnclosed',
        parameters=(
            Parameter('x', 'Real', unit='m', shape=('vertices',)),
            Parameter('y', 'Real', unit='m', shape=('vertices',)),
            Parameter('point_x', 'Real', unit='m', shape=('points',)),
            Parameter('point_y', 'Real', unit='m', shape=('points',)),
            Parameter('enclosed', 'Integer', limits=(0, 1), words={'outside': 0, 'inside': 1}, shape=('points',)),
        ),
        results=(
            Result('new_enclosed', 'Integer', shape=('points',)),
            Result('enclosed_points', 'Integer'),
        ),
    ),
    Routine(
        'boundary_crossing', 'boundaryCrossing',
        parameters=(
            Parameter('segment_start', 'Real', unit='m', shape=(2,)),
            Parameter('segment_end', 'Real', unit='m', shape=(2,)),
            Parameter('x', 'Real', unit='m', shape=('vertices',)),
            Parameter('y', 'Real', unit='m', shape=('vertices',)),
        ),
        results=(
            Result('crossing_point', 'Real', shape=(2,), none=True),
            Result('crossing_code', 'Integer'),
        ),
    ),
    Routine(
        'inside', 'inside',
        parameters=(
            Parameter('point', 'Real', unit='m', shape=(3,)),
            Parameter('polygon', 'Real', unit='m', shape=(3, 'vertices')),
        ),
        results=(
            Result('inside', 'Integer'),
        ),
    ),
    Routine(
        'parallel_planes', 'parallelPlanes',
        parameters=(
            Parameter('triangle_1', 'DoubleReal', unit='m', shape=(3, 3)),
            Parameter('triangle_2', 'DoubleReal', unit='m', shape=(3, 3)),
        ),
        results=(
            Result('result', 'Logical'),
        ),
    ),
    Routine(
        'parallel_sides', 'parallelSides',
        parameters=(
            Parameter('triangle_1', 'DoubleReal', unit='m', shape=(3, 3)),
            Parameter('triangle_2', 'DoubleReal', unit='m', shape=(3, 3)),
        ),
        results=(
            Result('result', 'Logical'),
            Result('side_1', 'Integer'),
            Result('side_2', 'Integer'),
        ),
    ),
    Routine(
        'rectangular', 'rectangular',
        parameters=(
            Parameter('quadrilateral', 'DoubleReal', unit='m', shape=(3, 4)),
        ),
        results=(
            Result('result', 'Logical'),
        ),
    ),
    Routine(
        'facing', 'facing',
        parameters=(
            Parameter('triangle', 'DoubleReal', unit='m', shape=(3, 3)),
            Parameter('azimuth', 'DoubleReal', unit='°', limits=(0, 6.2832)),
        ),
        results=(
            Result('new_azimuth', 'DoubleReal'),
            Result('tilt', 'DoubleReal'),
        ),
    ),
    Routine(
        'local_coordinates', 'localCoordinates',
        parameters=(
            Parameter('quadrilateral_1', 'DoubleReal', unit='m', shape=(3, 4)),
            Parameter('quadrilateral_2', 'DoubleReal', unit='m', shape=(3, 4)),
        ),
        results=(
            Result('local_1', 'DoubleReal', shape=(3, 4)),
            Result('local_2', 'DoubleReal', shape=(3, 4)),
        ),
    ),
    Routine(
        'to_local', 'toLocal',
        parameters=(
            Parameter('corners', 'DoubleReal', unit='m', shape=(3, 4)),
            Parameter('x_axis', 'DoubleReal', shape=(3,)),
            Parameter('y_axis', 'DoubleReal', shape=(3,)),
            Parameter('z_axis', 'DoubleReal', shape=(3,)),
        ),
        results=(
            Result('new_corners', 'DoubleReal', shape=(3, 4)),
        ),
    ),
    Routine(
        'meeting_point', 'meetingPoint',
        parameters=(
            Parameter('line_1_start', 'Real', unit='m', shape=(2,)),
            Parameter('line_1_end', 'Real', unit='m', shape=(2,)),
            Parameter('line_2_start', 'Real', unit='m', shape=(2,)),
            Parameter('line_2_end', 'Real', unit='m', shape=(2,)),
        ),
        results=(
            Result('meeting_point', 'Real', shape=(2,), none=True),
        ),
    ),
    Routine(
        'crossing_point', 'crossingPoint',
        parameters=(
            Parameter('segment_1_start', 'Real', unit='m', shape=(2,)),
            Parameter('segment_1_end', 'Real', unit='m', shape=(2,)),
            Parameter('segment_2_start', 'Real', unit='m', shape=(2,)),
            Parameter('segment_2_end', 'Real', unit='m', shape=(2,)),
        ),
        results=(
            Result('crossing_point', 'Real', shape=(2,), none=True),
        ),
    ),
    Routine(
        'in_span', 'inSpan',
        parameters=(
            Parameter('first_end', 'Real', unit='m', shape=(3,)),
            Parameter('second_end', 'Real', unit='m', shape=(3,)),
            Parameter('point', 'Real', unit='m', shape=(3,)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'ahead_and_nearer', 'aheadAndNearer',
        parameters=(
            Parameter('first_end', 'Real', unit='m', shape=(3,)),
            Parameter('second_end', 'Real', unit='m', shape=(3,)),
            Parameter('point', 'Real', unit='m', shape=(3,)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'coincide', 'coincide',
        parameters=(
            Parameter('x_1', 'Real', unit='m'),
            Parameter('y_1', 'Real', unit='m'),
            Parameter('x_2', 'Real', unit='m'),
            Parameter('y_2', 'Real', unit='m'),
        ),
        results=(
            Result('result', 'Logical'),
        ),
    ),
    Routine(
        'side_of_line', 'sideOfLine',
        parameters=(
            Parameter('line_start', 'Real', unit='m', shape=(2,)),
            Parameter('line_end', 'Real', unit='m', shape=(2,)),
            Parameter('point', 'Real', unit='m', shape=(2,)),
        ),
        results=(
            Result('result', 'Integer'),
        ),
    ),
    Routine(
        'back_azimuth', 'backAzimuth',
        parameters=(
            Parameter('angle', 'Real', unit='°', limits=(0, 360)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'direction_to', 'directionTo',
        parameters=(
            Parameter('solar_altitude', 'Real', unit='rad', limits=(-1.5708, 1.5708)),
            Parameter('solar_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
        ),
        results=(
            Result('direction', 'Real', shape=(3,)),
        ),
    ),
    Routine(
        'surface_axes', 'surfaceAxes',
        parameters=(
            Parameter('surface_azimuth', 'Real', unit='rad', limits=(0, 6.2832)),
            Parameter('tilt', 'Real', unit='rad', limits=(0, 3.1416)),
        ),
        results=(
            Result('rotation_matrix', 'Real', shape=(3, 3), turned=True),
            Result('inverse_matrix', 'Real', shape=(3, 3), turned=True),
        ),
    ),
    Routine(
        'local_to_global', 'localToGlobal',
        parameters=(
            Parameter('local_vector', 'Real', unit='m', shape=(3,)),
            Parameter('rotation_matrix', 'Real', limits=(-1, 1), shape=(3, 3), turned=True),
        ),
        results=(
            Result('global_vector', 'Real', shape=(3,)),
        ),
    ),
    Routine(
        'global_to_local', 'globalToLocal',
        parameters=(
            Parameter('global_vector', 'Real', unit='m', shape=(3,)),
            Parameter('rotation_matrix', 'Real', limits=(-1, 1), shape=(3, 3), turned=True),
        ),
        results=(
            Result('local_vector', 'Real', shape=(3,)),
        ),
    ),
    Routine(
        'plan_area', 'planArea',
        parameters=(
            Parameter('x', 'Real', unit='m', shape=('vertices',)),
            Parameter('y', 'Real', unit='m', shape=('vertices',)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'signed_plan_area', 'signedPlanArea',
        parameters=(
            Parameter('x', 'Real', unit='m', shape=('vertices',)),
            Parameter('y', 'Real', unit='m', shape=('vertices',)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'area_in_space', 'areaInSpace',
        parameters=(
            Parameter('x', 'Real', unit='m', shape=('vertices',)),
            Parameter('y', 'Real', unit='m', shape=('vertices',)),
            Parameter('z', 'Real', unit='m', shape=('vertices',)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'polygon_orientation', 'polygonOrientation',
        parameters=(
            Parameter('polygon', 'Real', unit='m', shape=(3, 'vertices')),
        ),
        results=(
            Result('area', 'Real'),
            Result('tilt', 'Real'),
            Result('back_azimuth', 'Real'),
        ),
    ),
    Routine(
        'projection', 'projection',
        parameters=(
            Parameter('plane_point', 'Real', unit='m', shape=(3,)),
            Parameter('plane_normal', 'Real', shape=(3,)),
            Parameter('point', 'Real', unit='m', shape=(3,)),
            Parameter('direction', 'Real', shape=(3,)),
        ),
        results=(
            Result('projected_point', 'Real', shape=(3,), none=True),
        ),
    ),
    Routine(
        'forward_projection', 'forwardProjection',
        parameters=(
            Parameter('plane_point', 'Real', unit='m', shape=(3,)),
            Parameter('plane_normal', 'Real', shape=(3,)),
            Parameter('point', 'Real', unit='m', shape=(3,)),
            Parameter('direction', 'Real', shape=(3,)),
        ),
        results=(
            Result('projected_point', 'Real', shape=(3,), none=True),
        ),
    ),
    Routine(
        'forward_projection_or_start', 'forwardProjectionOrStart',
        parameters=(
            Parameter('plane_point', 'Real', unit='m', shape=(3,)),
            Parameter('plane_normal', 'Real', shape=(3,)),
            Parameter('point', 'Real', unit='m', shape=(3,)),
            Parameter('direction', 'Real', shape=(3,)),
        ),
        results=(
            Result('projected_point', 'Real', shape=(3,)),
        ),
    ),
    Routine(
        'dot_product', 'dotProduct',
        parameters=(
            Parameter('vector_a', 'Real', unit='m', shape=(3,)),
            Parameter('vector_b', 'Real', unit='m', shape=(3,)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'dot_product_in_double', 'dotProductInDouble',
        parameters=(
            Parameter('vector_a', 'DoubleReal', unit='m', shape=(3,)),
            Parameter('vector_b', 'DoubleReal', unit='m', shape=(3,)),
        ),
        results=(
            Result('result', 'DoubleReal'),
        ),
    ),
    Routine(
        'cross_product', 'crossProduct',
        parameters=(
            Parameter('vector_a', 'Real', unit='m', shape=(3,)),
            Parameter('vector_b', 'Real', unit='m', shape=(3,)),
        ),
        results=(
            Result('cross_product', 'Real', shape=(3,)),
        ),
    ),
    Routine(
        'cross_product_in_double', 'crossProductInDouble',
        parameters=(
            Parameter('vector_a', 'DoubleReal', unit='m', shape=(3,)),
            Parameter('vector_b', 'DoubleReal', unit='m', shape=(3,)),
        ),
        results=(
            Result('cross_product', 'DoubleReal', shape=(3,)),
        ),
    ),
    Routine(
        'length', 'length',
        parameters=(
            Parameter('vector', 'Real', unit='m', shape=(3,)),
        ),
        results=(
            Result('result', 'Real'),
        ),
    ),
    Routine(
        'length_in_double', 'lengthInDouble',
        parameters=(
            Parameter('vector', 'DoubleReal', unit='m', shape=(3,)),
        ),
        results=(
            Result('result', 'DoubleReal'),
        ),
    ),
)}
