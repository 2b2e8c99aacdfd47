"""What is known of each routine at run time."""

# Produced from the catalogue of routines (catalogue/); do not edit.

from collections import namedtuple

INF = float("inf")

Filled = namedtuple("Filled", "name count more")  # an extent: so many more than that count
A = Argument = namedtuple("Argument", "name dtype unit meaning range selector axes")
R = Routine = namedtuple("Routine", "family exported_name signature inputs outputs")

ROUTINES = {
    "dry_air_enthalpy": R(
        "psychro", 'PSHDRY', '',
        (
         A('temperature', 'float32', '°C', 'temperature', (-50, 100), '', ()),
        ),
        (
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, 0 at 0 °C', (-10, 460), '', ()),
        ),
    ),
    "water_vapour_enthalpy": R(
        "psychro", 'PSHVAP', '',
        (
         A('temperature', 'float32', '°C', 'temperature', (-50, 100), '', ()),
        ),
        (
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, from liquid water at 0 °C', (-10, 460), '', ()),
        ),
    ),
    "dry_air_specific_heat": R(
        "psychro", 'PSCPDR', '',
        (
         A('temperature', 'float32', '°C', 'temperature', (-50, 100), '', ()),
        ),
        (
         A('specific_heat', 'float32', 'kJ/kgK', 'specific heat', (0, INF), '', ()),
        ),
    ),
    "water_vapour_specific_heat": R(
        "psychro", 'PSCPVA', '',
        (
         A('temperature', 'float32', '°C', 'temperature', (-50, 100), '', ()),
        ),
        (
         A('specific_heat', 'float32', 'kJ/kgK', 'specific heat', (0, INF), '', ()),
        ),
    ),
    "latent_heat": R(
        "psychro", 'PSHFG', '',
        (
         A('temperature', 'float32', '°C', 'temperature', (-50, 100), '', ()),
        ),
        (
         A('enthalpy', 'float32', 'kJ/kg', 'latent heat', (-10, 460), '', ()),
        ),
    ),
    "dry_bulb_from_vapour_pressure_and_relative_humidity": R(
        "psychro", '', '',
        (
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
         A('relative_humidity', 'float32', '%', 'relative humidity', (0, 100), '', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_vapour_pressure_and_percentage_saturation": R(
        "psychro", '', '',
        (
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
         A('percentage_saturation', 'float32', '%', 'percentage saturation', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_moisture_content_and_relative_humidity": R(
        "psychro", '', '',
        (
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
         A('relative_humidity', 'float32', '%', 'relative humidity', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_moisture_content_and_percentage_saturation": R(
        "psychro", '', '',
        (
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
         A('percentage_saturation', 'float32', '%', 'percentage saturation', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_enthalpy_and_moisture_content": R(
        "psychro", '', '',
        (
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, by mass of dry air', (-10, 460), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_enthalpy_and_vapour_pressure": R(
        "psychro", '', '',
        (
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, by mass of dry air', (-10, 460), '', ()),
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_enthalpy_and_relative_humidity": R(
        "psychro", '', '',
        (
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, by mass of dry air', (-10, 460), '', ()),
         A('relative_humidity', 'float32', '%', 'relative humidity', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_enthalpy_and_percentage_saturation": R(
        "psychro", '', '',
        (
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, by mass of dry air', (-10, 460), '', ()),
         A('percentage_saturation', 'float32', '%', 'percentage saturation', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_wet_bulb_and_vapour_pressure": R(
        "psychro", '', '',
        (
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_wet_bulb_and_moisture_content": R(
        "psychro", '', '',
        (
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_wet_bulb_and_relative_humidity": R(
        "psychro", '', '',
        (
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
         A('relative_humidity', 'float32', '%', 'relative humidity', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_wet_bulb_and_percentage_saturation": R(
        "psychro", '', '',
        (
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
         A('percentage_saturation', 'float32', '%', 'percentage saturation', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "dry_bulb_from_wet_bulb_and_enthalpy": R(
        "psychro", '', '',
        (
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, by mass of dry air', (-10, 460), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "adiabatic_mixing": R(
        "psychro", '', '',
        (
         A('first_air_flow', 'float32', 'kg/s', 'mass flow of dry air in the first stream, or its share in any unit', (0, INF), '', ()),
         A('first_dry_bulb', 'float32', '°C', 'dry-bulb temperature of the first stream', (-100, 200), '', ()),
         A('first_moisture_content', 'float32', 'kg/kg', 'moisture content of the first stream', (0, 0.1), '', ()),
         A('second_air_flow', 'float32', 'kg/s', 'mass flow of dry air in the second stream, in the same unit', (0, INF), '', ()),
         A('second_dry_bulb', 'float32', '°C', 'dry-bulb temperature of the second stream', (-100, 200), '', ()),
         A('second_moisture_content', 'float32', 'kg/kg', 'moisture content of the second stream', (0, 0.1), '', ()),
        ),
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature of the mixture', (-100, 200), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content of the mixture', (0, 0.1), '', ()),
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy of the mixture, by mass of dry air', (-10, 460), '', ()),
        ),
    ),
    "moisture_content_from_psychrometer": R(
        "psychro", 'PSGS', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
        ),
    ),
    "moisture_content": R(
        "psychro", '', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
        ),
    ),
    "vapour_pressure_from_moisture_content": R(
        "psychro", '', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
        ),
    ),
    "moisture_content_from_percentage_saturation": R(
        "psychro", '', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('percentage_saturation', 'float32', '%', 'percentage saturation', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
        ),
    ),
    "moisture_content_from_enthalpy": R(
        "psychro", '', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-50, 100), '', ()),
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, by mass of dry air', (-10, 460), '', ()),
        ),
        (
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
        ),
    ),
    "moist_air_density": R(
        "psychro", '', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('moist_air_density', 'float32', 'kg/m³', 'density of the moist air', (), '', ()),
        ),
    ),
    "percentage_saturation": R(
        "psychro", 'PSPCST', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('percentage_saturation', 'float32', '%', 'percentage saturation', (0, 100), '', ()),
        ),
    ),
    "specific_enthalpy": R(
        "psychro", '', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-50, 100), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
        ),
        (
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, by mass of dry air', (-10, 460), '', ()),
        ),
    ),
    "specific_enthalpy_from_psychrometer": R(
        "psychro", 'PSHWET', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, by mass of dry air', (-10, 460), '', ()),
        ),
    ),
    "specific_volume": R(
        "psychro", 'PSSPVL', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('specific_volume', 'float32', 'm³/kg', 'specific volume, by mass of dry air', (), '', ()),
        ),
    ),
    "saturation_temperature_from_enthalpy": R(
        "psychro", 'PSTSAT', '',
        (
         A('enthalpy', 'float32', 'kJ/kg', 'specific enthalpy, by mass of dry air', (-10, 460), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('temperature', 'float32', '°C', 'saturation temperature', (-100, 200), '', ()),
        ),
    ),
    "pool_evaporation": R(
        "psychro", 'TPPOOL', '',
        (
         A('water_area', 'float32', 'm²', 'area of the water surface', (0, INF), '', ()),
         A('wetted_area', 'float32', 'm²', 'further wetted area, which adds to the latent load only', (0, INF), '', ()),
         A('water_temperature', 'float32', '°C', 'water temperature', (-100, 200), '', ()),
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature of the room air', (-100, 200), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content of the room air', (0, 0.1), '', ()),
         A('reference_temperature', 'float32', '°C', 'second reference temperature', (-100, 200), '', ()),
         A('bathers', 'int32', '', 'number of bathers, below 1 unoccupied', (0, INF), '', ()),
         A('reference_coefficient', 'float32', 'W/m²K', 'coefficient of the exchange with the second reference temperature', (0, INF), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('evaporation_rate', 'float32', 'kg/(m²s)', 'evaporation rate', (), '', ()),
         A('latent_load', 'float32', 'W', 'latent load, 2.45 MJ per kg evaporated', (), '', ()),
         A('convective_load', 'float32', 'W', 'convection from the water to the room air at 10 W/m²K', (), '', ()),
         A('reference_load', 'float32', 'W', 'exchange of the water with the second reference temperature', (), '', ()),
        ),
    ),
    "pool_evaporation_from_wet_bulb": R(
        "psychro", 'TPPOOL2', '',
        (
         A('water_area', 'float32', 'm²', 'area of the water surface', (0, INF), '', ()),
         A('wetted_area', 'float32', 'm²', 'further wetted area, which adds to the latent load only', (0, INF), '', ()),
         A('water_temperature', 'float32', '°C', 'water temperature', (-100, 200), '', ()),
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature of the room air', (-100, 200), '', ()),
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature of the room air, sling psychrometer', (-100, 200), '', ()),
         A('reference_temperature', 'float32', '°C', 'second reference temperature', (-100, 200), '', ()),
         A('bathers', 'int32', '', 'number of bathers, below 1 unoccupied', (0, INF), '', ()),
         A('reference_coefficient', 'float32', 'W/m²K', 'coefficient of the exchange with the second reference temperature', (0, INF), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
        ),
        (
         A('evaporation_rate', 'float32', 'kg/(m²s)', 'evaporation rate', (), '', ()),
         A('latent_load', 'float32', 'W', 'latent load, 2.45 MJ per kg evaporated', (), '', ()),
         A('convective_load', 'float32', 'W', 'convection from the water to the room air at 10 W/m²K', (), '', ()),
         A('reference_load', 'float32', 'W', 'exchange of the water with the second reference temperature', (), '', ()),
        ),
    ),
    "saturation_pressure": R(
        "psychro", 'PSSVP', '',
        (
         A('temperature', 'float32', '°C', 'temperature', (-100, 200), '', ()),
        ),
        (
         A('saturation_pressure', 'float32', 'Pa', 'saturation vapour pressure', (), '', ()),
        ),
    ),
    "dew_point": R(
        "psychro", '', '',
        (
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
        ),
        (
         A('dew_point', 'float32', '°C', 'dew-point temperature, of frost below 0 °C', (-100, 200), '', ()),
        ),
    ),
    "vapour_pressure": R(
        "psychro", 'PSVP', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('relative_humidity', 'float32', '%', 'relative humidity', (0, 100), '', ()),
        ),
        (
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
        ),
    ),
    "relative_humidity": R(
        "psychro", '', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
        ),
        (
         A('relative_humidity', 'float32', '%', 'relative humidity', (0, 100), '', ()),
        ),
    ),
    "vapour_pressure_from_psychrometer": R(
        "psychro", 'PSVAP', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
        ),
    ),
    "weighted_temperature": R(
        "psychro", 'PSTEFF', '',
        (
         A('first_temperature', 'float32', '°C', 'temperature with the greater weight', (-100, 200), '', ()),
         A('second_temperature', 'float32', '°C', 'temperature with the lesser, negative weight', (-100, 200), '', ()),
        ),
        (
         A('temperature', 'float32', '°C', 'weighted temperature', (-100, 200), '', ()),
        ),
    ),
    "psychrometer_wet_bulb": R(
        "psychro", 'PSTWET', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('relative_humidity', 'float32', '%', 'relative humidity', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature, never above the dry bulb', (-100, 200), '', ()),
        ),
    ),
    "wet_bulb_from_percentage_saturation": R(
        "psychro", 'PSTWB', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('percentage_saturation', 'float32', '%', 'percentage saturation', (0, 100), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "wet_bulb_from_moisture_content": R(
        "psychro", 'PSWBLB', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('moisture_content', 'float32', 'kg/kg', 'moisture content, water vapour per dry air', (0, 0.1), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "wet_bulb": R(
        "psychro", '', '',
        (
         A('dry_bulb', 'float32', '°C', 'dry-bulb temperature', (-100, 200), '', ()),
         A('vapour_pressure', 'float32', 'Pa', 'vapour pressure', (0, INF), '', ()),
         A('pressure', 'float32', 'Pa', 'atmospheric pressure', (50000, 110000), '', ()),
         A('psychrometer', 'int32', '', 'psychrometer type', (1, 2), 'Psychrometer', ()),
        ),
        (
         A('wet_bulb', 'float32', '°C', 'wet-bulb temperature', (-100, 200), '', ()),
        ),
    ),
    "cyclic_response": R(
        "fabric", 'TPADMT', '(layers),(layers),(layers),(layers),(),(),(),()->(),(),(),(),(),(),()',
        (
         A('thickness', 'float32', 'm', 'thickness of each layer, from the room outwards; below 0: a layer of given resistance, 0: no layer', (), '', ('layers',)),
         A('conductivity', 'float32', 'W/mK', 'conductivity of each layer; its resistance in m²K/W where the thickness is below 0', (0, INF), '', ('layers',)),
         A('density', 'float32', 'kg/m³', 'density of each layer', (0, INF), '', ('layers',)),
         A('specific_heat', 'float32', 'J/kgK', 'specific heat of each layer', (0, INF), '', ('layers',)),
         A('inside_resistance', 'float32', 'm²K/W', 'resistance of the surface at the room', (0, INF), '', ()),
         A('outside_resistance', 'float32', 'm²K/W', 'resistance of the far surface', (0, INF), '', ()),
         A('harmonic', 'int32', '', 'cycles in 24 hours', (0, INF), '', ()),
         A('element_kind', 'int32', '', 'kind of element', (1, 2), 'ElementKind', ()),
        ),
        (
         A('admittance', 'float32', 'W/m²K', 'admittance Y', (), '', ()),
         A('admittance_lead', 'float32', 'h', 'time lead of the admittance, 0 to 24 / harmonic', (), '', ()),
         A('decrement_factor', 'float32', '1', 'decrement factor f, 0 for a partition', (), '', ()),
         A('decrement_lag', 'float32', 'h', 'time lag of the decrement factor, 0 to 24 / harmonic, 0 for a partition', (), '', ()),
         A('surface_factor', 'float32', '1', 'surface factor F', (), '', ()),
         A('surface_factor_lag', 'float32', 'h', 'time lag of the surface factor, 0 to 24 / harmonic', (), '', ()),
         A('u_value', 'float32', 'W/m²K', 'U-value, as `u_value` gives it', (0, INF), '', ()),
        ),
    ),
    "vertical_cavity_resistance": R(
        "fabric", 'TPRCAV', '',
        (
         A('cavity_width', 'float32', 'm', 'width', (0.001, INF), '', ()),
        ),
        (
         A('cavity_resistance', 'float32', 'm²K/W', 'cavity resistance, not below 0.1', (), '', ()),
        ),
    ),
    "air_cavity_resistance": R(
        "fabric", 'TPRCA2', '',
        (
         A('tilt', 'float32', 'rad', 'tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down', (0, 3.1416), '', ()),
         A('cavity_width', 'float32', 'm', 'width', (0.001, INF), '', ()),
         A('emissivity_1', 'float32', '1', 'long-wave emissivity of one face', (0, 1), '', ()),
         A('emissivity_2', 'float32', '1', 'long-wave emissivity of the other face', (0, 1), '', ()),
        ),
        (
         A('cavity_resistance', 'float32', 'm²K/W', 'cavity resistance', (), '', ()),
        ),
    ),
    "gas_cavity_resistance": R(
        "fabric", 'TPRCAX', '',
        (
         A('tilt', 'float32', 'rad', 'tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down', (0, 3.1416), '', ()),
         A('cavity_width', 'float32', 'm', 'width', (0.001, INF), '', ()),
         A('emissivity_1', 'float32', '1', 'long-wave emissivity of one face', (0, 1), '', ()),
         A('emissivity_2', 'float32', '1', 'long-wave emissivity of the other face', (0, 1), '', ()),
         A('density', 'float32', 'kg/m³', 'density of the gas', (0, INF), '', ()),
         A('conductivity', 'float32', 'W/mK', 'thermal conductivity of the gas', (0, INF), '', ()),
         A('specific_heat', 'float32', 'J/kgK', 'specific heat of the gas at constant pressure', (0, INF), '', ()),
         A('viscosity', 'float32', 'Pa s', 'dynamic viscosity of the gas', (0, INF), '', ()),
        ),
        (
         A('cavity_resistance', 'float32', 'm²K/W', 'cavity resistance', (), '', ()),
        ),
    ),
    "total_vapour_resistance": R(
        "fabric", 'TPDAMP', '(layers),(layers)->()',
        (
         A('thickness', 'float32', 'm', 'thickness of each layer; below 0: a layer of given thermal resistance, 0: a membrane', (), '', ('layers',)),
         A('vapour_resistivity', 'float32', 'GN s/(kg m)', 'vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg', (0, INF), '', ('layers',)),
        ),
        (
         A('vapour_resistance', 'float32', 'N s/kg', 'total vapour resistance', (), '', ()),
        ),
    ),
    "condensation_profile": R(
        "fabric", 'TPGRAD', '(layers),(layers),(layers),(),(),(),(),(),()->(interfaces),(interfaces),(interfaces)',
        (
         A('thickness', 'float32', 'm', 'thickness of each layer from the inside; below 0: a layer of given thermal resistance, 0: a membrane', (), '', ('layers',)),
         A('conductivity', 'float32', 'W/mK', 'conductivity of each layer; its resistance in m²K/W where the thickness is below 0', (0, INF), '', ('layers',)),
         A('vapour_resistivity', 'float32', 'GN s/(kg m)', 'vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg', (0, INF), '', ('layers',)),
         A('inside_resistance', 'float32', 'm²K/W', 'resistance of the inside surface', (0, INF), '', ()),
         A('outside_resistance', 'float32', 'm²K/W', 'resistance of the outside surface', (0, INF), '', ()),
         A('inside_temperature', 'float32', '°C', 'inside air temperature', (-100, 200), '', ()),
         A('outside_temperature', 'float32', '°C', 'outside air temperature', (-100, 200), '', ()),
         A('inside_humidity', 'float32', '%', 'inside relative humidity', (0, 100), '', ()),
         A('outside_humidity', 'float32', '%', 'outside relative humidity', (0, 100), '', ()),
        ),
        (
         A('interface_temperature', 'float32', '°C', 'temperature at the interfaces, from the inside surface to the outside one', (-100, 200), '', (Filled('interfaces', 'layers', 1),)),
         A('interface_vapour_pressure', 'float32', 'Pa', 'vapour pressure at them', (0, INF), '', (Filled('interfaces', 'layers', 1),)),
         A('interface_saturation_pressure', 'float32', 'Pa', 'saturation pressure at them', (), '', (Filled('interfaces', 'layers', 1),)),
        ),
    ),
    "condenses_within_layer": R(
        "fabric", 'ITPCON', '',
        (
         A('warm_temperature', 'float32', '°C', 'temperature of the warm face', (-100, 200), '', ()),
         A('cold_temperature', 'float32', '°C', 'temperature of the cold face', (-100, 200), '', ()),
         A('warm_vapour_pressure', 'float32', 'Pa', 'vapour pressure at the warm face', (0, INF), '', ()),
         A('cold_vapour_pressure', 'float32', 'Pa', 'vapour pressure at the cold face', (0, INF), '', ()),
        ),
        (
         A('indicator', 'int32', '', '1 if vapour condenses, 0 if not', (), '', ()),
        ),
    ),
    "element_property": R(
        "fabric", 'BELDAT', '(record_count,10),(),()->()',
        (
         A('element_records', 'float32', 'by field', 'ten fields of each record, counted from 1; the first is its type code', (), '', ('record_count', 10)),
         A('record_number', 'int32', '', 'record asked about, counted from 1', (1, INF), '', ()),
         A('item', 'int32', '', 'property asked for', (1, 72), '', ()),
        ),
        (
         A('property_value', 'float32', 'by item', 'the property', (), '', ()),
        ),
    ),
    "natural_convection_coefficient": R(
        "fabric", 'TPHCON', '',
        (
         A('temperature_difference', 'float32', 'K', 'difference between surface and air temperature; its sign makes no difference', (), '', ()),
         A('characteristic_length', 'float32', 'm', 'characteristic length: height of a vertical surface, four times the area over the perimeter of a horizontal one', (0, INF), '', ()),
         A('heat_flow_direction', 'int32', '', 'direction of the heat flow', (1, 3), 'HeatFlowDirection', ()),
        ),
        (
         A('heat_transfer_coefficient', 'float32', 'W/m²K', 'convective coefficient', (0, INF), '', ()),
        ),
    ),
    "pack_two_fractions": R(
        "fabric", 'TPCOLW', '',
        (
         A('packing', 'int32', '', 'direction', (1, 2), 'Packing', ()),
         A('packed_number', 'float32', '1', 'packed number', (0, 9999.99), '', ()),
         A('fraction_1', 'float32', '1', 'fraction behind the point', (0, 0.99), '', ()),
         A('fraction_2', 'float32', '1', 'fraction held as units and tens', (0, 0.99), '', ()),
        ),
        (
         A('packed_number', 'float32', '1', 'packed number', (0, 9999.99), '', ()),
         A('fraction_1', 'float32', '1', 'fraction behind the point', (0, 0.99), '', ()),
         A('fraction_2', 'float32', '1', 'fraction held as units and tens', (0, 0.99), '', ()),
        ),
    ),
    "pack_three_fractions": R(
        "fabric", 'TPCOLT', '',
        (
         A('packing', 'int32', '', 'direction', (1, 2), 'Packing', ()),
         A('packed_number', 'float32', '1', 'packed number', (0, 9999.99), '', ()),
         A('fraction_1', 'float32', '1', 'fraction behind the point', (0, 0.99), '', ()),
         A('fraction_2', 'float32', '1', 'fraction held as units and tens', (0, 0.99), '', ()),
         A('fraction_3', 'float32', '1', 'fraction held as hundreds and thousands', (0, 0.99), '', ()),
        ),
        (
         A('packed_number', 'float32', '1', 'packed number', (0, 9999.99), '', ()),
         A('fraction_1', 'float32', '1', 'fraction behind the point', (0, 0.99), '', ()),
         A('fraction_2', 'float32', '1', 'fraction held as units and tens', (0, 0.99), '', ()),
         A('fraction_3', 'float32', '1', 'fraction held as hundreds and thousands', (0, 0.99), '', ()),
        ),
    ),
    "pack_three_fractions_third_first": R(
        "fabric", 'TPCOLW2', '',
        (
         A('packing', 'int32', '', 'direction', (1, 2), 'Packing', ()),
         A('packed_number', 'float32', '1', 'packed number', (0, 9999.99), '', ()),
         A('fraction_3', 'float32', '1', 'fraction held as hundreds and thousands', (0, 0.99), '', ()),
         A('fraction_1', 'float32', '1', 'fraction behind the point', (0, 0.99), '', ()),
         A('fraction_2', 'float32', '1', 'fraction held as units and tens', (0, 0.99), '', ()),
        ),
        (
         A('packed_number', 'float32', '1', 'packed number', (0, 9999.99), '', ()),
         A('fraction_3', 'float32', '1', 'fraction held as hundreds and thousands', (0, 0.99), '', ()),
         A('fraction_1', 'float32', '1', 'fraction behind the point', (0, 0.99), '', ()),
         A('fraction_2', 'float32', '1', 'fraction held as units and tens', (0, 0.99), '', ()),
        ),
    ),
    "pack_pane": R(
        "fabric", 'TPCOSW', '',
        (
         A('packing', 'int32', '', 'direction', (1, 2), 'Packing', ()),
         A('packed_number', 'float32', '1', 'packed number', (0, 9999.99), '', ()),
         A('absorptance', 'float32', '1', 'absorptance', (0, 1), '', ()),
         A('reflectance_1', 'float32', '1', 'reflectance of the first face', (0, 1), '', ()),
         A('reflectance_2', 'float32', '1', 'reflectance of the second face', (0, 1), '', ()),
        ),
        (
         A('packed_number', 'float32', '1', 'packed number', (0, 9999.99), '', ()),
         A('absorptance', 'float32', '1', 'absorptance', (0, 1), '', ()),
         A('reflectance_1', 'float32', '1', 'reflectance of the first face', (0, 1), '', ()),
         A('reflectance_2', 'float32', '1', 'reflectance of the second face', (0, 1), '', ()),
        ),
    ),
    "surface_resistance": R(
        "fabric", 'TPRSUR', '',
        (
         A('surface', 'int32', '', 'surface', (1, 2), 'Surface', ()),
         A('tilt', 'float32', 'rad', 'tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down', (0, 3.1416), '', ()),
         A('exposure', 'int32', '', 'exposure of an outside surface to the wind', (1, 3), 'Exposure', ()),
        ),
        (
         A('surface_resistance', 'float32', 'm²K/W', 'surface resistance', (0, INF), '', ()),
        ),
    ),
    "surface_resistance_at_emissivity": R(
        "fabric", 'TPRSU2', '',
        (
         A('surface', 'int32', '', 'surface', (1, 2), 'Surface', ()),
         A('tilt', 'float32', 'rad', 'tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down', (0, 3.1416), '', ()),
         A('exposure', 'int32', '', 'exposure of an outside surface to the wind', (1, 3), 'Exposure', ()),
         A('emissivity', 'float32', '1', 'long-wave emissivity of the surface', (0, 1), '', ()),
        ),
        (
         A('surface_resistance', 'float32', 'm²K/W', 'surface resistance', (0, INF), '', ()),
        ),
    ),
    "u_value": R(
        "fabric", 'TPUVAL', '(layers),(layers),(),()->()',
        (
         A('thickness', 'float32', 'm', 'thickness of each layer; below 0: a layer of given resistance, 0: no layer', (), '', ('layers',)),
         A('conductivity', 'float32', 'W/mK', 'conductivity of each layer; its resistance in m²K/W where the thickness is below 0', (0, INF), '', ('layers',)),
         A('surface_resistance_1', 'float32', 'm²K/W', 'resistance of one surface', (0, INF), '', ()),
         A('surface_resistance_2', 'float32', 'm²K/W', 'resistance of the other', (0, INF), '', ()),
        ),
        (
         A('u_value', 'float32', 'W/m²K', 'U-value', (0, INF), '', ()),
        ),
    ),
    "u_value_at_tilt_and_exposure": R(
        "fabric", 'TPUMOD', '',
        (
         A('u_value', 'float32', 'W/m²K', 'U-value with the surface resistances of a vertical wall at exposure 2', (0, INF), '', ()),
         A('tilt', 'float32', 'rad', 'tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down', (0, 3.1416), '', ()),
         A('exposure', 'int32', '', 'wind exposure of the outside surface', (1, 3), 'Exposure', ()),
        ),
        (
         A('u_value', 'float32', 'W/m²K', 'U-value at that tilt and exposure', (0, INF), '', ()),
        ),
    ),
    "window_parameters": R(
        "fabric", 'TPWNDO', '',
        (
         A('panes', 'int32', '', 'number of panes, pane 1 nearest the room', (1, 3), '', ()),
         A('pane_kind_1', 'int32', '', 'kind of pane 1', (1, 2), 'PaneKind', ()),
         A('emissivity_1', 'float32', '1', 'long-wave emissivity of pane 1', (0, 1), '', ()),
         A('pane_kind_2', 'int32', '', 'kind of pane 2', (1, 2), 'PaneKind', ()),
         A('emissivity_2', 'float32', '1', 'long-wave emissivity of pane 2', (0, 1), '', ()),
         A('pane_kind_3', 'int32', '', 'kind of pane 3', (1, 2), 'PaneKind', ()),
         A('emissivity_3', 'float32', '1', 'long-wave emissivity of pane 3', (0, 1), '', ()),
         A('cavity_width_1', 'float32', 'm', 'width of the cavity between panes 1 and 2', (0.001, INF), '', ()),
         A('cavity_width_2', 'float32', 'm', 'width of the cavity between panes 2 and 3', (0.001, INF), '', ()),
         A('outer_surface', 'int32', '', 'surface type of the outer face, normally 1', (1, 2), 'Surface', ()),
         A('exposure', 'int32', '', 'exposure of the outer face to the wind', (1, 3), 'Exposure', ()),
         A('tilt', 'float32', 'rad', 'tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down', (0, 3.1416), '', ()),
        ),
        (
         A('admittance', 'float32', 'W/m²K', 'admittance, the U-value', (), '', ()),
         A('admittance_lead', 'float32', 'h', 'time lead of the admittance, 0', (), '', ()),
         A('decrement_factor', 'float32', '1', 'decrement factor, 1', (), '', ()),
         A('decrement_lag', 'float32', 'h', 'time lag of the decrement factor, 0', (), '', ()),
         A('surface_factor', 'float32', '1', 'surface factor, 1 - Rsi U', (), '', ()),
         A('surface_factor_lag', 'float32', 'h', 'time lag of the surface factor, 0', (), '', ()),
         A('u_value', 'float32', 'W/m²K', 'U-value', (0, INF), '', ()),
        ),
    ),
    "glass_direct": R(
        "glazing", 'WNDRGL', '',
        (
         A('normal_transmittance', 'float32', '1', 'normal transmittance', (0, 0.92), '', ()),
         A('normal_reflectance', 'float32', '1', 'normal reflectance of coated glass, 0 for uncoated', (0, 0.99), '', ()),
         A('incidence', 'float32', 'rad', 'angle of incidence', (-1.5708, 1.5708), '', ()),
        ),
        (
         A('parallel_transmittance', 'float32', '1', 'transmittance, parallel polarisation', (0, 1), '', ()),
         A('parallel_absorptance', 'float32', '1', 'absorptance, parallel', (0, 1), '', ()),
         A('parallel_reflectance', 'float32', '1', 'reflectance, parallel', (0, 1), '', ()),
         A('perpendicular_transmittance', 'float32', '1', 'transmittance, perpendicular polarisation', (0, 1), '', ()),
         A('perpendicular_absorptance', 'float32', '1', 'absorptance, perpendicular', (0, 1), '', ()),
         A('perpendicular_reflectance', 'float32', '1', 'reflectance, perpendicular', (0, 1), '', ()),
        ),
    ),
    "glass_diffuse": R(
        "glazing", 'WNDFGL', '',
        (
         A('normal_transmittance', 'float32', '1', 'normal transmittance', (0, 0.92), '', ()),
         A('normal_reflectance', 'float32', '1', 'normal reflectance of coated glass, 0 for uncoated', (0, 0.99), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'diffuse transmittance', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'diffuse absorptance', (0, 1), '', ()),
        ),
    ),
    "stacked_layers": R(
        "glazing", 'WNCOM2', '(layers),(layers)->(),(),()',
        (
         A('layer_transmittances', 'float32', '1', 'transmittance of each layer', (0, 1), '', ('layers',)),
         A('layer_reflectances', 'float32', '1', 'reflectance of each layer', (0, 1), '', ('layers',)),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance of the stack', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'absorptance, 1 - transmittance - reflectance', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'reflectance of the stack', (0, 1), '', ()),
        ),
    ),
    "traced_layers": R(
        "glazing", 'WNCOMP', '(layers),(layers),(layers)->(),(),()',
        (
         A('layer_transmittances', 'float32', '1', 'transmittance of each layer, the same from both sides', (0, 1), '', ('layers',)),
         A('layer_absorptances', 'float32', '1', 'absorptance of each layer', (0, 1), '', ('layers',)),
         A('layer_reflectances', 'float32', '1', 'reflectance of each layer, the same from both sides', (0, 1), '', ('layers',)),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance of the stack', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'absorptance of the stack', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'reflectance of the stack', (0, 1), '', ()),
        ),
    ),
    "roller_blind": R(
        "glazing", 'WNDRRO', '',
        (
         A('blind_transmittance', 'float32', '1', 'transmittance of the blind', (0, 1), '', ()),
         A('blind_reflectance', 'float32', '1', 'reflectance of the blind', (0, 1), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance, that of the blind', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'absorptance, the rest', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'reflectance, that of the blind', (0, 1), '', ()),
        ),
    ),
    "diffuse_roller_blind": R(
        "glazing", 'WNDFRO', '',
        (
         A('blind_transmittance', 'float32', '1', 'transmittance of the blind', (0, 1), '', ()),
         A('blind_reflectance', 'float32', '1', 'reflectance of the blind', (0, 1), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance, that of the blind to rounding', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'absorptance, the rest to rounding', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'reflectance, 1 - transmittance - absorptance', (0, 1), '', ()),
        ),
    ),
    "refraction_angle": R(
        "glazing", 'WNRANG', '',
        (
         A('incidence', 'float32', 'rad', 'angle of incidence', (-1.5708, 1.5708), '', ()),
         A('refractive_index', 'float32', '1', 'refractive index of the glass', (1, 4), '', ()),
        ),
        (
         A('refraction_angle', 'float32', 'rad', 'refraction angle', (-1.5708, 1.5708), '', ()),
        ),
    ),
    "surface_reflectance": R(
        "glazing", 'WNREFL', '',
        (
         A('incidence', 'float32', 'rad', 'angle of incidence', (-1.5708, 1.5708), '', ()),
         A('refraction_angle', 'float32', 'rad', 'refraction angle, of the sign of the incidence', (-1.5708, 1.5708), '', ()),
         A('refractive_index', 'float32', '1', 'refractive index, used at normal incidence only', (1, 4), '', ()),
        ),
        (
         A('parallel_reflectance', 'float32', '1', 'reflectance, polarised parallel to the plane of incidence', (0, 1), '', ()),
         A('perpendicular_reflectance', 'float32', '1', 'reflectance, polarised perpendicular to it', (0, 1), '', ()),
        ),
    ),
    "single_pass_absorption": R(
        "glazing", 'WNABEN', '',
        (
         A('refraction_angle', 'float32', 'rad', 'refraction angle', (-1.5708, 1.5708), '', ()),
         A('absorption_product', 'float32', '1', 'absorption coefficient times thickness', (0, 20), '', ()),
        ),
        (
         A('absorptance', 'float32', '1', 'absorbed share', (0, 1), '', ()),
        ),
    ),
    "slab_optics": R(
        "glazing", 'WNTAR', '',
        (
         A('single_pass_absorptance', 'float32', '1', 'share absorbed in a single pass', (0, 1), '', ()),
         A('face_reflectance', 'float32', '1', 'reflectance of either face', (0, 1), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'absorptance, not below 0', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'reflectance', (0, 1), '', ()),
        ),
    ),
    "absorption_product": R(
        "glazing", 'WNKL', '',
        (
         A('normal_transmittance', 'float32', '1', 'normal transmittance of the pane', (0, 0.92), '', ()),
         A('refractive_index', 'float32', '1', 'refractive index', (1, 4), '', ()),
        ),
        (
         A('absorption_product', 'float32', '1', 'absorption coefficient times thickness', (0, 20), '', ()),
        ),
    ),
    "normal_transmittance": R(
        "glazing", 'WNTNOR', '',
        (
         A('absorption_product', 'float32', '1', 'absorption coefficient times thickness', (0, 20), '', ()),
         A('normal_reflectance', 'float32', '1', 'normal reflectance of one face', (0, 0.99), '', ()),
        ),
        (
         A('normal_transmittance', 'float32', '1', 'normal transmittance of the pane', (0, 0.92), '', ()),
        ),
    ),
    "pane_temperatures": R(
        "glazing", 'WNTEMP', '',
        (
         A('inside_temperature', 'float32', '°C', 'air temperature in the room', (-100, 200), '', ()),
         A('outside_temperature', 'float32', '°C', 'air temperature outdoors', (-100, 200), '', ()),
         A('panes', 'int32', '', 'number of panes', (1, 5), '', ()),
         A('absorbed_1', 'float32', 'W/m²', 'absorbed in pane 1, nearest the room', (0, INF), '', ()),
         A('absorbed_2', 'float32', 'W/m²', 'absorbed in pane 2', (0, INF), '', ()),
         A('absorbed_3', 'float32', 'W/m²', 'absorbed in pane 3', (0, INF), '', ()),
         A('absorbed_4', 'float32', 'W/m²', 'absorbed in pane 4', (0, INF), '', ()),
         A('absorbed_5', 'float32', 'W/m²', 'absorbed in pane 5', (0, INF), '', ()),
        ),
        (
         A('pane_temperature_1', 'float32', '°C', 'temperature of pane 1, nearest the room', (-100, 200), '', ()),
         A('pane_temperature_2', 'float32', '°C', 'temperature of pane 2', (-100, 200), '', ()),
         A('pane_temperature_3', 'float32', '°C', 'temperature of pane 3', (-100, 200), '', ()),
         A('pane_temperature_4', 'float32', '°C', 'temperature of pane 4', (-100, 200), '', ()),
         A('pane_temperature_5', 'float32', '°C', 'temperature of pane 5', (-100, 200), '', ()),
        ),
    ),
    "unit_direct": R(
        "glazing", 'WNDRSC', '',
        (
         A('shortwave_shading_coefficient', 'float32', '1', 'short-wave shading coefficient; the total one if the long-wave one is missing', (0, 1.05), '', ()),
         A('longwave_shading_coefficient', 'float32', '1', 'long-wave shading coefficient, 0 if missing', (0, 1), '', ()),
         A('incidence', 'float32', 'rad', 'angle of incidence', (-1.5708, 1.5708), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'absorptance', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'reflectance, 1 - transmittance - absorptance, at least 0.01 to rounding', (0, 1), '', ()),
        ),
    ),
    "unit_diffuse": R(
        "glazing", 'WNDFSC', '',
        (
         A('shortwave_shading_coefficient', 'float32', '1', 'short-wave shading coefficient; the total one if the long-wave one is missing', (0, 1.05), '', ()),
         A('longwave_shading_coefficient', 'float32', '1', 'long-wave shading coefficient, 0 if missing', (0, 1), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'diffuse transmittance', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'diffuse absorptance', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'diffuse reflectance, 1 - transmittance - absorptance', (0, 1), '', ()),
        ),
    ),
    "unit_direct_shares": R(
        "glazing", 'WNDRSM', '(),(),(),()->(),(5),()',
        (
         A('shortwave_shading_coefficient', 'float32', '1', 'short-wave shading coefficient; the total one if the long-wave one is missing', (0, 1.05), '', ()),
         A('longwave_shading_coefficient', 'float32', '1', 'long-wave shading coefficient, 0 if missing', (0, 1), '', ()),
         A('incidence', 'float32', 'rad', 'angle of incidence', (-1.5708, 1.5708), '', ()),
         A('panes', 'int32', '', 'number of panes', (1, 5), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance', (0, 1), '', ()),
         A('pane_shares', 'float32', '1', 'share of each pane in 1 - transmittance - absorptance', (), '', (5,)),
         A('absorptance', 'float32', '1', 'absorptance', (0, 1), '', ()),
        ),
    ),
    "unit_diffuse_shares": R(
        "glazing", 'WNDFSM', '(),(),()->(),(5),()',
        (
         A('shortwave_shading_coefficient', 'float32', '1', 'short-wave shading coefficient; the total one if the long-wave one is missing', (0, 1.05), '', ()),
         A('longwave_shading_coefficient', 'float32', '1', 'long-wave shading coefficient, 0 if missing', (0, 1), '', ()),
         A('panes', 'int32', '', 'number of panes', (1, 5), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'diffuse transmittance', (0, 1), '', ()),
         A('pane_shares', 'float32', '1', 'share of each pane in 1 - transmittance - absorptance', (), '', (5,)),
         A('absorptance', 'float32', '1', 'diffuse absorptance', (0, 1), '', ()),
        ),
    ),
    "unit_shares": R(
        "glazing", 'WNDRS0', '(),(),(),(),()->(),(5),()',
        (
         A('radiation', 'int32', '', 'kind of radiation', (1, 2), 'Radiation', ()),
         A('shortwave_shading_coefficient', 'float32', '1', 'short-wave shading coefficient; the total one if the long-wave one is missing', (0, 1.05), '', ()),
         A('longwave_shading_coefficient', 'float32', '1', 'long-wave shading coefficient, 0 if missing', (0, 1), '', ()),
         A('incidence', 'float32', 'rad', 'angle of incidence, read for direct radiation only', (-1.5708, 1.5708), '', ()),
         A('panes', 'int32', '', 'number of panes', (1, 5), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance', (0, 1), '', ()),
         A('pane_shares', 'float32', '1', 'share of each pane in 1 - transmittance - absorptance', (), '', (5,)),
         A('absorptance', 'float32', '1', 'absorptance', (0, 1), '', ()),
        ),
    ),
    "slat_direct": R(
        "glazing", 'WNDRSL', '',
        (
         A('slat_spacing', 'float32', 'm', 'spacing of the slats; only its ratio to their width matters, in whatever unit', (0, INF), '', ()),
         A('slat_width', 'float32', 'm', 'width of a slat', (0, INF), '', ()),
         A('slat_angle', 'float32', '°', 'slat angle in degrees, 0 for level slats, positive with the outer edge lowered', (-90, 90), '', ()),
         A('profile_angle', 'float32', 'rad', 'profile angle of the beam, positive from above', (-1.5708, 1.5708), '', ()),
         A('slat_absorptance', 'float32', '1', 'absorptance of the slats', (0, 1), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'absorptance', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'reflectance, 1 - transmittance - absorptance', (0, 1), '', ()),
        ),
    ),
    "two_faced_slat_direct": R(
        "glazing", 'WNDRS2', '',
        (
         A('slat_spacing', 'float32', 'm', 'spacing of the slats; only its ratio to their width matters, in whatever unit', (0, INF), '', ()),
         A('slat_width', 'float32', 'm', 'width of a slat', (0, INF), '', ()),
         A('slat_angle', 'float32', '°', 'slat angle in degrees, 0 for level slats, positive with the outer edge lowered', (-90, 90), '', ()),
         A('profile_angle', 'float32', 'rad', 'profile angle of the beam, positive from above', (-1.5708, 1.5708), '', ()),
         A('struck_absorptance', 'float32', '1', 'absorptance of the face that the beam strikes first', (0, 1), '', ()),
         A('opposite_absorptance', 'float32', '1', 'absorptance of the opposite face', (0, 1), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'absorptance', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'reflectance, 1 - transmittance - absorptance, not limited', (0, 1), '', ()),
        ),
    ),
    "open_slat_direct": R(
        "glazing", 'WNDRS3', '',
        (
         A('slat_spacing', 'float32', 'm', 'spacing of the slats; only its ratio to their width matters, in whatever unit', (0, INF), '', ()),
         A('slat_width', 'float32', 'm', 'width of a slat', (0, INF), '', ()),
         A('slat_angle', 'float32', '°', 'slat angle in degrees, 0 for level slats, positive with the outer edge lowered', (-90, 90), '', ()),
         A('profile_angle', 'float32', 'rad', 'profile angle of the beam, positive from above', (-1.5708, 1.5708), '', ()),
         A('open_share', 'float32', '1', 'open share of the blind; 0 or less for none', (0, 1), '', ()),
         A('struck_absorptance', 'float32', '1', 'absorptance of the face that the beam strikes first', (0, 1), '', ()),
         A('opposite_absorptance', 'float32', '1', 'absorptance of the opposite face', (0, 1), '', ()),
        ),
        (
         A('transmittance', 'float32', '1', 'transmittance, the open share included', (0, 1), '', ()),
         A('absorptance', 'float32', '1', 'absorptance', (0, 1), '', ()),
         A('reflectance', 'float32', '1', 'reflectance', (0, 1), '', ()),
        ),
    ),
    "slat_diffuse": R(
        "glazing", 'WNDFSL', '',
        (
         A('slat_spacing', 'float32', 'm', 'spacing of the slats; only its ratio to their width matters, in whatever unit', (0, INF), '', ()),
         A('slat_width', 'float32', 'm', 'width of a slat', (0, INF), '', ()),
         A('slat_angle', 'float32', '°', 'slat angle in degrees, 0 for level slats, positive with the outer edge lowered', (-90, 90), '', ()),
         A('slat_absorptance', 'float32', '1', 'absorptance of the slats', (0, 1), '', ()),
        ),
        (
         A('sky_transmittance', 'float32', '1', 'transmittance for radiation from above the horizon', (0, 1), '', ()),
         A('ground_transmittance', 'float32', '1', 'transmittance for radiation from below it', (0, 1), '', ()),
         A('sky_absorptance', 'float32', '1', 'absorptance for radiation from above the horizon', (0, 1), '', ()),
         A('ground_absorptance', 'float32', '1', 'absorptance for radiation from below it', (0, 1), '', ()),
        ),
    ),
    "two_faced_slat_diffuse": R(
        "glazing", 'WNDFS2', '',
        (
         A('slat_spacing', 'float32', 'm', 'spacing of the slats; only its ratio to their width matters, in whatever unit', (0, INF), '', ()),
         A('slat_width', 'float32', 'm', 'width of a slat', (0, INF), '', ()),
         A('slat_angle', 'float32', '°', 'slat angle in degrees, 0 for level slats, positive with the outer edge lowered', (-90, 90), '', ()),
         A('struck_absorptance', 'float32', '1', 'absorptance of the face that the beam strikes first', (0, 1), '', ()),
         A('opposite_absorptance', 'float32', '1', 'absorptance of the opposite face', (0, 1), '', ()),
        ),
        (
         A('sky_transmittance', 'float32', '1', 'transmittance for radiation from above the horizon', (0, 1), '', ()),
         A('ground_transmittance', 'float32', '1', 'transmittance for radiation from below it', (0, 1), '', ()),
         A('sky_absorptance', 'float32', '1', 'absorptance for radiation from above the horizon', (0, 1), '', ()),
         A('ground_absorptance', 'float32', '1', 'absorptance for radiation from below it', (0, 1), '', ()),
        ),
    ),
    "open_slat_diffuse": R(
        "glazing", 'WNDFS3', '',
        (
         A('slat_spacing', 'float32', 'm', 'spacing of the slats; only its ratio to their width matters, in whatever unit', (0, INF), '', ()),
         A('slat_width', 'float32', 'm', 'width of a slat', (0, INF), '', ()),
         A('slat_angle', 'float32', '°', 'slat angle in degrees, 0 for level slats, positive with the outer edge lowered', (-90, 90), '', ()),
         A('open_share', 'float32', '1', 'open share of the blind; 0 or less for none', (0, 1), '', ()),
         A('struck_absorptance', 'float32', '1', 'absorptance of the face that the beam strikes first', (0, 1), '', ()),
         A('opposite_absorptance', 'float32', '1', 'absorptance of the opposite face', (0, 1), '', ()),
        ),
        (
         A('sky_transmittance', 'float32', '1', 'transmittance for radiation from above the horizon', (0, 1), '', ()),
         A('ground_transmittance', 'float32', '1', 'transmittance for radiation from below it', (0, 1), '', ()),
         A('sky_absorptance', 'float32', '1', 'absorptance for radiation from above the horizon', (0, 1), '', ()),
         A('ground_absorptance', 'float32', '1', 'absorptance for radiation from below it', (0, 1), '', ()),
        ),
    ),
    "locate_band": R(
        "climate", 'CLBAN1', '(),(),(10,12)->(),(),()',
        (
         A('fraction', 'float32', '1', 'cumulative fraction of days', (0, 1), '', ()),
         A('month', 'int32', '', 'month', (1, 12), '', ()),
         A('frequencies', 'float32', '1', 'cumulative frequencies of each band in each month, not falling with the band', (0, 1), '', (10, 12)),
        ),
        (
         A('lower_band', 'int32', '', 'lower band, 1 to 9', (1, 10), '', ()),
         A('upper_band', 'int32', '', 'upper band, 2 to 10', (1, 10), '', ()),
         A('band_weight', 'float32', '1', '(fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1', (-1, 1), '', ()),
        ),
    ),
    "band_climate": R(
        "climate", 'CLBAND', '',
        (
         A('band', 'int32', '', 'band, or 0 to interpolate at the percentage', (0, 10), '', ()),
         A('month', 'int32', '', 'month', (1, 12), '', ()),
         A('band_set', 'int32', '', 'set of bands', (1, 2), 'BandSet', ()),
         A('percentage', 'float32', '%', 'cumulative percentage of days: given with band 0, otherwise returned', (0, 100), '', ()),
        ),
        (
         A('percentage', 'float32', '%', 'cumulative percentage of days: given with band 0, otherwise returned', (0, 100), '', ()),
         A('q1', 'float32', '1', 'quantity Q1: beam factor', (), '', ()),
         A('q2', 'float32', '1', 'quantity Q2: diffuse factor', (), '', ()),
         A('q3', 'float32', '°C', 'quantity Q3: air temperature at time A', (-100, 200), '', ()),
         A('q4', 'float32', '°C', 'quantity Q4: air temperature at time B', (-100, 200), '', ()),
         A('q5', 'float32', '°C', 'quantity Q5: wet-bulb temperature at time A', (-100, 200), '', ()),
         A('q6', 'float32', '°C', 'quantity Q6: wet-bulb temperature at time B', (-100, 200), '', ()),
         A('time_a', 'float32', 'h', 'time A, in the afternoon', (0, 24), '', ()),
         A('time_b', 'float32', 'h', 'time B, about sunrise', (0, 24), '', ()),
         A('q7', 'float32', '%', 'quantity Q7: cloud-free share of the sky', (), '', ()),
         A('q8', 'float32', 'm/s', 'quantity Q8: wind speed', (), '', ()),
        ),
    ),
    "interpolate_band_rows": R(
        "climate", 'CLBAN2', '',
        (
         A('base_row', 'int32', '', "row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and so on in set 1; 92 more in set 2", (0, 174), '', ()),
         A('lower_band', 'int32', '', 'lower band', (1, 10), '', ()),
         A('upper_band', 'int32', '', 'upper band', (1, 10), '', ()),
         A('month', 'int32', '', 'month', (1, 12), '', ()),
         A('band_weight', 'float32', '1', 'share of the step from the lower to the upper row', (-1, 1), '', ()),
        ),
        (
         A('value', 'float32', '1', "value, in the quantity's unit", (), '', ()),
        ),
    ),
    "band_row": R(
        "climate", 'CLBAN3', '()->(12)',
        (
         A('row', 'int32', '', 'row: 1 to 92 in set 1, 93 to 184 in set 2', (1, 184), '', ()),
        ),
        (
         A('values', 'float32', '1', "values from January to December, in the row's unit", (), '', (12,)),
        ),
    ),
    "store_design_day": R(
        "climate", 'CLDAY', '',
        (
         A('month', 'int32', '', 'month', (1, 12), '', ()),
        ),
        (
         A('day', 'int32', '', 'design day of the year', (1, 366), '', ()),
        ),
    ),
    "store_design_day_by_option": R(
        "climate", 'CLDAYEX', '',
        (
         A('month', 'int32', '', 'month', (1, 12), '', ()),
         A('day_kind', 'int32', '', 'how the day is counted', (1, 2), 'DayKind', ()),
        ),
        (
         A('day', 'int32', '', 'design day', (1, 366), '', ()),
        ),
    ),
    "design_day": R(
        "climate", 'ICLDAY', '',
        (
         A('month', 'int32', '', 'month', (1, 12), '', ()),
        ),
        (
         A('day', 'int32', '', 'design day of the year', (1, 366), '', ()),
        ),
    ),
    "design_day_by_option": R(
        "climate", 'ICLDAYEX', '',
        (
         A('month', 'int32', '', 'month', (1, 12), '', ()),
         A('day_kind', 'int32', '', 'how the day is counted', (1, 2), 'DayKind', ()),
        ),
        (
         A('day', 'int32', '', 'design day', (1, 366), '', ()),
        ),
    ),
    "second_design_day": R(
        "climate", 'ICLDA2', '',
        (
         A('month', 'int32', '', 'month', (1, 12), '', ()),
        ),
        (
         A('day', 'int32', '', 'second design day of the year', (1, 366), '', ()),
        ),
    ),
    "second_design_day_by_option": R(
        "climate", 'ICLDA2EX', '',
        (
         A('month', 'int32', '', 'month', (1, 12), '', ()),
         A('day_kind', 'int32', '', 'how the day is counted', (1, 2), 'DayKind', ()),
        ),
        (
         A('day', 'int32', '', 'second design day', (1, 366), '', ()),
        ),
    ),
    "daily_temperature": R(
        "climate", 'CLTAO', '',
        (
         A('hour', 'float32', 'h', 'hour', (0, 24), '', ()),
         A('highest_temperature', 'float32', '°C', 'highest temperature of the day', (-100, 200), '', ()),
         A('lowest_temperature', 'float32', '°C', 'lowest temperature of the day', (-100, 200), '', ()),
         A('hour_of_highest', 'float32', 'h', 'hour of the highest', (0, 24), '', ()),
         A('hour_of_lowest', 'float32', 'h', 'hour of the lowest', (0, 24), '', ()),
        ),
        (
         A('temperature', 'float32', '°C', 'temperature', (-100, 200), '', ()),
        ),
    ),
    "daily_value": R(
        "climate", 'CLTAOX', '',
        (
         A('hour', 'float32', 'h', 'hour', (0, 24), '', ()),
         A('mean', 'float32', '1', 'mean, in the unit of the result', (), '', ()),
         A('amplitude', 'float32', '1', 'half the difference of the extremes, in the same unit', (), '', ()),
         A('first_hour', 'float32', 'h', 'hour of the first extreme, the highest if amplitude times amplitude_factor is positive', (0, 24), '', ()),
         A('second_hour', 'float32', 'h', 'hour of the second extreme, after the first', (0, 24), '', ()),
         A('amplitude_factor', 'float32', '1', 'factor on the amplitude', (), '', ()),
        ),
        (
         A('value', 'float32', '1', 'value', (), '', ()),
        ),
    ),
    "design_irradiance": R(
        "climate", 'CLSNNR', '',
        (
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (0, 1.5707964), '', ()),
         A('site_height', 'float32', 'm', 'height of the site above sea level', (0, 4000), '', ()),
         A('sky_kind', 'int32', '', 'kind of sky', (0, 1), 'SkyKind', ()),
        ),
        (
         A('direct_normal', 'float32', 'W/m²', 'direct normal irradiance, the same for both skies', (0, INF), '', ()),
         A('diffuse_horizontal', 'float32', 'W/m²', 'diffuse irradiance on the horizontal', (0, INF), '', ()),
        ),
    ),
    "height_factor": R(
        "climate", 'CLHIGH', '',
        (
         A('site_height', 'float32', 'm', 'height of the site above sea level', (0, 4000), '', ()),
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (0, 1.5707964), '', ()),
        ),
        (
         A('factor', 'float32', '1', 'factor', (), '', ()),
        ),
    ),
    "eccentricity_factor": R(
        "climate", 'CLETAJ', '',
        (
         A('day', 'int32', '', 'day of the year', (1, 366), '', ()),
        ),
        (
         A('factor', 'float32', '1', 'factor', (), '', ()),
        ),
    ),
    "clearness_index": R(
        "climate", 'CLMODUL', '',
        (
         A('day', 'int32', '', 'day of the year', (1, 366), '', ()),
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (0, 1.5707964), '', ()),
         A('global_horizontal', 'float32', 'W/m²', 'global horizontal irradiance', (0, INF), '', ()),
        ),
        (
         A('clearness_index', 'float32', '1', 'clearness index', (), '', ()),
        ),
    ),
    "muneer_slope": R(
        "climate", 'CLMUNRAD', '',
        (
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (0, 1.5707964), '', ()),
         A('solar_azimuth', 'float32', 'rad', 'solar azimuth', (0, 6.2832), '', ()),
         A('surface_azimuth', 'float32', 'rad', "azimuth of the surface's outward normal", (0, 6.2832), '', ()),
         A('tilt', 'float32', 'rad', 'tilt from the horizontal', (0, 3.1416), '', ()),
         A('beam_horizontal', 'float32', 'W/m²', 'beam irradiance on the horizontal', (0, INF), '', ()),
         A('diffuse_horizontal', 'float32', 'W/m²', 'diffuse irradiance on the horizontal', (0, INF), '', ()),
         A('extraterrestrial_horizontal', 'float32', 'W/m²', 'irradiance on the horizontal outside the atmosphere', (0, 1415), '', ()),
         A('ground_reflectance', 'float32', '1', 'reflectance of the ground', (0, 1), '', ()),
        ),
        (
         A('surface_beam', 'float32', 'W/m²', 'beam irradiance on the surface, 0 with the sun behind it', (), '', ()),
         A('surface_diffuse', 'float32', 'W/m²', 'diffuse irradiance of the sky on the surface', (), '', ()),
         A('ground_reflected', 'float32', 'W/m²', 'ground-reflected irradiance on the surface', (), '', ()),
         A('incidence', 'float32', 'rad', 'angle of incidence, 1.5707964 with the sun behind the surface', (-1.5708, 1.5708), '', ()),
        ),
    ),
    "perez_diffuse": R(
        "climate", 'CLPERSKY', '',
        (
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (0, 1.5707964), '', ()),
         A('tilt', 'float32', 'rad', 'tilt from the horizontal', (0, 3.1416), '', ()),
         A('beam_horizontal', 'float32', 'W/m²', 'beam irradiance on the horizontal', (0, INF), '', ()),
         A('diffuse_horizontal', 'float32', 'W/m²', 'diffuse irradiance on the horizontal', (0, INF), '', ()),
         A('incidence', 'float32', 'rad', 'angle of incidence of the sun on the surface', (0, 3.1416), '', ()),
         A('extraterrestrial_normal', 'float32', 'W/m²', 'normal irradiance outside the atmosphere', (1320, 1415), '', ()),
        ),
        (
         A('surface_diffuse', 'float32', 'W/m²', 'diffuse irradiance of the sky on the surface', (), '', ()),
        ),
    ),
    "site_constants": R(
        "climate", 'CLCONS', '',
        (
         A('site_class', 'int32', '', 'site class', (1, 6), '', ()),
         A('month', 'int32', '', 'month', (1, 12), '', ()),
        ),
        (
         A('ground_reflectance', 'float32', '1', 'reflectance of the ground', (0, 1), '', ()),
         A('beam_factor', 'float32', '1', 'factor on the direct normal irradiance', (0, INF), '', ()),
         A('diffuse_factor', 'float32', '1', 'factor on the diffuse horizontal irradiance', (0, INF), '', ()),
         A('alternative_diffuse_factor', 'float32', '1', 'factor that takes its place where it is 0', (0, INF), '', ()),
        ),
    ),
    "diffuse_tilt_factor": R(
        "climate", 'CLDIFRAD', '',
        (
         A('day', 'int32', '', 'day of the year', (1, 366), '', ()),
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (0, 1.5707964), '', ()),
         A('beam_horizontal', 'float32', 'W/m²', 'beam irradiance on the horizontal', (0, INF), '', ()),
         A('tilt', 'float32', 'rad', 'tilt from the horizontal', (0, 3.1416), '', ()),
         A('sky_model', 'int32', '', 'model of the sky', (0, 2), 'SkyModel', ()),
        ),
        (
         A('factor', 'float32', '1', 'factor, 1 for a horizontal surface', (), '', ()),
        ),
    ),
    "slope_diffuse": R(
        "climate", 'CLDIFSLO', '',
        (
         A('day', 'int32', '', 'day of the year', (1, 366), '', ()),
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (0, 1.5707964), '', ()),
         A('solar_azimuth', 'float32', 'rad', 'solar azimuth', (0, 6.2832), '', ()),
         A('surface_azimuth', 'float32', 'rad', "azimuth of the surface's outward normal", (0, 6.2832), '', ()),
         A('tilt', 'float32', 'rad', 'tilt from the horizontal', (0, 3.1416), '', ()),
         A('beam_horizontal', 'float32', 'W/m²', 'beam irradiance on the horizontal', (0, INF), '', ()),
         A('diffuse_horizontal', 'float32', 'W/m²', 'diffuse irradiance on the horizontal', (0, INF), '', ()),
         A('sky_model', 'int32', '', 'model of the sky', (0, 2), 'SkyModel', ()),
        ),
        (
         A('surface_diffuse', 'float32', 'W/m²', 'diffuse irradiance of the sky on the surface', (), '', ()),
        ),
    ),
    "sol_air_temperature": R(
        "climate", 'CLTEO', '',
        (
         A('base_temperature', 'float32', '°C', 'base temperature, as of the air outdoors', (-100, 200), '', ()),
         A('surface_coefficient', 'float32', 'W/m²K', 'heat transfer coefficient of the surface', (0, INF), '', ()),
         A('absorptance', 'float32', '1', 'absorptance', (0, 1), '', ()),
         A('irradiance', 'float32', 'W/m²', 'solar irradiance on the surface', (0, INF), '', ()),
         A('long_wave_loss', 'float32', 'W/m²', 'net loss', (0, INF), '', ()),
        ),
        (
         A('temperature', 'float32', '°C', 'sol-air temperature', (-100, 200), '', ()),
        ),
    ),
    "long_wave_loss": R(
        "climate", 'CLRERD', '',
        (
         A('tilt', 'float32', 'rad', 'tilt from the horizontal', (0, 3.1416), '', ()),
         A('cloud_cover', 'float32', '1', 'share of the sky that is covered by cloud', (0, 1), '', ()),
        ),
        (
         A('long_wave_loss', 'float32', 'W/m²', 'net loss', (0, INF), '', ()),
        ),
    ),
    "solar_time_correction": R(
        "climate", 'CLTCOR', '',
        (
         A('clock_offset', 'float32', 'h', 'hours by which the clock is put forward, as in summer time', (), '', ()),
         A('day', 'int32', '', 'day of the year', (1, 366), '', ()),
         A('longitude', 'float32', 'rad', 'longitude of the site, positive west', (-3.1416, 3.1416), '', ()),
         A('reference_longitude', 'float32', 'rad', "longitude of the clock's meridian, positive west", (-3.1416, 3.1416), '', ()),
        ),
        (
         A('time_shift', 'float32', 'h', 'correction', (), '', ()),
        ),
    ),
    "almanac_position": R(
        "climate", 'CLYALLOP', '',
        (
         A('time_kind', 'int32', '', 'what the time is', (1, 3), 'TimeKind', ()),
         A('year', 'int32', '', 'year', (1976, 2099), '', ()),
         A('month', 'int32', '', 'month', (1, 12), '', ()),
         A('day_of_month', 'int32', '', 'day of the month', (1, 31), '', ()),
         A('clock_time', 'float32', 'h', 'clock hour', (0, 24), '', ()),
         A('latitude', 'float32', 'rad', 'latitude, positive north', (-1.5707964, 1.5707964), '', ()),
         A('longitude', 'float32', 'rad', 'longitude, positive west', (-3.1416, 3.1416), '', ()),
         A('zone_meridian', 'float32', 'rad', "longitude of the clock's meridian, positive west", (-3.1416, 3.1416), '', ()),
        ),
        (
         A('longitude', 'float32', 'rad', 'longitude, positive west', (-3.1416, 3.1416), '', ()),
         A('zone_meridian', 'float32', 'rad', "longitude of the clock's meridian, positive west", (-3.1416, 3.1416), '', ()),
         A('solar_altitude', 'float32', 'rad', 'altitude, negative below the horizon; no refraction', (0, 1.5707964), '', ()),
         A('solar_azimuth', 'float32', 'rad', 'azimuth', (0, 6.2832), '', ()),
         A('declination', 'float32', 'rad', 'declination', (), '', ()),
        ),
    ),
    "almanac_sun_hours": R(
        "climate", 'CLRISESET', '',
        (
         A('year', 'int32', '', 'year', (1976, 2099), '', ()),
         A('month', 'int32', '', 'month', (1, 12), '', ()),
         A('day_of_month', 'int32', '', 'day of the month', (1, 31), '', ()),
         A('latitude', 'float32', 'rad', 'latitude, positive north', (-1.5707964, 1.5707964), '', ()),
        ),
        (
         A('sunrise', 'float32', 'h', 'sunrise; 25 when the sun does not rise, 0 when it does not set', (), '', ()),
         A('sunset', 'float32', 'h', 'sunset; 25 when the sun does not set, 0 when it does not rise', (), '', ()),
        ),
    ),
    "solar_geometry": R(
        "climate", 'CLSNGE', '',
        (
         A('latitude', 'float32', 'rad', 'latitude, positive north', (-1.5707964, 1.5707964), '', ()),
         A('day', 'int32', '', 'day of the year', (1, 365), '', ()),
         A('solar_time', 'float32', 'h', 'solar time, noon at 12', (0, 24), '', ()),
        ),
        (
         A('declination', 'float32', 'rad', 'declination', (), '', ()),
         A('solar_altitude', 'float32', 'rad', 'altitude, 0 when the sun is below the horizon', (0, 1.5707964), '', ()),
         A('solar_azimuth', 'float32', 'rad', 'azimuth, 0 when the sun is below the horizon', (0, 6.2832), '', ()),
         A('sunrise', 'float32', 'h', 'sunrise; 25 when the sun does not rise, 0 when it does not set', (), '', ()),
         A('sunset', 'float32', 'h', 'sunset; 25 when the sun does not set, 0 when it does not rise', (), '', ()),
        ),
    ),
    "surface_angles": R(
        "climate", 'CLSNSR', '',
        (
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (-1.5707964, 1.5707964), '', ()),
         A('solar_azimuth', 'float32', 'rad', 'solar azimuth', (0, 6.2832), '', ()),
         A('surface_azimuth', 'float32', 'rad', "azimuth of the surface's outward normal", (0, 6.2832), '', ()),
         A('tilt', 'float32', 'rad', 'tilt from the horizontal', (0, 3.1416), '', ()),
        ),
        (
         A('incidence', 'float32', 'rad', 'angle of incidence, 0 to pi; above pi/2 the sun is behind the surface', (-1.5708, 1.5708), '', ()),
         A('vertical_shadow_angle', 'float32', 'rad', 'angle off the normal in the plane of normal and slope, positive up the slope; the profile angle of a vertical surface', (-1.5708, 1.5708), '', ()),
         A('horizontal_shadow_angle', 'float32', 'rad', 'angle off the normal in the plane of normal and level line, positive clockwise seen from above', (), '', ()),
        ),
    ),
    "surface_irradiance": R(
        "climate", 'CLSORD', '',
        (
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (0, 1.5707964), '', ()),
         A('solar_azimuth', 'float32', 'rad', 'solar azimuth', (0, 6.2832), '', ()),
         A('surface_azimuth', 'float32', 'rad', "azimuth of the surface's outward normal", (0, 6.2832), '', ()),
         A('tilt', 'float32', 'rad', 'tilt from the horizontal', (0, 3.1416), '', ()),
         A('direct_normal', 'float32', 'W/m²', 'direct normal irradiance', (0, INF), '', ()),
         A('diffuse_horizontal', 'float32', 'W/m²', 'diffuse irradiance on the horizontal', (0, INF), '', ()),
         A('ground_reflectance', 'float32', '1', 'reflectance of the ground', (0, 1), '', ()),
         A('beam_factor', 'float32', '1', 'factor on the direct normal irradiance', (0, INF), '', ()),
         A('diffuse_factor', 'float32', '1', 'factor on the diffuse horizontal irradiance', (0, INF), '', ()),
        ),
        (
         A('surface_beam', 'float32', 'W/m²', 'beam irradiance on the surface, 0 with the sun behind it', (), '', ()),
         A('surface_diffuse', 'float32', 'W/m²', 'diffuse irradiance of the sky on the surface', (), '', ()),
         A('ground_reflected', 'float32', 'W/m²', 'ground-reflected irradiance on the surface', (), '', ()),
        ),
    ),
    "surface_irradiance_and_incidence": R(
        "climate", 'CLSOR2', '',
        (
         A('solar_altitude', 'float32', 'rad', 'solar altitude', (0, 1.5707964), '', ()),
         A('solar_azimuth', 'float32', 'rad', 'solar azimuth', (0, 6.2832), '', ()),
         A('surface_azimuth', 'float32', 'rad', "azimuth of the surface's outward normal", (0, 6.2832), '', ()),
         A('tilt', 'float32', 'rad', 'tilt from the horizontal', (0, 3.1416), '', ()),
         A('direct_normal', 'float32', 'W/m²', 'direct normal irradiance', (0, INF), '', ()),
         A('diffuse_horizontal', 'float32', 'W/m²', 'diffuse irradiance on the horizontal', (0, INF), '', ()),
         A('ground_reflectance', 'float32', '1', 'reflectance of the ground', (0, 1), '', ()),
         A('beam_factor', 'float32', '1', 'factor on the direct normal irradiance', (0, INF), '', ()),
         A('diffuse_factor', 'float32', '1', 'factor on the diffuse horizontal irradiance', (0, INF), '', ()),
        ),
        (
         A('surface_beam', 'float32', 'W/m²', 'beam irradiance on the surface, 0 with the sun behind it', (), '', ()),
         A('surface_diffuse', 'float32', 'W/m²', 'diffuse irradiance of the sky on the surface', (), '', ()),
         A('ground_reflected', 'float32', 'W/m²', 'ground-reflected irradiance on the surface', (), '', ()),
         A('incidence', 'float32', 'rad', 'angle of incidence, 1.5707964 with the sun behind the surface', (-1.5708, 1.5708), '', ()),
        ),
    ),
    "overlap": R(
        "geometry", 'GEOVER', '(vertices_1),(vertices_1),(vertices_2),(vertices_2)->(5,25),(5,25),(5),()',
        (
         A('x_1', 'float32', 'm', 'x of polygon 1', (), '', ('vertices_1',)),
         A('y_1', 'float32', 'm', 'y of polygon 1', (), '', ('vertices_1',)),
         A('x_2', 'float32', 'm', 'x of polygon 2', (), '', ('vertices_2',)),
         A('y_2', 'float32', 'm', 'y of polygon 2', (), '', ('vertices_2',)),
        ),
        (
         A('piece_x', 'float32', 'm', 'x of the vertices of the pieces, a column each; 0 beyond them', (), '', (5, 25)),
         A('piece_y', 'float32', 'm', 'y of the vertices of the pieces', (), '', (5, 25)),
         A('piece_vertices', 'int32', '', 'number of vertices of each piece, 0 beyond the last', (3, INF), '', (5,)),
         A('area', 'float32', 'm²', 'area of the overlap', (0, INF), '', ()),
        ),
    ),
    "overlap_alias": R(
        "geometry", 'GEHOLE', '(vertices_1),(vertices_1),(vertices_2),(vertices_2)->(5,25),(5,25),(5),()',
        (
         A('x_1', 'float32', 'm', 'x of polygon 1', (), '', ('vertices_1',)),
         A('y_1', 'float32', 'm', 'y of polygon 1', (), '', ('vertices_1',)),
         A('x_2', 'float32', 'm', 'x of polygon 2', (), '', ('vertices_2',)),
         A('y_2', 'float32', 'm', 'y of polygon 2', (), '', ('vertices_2',)),
        ),
        (
         A('piece_x', 'float32', 'm', 'x of the vertices of the pieces, a column each; 0 beyond them', (), '', (5, 25)),
         A('piece_y', 'float32', 'm', 'y of the vertices of the pieces', (), '', (5, 25)),
         A('piece_vertices', 'int32', '', 'number of vertices of each piece, 0 beyond the last', (3, INF), '', (5,)),
         A('area', 'float32', 'm²', 'area of the overlap', (0, INF), '', ()),
        ),
    ),
    "collinearity": R(
        "geometry", 'IGELIN', '(points),(points)->()',
        (
         A('x', 'float32', 'm', 'x of the vertices', (), '', ('points',)),
         A('y', 'float32', 'm', 'y of the vertices', (), '', ('points',)),
        ),
        (
         A('code', 'int32', '', '1 on one line; otherwise the number, counted from 1, of the first point whose y differs from that of the first of all', (), '', ()),
        ),
    ),
    "count_enclosed": R(
        "geometry", 'GECLOS', '(vertices),(vertices),(points),(points),(points)->(points),()',
        (
         A('x', 'float32', 'm', 'x of the vertices', (), '', ('vertices',)),
         A('y', 'float32', 'm', 'y of the vertices', (), '', ('vertices',)),
         A('point_x', 'float32', 'm', 'x of the points', (), '', ('points',)),
         A('point_y', 'float32', 'm', 'y of the points', (), '', ('points',)),
         A('enclosed', 'int32', '', '1 for points that are enclosed', (0, 1), 'Enclosed', ('points',)),
        ),
        (
         A('enclosed', 'int32', '', '1 for points that are enclosed', (0, 1), 'Enclosed', ('points',)),
         A('enclosed_points', 'int32', '', 'number of enclosed points', (1, INF), '', ()),
        ),
    ),
    "boundary_crossing": R(
        "geometry", 'GESIDE', '(2),(2),(vertices),(vertices)->(2),()',
        (
         A('segment_start', 'float32', 'm', 'start of the segment', (), '', (2,)),
         A('segment_end', 'float32', 'm', 'end of the segment', (), '', (2,)),
         A('x', 'float32', 'm', 'x of the vertices', (), '', ('vertices',)),
         A('y', 'float32', 'm', 'y of the vertices', (), '', ('vertices',)),
        ),
        (
         A('crossing_point', 'float32', 'm', 'crossing point, or what the notes say', (), '', (2,)),
         A('crossing_code', 'int32', '', 'number, counted from 1, of the vertex that ends the crossed edge, or what the notes say', (), '', ()),
        ),
    ),
    "inside": R(
        "geometry", 'GEINSI', '(3),(vertices,3)->()',
        (
         A('point', 'float32', 'm', 'point', (), '', (3,)),
         A('polygon', 'float32', 'm', 'vertices, the last of which repeats the first', (), '', ('vertices', 3)),
        ),
        (
         A('inside', 'int32', '', '1 inside, 0 outside', (), '', ()),
        ),
    ),
    "parallel_planes": R(
        "geometry", 'GEPLEL', '(3,3),(3,3)->()',
        (
         A('triangle_1', 'float64', 'm', 'corners of one triangle', (), '', (3, 3)),
         A('triangle_2', 'float64', 'm', 'corners of the other', (), '', (3, 3)),
        ),
        (
         A('truth', 'bool', '', 'whether they are parallel', (), '', ()),
        ),
    ),
    "parallel_sides": R(
        "geometry", 'GEPSID', '(3,3),(3,3)->(),(),()',
        (
         A('triangle_1', 'float64', 'm', 'corners of one triangle', (), '', (3, 3)),
         A('triangle_2', 'float64', 'm', 'corners of the other', (), '', (3, 3)),
        ),
        (
         A('truth', 'bool', '', 'whether there are any', (), '', ()),
         A('side_1', 'int32', '', 'side of one triangle: 1 between its first two corners, 2 between its last two; 3 none', (), '', ()),
         A('side_2', 'int32', '', 'side of the other, likewise', (), '', ()),
        ),
    ),
    "rectangular": R(
        "geometry", 'GERECT', '(4,3)->()',
        (
         A('quadrilateral', 'float64', 'm', 'corners in turn', (), '', (4, 3)),
        ),
        (
         A('truth', 'bool', '', 'whether it is rectangular', (), '', ()),
        ),
    ),
    "facing": R(
        "geometry", 'GETILT', '(3,3),()->(),()',
        (
         A('triangle', 'float64', 'm', 'corners, clockwise seen from outside', (), '', (3, 3)),
         A('azimuth', 'float64', '°', 'azimuth of the outward normal; given, what a level triangle gets, in radians', (0, 6.2832), '', ()),
        ),
        (
         A('azimuth', 'float64', '°', 'azimuth of the outward normal; given, what a level triangle gets, in radians', (0, 6.2832), '', ()),
         A('tilt', 'float64', '°', 'tilt: 0 horizontal facing up, 90 vertical, 180 facing down', (0, 180), '', ()),
        ),
    ),
    "local_coordinates": R(
        "geometry", 'GELCAL', '(4,3),(4,3)->(4,3),(4,3)',
        (
         A('quadrilateral_1', 'float64', 'm', 'corners of the first', (), '', (4, 3)),
         A('quadrilateral_2', 'float64', 'm', 'corners of the second', (), '', (4, 3)),
        ),
        (
         A('local_1', 'float64', 'm', 'the first in local coordinates', (), '', (4, 3)),
         A('local_2', 'float64', 'm', 'the second in local coordinates', (), '', (4, 3)),
        ),
    ),
    "to_local": R(
        "geometry", 'GETRNS', '(4,3),(3),(3),(3)->(4,3)',
        (
         A('corners', 'float64', 'm', 'points', (), '', (4, 3)),
         A('x_axis', 'float64', '1', 'x axis', (), '', (3,)),
         A('y_axis', 'float64', '1', 'y axis', (), '', (3,)),
         A('z_axis', 'float64', '1', 'z axis', (), '', (3,)),
        ),
        (
         A('corners', 'float64', 'm', 'points', (), '', (4, 3)),
        ),
    ),
    "meeting_point": R(
        "geometry", 'GEMEET', '(2),(2),(2),(2)->(2)',
        (
         A('line_1_start', 'float32', 'm', 'point of line 1', (), '', (2,)),
         A('line_1_end', 'float32', 'm', 'another point of line 1', (), '', (2,)),
         A('line_2_start', 'float32', 'm', 'point of line 2', (), '', (2,)),
         A('line_2_end', 'float32', 'm', 'another point of line 2', (), '', (2,)),
        ),
        (
         A('meeting_point', 'float32', 'm', 'meeting point', (), '', (2,)),
        ),
    ),
    "crossing_point": R(
        "geometry", 'GECROS', '(2),(2),(2),(2)->(2)',
        (
         A('segment_1_start', 'float32', 'm', 'start of segment 1', (), '', (2,)),
         A('segment_1_end', 'float32', 'm', 'end of segment 1', (), '', (2,)),
         A('segment_2_start', 'float32', 'm', 'start of segment 2', (), '', (2,)),
         A('segment_2_end', 'float32', 'm', 'end of segment 2', (), '', (2,)),
        ),
        (
         A('crossing_point', 'float32', 'm', 'crossing point', (), '', (2,)),
        ),
    ),
    "in_span": R(
        "geometry", 'GEINLN', '(3),(3),(3)->()',
        (
         A('first_end', 'float32', 'm', 'one end', (), '', (3,)),
         A('second_end', 'float32', 'm', 'other end', (), '', (3,)),
         A('point', 'float32', 'm', 'point on the line AB', (), '', (3,)),
        ),
        (
         A('indicator', 'float32', '1', '1 between them or at an end, else 0', (), '', ()),
        ),
    ),
    "ahead_and_nearer": R(
        "geometry", 'GEINLN2', '(3),(3),(3)->()',
        (
         A('first_end', 'float32', 'm', 'one end', (), '', (3,)),
         A('second_end', 'float32', 'm', 'other end', (), '', (3,)),
         A('point', 'float32', 'm', 'point', (), '', (3,)),
        ),
        (
         A('indicator', 'float32', '1', '1 if so, else 0', (), '', ()),
        ),
    ),
    "coincide": R(
        "geometry", 'GECOIN', '',
        (
         A('x_1', 'float32', 'm', 'x of one point', (), '', ()),
         A('y_1', 'float32', 'm', 'y of one point', (), '', ()),
         A('x_2', 'float32', 'm', 'x of the other', (), '', ()),
         A('y_2', 'float32', 'm', 'y of the other', (), '', ()),
        ),
        (
         A('truth', 'bool', '', 'whether both coordinates differ by less than 1e-5', (), '', ()),
        ),
    ),
    "side_of_line": R(
        "geometry", 'IGEPNT', '(2),(2),(2)->()',
        (
         A('line_start', 'float32', 'm', 'start of the line', (), '', (2,)),
         A('line_end', 'float32', 'm', 'point towards which it runs', (), '', (2,)),
         A('point', 'float32', 'm', 'point', (), '', (2,)),
        ),
        (
         A('code', 'int32', '', '1 right of the line, -1 left of it, 0 nearer to it than 1e-5', (), '', ()),
        ),
    ),
    "back_azimuth": R(
        "geometry", 'BORI', '',
        (
         A('angle', 'float32', '°', 'angle from east, anticlockwise, or azimuth', (0, 360), '', ()),
        ),
        (
         A('azimuth', 'float32', '°', 'azimuth of the opposite direction, or angle of it', (0, 360), '', ()),
        ),
    ),
    "direction_to": R(
        "geometry", 'GESUNV', '(),()->(3)',
        (
         A('solar_altitude', 'float32', 'rad', 'altitude', (-1.5708, 1.5708), '', ()),
         A('solar_azimuth', 'float32', 'rad', 'azimuth', (0, 6.2832), '', ()),
        ),
        (
         A('direction', 'float32', '1', 'direction', (), '', (3,)),
        ),
    ),
    "surface_axes": R(
        "geometry", 'GERSET', '(),()->(3,3),(3,3)',
        (
         A('surface_azimuth', 'float32', 'rad', "azimuth of the surface's outward normal", (0, 6.2832), '', ()),
         A('tilt', 'float32', 'rad', 'tilt: 0 horizontal facing up, pi/2 vertical', (0, 3.1416), '', ()),
        ),
        (
         A('rotation_matrix', 'float32', '1', 'matrix; its columns are the local axes in global coordinates', (-1, 1), '', (3, 3)),
         A('inverse_matrix', 'float32', '1', 'inverse of it', (-1, 1), '', (3, 3)),
        ),
    ),
    "local_to_global": R(
        "geometry", 'GERAXI', '(3),(3,3)->(3)',
        (
         A('local_vector', 'float32', 'm', 'vector in local coordinates', (), '', (3,)),
         A('rotation_matrix', 'float32', '1', 'rotation matrix', (-1, 1), '', (3, 3)),
        ),
        (
         A('global_vector', 'float32', 'm', 'vector in global coordinates', (), '', (3,)),
        ),
    ),
    "global_to_local": R(
        "geometry", 'GERAX2', '(3),(3,3)->(3)',
        (
         A('global_vector', 'float32', 'm', 'vector in global coordinates', (), '', (3,)),
         A('rotation_matrix', 'float32', '1', 'rotation matrix', (-1, 1), '', (3, 3)),
        ),
        (
         A('local_vector', 'float32', 'm', 'vector in local coordinates', (), '', (3,)),
        ),
    ),
    "plan_area": R(
        "geometry", 'GEAPOL', '(vertices),(vertices)->()',
        (
         A('x', 'float32', 'm', 'x of the vertices', (), '', ('vertices',)),
         A('y', 'float32', 'm', 'y of the vertices', (), '', ('vertices',)),
        ),
        (
         A('area', 'float32', 'm²', 'area', (0, INF), '', ()),
        ),
    ),
    "signed_plan_area": R(
        "geometry", 'GEAPO2', '(vertices),(vertices)->()',
        (
         A('x', 'float32', 'm', 'x of the vertices', (), '', ('vertices',)),
         A('y', 'float32', 'm', 'y of the vertices', (), '', ('vertices',)),
        ),
        (
         A('area', 'float32', 'm²', 'area, negative for anticlockwise vertices', (0, INF), '', ()),
        ),
    ),
    "area_in_space": R(
        "geometry", 'GEAPO3', '(vertices),(vertices),(vertices)->()',
        (
         A('x', 'float32', 'm', 'x of the vertices', (), '', ('vertices',)),
         A('y', 'float32', 'm', 'y of the vertices', (), '', ('vertices',)),
         A('z', 'float32', 'm', 'z of the vertices', (), '', ('vertices',)),
        ),
        (
         A('area', 'float32', 'm²', 'area', (0, INF), '', ()),
        ),
    ),
    "polygon_orientation": R(
        "geometry", 'GEASO', '(vertices,3)->(),(),()',
        (
         A('polygon', 'float32', 'm', 'vertices', (), '', ('vertices', 3)),
        ),
        (
         A('area', 'float32', 'm²', 'area, positive when the vertices run as the corner at the first one turns', (0, INF), '', ()),
         A('tilt', 'float32', '°', 'angle between the normal and the vertical', (0, 180), '', ()),
         A('back_azimuth', 'float32', '°', 'azimuth opposite to the normal', (0, 360), '', ()),
        ),
    ),
    "projection": R(
        "geometry", 'GEPROJ', '(3),(3),(3),(3)->(3)',
        (
         A('plane_point', 'float32', 'm', 'a point of the plane', (), '', (3,)),
         A('plane_normal', 'float32', '1', 'normal of the plane, of any length', (), '', (3,)),
         A('point', 'float32', 'm', 'the point', (), '', (3,)),
         A('direction', 'float32', '1', 'direction, of any length', (), '', (3,)),
        ),
        (
         A('projected_point', 'float32', 'm', 'projected point', (), '', (3,)),
        ),
    ),
    "forward_projection": R(
        "geometry", 'GEPROJ2', '(3),(3),(3),(3)->(3)',
        (
         A('plane_point', 'float32', 'm', 'a point of the plane', (), '', (3,)),
         A('plane_normal', 'float32', '1', 'normal of the plane, of any length', (), '', (3,)),
         A('point', 'float32', 'm', 'the point', (), '', (3,)),
         A('direction', 'float32', '1', 'direction, of any length', (), '', (3,)),
        ),
        (
         A('projected_point', 'float32', 'm', 'projected point', (), '', (3,)),
        ),
    ),
    "forward_projection_or_start": R(
        "geometry", 'GEPROJ3', '(3),(3),(3),(3)->(3)',
        (
         A('plane_point', 'float32', 'm', 'a point of the plane', (), '', (3,)),
         A('plane_normal', 'float32', '1', 'normal of the plane, of any length', (), '', (3,)),
         A('point', 'float32', 'm', 'the point', (), '', (3,)),
         A('direction', 'float32', '1', 'direction, of any length', (), '', (3,)),
        ),
        (
         A('projected_point', 'float32', 'm', 'projected point, or the point itself', (), '', (3,)),
        ),
    ),
    "dot_product": R(
        "geometry", 'GEDOTP', '(3),(3)->()',
        (
         A('vector_a', 'float32', 'm', 'vector', (), '', (3,)),
         A('vector_b', 'float32', 'm', 'vector', (), '', (3,)),
        ),
        (
         A('dot_product', 'float32', 'm²', 'a . b', (), '', ()),
        ),
    ),
    "dot_product_in_double": R(
        "geometry", 'GEDTDP', '(3),(3)->()',
        (
         A('vector_a', 'float64', 'm', 'vector', (), '', (3,)),
         A('vector_b', 'float64', 'm', 'vector', (), '', (3,)),
        ),
        (
         A('dot_product', 'float64', 'm²', 'a . b', (), '', ()),
        ),
    ),
    "cross_product": R(
        "geometry", 'GEXPRO', '(3),(3)->(3)',
        (
         A('vector_a', 'float32', 'm', 'vector', (), '', (3,)),
         A('vector_b', 'float32', 'm', 'vector', (), '', (3,)),
        ),
        (
         A('cross_product', 'float32', 'm²', 'a x b', (), '', (3,)),
        ),
    ),
    "cross_product_in_double": R(
        "geometry", 'GEXPDP', '(3),(3)->(3)',
        (
         A('vector_a', 'float64', 'm', 'vector', (), '', (3,)),
         A('vector_b', 'float64', 'm', 'vector', (), '', (3,)),
        ),
        (
         A('cross_product', 'float64', 'm²', 'a x b', (), '', (3,)),
        ),
    ),
    "length": R(
        "geometry", 'GEVMOD', '(3)->()',
        (
         A('vector', 'float32', 'm', 'vector', (), '', (3,)),
        ),
        (
         A('length', 'float32', 'm', 'length', (), '', ()),
        ),
    ),
    "length_in_double": R(
        "geometry", 'GEVMDP', '(3)->()',
        (
         A('vector', 'float64', 'm', 'vector', (), '', (3,)),
        ),
        (
         A('length', 'float64', 'm', 'length', (), '', ()),
        ),
    ),
}
