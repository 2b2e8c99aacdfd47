# Produced from the catalogue of routines (catalogue/); do not edit.

known <- list()

known$dry_air_enthalpy <- list(
  routine = "dry_air_enthalpy",
  given = list(
    temperature = number(-50, 100, 'valid -50 to 100 degC')),
  results = list(
    enthalpy = returned()))
dry_air_enthalpy <- function(temperature, unchecked = FALSE) {
  given <- list(temperature)
  run("dry_air_enthalpy", given, unchecked)
}

known$water_vapour_enthalpy <- list(
  routine = "water_vapour_enthalpy",
  given = list(
    temperature = number(-50, 100, 'valid -50 to 100 degC')),
  results = list(
    enthalpy = returned()))
water_vapour_enthalpy <- function(temperature, unchecked = FALSE) {
  given <- list(temperature)
  run("water_vapour_enthalpy", given, unchecked)
}

known$dry_air_specific_heat <- list(
  routine = "dry_air_specific_heat",
  given = list(
    temperature = number(-50, 100, 'valid -50 to 100 degC')),
  results = list(
    specific_heat = returned()))
dry_air_specific_heat <- function(temperature, unchecked = FALSE) {
  given <- list(temperature)
  run("dry_air_specific_heat", given, unchecked)
}

known$water_vapour_specific_heat <- list(
  routine = "water_vapour_specific_heat",
  given = list(
    temperature = number(-50, 100, 'valid -50 to 100 degC')),
  results = list(
    specific_heat = returned()))
water_vapour_specific_heat <- function(temperature, unchecked = FALSE) {
  given <- list(temperature)
  run("water_vapour_specific_heat", given, unchecked)
}

known$latent_heat <- list(
  routine = "latent_heat",
  given = list(
    temperature = number(-50, 100, 'valid -50 to 100 degC')),
  results = list(
    enthalpy = returned()))
latent_heat <- function(temperature, unchecked = FALSE) {
  given <- list(temperature)
  run("latent_heat", given, unchecked)
}

known$dry_bulb_from_vapour_pressure_and_relative_humidity <- list(
  routine = "dry_bulb_from_vapour_pressure_and_relative_humidity",
  given = list(
    vapour_pressure = number(0, Inf, 'valid from 0 Pa'),
    relative_humidity = number(0, 100, 'valid 0 to 100 %')),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_vapour_pressure_and_relative_humidity <- function(vapour_pressure, relative_humidity, unchecked = FALSE) {
  given <- list(vapour_pressure, relative_humidity)
  run("dry_bulb_from_vapour_pressure_and_relative_humidity", given, unchecked)
}

known$dry_bulb_from_vapour_pressure_and_percentage_saturation <- list(
  routine = "dry_bulb_from_vapour_pressure_and_percentage_saturation",
  given = list(
    vapour_pressure = number(0, Inf, 'valid from 0 Pa'),
    percentage_saturation = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_vapour_pressure_and_percentage_saturation <- function(vapour_pressure, percentage_saturation, pressure,
    unchecked = FALSE) {
  given <- list(vapour_pressure, percentage_saturation, pressure)
  run("dry_bulb_from_vapour_pressure_and_percentage_saturation", given, unchecked)
}

known$dry_bulb_from_moisture_content_and_relative_humidity <- list(
  routine = "dry_bulb_from_moisture_content_and_relative_humidity",
  given = list(
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    relative_humidity = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_moisture_content_and_relative_humidity <- function(moisture_content, relative_humidity, pressure,
    unchecked = FALSE) {
  given <- list(moisture_content, relative_humidity, pressure)
  run("dry_bulb_from_moisture_content_and_relative_humidity", given, unchecked)
}

known$dry_bulb_from_moisture_content_and_percentage_saturation <- list(
  routine = "dry_bulb_from_moisture_content_and_percentage_saturation",
  given = list(
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    percentage_saturation = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_moisture_content_and_percentage_saturation <- function(moisture_content, percentage_saturation, pressure,
    unchecked = FALSE) {
  given <- list(moisture_content, percentage_saturation, pressure)
  run("dry_bulb_from_moisture_content_and_percentage_saturation", given, unchecked)
}

known$dry_bulb_from_enthalpy_and_moisture_content <- list(
  routine = "dry_bulb_from_enthalpy_and_moisture_content",
  given = list(
    enthalpy = number(-10, 460, 'valid -10 to 460 kJ/kg'),
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg')),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_enthalpy_and_moisture_content <- function(enthalpy, moisture_content, unchecked = FALSE) {
  given <- list(enthalpy, moisture_content)
  run("dry_bulb_from_enthalpy_and_moisture_content", given, unchecked)
}

known$dry_bulb_from_enthalpy_and_vapour_pressure <- list(
  routine = "dry_bulb_from_enthalpy_and_vapour_pressure",
  given = list(
    enthalpy = number(-10, 460, 'valid -10 to 460 kJ/kg'),
    vapour_pressure = number(0, Inf, 'valid from 0 Pa'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_enthalpy_and_vapour_pressure <- function(enthalpy, vapour_pressure, pressure, unchecked = FALSE) {
  given <- list(enthalpy, vapour_pressure, pressure)
  run("dry_bulb_from_enthalpy_and_vapour_pressure", given, unchecked)
}

known$dry_bulb_from_enthalpy_and_relative_humidity <- list(
  routine = "dry_bulb_from_enthalpy_and_relative_humidity",
  given = list(
    enthalpy = number(-10, 460, 'valid -10 to 460 kJ/kg'),
    relative_humidity = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_enthalpy_and_relative_humidity <- function(enthalpy, relative_humidity, pressure, unchecked = FALSE) {
  given <- list(enthalpy, relative_humidity, pressure)
  run("dry_bulb_from_enthalpy_and_relative_humidity", given, unchecked)
}

known$dry_bulb_from_enthalpy_and_percentage_saturation <- list(
  routine = "dry_bulb_from_enthalpy_and_percentage_saturation",
  given = list(
    enthalpy = number(-10, 460, 'valid -10 to 460 kJ/kg'),
    percentage_saturation = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_enthalpy_and_percentage_saturation <- function(enthalpy, percentage_saturation, pressure,
    unchecked = FALSE) {
  given <- list(enthalpy, percentage_saturation, pressure)
  run("dry_bulb_from_enthalpy_and_percentage_saturation", given, unchecked)
}

known$dry_bulb_from_wet_bulb_and_vapour_pressure <- list(
  routine = "dry_bulb_from_wet_bulb_and_vapour_pressure",
  given = list(
    wet_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    vapour_pressure = number(0, Inf, 'valid from 0 Pa'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_wet_bulb_and_vapour_pressure <- function(wet_bulb, vapour_pressure, pressure,
    psychrometer = c("sling", "screen"), unchecked = FALSE) {
  given <- list(wet_bulb, vapour_pressure, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("dry_bulb_from_wet_bulb_and_vapour_pressure", given, unchecked)
}

known$dry_bulb_from_wet_bulb_and_moisture_content <- list(
  routine = "dry_bulb_from_wet_bulb_and_moisture_content",
  given = list(
    wet_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_wet_bulb_and_moisture_content <- function(wet_bulb, moisture_content, pressure,
    psychrometer = c("sling", "screen"), unchecked = FALSE) {
  given <- list(wet_bulb, moisture_content, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("dry_bulb_from_wet_bulb_and_moisture_content", given, unchecked)
}

known$dry_bulb_from_wet_bulb_and_relative_humidity <- list(
  routine = "dry_bulb_from_wet_bulb_and_relative_humidity",
  given = list(
    wet_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    relative_humidity = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_wet_bulb_and_relative_humidity <- function(wet_bulb, relative_humidity, pressure,
    psychrometer = c("sling", "screen"), unchecked = FALSE) {
  given <- list(wet_bulb, relative_humidity, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("dry_bulb_from_wet_bulb_and_relative_humidity", given, unchecked)
}

known$dry_bulb_from_wet_bulb_and_percentage_saturation <- list(
  routine = "dry_bulb_from_wet_bulb_and_percentage_saturation",
  given = list(
    wet_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    percentage_saturation = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_wet_bulb_and_percentage_saturation <- function(wet_bulb, percentage_saturation, pressure,
    psychrometer = c("sling", "screen"), unchecked = FALSE) {
  given <- list(wet_bulb, percentage_saturation, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("dry_bulb_from_wet_bulb_and_percentage_saturation", given, unchecked)
}

known$dry_bulb_from_wet_bulb_and_enthalpy <- list(
  routine = "dry_bulb_from_wet_bulb_and_enthalpy",
  given = list(
    wet_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    enthalpy = number(-10, 460, 'valid -10 to 460 kJ/kg'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    dry_bulb = returned()))
dry_bulb_from_wet_bulb_and_enthalpy <- function(wet_bulb, enthalpy, pressure, psychrometer = c("sling", "screen"),
    unchecked = FALSE) {
  given <- list(wet_bulb, enthalpy, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("dry_bulb_from_wet_bulb_and_enthalpy", given, unchecked)
}

known$adiabatic_mixing <- list(
  routine = "adiabatic_mixing",
  given = list(
    first_air_flow = number(0, Inf, 'valid from 0 kg/s'),
    first_dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    first_moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    second_air_flow = number(0, Inf, 'valid from 0 kg/s'),
    second_dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    second_moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg')),
  results = list(
    dry_bulb = returned(),
    moisture_content = returned(),
    enthalpy = returned()))
adiabatic_mixing <- function(first_air_flow, first_dry_bulb, first_moisture_content, second_air_flow, second_dry_bulb,
    second_moisture_content, unchecked = FALSE) {
  given <- list(first_air_flow, first_dry_bulb, first_moisture_content, second_air_flow, second_dry_bulb,
    second_moisture_content)
  run("adiabatic_mixing", given, unchecked)
}

known$moisture_content_from_psychrometer <- list(
  routine = "moisture_content_from_psychrometer",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    wet_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    moisture_content = returned()))
moisture_content_from_psychrometer <- function(dry_bulb, wet_bulb, pressure, psychrometer = c("sling", "screen"),
    unchecked = FALSE) {
  given <- list(dry_bulb, wet_bulb, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("moisture_content_from_psychrometer", given, unchecked)
}

known$moisture_content <- list(
  routine = "moisture_content",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    vapour_pressure = number(0, Inf, 'valid from 0 Pa'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    moisture_content = returned()))
moisture_content <- function(dry_bulb, vapour_pressure, pressure, unchecked = FALSE) {
  given <- list(dry_bulb, vapour_pressure, pressure)
  run("moisture_content", given, unchecked)
}

known$vapour_pressure_from_moisture_content <- list(
  routine = "vapour_pressure_from_moisture_content",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    vapour_pressure = returned()))
vapour_pressure_from_moisture_content <- function(dry_bulb, moisture_content, pressure, unchecked = FALSE) {
  given <- list(dry_bulb, moisture_content, pressure)
  run("vapour_pressure_from_moisture_content", given, unchecked)
}

known$moisture_content_from_percentage_saturation <- list(
  routine = "moisture_content_from_percentage_saturation",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    percentage_saturation = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    moisture_content = returned()))
moisture_content_from_percentage_saturation <- function(dry_bulb, percentage_saturation, pressure, unchecked = FALSE) {
  given <- list(dry_bulb, percentage_saturation, pressure)
  run("moisture_content_from_percentage_saturation", given, unchecked)
}

known$moisture_content_from_enthalpy <- list(
  routine = "moisture_content_from_enthalpy",
  given = list(
    dry_bulb = number(-50, 100, 'valid -50 to 100 degC'),
    enthalpy = number(-10, 460, 'valid -10 to 460 kJ/kg')),
  results = list(
    moisture_content = returned()))
moisture_content_from_enthalpy <- function(dry_bulb, enthalpy, unchecked = FALSE) {
  given <- list(dry_bulb, enthalpy)
  run("moisture_content_from_enthalpy", given, unchecked)
}

known$moist_air_density <- list(
  routine = "moist_air_density",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    moist_air_density = returned()))
moist_air_density <- function(dry_bulb, moisture_content, pressure, unchecked = FALSE) {
  given <- list(dry_bulb, moisture_content, pressure)
  run("moist_air_density", given, unchecked)
}

known$percentage_saturation <- list(
  routine = "percentage_saturation",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    percentage_saturation = returned()))
percentage_saturation <- function(dry_bulb, moisture_content, pressure, unchecked = FALSE) {
  given <- list(dry_bulb, moisture_content, pressure)
  run("percentage_saturation", given, unchecked)
}

known$specific_enthalpy <- list(
  routine = "specific_enthalpy",
  given = list(
    dry_bulb = number(-50, 100, 'valid -50 to 100 degC'),
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg')),
  results = list(
    enthalpy = returned()))
specific_enthalpy <- function(dry_bulb, moisture_content, unchecked = FALSE) {
  given <- list(dry_bulb, moisture_content)
  run("specific_enthalpy", given, unchecked)
}

known$specific_enthalpy_from_psychrometer <- list(
  routine = "specific_enthalpy_from_psychrometer",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    wet_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    enthalpy = returned()))
specific_enthalpy_from_psychrometer <- function(dry_bulb, wet_bulb, pressure, psychrometer = c("sling", "screen"),
    unchecked = FALSE) {
  given <- list(dry_bulb, wet_bulb, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("specific_enthalpy_from_psychrometer", given, unchecked)
}

known$specific_volume <- list(
  routine = "specific_volume",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    specific_volume = returned()))
specific_volume <- function(dry_bulb, moisture_content, pressure, unchecked = FALSE) {
  given <- list(dry_bulb, moisture_content, pressure)
  run("specific_volume", given, unchecked)
}

known$saturation_temperature_from_enthalpy <- list(
  routine = "saturation_temperature_from_enthalpy",
  given = list(
    enthalpy = number(-10, 460, 'valid -10 to 460 kJ/kg'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    temperature = returned()))
saturation_temperature_from_enthalpy <- function(enthalpy, pressure, unchecked = FALSE) {
  given <- list(enthalpy, pressure)
  run("saturation_temperature_from_enthalpy", given, unchecked)
}

known$pool_evaporation <- list(
  routine = "pool_evaporation",
  given = list(
    water_area = number(0, Inf, 'valid from 0 m2'),
    wetted_area = number(0, Inf, 'valid from 0 m2'),
    water_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    reference_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    bathers = number(0, Inf, 'valid from 0', whole = TRUE),
    reference_coefficient = number(0, Inf, 'valid from 0 W/m2K'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    evaporation_rate = returned(),
    latent_load = returned(),
    convective_load = returned(),
    reference_load = returned()))
pool_evaporation <- function(water_area, wetted_area, water_temperature, dry_bulb, moisture_content,
    reference_temperature, bathers, reference_coefficient, pressure, unchecked = FALSE) {
  given <- list(water_area, wetted_area, water_temperature, dry_bulb, moisture_content, reference_temperature, bathers,
    reference_coefficient, pressure)
  run("pool_evaporation", given, unchecked)
}

known$pool_evaporation_from_wet_bulb <- list(
  routine = "pool_evaporation_from_wet_bulb",
  given = list(
    water_area = number(0, Inf, 'valid from 0 m2'),
    wetted_area = number(0, Inf, 'valid from 0 m2'),
    water_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    wet_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    reference_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    bathers = number(0, Inf, 'valid from 0', whole = TRUE),
    reference_coefficient = number(0, Inf, 'valid from 0 W/m2K'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa')),
  results = list(
    evaporation_rate = returned(),
    latent_load = returned(),
    convective_load = returned(),
    reference_load = returned()))
pool_evaporation_from_wet_bulb <- function(water_area, wetted_area, water_temperature, dry_bulb, wet_bulb,
    reference_temperature, bathers, reference_coefficient, pressure, unchecked = FALSE) {
  given <- list(water_area, wetted_area, water_temperature, dry_bulb, wet_bulb, reference_temperature, bathers,
    reference_coefficient, pressure)
  run("pool_evaporation_from_wet_bulb", given, unchecked)
}

known$saturation_pressure <- list(
  routine = "saturation_pressure",
  given = list(
    temperature = number(-100, 200, 'valid -100 to 200 degC')),
  results = list(
    saturation_pressure = returned()))
saturation_pressure <- function(temperature, unchecked = FALSE) {
  given <- list(temperature)
  run("saturation_pressure", given, unchecked)
}

known$dew_point <- list(
  routine = "dew_point",
  given = list(
    vapour_pressure = number(0, Inf, 'valid from 0 Pa')),
  results = list(
    dew_point = returned()))
dew_point <- function(vapour_pressure, unchecked = FALSE) {
  given <- list(vapour_pressure)
  run("dew_point", given, unchecked)
}

known$vapour_pressure <- list(
  routine = "vapour_pressure",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    relative_humidity = number(0, 100, 'valid 0 to 100 %')),
  results = list(
    vapour_pressure = returned()))
vapour_pressure <- function(dry_bulb, relative_humidity, unchecked = FALSE) {
  given <- list(dry_bulb, relative_humidity)
  run("vapour_pressure", given, unchecked)
}

known$relative_humidity <- list(
  routine = "relative_humidity",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    vapour_pressure = number(0, Inf, 'valid from 0 Pa')),
  results = list(
    relative_humidity = returned()))
relative_humidity <- function(dry_bulb, vapour_pressure, unchecked = FALSE) {
  given <- list(dry_bulb, vapour_pressure)
  run("relative_humidity", given, unchecked)
}

known$vapour_pressure_from_psychrometer <- list(
  routine = "vapour_pressure_from_psychrometer",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    wet_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    vapour_pressure = returned()))
vapour_pressure_from_psychrometer <- function(dry_bulb, wet_bulb, pressure, psychrometer = c("sling", "screen"),
    unchecked = FALSE) {
  given <- list(dry_bulb, wet_bulb, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("vapour_pressure_from_psychrometer", given, unchecked)
}

known$weighted_temperature <- list(
  routine = "weighted_temperature",
  given = list(
    first_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    second_temperature = number(-100, 200, 'valid -100 to 200 degC')),
  results = list(
    temperature = returned()))
weighted_temperature <- function(first_temperature, second_temperature, unchecked = FALSE) {
  given <- list(first_temperature, second_temperature)
  run("weighted_temperature", given, unchecked)
}

known$psychrometer_wet_bulb <- list(
  routine = "psychrometer_wet_bulb",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    relative_humidity = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    wet_bulb = returned()))
psychrometer_wet_bulb <- function(dry_bulb, relative_humidity, pressure, psychrometer = c("sling", "screen"),
    unchecked = FALSE) {
  given <- list(dry_bulb, relative_humidity, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("psychrometer_wet_bulb", given, unchecked)
}

known$wet_bulb_from_percentage_saturation <- list(
  routine = "wet_bulb_from_percentage_saturation",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    percentage_saturation = number(0, 100, 'valid 0 to 100 %'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    wet_bulb = returned()))
wet_bulb_from_percentage_saturation <- function(dry_bulb, percentage_saturation, pressure,
    psychrometer = c("sling", "screen"), unchecked = FALSE) {
  given <- list(dry_bulb, percentage_saturation, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("wet_bulb_from_percentage_saturation", given, unchecked)
}

known$wet_bulb_from_moisture_content <- list(
  routine = "wet_bulb_from_moisture_content",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    moisture_content = number(0, 0.1, 'valid 0 to 0.1 kg/kg'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    wet_bulb = returned()))
wet_bulb_from_moisture_content <- function(dry_bulb, moisture_content, pressure, psychrometer = c("sling", "screen"),
    unchecked = FALSE) {
  given <- list(dry_bulb, moisture_content, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("wet_bulb_from_moisture_content", given, unchecked)
}

known$wet_bulb <- list(
  routine = "wet_bulb",
  given = list(
    dry_bulb = number(-100, 200, 'valid -100 to 200 degC'),
    vapour_pressure = number(0, Inf, 'valid from 0 Pa'),
    pressure = number(50000, 110000, 'valid 50000 to 110000 Pa'),
    psychrometer = choice(sling = 1, screen = 2)),
  results = list(
    wet_bulb = returned()))
wet_bulb <- function(dry_bulb, vapour_pressure, pressure, psychrometer = c("sling", "screen"), unchecked = FALSE) {
  given <- list(dry_bulb, vapour_pressure, pressure, if (missing(psychrometer)) "sling" else psychrometer)
  run("wet_bulb", given, unchecked)
}

known$cyclic_response <- list(
  routine = "cyclic_response",
  given = list(
    thickness = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    conductivity = number(0, Inf, 'valid from 0 W/mK', shape = c(NA)),
    density = number(0, Inf, 'valid from 0 kg/m3', shape = c(NA)),
    specific_heat = number(0, Inf, 'valid from 0 J/kgK', shape = c(NA)),
    inside_resistance = number(0, Inf, 'valid from 0 m2K/W'),
    outside_resistance = number(0, Inf, 'valid from 0 m2K/W'),
    harmonic = number(0, Inf, 'valid from 0', whole = TRUE),
    element_kind = choice(between = 1, partition = 2)),
  results = list(
    admittance = returned(),
    admittance_lead = returned(),
    decrement_factor = returned(),
    decrement_lag = returned(),
    surface_factor = returned(),
    surface_factor_lag = returned(),
    u_value = returned()))
cyclic_response <- function(thickness, conductivity, density, specific_heat, inside_resistance, outside_resistance,
    harmonic, element_kind = c("between", "partition"), unchecked = FALSE) {
  given <- list(thickness, conductivity, density, specific_heat, inside_resistance, outside_resistance, harmonic,
    if (missing(element_kind)) "between" else element_kind)
  run("cyclic_response", given, unchecked)
}

known$vertical_cavity_resistance <- list(
  routine = "vertical_cavity_resistance",
  given = list(
    cavity_width = number(0.001, Inf, 'valid from 0.001 m')),
  results = list(
    cavity_resistance = returned()))
vertical_cavity_resistance <- function(cavity_width, unchecked = FALSE) {
  given <- list(cavity_width)
  run("vertical_cavity_resistance", given, unchecked)
}

known$air_cavity_resistance <- list(
  routine = "air_cavity_resistance",
  given = list(
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    cavity_width = number(0.001, Inf, 'valid from 0.001 m'),
    emissivity_1 = number(0, 1, 'valid 0 to 1'),
    emissivity_2 = number(0, 1, 'valid 0 to 1')),
  results = list(
    cavity_resistance = returned()))
air_cavity_resistance <- function(tilt, cavity_width, emissivity_1, emissivity_2, unchecked = FALSE) {
  given <- list(tilt, cavity_width, emissivity_1, emissivity_2)
  run("air_cavity_resistance", given, unchecked)
}

known$gas_cavity_resistance <- list(
  routine = "gas_cavity_resistance",
  given = list(
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    cavity_width = number(0.001, Inf, 'valid from 0.001 m'),
    emissivity_1 = number(0, 1, 'valid 0 to 1'),
    emissivity_2 = number(0, 1, 'valid 0 to 1'),
    density = number(0, Inf, 'valid from 0 kg/m3'),
    conductivity = number(0, Inf, 'valid from 0 W/mK'),
    specific_heat = number(0, Inf, 'valid from 0 J/kgK'),
    viscosity = number(0, Inf, 'valid from 0 Pa s')),
  results = list(
    cavity_resistance = returned()))
gas_cavity_resistance <- function(tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat,
    viscosity, unchecked = FALSE) {
  given <- list(tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat, viscosity)
  run("gas_cavity_resistance", given, unchecked)
}

known$total_vapour_resistance <- list(
  routine = "total_vapour_resistance",
  given = list(
    thickness = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    vapour_resistivity = number(0, Inf, 'valid from 0 GN s/(kg m)', shape = c(NA))),
  results = list(
    vapour_resistance = returned()))
total_vapour_resistance <- function(thickness, vapour_resistivity, unchecked = FALSE) {
  given <- list(thickness, vapour_resistivity)
  run("total_vapour_resistance", given, unchecked)
}

known$condensation_profile <- list(
  routine = "condensation_profile",
  given = list(
    thickness = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    conductivity = number(0, Inf, 'valid from 0 W/mK', shape = c(NA)),
    vapour_resistivity = number(0, Inf, 'valid from 0 GN s/(kg m)', shape = c(NA)),
    inside_resistance = number(0, Inf, 'valid from 0 m2K/W'),
    outside_resistance = number(0, Inf, 'valid from 0 m2K/W'),
    inside_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    outside_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    inside_humidity = number(0, 100, 'valid 0 to 100 %'),
    outside_humidity = number(0, 100, 'valid 0 to 100 %')),
  results = list(
    interface_temperature = returned(shape = c(21)),
    interface_vapour_pressure = returned(shape = c(21)),
    interface_saturation_pressure = returned(shape = c(21))))
condensation_profile <- function(thickness, conductivity, vapour_resistivity, inside_resistance, outside_resistance,
    inside_temperature, outside_temperature, inside_humidity, outside_humidity, unchecked = FALSE) {
  given <- list(thickness, conductivity, vapour_resistivity, inside_resistance, outside_resistance, inside_temperature,
    outside_temperature, inside_humidity, outside_humidity)
  run("condensation_profile", given, unchecked)
}

known$condenses_within_layer <- list(
  routine = "condenses_within_layer",
  given = list(
    warm_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    cold_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    warm_vapour_pressure = number(0, Inf, 'valid from 0 Pa'),
    cold_vapour_pressure = number(0, Inf, 'valid from 0 Pa')),
  results = list(
    indicator = returned()))
condenses_within_layer <- function(warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure,
    unchecked = FALSE) {
  given <- list(warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure)
  run("condenses_within_layer", given, unchecked)
}

known$element_property <- list(
  routine = "element_property",
  given = list(
    element_records = number(-Inf, Inf, 'valid is any number', shape = c(10, NA)),
    record_number = number(1, Inf, 'valid from 1', whole = TRUE),
    item = number(1, 72, 'valid 1 to 72', whole = TRUE)),
  results = list(
    property_value = returned()))
element_property <- function(element_records, record_number, item, unchecked = FALSE) {
  given <- list(element_records, record_number, item)
  run("element_property", given, unchecked)
}

known$natural_convection_coefficient <- list(
  routine = "natural_convection_coefficient",
  given = list(
    temperature_difference = number(-Inf, Inf, 'valid is any number'),
    characteristic_length = number(0, Inf, 'valid from 0 m'),
    heat_flow_direction = choice(upward = 1, horizontal = 2, downward = 3)),
  results = list(
    heat_transfer_coefficient = returned()))
natural_convection_coefficient <- function(temperature_difference, characteristic_length,
    heat_flow_direction = c("upward", "horizontal", "downward"), unchecked = FALSE) {
  given <- list(temperature_difference, characteristic_length,
    if (missing(heat_flow_direction)) "upward" else heat_flow_direction)
  run("natural_convection_coefficient", given, unchecked)
}

known$pack_two_fractions <- list(
  routine = "pack_two_fractions",
  given = list(
    packing = choice(pack = 1, unpack = 2),
    packed_number = number(0, 9999.99, 'valid 0 to 9999.99'),
    fraction_1 = number(0, 0.99, 'valid 0 to 0.99'),
    fraction_2 = number(0, 0.99, 'valid 0 to 0.99')),
  results = list(
    packed_number = returned(),
    fraction_1 = returned(),
    fraction_2 = returned()))
pack_two_fractions <- function(packing = c("pack", "unpack"), packed_number, fraction_1, fraction_2, unchecked = FALSE)
    {
  given <- list(if (missing(packing)) "pack" else packing, packed_number, fraction_1, fraction_2)
  run("pack_two_fractions", given, unchecked)
}

known$pack_three_fractions <- list(
  routine = "pack_three_fractions",
  given = list(
    packing = choice(pack = 1, unpack = 2),
    packed_number = number(0, 9999.99, 'valid 0 to 9999.99'),
    fraction_1 = number(0, 0.99, 'valid 0 to 0.99'),
    fraction_2 = number(0, 0.99, 'valid 0 to 0.99'),
    fraction_3 = number(0, 0.99, 'valid 0 to 0.99')),
  results = list(
    packed_number = returned(),
    fraction_1 = returned(),
    fraction_2 = returned(),
    fraction_3 = returned()))
pack_three_fractions <- function(packing = c("pack", "unpack"), packed_number, fraction_1, fraction_2, fraction_3,
    unchecked = FALSE) {
  given <- list(if (missing(packing)) "pack" else packing, packed_number, fraction_1, fraction_2, fraction_3)
  run("pack_three_fractions", given, unchecked)
}

known$pack_three_fractions_third_first <- list(
  routine = "pack_three_fractions_third_first",
  given = list(
    packing = choice(pack = 1, unpack = 2),
    packed_number = number(0, 9999.99, 'valid 0 to 9999.99'),
    fraction_3 = number(0, 0.99, 'valid 0 to 0.99'),
    fraction_1 = number(0, 0.99, 'valid 0 to 0.99'),
    fraction_2 = number(0, 0.99, 'valid 0 to 0.99')),
  results = list(
    packed_number = returned(),
    fraction_3 = returned(),
    fraction_1 = returned(),
    fraction_2 = returned()))
pack_three_fractions_third_first <- function(packing = c("pack", "unpack"), packed_number, fraction_3, fraction_1,
    fraction_2, unchecked = FALSE) {
  given <- list(if (missing(packing)) "pack" else packing, packed_number, fraction_3, fraction_1, fraction_2)
  run("pack_three_fractions_third_first", given, unchecked)
}

known$pack_pane <- list(
  routine = "pack_pane",
  given = list(
    packing = choice(pack = 1, unpack = 2),
    packed_number = number(0, 9999.99, 'valid 0 to 9999.99'),
    absorptance = number(0, 1, 'valid 0 to 1'),
    reflectance_1 = number(0, 1, 'valid 0 to 1'),
    reflectance_2 = number(0, 1, 'valid 0 to 1')),
  results = list(
    packed_number = returned(),
    absorptance = returned(),
    reflectance_1 = returned(),
    reflectance_2 = returned()))
pack_pane <- function(packing = c("pack", "unpack"), packed_number, absorptance, reflectance_1, reflectance_2,
    unchecked = FALSE) {
  given <- list(if (missing(packing)) "pack" else packing, packed_number, absorptance, reflectance_1, reflectance_2)
  run("pack_pane", given, unchecked)
}

known$surface_resistance <- list(
  routine = "surface_resistance",
  given = list(
    surface = choice(outside = 1, inside = 2),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    exposure = choice(sheltered = 1, normal = 2, severe = 3)),
  results = list(
    surface_resistance = returned()))
surface_resistance <- function(surface = c("outside", "inside"), tilt, exposure = c("sheltered", "normal", "severe"),
    unchecked = FALSE) {
  given <- list(if (missing(surface)) "outside" else surface, tilt, if (missing(exposure)) "sheltered" else exposure)
  run("surface_resistance", given, unchecked)
}

known$surface_resistance_at_emissivity <- list(
  routine = "surface_resistance_at_emissivity",
  given = list(
    surface = choice(outside = 1, inside = 2),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    exposure = choice(sheltered = 1, normal = 2, severe = 3),
    emissivity = number(0, 1, 'valid 0 to 1')),
  results = list(
    surface_resistance = returned()))
surface_resistance_at_emissivity <- function(surface = c("outside", "inside"), tilt,
    exposure = c("sheltered", "normal", "severe"), emissivity, unchecked = FALSE) {
  given <- list(if (missing(surface)) "outside" else surface, tilt, if (missing(exposure)) "sheltered" else exposure,
    emissivity)
  run("surface_resistance_at_emissivity", given, unchecked)
}

known$u_value <- list(
  routine = "u_value",
  given = list(
    thickness = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    conductivity = number(0, Inf, 'valid from 0 W/mK', shape = c(NA)),
    surface_resistance_1 = number(0, Inf, 'valid from 0 m2K/W'),
    surface_resistance_2 = number(0, Inf, 'valid from 0 m2K/W')),
  results = list(
    u_value = returned()))
u_value <- function(thickness, conductivity, surface_resistance_1, surface_resistance_2, unchecked = FALSE) {
  given <- list(thickness, conductivity, surface_resistance_1, surface_resistance_2)
  run("u_value", given, unchecked)
}

known$u_value_at_tilt_and_exposure <- list(
  routine = "u_value_at_tilt_and_exposure",
  given = list(
    u_value = number(0, Inf, 'valid from 0 W/m2K'),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    exposure = choice(sheltered = 1, normal = 2, severe = 3)),
  results = list(
    u_value = returned()))
u_value_at_tilt_and_exposure <- function(u_value, tilt, exposure = c("sheltered", "normal", "severe"),
    unchecked = FALSE) {
  given <- list(u_value, tilt, if (missing(exposure)) "sheltered" else exposure)
  run("u_value_at_tilt_and_exposure", given, unchecked)
}

known$window_parameters <- list(
  routine = "window_parameters",
  given = list(
    panes = number(1, 3, 'valid 1 to 3', whole = TRUE),
    pane_kind_1 = choice(closing = 1, vented = 2),
    emissivity_1 = number(0, 1, 'valid 0 to 1'),
    pane_kind_2 = choice(closing = 1, vented = 2),
    emissivity_2 = number(0, 1, 'valid 0 to 1'),
    pane_kind_3 = choice(closing = 1, vented = 2),
    emissivity_3 = number(0, 1, 'valid 0 to 1'),
    cavity_width_1 = number(0.001, Inf, 'valid from 0.001 m'),
    cavity_width_2 = number(0.001, Inf, 'valid from 0.001 m'),
    outer_surface = choice(outside = 1, inside = 2),
    exposure = choice(sheltered = 1, normal = 2, severe = 3),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad')),
  results = list(
    admittance = returned(),
    admittance_lead = returned(),
    decrement_factor = returned(),
    decrement_lag = returned(),
    surface_factor = returned(),
    surface_factor_lag = returned(),
    u_value = returned()))
window_parameters <- function(panes, pane_kind_1 = c("closing", "vented"), emissivity_1,
    pane_kind_2 = c("closing", "vented"), emissivity_2, pane_kind_3 = c("closing", "vented"), emissivity_3,
    cavity_width_1, cavity_width_2, outer_surface = c("outside", "inside"),
    exposure = c("sheltered", "normal", "severe"), tilt, unchecked = FALSE) {
  given <- list(panes, if (missing(pane_kind_1)) "closing" else pane_kind_1, emissivity_1,
    if (missing(pane_kind_2)) "closing" else pane_kind_2, emissivity_2,
    if (missing(pane_kind_3)) "closing" else pane_kind_3, emissivity_3, cavity_width_1, cavity_width_2,
    if (missing(outer_surface)) "outside" else outer_surface, if (missing(exposure)) "sheltered" else exposure, tilt)
  run("window_parameters", given, unchecked)
}

known$glass_direct <- list(
  routine = "glass_direct",
  given = list(
    normal_transmittance = number(0, 0.92, 'valid 0 to 0.92'),
    normal_reflectance = number(0, 0.99, 'valid 0 to 0.99'),
    incidence = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad')),
  results = list(
    parallel_transmittance = returned(),
    parallel_absorptance = returned(),
    parallel_reflectance = returned(),
    perpendicular_transmittance = returned(),
    perpendicular_absorptance = returned(),
    perpendicular_reflectance = returned()))
glass_direct <- function(normal_transmittance, normal_reflectance, incidence, unchecked = FALSE) {
  given <- list(normal_transmittance, normal_reflectance, incidence)
  run("glass_direct", given, unchecked)
}

known$glass_diffuse <- list(
  routine = "glass_diffuse",
  given = list(
    normal_transmittance = number(0, 0.92, 'valid 0 to 0.92'),
    normal_reflectance = number(0, 0.99, 'valid 0 to 0.99')),
  results = list(
    transmittance = returned(),
    absorptance = returned()))
glass_diffuse <- function(normal_transmittance, normal_reflectance, unchecked = FALSE) {
  given <- list(normal_transmittance, normal_reflectance)
  run("glass_diffuse", given, unchecked)
}

known$stacked_layers <- list(
  routine = "stacked_layers",
  given = list(
    layer_transmittances = number(0, 1, 'valid 0 to 1', shape = c(NA)),
    layer_reflectances = number(0, 1, 'valid 0 to 1', shape = c(NA))),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
stacked_layers <- function(layer_transmittances, layer_reflectances, unchecked = FALSE) {
  given <- list(layer_transmittances, layer_reflectances)
  run("stacked_layers", given, unchecked)
}

known$traced_layers <- list(
  routine = "traced_layers",
  given = list(
    layer_transmittances = number(0, 1, 'valid 0 to 1', shape = c(NA)),
    layer_absorptances = number(0, 1, 'valid 0 to 1', shape = c(NA)),
    layer_reflectances = number(0, 1, 'valid 0 to 1', shape = c(NA))),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
traced_layers <- function(layer_transmittances, layer_absorptances, layer_reflectances, unchecked = FALSE) {
  given <- list(layer_transmittances, layer_absorptances, layer_reflectances)
  run("traced_layers", given, unchecked)
}

known$roller_blind <- list(
  routine = "roller_blind",
  given = list(
    blind_transmittance = number(0, 1, 'valid 0 to 1'),
    blind_reflectance = number(0, 1, 'valid 0 to 1')),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
roller_blind <- function(blind_transmittance, blind_reflectance, unchecked = FALSE) {
  given <- list(blind_transmittance, blind_reflectance)
  run("roller_blind", given, unchecked)
}

known$diffuse_roller_blind <- list(
  routine = "diffuse_roller_blind",
  given = list(
    blind_transmittance = number(0, 1, 'valid 0 to 1'),
    blind_reflectance = number(0, 1, 'valid 0 to 1')),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
diffuse_roller_blind <- function(blind_transmittance, blind_reflectance, unchecked = FALSE) {
  given <- list(blind_transmittance, blind_reflectance)
  run("diffuse_roller_blind", given, unchecked)
}

known$refraction_angle <- list(
  routine = "refraction_angle",
  given = list(
    incidence = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    refractive_index = number(1, 4, 'valid 1 to 4')),
  results = list(
    refraction_angle = returned()))
refraction_angle <- function(incidence, refractive_index, unchecked = FALSE) {
  given <- list(incidence, refractive_index)
  run("refraction_angle", given, unchecked)
}

known$surface_reflectance <- list(
  routine = "surface_reflectance",
  given = list(
    incidence = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    refraction_angle = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    refractive_index = number(1, 4, 'valid 1 to 4')),
  results = list(
    parallel_reflectance = returned(),
    perpendicular_reflectance = returned()))
surface_reflectance <- function(incidence, refraction_angle, refractive_index, unchecked = FALSE) {
  given <- list(incidence, refraction_angle, refractive_index)
  run("surface_reflectance", given, unchecked)
}

known$single_pass_absorption <- list(
  routine = "single_pass_absorption",
  given = list(
    refraction_angle = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    absorption_product = number(0, 20, 'valid 0 to 20')),
  results = list(
    absorptance = returned()))
single_pass_absorption <- function(refraction_angle, absorption_product, unchecked = FALSE) {
  given <- list(refraction_angle, absorption_product)
  run("single_pass_absorption", given, unchecked)
}

known$slab_optics <- list(
  routine = "slab_optics",
  given = list(
    single_pass_absorptance = number(0, 1, 'valid 0 to 1'),
    face_reflectance = number(0, 1, 'valid 0 to 1')),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
slab_optics <- function(single_pass_absorptance, face_reflectance, unchecked = FALSE) {
  given <- list(single_pass_absorptance, face_reflectance)
  run("slab_optics", given, unchecked)
}

known$absorption_product <- list(
  routine = "absorption_product",
  given = list(
    normal_transmittance = number(0, 0.92, 'valid 0 to 0.92'),
    refractive_index = number(1, 4, 'valid 1 to 4')),
  results = list(
    absorption_product = returned()))
absorption_product <- function(normal_transmittance, refractive_index, unchecked = FALSE) {
  given <- list(normal_transmittance, refractive_index)
  run("absorption_product", given, unchecked)
}

known$normal_transmittance <- list(
  routine = "normal_transmittance",
  given = list(
    absorption_product = number(0, 20, 'valid 0 to 20'),
    normal_reflectance = number(0, 0.99, 'valid 0 to 0.99')),
  results = list(
    normal_transmittance = returned()))
normal_transmittance <- function(absorption_product, normal_reflectance, unchecked = FALSE) {
  given <- list(absorption_product, normal_reflectance)
  run("normal_transmittance", given, unchecked)
}

known$pane_temperatures <- list(
  routine = "pane_temperatures",
  given = list(
    inside_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    outside_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    panes = number(1, 5, 'valid 1 to 5', whole = TRUE),
    absorbed_1 = number(0, Inf, 'valid from 0 W/m2'),
    absorbed_2 = number(0, Inf, 'valid from 0 W/m2'),
    absorbed_3 = number(0, Inf, 'valid from 0 W/m2'),
    absorbed_4 = number(0, Inf, 'valid from 0 W/m2'),
    absorbed_5 = number(0, Inf, 'valid from 0 W/m2')),
  results = list(
    pane_temperature_1 = returned(),
    pane_temperature_2 = returned(),
    pane_temperature_3 = returned(),
    pane_temperature_4 = returned(),
    pane_temperature_5 = returned()))
pane_temperatures <- function(inside_temperature, outside_temperature, panes, absorbed_1, absorbed_2, absorbed_3,
    absorbed_4, absorbed_5, unchecked = FALSE) {
  given <- list(inside_temperature, outside_temperature, panes, absorbed_1, absorbed_2, absorbed_3, absorbed_4,
    absorbed_5)
  run("pane_temperatures", given, unchecked)
}

known$unit_direct <- list(
  routine = "unit_direct",
  given = list(
    shortwave_shading_coefficient = number(0, 1.05, 'valid 0 to 1.05'),
    longwave_shading_coefficient = number(0, 1, 'valid 0 to 1'),
    incidence = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad')),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
unit_direct <- function(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, unchecked = FALSE) {
  given <- list(shortwave_shading_coefficient, longwave_shading_coefficient, incidence)
  run("unit_direct", given, unchecked)
}

known$unit_diffuse <- list(
  routine = "unit_diffuse",
  given = list(
    shortwave_shading_coefficient = number(0, 1.05, 'valid 0 to 1.05'),
    longwave_shading_coefficient = number(0, 1, 'valid 0 to 1')),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
unit_diffuse <- function(shortwave_shading_coefficient, longwave_shading_coefficient, unchecked = FALSE) {
  given <- list(shortwave_shading_coefficient, longwave_shading_coefficient)
  run("unit_diffuse", given, unchecked)
}

known$unit_direct_shares <- list(
  routine = "unit_direct_shares",
  given = list(
    shortwave_shading_coefficient = number(0, 1.05, 'valid 0 to 1.05'),
    longwave_shading_coefficient = number(0, 1, 'valid 0 to 1'),
    incidence = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    panes = number(1, 5, 'valid 1 to 5', whole = TRUE)),
  results = list(
    transmittance = returned(),
    pane_shares = returned(shape = c(NA)),
    absorptance = returned()))
unit_direct_shares <- function(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes,
    unchecked = FALSE) {
  given <- list(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes)
  run("unit_direct_shares", given, unchecked)
}

known$unit_diffuse_shares <- list(
  routine = "unit_diffuse_shares",
  given = list(
    shortwave_shading_coefficient = number(0, 1.05, 'valid 0 to 1.05'),
    longwave_shading_coefficient = number(0, 1, 'valid 0 to 1'),
    panes = number(1, 5, 'valid 1 to 5', whole = TRUE)),
  results = list(
    transmittance = returned(),
    pane_shares = returned(shape = c(NA)),
    absorptance = returned()))
unit_diffuse_shares <- function(shortwave_shading_coefficient, longwave_shading_coefficient, panes, unchecked = FALSE) {
  given <- list(shortwave_shading_coefficient, longwave_shading_coefficient, panes)
  run("unit_diffuse_shares", given, unchecked)
}

known$unit_shares <- list(
  routine = "unit_shares",
  given = list(
    radiation = choice(direct = 1, diffuse = 2),
    shortwave_shading_coefficient = number(0, 1.05, 'valid 0 to 1.05'),
    longwave_shading_coefficient = number(0, 1, 'valid 0 to 1'),
    incidence = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    panes = number(1, 5, 'valid 1 to 5', whole = TRUE)),
  results = list(
    transmittance = returned(),
    pane_shares = returned(shape = c(NA)),
    absorptance = returned()))
unit_shares <- function(radiation = c("direct", "diffuse"), shortwave_shading_coefficient, longwave_shading_coefficient,
    incidence, panes, unchecked = FALSE) {
  given <- list(if (missing(radiation)) "direct" else radiation, shortwave_shading_coefficient,
    longwave_shading_coefficient, incidence, panes)
  run("unit_shares", given, unchecked)
}

known$slat_direct <- list(
  routine = "slat_direct",
  given = list(
    slat_spacing = number(0, Inf, 'valid from 0 m'),
    slat_width = number(0, Inf, 'valid from 0 m'),
    slat_angle = number(-90, 90, 'valid -90 to 90 deg'),
    profile_angle = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    slat_absorptance = number(0, 1, 'valid 0 to 1')),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
slat_direct <- function(slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance, unchecked = FALSE) {
  given <- list(slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance)
  run("slat_direct", given, unchecked)
}

known$two_faced_slat_direct <- list(
  routine = "two_faced_slat_direct",
  given = list(
    slat_spacing = number(0, Inf, 'valid from 0 m'),
    slat_width = number(0, Inf, 'valid from 0 m'),
    slat_angle = number(-90, 90, 'valid -90 to 90 deg'),
    profile_angle = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    struck_absorptance = number(0, 1, 'valid 0 to 1'),
    opposite_absorptance = number(0, 1, 'valid 0 to 1')),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
two_faced_slat_direct <- function(slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance,
    opposite_absorptance, unchecked = FALSE) {
  given <- list(slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, opposite_absorptance)
  run("two_faced_slat_direct", given, unchecked)
}

known$open_slat_direct <- list(
  routine = "open_slat_direct",
  given = list(
    slat_spacing = number(0, Inf, 'valid from 0 m'),
    slat_width = number(0, Inf, 'valid from 0 m'),
    slat_angle = number(-90, 90, 'valid -90 to 90 deg'),
    profile_angle = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    open_share = number(0, 1, 'valid 0 to 1'),
    struck_absorptance = number(0, 1, 'valid 0 to 1'),
    opposite_absorptance = number(0, 1, 'valid 0 to 1')),
  results = list(
    transmittance = returned(),
    absorptance = returned(),
    reflectance = returned()))
open_slat_direct <- function(slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance,
    opposite_absorptance, unchecked = FALSE) {
  given <- list(slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance,
    opposite_absorptance)
  run("open_slat_direct", given, unchecked)
}

known$slat_diffuse <- list(
  routine = "slat_diffuse",
  given = list(
    slat_spacing = number(0, Inf, 'valid from 0 m'),
    slat_width = number(0, Inf, 'valid from 0 m'),
    slat_angle = number(-90, 90, 'valid -90 to 90 deg'),
    slat_absorptance = number(0, 1, 'valid 0 to 1')),
  results = list(
    sky_transmittance = returned(),
    ground_transmittance = returned(),
    sky_absorptance = returned(),
    ground_absorptance = returned()))
slat_diffuse <- function(slat_spacing, slat_width, slat_angle, slat_absorptance, unchecked = FALSE) {
  given <- list(slat_spacing, slat_width, slat_angle, slat_absorptance)
  run("slat_diffuse", given, unchecked)
}

known$two_faced_slat_diffuse <- list(
  routine = "two_faced_slat_diffuse",
  given = list(
    slat_spacing = number(0, Inf, 'valid from 0 m'),
    slat_width = number(0, Inf, 'valid from 0 m'),
    slat_angle = number(-90, 90, 'valid -90 to 90 deg'),
    struck_absorptance = number(0, 1, 'valid 0 to 1'),
    opposite_absorptance = number(0, 1, 'valid 0 to 1')),
  results = list(
    sky_transmittance = returned(),
    ground_transmittance = returned(),
    sky_absorptance = returned(),
    ground_absorptance = returned()))
two_faced_slat_diffuse <- function(slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance,
    unchecked = FALSE) {
  given <- list(slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance)
  run("two_faced_slat_diffuse", given, unchecked)
}

known$open_slat_diffuse <- list(
  routine = "open_slat_diffuse",
  given = list(
    slat_spacing = number(0, Inf, 'valid from 0 m'),
    slat_width = number(0, Inf, 'valid from 0 m'),
    slat_angle = number(-90, 90, 'valid -90 to 90 deg'),
    open_share = number(0, 1, 'valid 0 to 1'),
    struck_absorptance = number(0, 1, 'valid 0 to 1'),
    opposite_absorptance = number(0, 1, 'valid 0 to 1')),
  results = list(
    sky_transmittance = returned(),
    ground_transmittance = returned(),
    sky_absorptance = returned(),
    ground_absorptance = returned()))
open_slat_diffuse <- function(slat_spacing, slat_width, slat_angle, open_share, struck_absorptance,
    opposite_absorptance, unchecked = FALSE) {
  given <- list(slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, opposite_absorptance)
  run("open_slat_diffuse", given, unchecked)
}

known$locate_band <- list(
  routine = "locate_band",
  given = list(
    fraction = number(0, 1, 'valid 0 to 1'),
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    frequencies = number(0, 1, 'valid 0 to 1', shape = c(12, 10))),
  results = list(
    lower_band = returned(),
    upper_band = returned(),
    band_weight = returned()))
locate_band <- function(fraction, month, frequencies, unchecked = FALSE) {
  given <- list(fraction, month, frequencies)
  run("locate_band", given, unchecked)
}

known$band_climate <- list(
  routine = "band_climate",
  given = list(
    band = number(0, 10, 'valid 0 to 10', whole = TRUE),
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    band_set = choice(first = 1, second = 2),
    percentage = number(0, 100, 'valid 0 to 100 %')),
  results = list(
    percentage = returned(),
    q1 = returned(),
    q2 = returned(),
    q3 = returned(),
    q4 = returned(),
    q5 = returned(),
    q6 = returned(),
    time_a = returned(),
    time_b = returned(),
    q7 = returned(),
    q8 = returned()))
band_climate <- function(band, month, band_set = c("first", "second"), percentage, unchecked = FALSE) {
  given <- list(band, month, if (missing(band_set)) "first" else band_set, percentage)
  run("band_climate", given, unchecked)
}

known$interpolate_band_rows <- list(
  routine = "interpolate_band_rows",
  given = list(
    base_row = number(0, 174, 'valid 0 to 174', whole = TRUE),
    lower_band = number(1, 10, 'valid 1 to 10', whole = TRUE),
    upper_band = number(1, 10, 'valid 1 to 10', whole = TRUE),
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    band_weight = number(-1, 1, 'valid -1 to 1')),
  results = list(
    value = returned()))
interpolate_band_rows <- function(base_row, lower_band, upper_band, month, band_weight, unchecked = FALSE) {
  given <- list(base_row, lower_band, upper_band, month, band_weight)
  run("interpolate_band_rows", given, unchecked)
}

known$band_row <- list(
  routine = "band_row",
  given = list(
    row = number(1, 184, 'valid 1 to 184', whole = TRUE)),
  results = list(
    values = returned(shape = c(12))))
band_row <- function(row, unchecked = FALSE) {
  given <- list(row)
  run("band_row", given, unchecked)
}

known$store_design_day <- list(
  routine = "store_design_day",
  given = list(
    month = number(1, 12, 'valid 1 to 12', whole = TRUE)),
  results = list(
    day = returned()))
store_design_day <- function(month, unchecked = FALSE) {
  given <- list(month)
  run("store_design_day", given, unchecked)
}

known$store_design_day_by_option <- list(
  routine = "store_design_day_by_option",
  given = list(
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    day_kind = choice(of_month = 1, of_year = 2)),
  results = list(
    day = returned()))
store_design_day_by_option <- function(month, day_kind = c("of_month", "of_year"), unchecked = FALSE) {
  given <- list(month, if (missing(day_kind)) "of_month" else day_kind)
  run("store_design_day_by_option", given, unchecked)
}

known$design_day <- list(
  routine = "design_day",
  given = list(
    month = number(1, 12, 'valid 1 to 12', whole = TRUE)),
  results = list(
    day = returned()))
design_day <- function(month, unchecked = FALSE) {
  given <- list(month)
  run("design_day", given, unchecked)
}

known$design_day_by_option <- list(
  routine = "design_day_by_option",
  given = list(
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    day_kind = choice(of_month = 1, of_year = 2)),
  results = list(
    day = returned()))
design_day_by_option <- function(month, day_kind = c("of_month", "of_year"), unchecked = FALSE) {
  given <- list(month, if (missing(day_kind)) "of_month" else day_kind)
  run("design_day_by_option", given, unchecked)
}

known$second_design_day <- list(
  routine = "second_design_day",
  given = list(
    month = number(1, 12, 'valid 1 to 12', whole = TRUE)),
  results = list(
    day = returned()))
second_design_day <- function(month, unchecked = FALSE) {
  given <- list(month)
  run("second_design_day", given, unchecked)
}

known$second_design_day_by_option <- list(
  routine = "second_design_day_by_option",
  given = list(
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    day_kind = choice(of_month = 1, of_year = 2)),
  results = list(
    day = returned()))
second_design_day_by_option <- function(month, day_kind = c("of_month", "of_year"), unchecked = FALSE) {
  given <- list(month, if (missing(day_kind)) "of_month" else day_kind)
  run("second_design_day_by_option", given, unchecked)
}

known$station_records <- list(
  routine = "station_records",
  given = list(
    file_name = list(),
    station = number(1, Inf, 'valid from 1', whole = TRUE),
    month = number(0, 12, 'valid 0 to 12', whole = TRUE),
    station_records = number(-Inf, Inf, 'valid is any number', shape = c(11, 12))),
  results = list(
    station_records = returned(shape = c(11, 12))))

known$station_climate <- list(
  routine = "station_climate",
  given = list(
    file_unit = choice(opened_last = 31),
    station = number(1, Inf, 'valid from 1', whole = TRUE),
    band = number(0, 10, 'valid 0 to 10', whole = TRUE),
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    band_set = choice(first = 1, second = 2),
    percentage = number(0, 100, 'valid 0 to 100 %')),
  results = list(
    q1 = returned(),
    q2 = returned(),
    q3 = returned(),
    q4 = returned(),
    q5 = returned(),
    q6 = returned(),
    q7 = returned(),
    time_a = returned(),
    time_b = returned()))

known$locate_station_band <- list(
  routine = "locate_station_band",
  given = list(
    fraction = number(0, 1, 'valid 0 to 1'),
    month = number(1, 12, 'valid 1 to 12', whole = TRUE)),
  results = list(
    lower_band = returned(),
    upper_band = returned(),
    band_weight = returned()))

known$interpolate_station_rows <- list(
  routine = "interpolate_station_rows",
  given = list(
    base_row = number(2, 154, 'valid 2 to 154', whole = TRUE),
    lower_band = number(1, 10, 'valid 1 to 10', whole = TRUE),
    upper_band = number(1, 10, 'valid 1 to 10', whole = TRUE),
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    band_weight = number(-1, 1, 'valid -1 to 1')),
  results = list(
    value = returned()))

known$station_row <- list(
  routine = "station_row",
  given = list(
    row = number(1, 171, 'valid 1 to 171', whole = TRUE)),
  results = list(
    values = returned(shape = c(12))))

known$daily_temperature <- list(
  routine = "daily_temperature",
  given = list(
    hour = number(0, 24, 'valid 0 to 24 h'),
    highest_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    lowest_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    hour_of_highest = number(0, 24, 'valid 0 to 24 h'),
    hour_of_lowest = number(0, 24, 'valid 0 to 24 h')),
  results = list(
    temperature = returned()))
daily_temperature <- function(hour, highest_temperature, lowest_temperature, hour_of_highest, hour_of_lowest,
    unchecked = FALSE) {
  given <- list(hour, highest_temperature, lowest_temperature, hour_of_highest, hour_of_lowest)
  run("daily_temperature", given, unchecked)
}

known$daily_value <- list(
  routine = "daily_value",
  given = list(
    hour = number(0, 24, 'valid 0 to 24 h'),
    mean = number(-Inf, Inf, 'valid is any number'),
    amplitude = number(-Inf, Inf, 'valid is any number'),
    first_hour = number(0, 24, 'valid 0 to 24 h'),
    second_hour = number(0, 24, 'valid 0 to 24 h'),
    amplitude_factor = number(-Inf, Inf, 'valid is any number')),
  results = list(
    value = returned()))
daily_value <- function(hour, mean, amplitude, first_hour, second_hour, amplitude_factor, unchecked = FALSE) {
  given <- list(hour, mean, amplitude, first_hour, second_hour, amplitude_factor)
  run("daily_value", given, unchecked)
}

known$design_irradiance <- list(
  routine = "design_irradiance",
  given = list(
    solar_altitude = number(0, 1.5707964, 'valid 0 to 1.5707964 rad'),
    site_height = number(0, 4000, 'valid 0 to 4000 m'),
    sky_kind = choice(clear = 0, cloudy = 1)),
  results = list(
    direct_normal = returned(),
    diffuse_horizontal = returned()))
design_irradiance <- function(solar_altitude, site_height, sky_kind = c("clear", "cloudy"), unchecked = FALSE) {
  given <- list(solar_altitude, site_height, if (missing(sky_kind)) "clear" else sky_kind)
  run("design_irradiance", given, unchecked)
}

known$height_factor <- list(
  routine = "height_factor",
  given = list(
    site_height = number(0, 4000, 'valid 0 to 4000 m'),
    solar_altitude = number(0, 1.5707964, 'valid 0 to 1.5707964 rad')),
  results = list(
    factor = returned()))
height_factor <- function(site_height, solar_altitude, unchecked = FALSE) {
  given <- list(site_height, solar_altitude)
  run("height_factor", given, unchecked)
}

known$eccentricity_factor <- list(
  routine = "eccentricity_factor",
  given = list(
    day = number(1, 366, 'valid 1 to 366', whole = TRUE)),
  results = list(
    factor = returned()))
eccentricity_factor <- function(day, unchecked = FALSE) {
  given <- list(day)
  run("eccentricity_factor", given, unchecked)
}

known$clearness_index <- list(
  routine = "clearness_index",
  given = list(
    day = number(1, 366, 'valid 1 to 366', whole = TRUE),
    solar_altitude = number(0, 1.5707964, 'valid 0 to 1.5707964 rad'),
    global_horizontal = number(0, Inf, 'valid from 0 W/m2')),
  results = list(
    clearness_index = returned()))
clearness_index <- function(day, solar_altitude, global_horizontal, unchecked = FALSE) {
  given <- list(day, solar_altitude, global_horizontal)
  run("clearness_index", given, unchecked)
}

known$muneer_slope <- list(
  routine = "muneer_slope",
  given = list(
    solar_altitude = number(0, 1.5707964, 'valid 0 to 1.5707964 rad'),
    solar_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    surface_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    beam_horizontal = number(0, Inf, 'valid from 0 W/m2'),
    diffuse_horizontal = number(0, Inf, 'valid from 0 W/m2'),
    extraterrestrial_horizontal = number(0, 1415, 'valid 0 to 1415 W/m2'),
    ground_reflectance = number(0, 1, 'valid 0 to 1')),
  results = list(
    surface_beam = returned(),
    surface_diffuse = returned(),
    ground_reflected = returned(),
    incidence = returned()))
muneer_slope <- function(solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, diffuse_horizontal,
    extraterrestrial_horizontal, ground_reflectance, unchecked = FALSE) {
  given <- list(solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, diffuse_horizontal,
    extraterrestrial_horizontal, ground_reflectance)
  run("muneer_slope", given, unchecked)
}

known$perez_diffuse <- list(
  routine = "perez_diffuse",
  given = list(
    solar_altitude = number(0, 1.5707964, 'valid 0 to 1.5707964 rad'),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    beam_horizontal = number(0, Inf, 'valid from 0 W/m2'),
    diffuse_horizontal = number(0, Inf, 'valid from 0 W/m2'),
    incidence = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    extraterrestrial_normal = number(1320, 1415, 'valid 1320 to 1415 W/m2')),
  results = list(
    surface_diffuse = returned()))
perez_diffuse <- function(solar_altitude, tilt, beam_horizontal, diffuse_horizontal, incidence, extraterrestrial_normal,
    unchecked = FALSE) {
  given <- list(solar_altitude, tilt, beam_horizontal, diffuse_horizontal, incidence, extraterrestrial_normal)
  run("perez_diffuse", given, unchecked)
}

known$site_constants <- list(
  routine = "site_constants",
  given = list(
    site_class = number(1, 6, 'valid 1 to 6', whole = TRUE),
    month = number(1, 12, 'valid 1 to 12', whole = TRUE)),
  results = list(
    ground_reflectance = returned(),
    beam_factor = returned(),
    diffuse_factor = returned(),
    alternative_diffuse_factor = returned()))
site_constants <- function(site_class, month, unchecked = FALSE) {
  given <- list(site_class, month)
  run("site_constants", given, unchecked)
}

known$diffuse_tilt_factor <- list(
  routine = "diffuse_tilt_factor",
  given = list(
    day = number(1, 366, 'valid 1 to 366', whole = TRUE),
    solar_altitude = number(0, 1.5707964, 'valid 0 to 1.5707964 rad'),
    beam_horizontal = number(0, Inf, 'valid from 0 W/m2'),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    sky_model = choice(radiance_index = 0, northern_europe = 1, southern_europe = 2)),
  results = list(
    factor = returned()))
diffuse_tilt_factor <- function(day, solar_altitude, beam_horizontal, tilt,
    sky_model = c("radiance_index", "northern_europe", "southern_europe"), unchecked = FALSE) {
  given <- list(day, solar_altitude, beam_horizontal, tilt, if (missing(sky_model)) "radiance_index" else sky_model)
  run("diffuse_tilt_factor", given, unchecked)
}

known$slope_diffuse <- list(
  routine = "slope_diffuse",
  given = list(
    day = number(1, 366, 'valid 1 to 366', whole = TRUE),
    solar_altitude = number(0, 1.5707964, 'valid 0 to 1.5707964 rad'),
    solar_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    surface_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    beam_horizontal = number(0, Inf, 'valid from 0 W/m2'),
    diffuse_horizontal = number(0, Inf, 'valid from 0 W/m2'),
    sky_model = choice(radiance_index = 0, northern_europe = 1, southern_europe = 2)),
  results = list(
    surface_diffuse = returned()))
slope_diffuse <- function(day, solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal,
    diffuse_horizontal, sky_model = c("radiance_index", "northern_europe", "southern_europe"), unchecked = FALSE) {
  given <- list(day, solar_altitude, solar_azimuth, surface_azimuth, tilt, beam_horizontal, diffuse_horizontal,
    if (missing(sky_model)) "radiance_index" else sky_model)
  run("slope_diffuse", given, unchecked)
}

known$sol_air_temperature <- list(
  routine = "sol_air_temperature",
  given = list(
    base_temperature = number(-100, 200, 'valid -100 to 200 degC'),
    surface_coefficient = number(0, Inf, 'valid from 0 W/m2K'),
    absorptance = number(0, 1, 'valid 0 to 1'),
    irradiance = number(0, Inf, 'valid from 0 W/m2'),
    long_wave_loss = number(0, Inf, 'valid from 0 W/m2')),
  results = list(
    temperature = returned()))
sol_air_temperature <- function(base_temperature, surface_coefficient, absorptance, irradiance, long_wave_loss,
    unchecked = FALSE) {
  given <- list(base_temperature, surface_coefficient, absorptance, irradiance, long_wave_loss)
  run("sol_air_temperature", given, unchecked)
}

known$long_wave_loss <- list(
  routine = "long_wave_loss",
  given = list(
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    cloud_cover = number(0, 1, 'valid 0 to 1')),
  results = list(
    long_wave_loss = returned()))
long_wave_loss <- function(tilt, cloud_cover, unchecked = FALSE) {
  given <- list(tilt, cloud_cover)
  run("long_wave_loss", given, unchecked)
}

known$solar_time_correction <- list(
  routine = "solar_time_correction",
  given = list(
    clock_offset = number(-Inf, Inf, 'valid is any number'),
    day = number(1, 366, 'valid 1 to 366', whole = TRUE),
    longitude = number(-3.1416, 3.1416, 'valid -3.1416 to 3.1416 rad'),
    reference_longitude = number(-3.1416, 3.1416, 'valid -3.1416 to 3.1416 rad')),
  results = list(
    time_shift = returned()))
solar_time_correction <- function(clock_offset, day, longitude, reference_longitude, unchecked = FALSE) {
  given <- list(clock_offset, day, longitude, reference_longitude)
  run("solar_time_correction", given, unchecked)
}

known$almanac_position <- list(
  routine = "almanac_position",
  given = list(
    time_kind = choice(solar = 1, zone = 2, dated_solar = 3),
    year = number(1976, 2099, 'valid 1976 to 2099', whole = TRUE),
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    day_of_month = number(1, 31, 'valid 1 to 31', whole = TRUE),
    clock_time = number(0, 24, 'valid 0 to 24 h'),
    latitude = number(-1.5707964, 1.5707964, 'valid -1.5707964 to 1.5707964 rad'),
    longitude = number(-3.1416, 3.1416, 'valid -3.1416 to 3.1416 rad'),
    zone_meridian = number(-3.1416, 3.1416, 'valid -3.1416 to 3.1416 rad')),
  results = list(
    longitude = returned(),
    zone_meridian = returned(),
    solar_altitude = returned(),
    solar_azimuth = returned(),
    declination = returned()))
almanac_position <- function(time_kind = c("solar", "zone", "dated_solar"), year, month, day_of_month, clock_time,
    latitude, longitude, zone_meridian, unchecked = FALSE) {
  given <- list(if (missing(time_kind)) "solar" else time_kind, year, month, day_of_month, clock_time, latitude,
    longitude, zone_meridian)
  run("almanac_position", given, unchecked)
}

known$almanac_sun_hours <- list(
  routine = "almanac_sun_hours",
  given = list(
    year = number(1976, 2099, 'valid 1976 to 2099', whole = TRUE),
    month = number(1, 12, 'valid 1 to 12', whole = TRUE),
    day_of_month = number(1, 31, 'valid 1 to 31', whole = TRUE),
    latitude = number(-1.5707964, 1.5707964, 'valid -1.5707964 to 1.5707964 rad')),
  results = list(
    sunrise = returned(),
    sunset = returned()))
almanac_sun_hours <- function(year, month, day_of_month, latitude, unchecked = FALSE) {
  given <- list(year, month, day_of_month, latitude)
  run("almanac_sun_hours", given, unchecked)
}

known$solar_geometry <- list(
  routine = "solar_geometry",
  given = list(
    latitude = number(-1.5707964, 1.5707964, 'valid -1.5707964 to 1.5707964 rad'),
    day = number(1, 365, 'valid 1 to 365', whole = TRUE),
    solar_time = number(0, 24, 'valid 0 to 24 h')),
  results = list(
    declination = returned(),
    solar_altitude = returned(),
    solar_azimuth = returned(),
    sunrise = returned(),
    sunset = returned()))
solar_geometry <- function(latitude, day, solar_time, unchecked = FALSE) {
  given <- list(latitude, day, solar_time)
  run("solar_geometry", given, unchecked)
}

known$surface_angles <- list(
  routine = "surface_angles",
  given = list(
    solar_altitude = number(-1.5707964, 1.5707964, 'valid -1.5707964 to 1.5707964 rad'),
    solar_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    surface_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad')),
  results = list(
    incidence = returned(),
    vertical_shadow_angle = returned(),
    horizontal_shadow_angle = returned()))
surface_angles <- function(solar_altitude, solar_azimuth, surface_azimuth, tilt, unchecked = FALSE) {
  given <- list(solar_altitude, solar_azimuth, surface_azimuth, tilt)
  run("surface_angles", given, unchecked)
}

known$surface_irradiance <- list(
  routine = "surface_irradiance",
  given = list(
    solar_altitude = number(0, 1.5707964, 'valid 0 to 1.5707964 rad'),
    solar_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    surface_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    direct_normal = number(0, Inf, 'valid from 0 W/m2'),
    diffuse_horizontal = number(0, Inf, 'valid from 0 W/m2'),
    ground_reflectance = number(0, 1, 'valid 0 to 1'),
    beam_factor = number(0, Inf, 'valid from 0'),
    diffuse_factor = number(0, Inf, 'valid from 0')),
  results = list(
    surface_beam = returned(),
    surface_diffuse = returned(),
    ground_reflected = returned()))
surface_irradiance <- function(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal,
    ground_reflectance, beam_factor, diffuse_factor, unchecked = FALSE) {
  given <- list(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal,
    ground_reflectance, beam_factor, diffuse_factor)
  run("surface_irradiance", given, unchecked)
}

known$surface_irradiance_and_incidence <- list(
  routine = "surface_irradiance_and_incidence",
  given = list(
    solar_altitude = number(0, 1.5707964, 'valid 0 to 1.5707964 rad'),
    solar_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    surface_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad'),
    direct_normal = number(0, Inf, 'valid from 0 W/m2'),
    diffuse_horizontal = number(0, Inf, 'valid from 0 W/m2'),
    ground_reflectance = number(0, 1, 'valid 0 to 1'),
    beam_factor = number(0, Inf, 'valid from 0'),
    diffuse_factor = number(0, Inf, 'valid from 0')),
  results = list(
    surface_beam = returned(),
    surface_diffuse = returned(),
    ground_reflected = returned(),
    incidence = returned()))
surface_irradiance_and_incidence <- function(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal,
    diffuse_horizontal, ground_reflectance, beam_factor, diffuse_factor, unchecked = FALSE) {
  given <- list(solar_altitude, solar_azimuth, surface_azimuth, tilt, direct_normal, diffuse_horizontal,
    ground_reflectance, beam_factor, diffuse_factor)
  run("surface_irradiance_and_incidence", given, unchecked)
}

known$clip_polygons <- list(
  routine = "clip",
  given = list(
    x = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    positions_a = number(1, Inf, 'valid from 1', whole = TRUE, shape = c(NA)),
    positions_b = number(1, Inf, 'valid from 1', whole = TRUE, shape = c(NA)),
    crossing_capacity = number(0, 1024, 'valid 0 to 1024', whole = TRUE),
    difference_capacity = number(0, Inf, 'valid from 0', whole = TRUE),
    overlap_capacity = number(0, Inf, 'valid from 0', whole = TRUE),
    used_points = number(1, Inf, 'valid from 1', whole = TRUE)),
  results = list(
    x = returned(shape = c(NA)),
    y = returned(shape = c(NA)),
    used_points = returned(),
    difference_pieces = returned(shape = c(NA)),
    overlap_pieces = returned(shape = c(NA)),
    status = returned()))

known$overlap <- list(
  routine = "overlap",
  given = list(
    x_1 = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y_1 = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    x_2 = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y_2 = number(-Inf, Inf, 'valid is any number', shape = c(NA))),
  results = list(
    piece_x = returned(shape = c(25, 5)),
    piece_y = returned(shape = c(25, 5)),
    piece_vertices = returned(shape = c(5)),
    area = returned()))
overlap <- function(x_1, y_1, x_2, y_2, unchecked = FALSE) {
  given <- list(x_1, y_1, x_2, y_2)
  run("overlap", given, unchecked)
}

known$overlap_alias <- list(
  routine = "overlap_alias",
  given = list(
    x_1 = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y_1 = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    x_2 = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y_2 = number(-Inf, Inf, 'valid is any number', shape = c(NA))),
  results = list(
    piece_x = returned(shape = c(25, 5)),
    piece_y = returned(shape = c(25, 5)),
    piece_vertices = returned(shape = c(5)),
    area = returned()))
overlap_alias <- function(x_1, y_1, x_2, y_2, unchecked = FALSE) {
  given <- list(x_1, y_1, x_2, y_2)
  run("overlap_alias", given, unchecked)
}

known$collinearity <- list(
  routine = "collinearity",
  given = list(
    x = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y = number(-Inf, Inf, 'valid is any number', shape = c(NA))),
  results = list(
    code = returned()))
collinearity <- function(x, y, unchecked = FALSE) {
  given <- list(x, y)
  run("collinearity", given, unchecked)
}

known$count_enclosed <- list(
  routine = "count_enclosed",
  given = list(
    x = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    point_x = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    point_y = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    enclosed = choice(outside = 0, inside = 1, shape = c(NA))),
  results = list(
    enclosed = returned(shape = c(NA)),
    enclosed_points = returned()))
count_enclosed <- function(x, y, point_x, point_y, enclosed, unchecked = FALSE) {
  given <- list(x, y, point_x, point_y, enclosed)
  run("count_enclosed", given, unchecked)
}

known$boundary_crossing <- list(
  routine = "boundary_crossing",
  given = list(
    segment_start = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    segment_end = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    x = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y = number(-Inf, Inf, 'valid is any number', shape = c(NA))),
  results = list(
    crossing_point = returned(shape = c(2)),
    crossing_code = returned()))
boundary_crossing <- function(segment_start, segment_end, x, y, unchecked = FALSE) {
  given <- list(segment_start, segment_end, x, y)
  run("boundary_crossing", given, unchecked)
}

known$inside <- list(
  routine = "inside",
  given = list(
    point = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    polygon = number(-Inf, Inf, 'valid is any number', shape = c(3, NA))),
  results = list(
    inside = returned()))
inside <- function(point, polygon, unchecked = FALSE) {
  given <- list(point, polygon)
  run("inside", given, unchecked)
}

known$parallel_planes <- list(
  routine = "parallel_planes",
  given = list(
    triangle_1 = number(-Inf, Inf, 'valid is any number', shape = c(3, 3)),
    triangle_2 = number(-Inf, Inf, 'valid is any number', shape = c(3, 3))),
  results = list(
    truth = returned(logical = TRUE)))
parallel_planes <- function(triangle_1, triangle_2, unchecked = FALSE) {
  given <- list(triangle_1, triangle_2)
  run("parallel_planes", given, unchecked)
}

known$parallel_sides <- list(
  routine = "parallel_sides",
  given = list(
    triangle_1 = number(-Inf, Inf, 'valid is any number', shape = c(3, 3)),
    triangle_2 = number(-Inf, Inf, 'valid is any number', shape = c(3, 3))),
  results = list(
    truth = returned(logical = TRUE),
    side_1 = returned(),
    side_2 = returned()))
parallel_sides <- function(triangle_1, triangle_2, unchecked = FALSE) {
  given <- list(triangle_1, triangle_2)
  run("parallel_sides", given, unchecked)
}

known$rectangular <- list(
  routine = "rectangular",
  given = list(
    quadrilateral = number(-Inf, Inf, 'valid is any number', shape = c(3, 4))),
  results = list(
    truth = returned(logical = TRUE)))
rectangular <- function(quadrilateral, unchecked = FALSE) {
  given <- list(quadrilateral)
  run("rectangular", given, unchecked)
}

known$facing <- list(
  routine = "facing",
  given = list(
    triangle = number(-Inf, Inf, 'valid is any number', shape = c(3, 3)),
    azimuth = number(0, 6.2832, 'valid 0 to 6.2832 deg')),
  results = list(
    azimuth = returned(),
    tilt = returned()))
facing <- function(triangle, azimuth, unchecked = FALSE) {
  given <- list(triangle, azimuth)
  run("facing", given, unchecked)
}

known$local_coordinates <- list(
  routine = "local_coordinates",
  given = list(
    quadrilateral_1 = number(-Inf, Inf, 'valid is any number', shape = c(3, 4)),
    quadrilateral_2 = number(-Inf, Inf, 'valid is any number', shape = c(3, 4))),
  results = list(
    local_1 = returned(shape = c(3, 4)),
    local_2 = returned(shape = c(3, 4))))
local_coordinates <- function(quadrilateral_1, quadrilateral_2, unchecked = FALSE) {
  given <- list(quadrilateral_1, quadrilateral_2)
  run("local_coordinates", given, unchecked)
}

known$to_local <- list(
  routine = "to_local",
  given = list(
    corners = number(-Inf, Inf, 'valid is any number', shape = c(3, 4)),
    x_axis = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    y_axis = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    z_axis = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    corners = returned(shape = c(3, 4))))
to_local <- function(corners, x_axis, y_axis, z_axis, unchecked = FALSE) {
  given <- list(corners, x_axis, y_axis, z_axis)
  run("to_local", given, unchecked)
}

known$meeting_point <- list(
  routine = "meeting_point",
  given = list(
    line_1_start = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    line_1_end = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    line_2_start = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    line_2_end = number(-Inf, Inf, 'valid is any number', shape = c(2))),
  results = list(
    meeting_point = returned(shape = c(2))))
meeting_point <- function(line_1_start, line_1_end, line_2_start, line_2_end, unchecked = FALSE) {
  given <- list(line_1_start, line_1_end, line_2_start, line_2_end)
  run("meeting_point", given, unchecked)
}

known$crossing_point <- list(
  routine = "crossing_point",
  given = list(
    segment_1_start = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    segment_1_end = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    segment_2_start = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    segment_2_end = number(-Inf, Inf, 'valid is any number', shape = c(2))),
  results = list(
    crossing_point = returned(shape = c(2))))
crossing_point <- function(segment_1_start, segment_1_end, segment_2_start, segment_2_end, unchecked = FALSE) {
  given <- list(segment_1_start, segment_1_end, segment_2_start, segment_2_end)
  run("crossing_point", given, unchecked)
}

known$in_span <- list(
  routine = "in_span",
  given = list(
    first_end = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    second_end = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    point = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    indicator = returned()))
in_span <- function(first_end, second_end, point, unchecked = FALSE) {
  given <- list(first_end, second_end, point)
  run("in_span", given, unchecked)
}

known$ahead_and_nearer <- list(
  routine = "ahead_and_nearer",
  given = list(
    first_end = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    second_end = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    point = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    indicator = returned()))
ahead_and_nearer <- function(first_end, second_end, point, unchecked = FALSE) {
  given <- list(first_end, second_end, point)
  run("ahead_and_nearer", given, unchecked)
}

known$coincide <- list(
  routine = "coincide",
  given = list(
    x_1 = number(-Inf, Inf, 'valid is any number'),
    y_1 = number(-Inf, Inf, 'valid is any number'),
    x_2 = number(-Inf, Inf, 'valid is any number'),
    y_2 = number(-Inf, Inf, 'valid is any number')),
  results = list(
    truth = returned(logical = TRUE)))
coincide <- function(x_1, y_1, x_2, y_2, unchecked = FALSE) {
  given <- list(x_1, y_1, x_2, y_2)
  run("coincide", given, unchecked)
}

known$side_of_line <- list(
  routine = "side_of_line",
  given = list(
    line_start = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    line_end = number(-Inf, Inf, 'valid is any number', shape = c(2)),
    point = number(-Inf, Inf, 'valid is any number', shape = c(2))),
  results = list(
    code = returned()))
side_of_line <- function(line_start, line_end, point, unchecked = FALSE) {
  given <- list(line_start, line_end, point)
  run("side_of_line", given, unchecked)
}

known$back_azimuth <- list(
  routine = "back_azimuth",
  given = list(
    angle = number(0, 360, 'valid 0 to 360 deg')),
  results = list(
    azimuth = returned()))
back_azimuth <- function(angle, unchecked = FALSE) {
  given <- list(angle)
  run("back_azimuth", given, unchecked)
}

known$direction_to <- list(
  routine = "direction_to",
  given = list(
    solar_altitude = number(-1.5708, 1.5708, 'valid -1.5708 to 1.5708 rad'),
    solar_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad')),
  results = list(
    direction = returned(shape = c(3))))
direction_to <- function(solar_altitude, solar_azimuth, unchecked = FALSE) {
  given <- list(solar_altitude, solar_azimuth)
  run("direction_to", given, unchecked)
}

known$surface_axes <- list(
  routine = "surface_axes",
  given = list(
    surface_azimuth = number(0, 6.2832, 'valid 0 to 6.2832 rad'),
    tilt = number(0, 3.1416, 'valid 0 to 3.1416 rad')),
  results = list(
    rotation_matrix = returned(shape = c(3, 3)),
    inverse_matrix = returned(shape = c(3, 3))))
surface_axes <- function(surface_azimuth, tilt, unchecked = FALSE) {
  given <- list(surface_azimuth, tilt)
  run("surface_axes", given, unchecked)
}

known$local_to_global <- list(
  routine = "local_to_global",
  given = list(
    local_vector = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    rotation_matrix = number(-1, 1, 'valid -1 to 1', shape = c(3, 3))),
  results = list(
    global_vector = returned(shape = c(3))))
local_to_global <- function(local_vector, rotation_matrix, unchecked = FALSE) {
  given <- list(local_vector, rotation_matrix)
  run("local_to_global", given, unchecked)
}

known$global_to_local <- list(
  routine = "global_to_local",
  given = list(
    global_vector = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    rotation_matrix = number(-1, 1, 'valid -1 to 1', shape = c(3, 3))),
  results = list(
    local_vector = returned(shape = c(3))))
global_to_local <- function(global_vector, rotation_matrix, unchecked = FALSE) {
  given <- list(global_vector, rotation_matrix)
  run("global_to_local", given, unchecked)
}

known$plan_area <- list(
  routine = "plan_area",
  given = list(
    x = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y = number(-Inf, Inf, 'valid is any number', shape = c(NA))),
  results = list(
    area = returned()))
plan_area <- function(x, y, unchecked = FALSE) {
  given <- list(x, y)
  run("plan_area", given, unchecked)
}

known$signed_plan_area <- list(
  routine = "signed_plan_area",
  given = list(
    x = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y = number(-Inf, Inf, 'valid is any number', shape = c(NA))),
  results = list(
    area = returned()))
signed_plan_area <- function(x, y, unchecked = FALSE) {
  given <- list(x, y)
  run("signed_plan_area", given, unchecked)
}

known$area_in_space <- list(
  routine = "area_in_space",
  given = list(
    x = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    y = number(-Inf, Inf, 'valid is any number', shape = c(NA)),
    z = number(-Inf, Inf, 'valid is any number', shape = c(NA))),
  results = list(
    area = returned()))
area_in_space <- function(x, y, z, unchecked = FALSE) {
  given <- list(x, y, z)
  run("area_in_space", given, unchecked)
}

known$polygon_orientation <- list(
  routine = "polygon_orientation",
  given = list(
    polygon = number(-Inf, Inf, 'valid is any number', shape = c(3, NA))),
  results = list(
    area = returned(),
    tilt = returned(),
    back_azimuth = returned()))
polygon_orientation <- function(polygon, unchecked = FALSE) {
  given <- list(polygon)
  run("polygon_orientation", given, unchecked)
}

known$projection <- list(
  routine = "projection",
  given = list(
    plane_point = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    plane_normal = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    point = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    direction = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    projected_point = returned(shape = c(3))))
projection <- function(plane_point, plane_normal, point, direction, unchecked = FALSE) {
  given <- list(plane_point, plane_normal, point, direction)
  run("projection", given, unchecked)
}

known$forward_projection <- list(
  routine = "forward_projection",
  given = list(
    plane_point = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    plane_normal = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    point = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    direction = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    projected_point = returned(shape = c(3))))
forward_projection <- function(plane_point, plane_normal, point, direction, unchecked = FALSE) {
  given <- list(plane_point, plane_normal, point, direction)
  run("forward_projection", given, unchecked)
}

known$forward_projection_or_start <- list(
  routine = "forward_projection_or_start",
  given = list(
    plane_point = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    plane_normal = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    point = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    direction = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    projected_point = returned(shape = c(3))))
forward_projection_or_start <- function(plane_point, plane_normal, point, direction, unchecked = FALSE) {
  given <- list(plane_point, plane_normal, point, direction)
  run("forward_projection_or_start", given, unchecked)
}

known$dot_product <- list(
  routine = "dot_product",
  given = list(
    vector_a = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    vector_b = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    dot_product = returned()))
dot_product <- function(vector_a, vector_b, unchecked = FALSE) {
  given <- list(vector_a, vector_b)
  run("dot_product", given, unchecked)
}

known$dot_product_in_double <- list(
  routine = "dot_product_in_double",
  given = list(
    vector_a = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    vector_b = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    dot_product = returned()))
dot_product_in_double <- function(vector_a, vector_b, unchecked = FALSE) {
  given <- list(vector_a, vector_b)
  run("dot_product_in_double", given, unchecked)
}

known$cross_product <- list(
  routine = "cross_product",
  given = list(
    vector_a = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    vector_b = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    cross_product = returned(shape = c(3))))
cross_product <- function(vector_a, vector_b, unchecked = FALSE) {
  given <- list(vector_a, vector_b)
  run("cross_product", given, unchecked)
}

known$cross_product_in_double <- list(
  routine = "cross_product_in_double",
  given = list(
    vector_a = number(-Inf, Inf, 'valid is any number', shape = c(3)),
    vector_b = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    cross_product = returned(shape = c(3))))
cross_product_in_double <- function(vector_a, vector_b, unchecked = FALSE) {
  given <- list(vector_a, vector_b)
  run("cross_product_in_double", given, unchecked)
}

known$vector_length <- list(
  routine = "length",
  given = list(
    vector = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    length = returned()))
vector_length <- function(vector, unchecked = FALSE) {
  given <- list(vector)
  run("vector_length", given, unchecked)
}

known$length_in_double <- list(
  routine = "length_in_double",
  given = list(
    vector = number(-Inf, Inf, 'valid is any number', shape = c(3))),
  results = list(
    length = returned()))
length_in_double <- function(vector, unchecked = FALSE) {
  given <- list(vector)
  run("length_in_double", given, unchecked)
}
