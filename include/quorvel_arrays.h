/*
 * Quorvel - building-physics and building-services calculations, for whole arrays.
 *
 * Produced from the catalogue of routines (catalogue/); do not edit.
 *
 * Every routine under its readable name, for `count` elements: of each argument the address of its
 * first element and the stride, the distance in bytes from one element to the next. A stride of 0
 * repeats one value, strides may be negative. An argument that is an array itself, such as a vector or
 * the layers of a construction, has its numbers one after the other in each element. The value of a
 * function is the output `result`; an argument that is both given and returned has an array for
 * either.
 *
 * Each element gets the bits that the routine of quorvel.h gives for it, whatever the processor. An
 * output that the routine leaves as it was is not a number (an Integer: 0), or as it was given. Where
 * no name in brackets says otherwise, quorvel.h has no such routine.
 *
 * The functions return QUORVEL_OK, or what is wrong, found before anything is written; quorvel_message
 * says it in words. An output may stand where an input of its element stands (not where that is an
 * array itself that is counted), and columns of one table may be inputs and outputs; arrays that overlap
 * in any other way are refused. Numbers may begin at any byte, but in lists and records (routines whose
 * in_place is 0) as their type is aligned. No function starts a thread, and but for those of climate
 * data files none allocates memory or keeps anything; all may be called from any thread.
 */
#ifndef QUORVEL_ARRAYS_H
#define QUORVEL_ARRAYS_H

#include <stddef.h>
#include <stdint.h>

#if defined(QUORVEL_ARRAYS_STATIC)
#define QUORVEL_ARRAYS_API
#elif defined(_WIN32) && defined(QUORVEL_ARRAYS_BUILDING)
#define QUORVEL_ARRAYS_API /* exported by a list: a library that contains this one exports other names */
#elif defined(_WIN32)
#define QUORVEL_ARRAYS_API __declspec(dllimport)
#else
#define QUORVEL_ARRAYS_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* What a function returns: one of these, plus 256 times the number of the argument that it is about. */
enum {
    QUORVEL_OK = 0,
    QUORVEL_NO_ARRAY = 1,           /* an address is null */
    QUORVEL_OUTSIDE_RANGE = 2,      /* a count says more or fewer numbers than there may be */
    QUORVEL_OVERLAP = 3,            /* an output overlaps another array, or itself */
    QUORVEL_NOT_ELEMENTWISE = 4,    /* the routine has a state or takes a text: see quorvel.h */
    QUORVEL_NO_FILE = 5,            /* there is no regular file of that name, or it may not be read */
    QUORVEL_NO_MEMORY = 6,
    QUORVEL_UNREADABLE = 7          /* a climate data file has no such record, or fails to be read */
};

/* ---- For bindings: any routine by its name ---------------------------------------------------- */

enum { QUORVEL_REAL = 1, QUORVEL_DOUBLE_REAL = 2, QUORVEL_INTEGER = 3 }; /* float, double, int32_t */

typedef struct quorvel_argument {
    const char *name;
    int32_t type;
    int32_t numbers;        /* in an element, where they are not counted */
    int32_t counted_by;     /* the input that counts so many numbers again; -1 for none */
    int32_t lowest, highest; /* of an input that counts */
} quorvel_argument;

typedef struct quorvel_routine {
    const char *name;          /* readable, as in quorvel_NAME */
    const char *exported_name; /* in quorvel.h; null where only this library has the routine */
    const char *family;
    int32_t inputs, outputs;
    int32_t elementwise;       /* 0 for those that only quorvel.h has */
    int32_t in_place;          /* whether an output may stand where an input of its element stands */
    const quorvel_argument *arguments; /* the inputs, then the outputs */
} quorvel_routine;

/* A routine by either name; null if there is none. */
QUORVEL_ARRAYS_API const quorvel_routine *quorvel_find_routine(const char *name);

/* All routines, one after the other; their number goes to *count. */
QUORVEL_ARRAYS_API const quorvel_routine *quorvel_routines(size_t *count);

/* A routine for `count` elements: of each input, then of each output, the address of its first element
 * and its stride. */
QUORVEL_ARRAYS_API int32_t quorvel_call(const quorvel_routine *routine, size_t count, void *const *at,
                                        const ptrdiff_t *stride);

/* What a function of that routine returned, in words that name the argument. Writes at most `size`
 * characters with the NUL, and returns how many the whole text has. */
QUORVEL_ARRAYS_API size_t quorvel_message(const quorvel_routine *routine, int32_t status, char *text,
                                          size_t size);

/* ---- Levels of instructions --------------------------------------------------------------------- */

/* The level in use: "v2", "v3" or "v4" of x86-64, or "scalar". It is the best one that the processor
 * supports, unless the environment variable QUORVEL_LEVEL names a lower one. */
QUORVEL_ARRAYS_API const char *quorvel_level(void);

/* Takes another level from now on; a null pointer stands for the best. 0, and no change, if it is not
 * supported. Results do not depend on it. */
QUORVEL_ARRAYS_API int32_t quorvel_choose_level(const char *name);

/* ---- Climate data files -------------------------------------------------------------------------
 *
 * Each object is one open file, with what was read of it. It may be used by one thread at a time;
 * different objects have nothing in common. The functions give the bits that the routine of quorvel.h
 * in brackets gives once CLBNF0 or CLBNFI was called for that station, and take what lies outside the
 * ranges as it does. They return QUORVEL_OK, or QUORVEL_UNREADABLE and leave what they return as it was.
 */

typedef struct quorvel_climate_file quorvel_climate_file;

/* Null where the file cannot be opened: *status (which may be null) says why. The path is in UTF-8,
 * on Windows too; elsewhere its bytes are taken as they are. */
QUORVEL_ARRAYS_API quorvel_climate_file *quorvel_climate_file_open(const char *path, int32_t *status);

QUORVEL_ARRAYS_API void quorvel_climate_file_close(quorvel_climate_file *file); /* null is let be */

/* Monthly climate of a band, or for band 0 interpolated at the percentage [CLBNFI]: seven quantities
 * Q1 to Q7, and times A and B. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_station_climate(
    quorvel_climate_file *file, int32_t station, int32_t band, int32_t month, int32_t band_set,
    float percentage, float *quantities, float *times);

/* Where a cumulative fraction of days lies among the ten bands of a month [CLBNF1]. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_locate_station_band(
    quorvel_climate_file *file, int32_t station, int32_t band_set, float fraction, int32_t month,
    int32_t *lower_band, int32_t *upper_band, float *band_weight);

/* Value between two rows of a station [CLBNF2]. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_interpolate_station_rows(
    quorvel_climate_file *file, int32_t station, int32_t base_row, int32_t lower_band,
    int32_t upper_band, int32_t month, float band_weight, float *value);

/* One row of a station, twelve values [CLBNF3]. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_station_row(
    quorvel_climate_file *file, int32_t station, int32_t row, float *values);

/* Monthly records, twelve of eleven values, all of them or that of one month [CLBNF0]; filled up to the
 * first that cannot be read. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_station_records(
    quorvel_climate_file *file, int32_t station, int32_t month, float *records);

/* ---- Moist air ------------------------------------------------------------------------------- */

/*
 * quorvel_dry_air_enthalpy (PSHDRY): Specific enthalpy of dry air.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     kJ/kg  specific enthalpy, 0 at 0 °C
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_air_enthalpy(
    size_t count,
    const float *temperature, ptrdiff_t temperature_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_water_vapour_enthalpy (PSHVAP): Specific enthalpy of water vapour.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     kJ/kg  specific enthalpy, from liquid water at 0 °C
 */
QUORVEL_ARRAYS_API int32_t quorvel_water_vapour_enthalpy(
    size_t count,
    const float *temperature, ptrdiff_t temperature_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_air_specific_heat (PSCPDR): Specific heat of dry air at constant pressure.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     kJ/kgK  specific heat
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_air_specific_heat(
    size_t count,
    const float *temperature, ptrdiff_t temperature_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_water_vapour_specific_heat (PSCPVA): Specific heat of water vapour at constant pressure.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     kJ/kgK  specific heat
 */
QUORVEL_ARRAYS_API int32_t quorvel_water_vapour_specific_heat(
    size_t count,
    const float *temperature, ptrdiff_t temperature_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_latent_heat (PSHFG): Latent heat of evaporation of water, of sublimation of ice below 0
 *     °C.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     kJ/kg  latent heat
 */
QUORVEL_ARRAYS_API int32_t quorvel_latent_heat(
    size_t count,
    const float *temperature, ptrdiff_t temperature_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity: Dry bulb of air with a vapour
 *     pressure and relative humidity.
 * Given:
 *     vapour_pressure    float  Pa  from 0    vapour pressure
 *     relative_humidity  float  %   0 .. 100  relative humidity
 * Result:
 *     °C  dry-bulb temperature
 * Formula: rh / 100 ps(t) = pv
 * Notes:
 *     - Found from -200 to 400 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity(
    size_t count,
    const float *vapour_pressure, ptrdiff_t vapour_pressure_stride,
    const float *relative_humidity, ptrdiff_t relative_humidity_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation: Dry bulb of air with a vapour
 *     pressure and percentage saturation.
 * Given:
 *     vapour_pressure        float  Pa  from 0           vapour pressure
 *     percentage_saturation  float  %   0 .. 100         percentage saturation
 *     pressure               float  Pa  50000 .. 110000  atmospheric pressure
 * Result:
 *     °C  dry-bulb temperature
 * Formula: percentage / 100 gs(t, p) = moisture_content(t, pv, p)
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - Up to where water boils at the atmospheric pressure. The percentage is not limited.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation(
    size_t count,
    const float *vapour_pressure, ptrdiff_t vapour_pressure_stride,
    const float *percentage_saturation, ptrdiff_t percentage_saturation_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_moisture_content_and_relative_humidity: Dry bulb of air with a moisture
 *     content and relative humidity.
 * Given:
 *     moisture_content   float  kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     relative_humidity  float  %      0 .. 100         relative humidity
 *     pressure           float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     °C  dry-bulb temperature
 * Formula: rh / 100 ps(t) = vapour_pressure_from_moisture_content(t, g, p)
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_moisture_content_and_relative_humidity(
    size_t count,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    const float *relative_humidity, ptrdiff_t relative_humidity_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_moisture_content_and_percentage_saturation: Dry bulb of air with a moisture
 *     content and percentage saturation.
 * Given:
 *     moisture_content       float  kg/kg  0 .. 0.1         moisture content, water vapour per dry
 *                                                           air
 *     percentage_saturation  float  %      0 .. 100         percentage saturation
 *     pressure               float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     °C  dry-bulb temperature
 * Formula: percentage / 100 gs(t, p) = g
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - Up to where water boils at the atmospheric pressure. The percentage is not limited.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_moisture_content_and_percentage_saturation(
    size_t count,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    const float *percentage_saturation, ptrdiff_t percentage_saturation_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_enthalpy_and_moisture_content: Dry bulb of air with a specific enthalpy and
 *     moisture content.
 * Given:
 *     enthalpy          float  kJ/kg  -10 .. 460  specific enthalpy, by mass of dry air
 *     moisture_content  float  kg/kg  0 .. 0.1    moisture content, water vapour per dry air
 * Result:
 *     °C  dry-bulb temperature
 * Formula: ha(t) + g hv(t) = h
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - The enthalpies hold from -50 to 100 °C.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_enthalpy_and_moisture_content(
    size_t count,
    const float *enthalpy, ptrdiff_t enthalpy_stride,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_enthalpy_and_vapour_pressure: Dry bulb of air with a specific enthalpy and
 *     vapour pressure.
 * Given:
 *     enthalpy         float  kJ/kg  -10 .. 460       specific enthalpy, by mass of dry air
 *     vapour_pressure  float  Pa     from 0           vapour pressure
 *     pressure         float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     °C  dry-bulb temperature
 * Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, pv, p)
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - The enthalpies hold from -50 to 100 °C.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_enthalpy_and_vapour_pressure(
    size_t count,
    const float *enthalpy, ptrdiff_t enthalpy_stride,
    const float *vapour_pressure, ptrdiff_t vapour_pressure_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_enthalpy_and_relative_humidity: Dry bulb of air with a specific enthalpy
 *     and relative humidity.
 * Given:
 *     enthalpy           float  kJ/kg  -10 .. 460       specific enthalpy, by mass of dry air
 *     relative_humidity  float  %      0 .. 100         relative humidity
 *     pressure           float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     °C  dry-bulb temperature
 * Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, rh / 100 ps(t), p)
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - The enthalpies hold from -50 to 100 °C.
 *     - Relative humidity is limited to 0 to 100 %, not rejected.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_enthalpy_and_relative_humidity(
    size_t count,
    const float *enthalpy, ptrdiff_t enthalpy_stride,
    const float *relative_humidity, ptrdiff_t relative_humidity_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_enthalpy_and_percentage_saturation: Dry bulb of air with a specific
 *     enthalpy and percentage saturation.
 * Given:
 *     enthalpy               float  kJ/kg  -10 .. 460       specific enthalpy, by mass of dry air
 *     percentage_saturation  float  %      0 .. 100         percentage saturation
 *     pressure               float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     °C  dry-bulb temperature
 * Formula: moisture_content_from_enthalpy(t, h) = percentage / 100 gs(t, p)
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - The enthalpies hold from -50 to 100 °C.
 *     - Up to where water boils at the atmospheric pressure. The percentage is not limited.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_enthalpy_and_percentage_saturation(
    size_t count,
    const float *enthalpy, ptrdiff_t enthalpy_stride,
    const float *percentage_saturation, ptrdiff_t percentage_saturation_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure: Dry bulb of air with a wet bulb and vapour
 *     pressure.
 * Given:
 *     wet_bulb         float    °C  -100 .. 200      wet-bulb temperature
 *     vapour_pressure  float    Pa  from 0           vapour pressure
 *     pressure         float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer     int32_t      selector         psychrometer type: 1 sling (aspirated), 2
 *                                                    screen (naturally ventilated)
 * Result:
 *     °C  dry-bulb temperature
 * Formula: t = twb + (ps(twb) - pv) / (A p)
 * Notes:
 *     - A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure(
    size_t count,
    const float *wet_bulb, ptrdiff_t wet_bulb_stride,
    const float *vapour_pressure, ptrdiff_t vapour_pressure_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_wet_bulb_and_moisture_content: Dry bulb of air with a wet bulb and moisture
 *     content.
 * Given:
 *     wet_bulb          float    °C     -100 .. 200      wet-bulb temperature
 *     moisture_content  float    kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     pressure          float    Pa     50000 .. 110000  atmospheric pressure
 *     psychrometer      int32_t         selector         psychrometer type: 1 sling (aspirated), 2
 *                                                        screen (naturally ventilated)
 * Result:
 *     °C  dry-bulb temperature
 * Formula: vapour_pressure_from_psychrometer(t, twb, p) = vapour_pressure_from_moisture_content(t,
 *     g, p)
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_wet_bulb_and_moisture_content(
    size_t count,
    const float *wet_bulb, ptrdiff_t wet_bulb_stride,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_wet_bulb_and_relative_humidity: Dry bulb of air with a wet bulb and
 *     relative humidity.
 * Given:
 *     wet_bulb           float    °C  -100 .. 200      wet-bulb temperature
 *     relative_humidity  float    %   0 .. 100         relative humidity
 *     pressure           float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer       int32_t      selector         psychrometer type: 1 sling (aspirated), 2
 *                                                      screen (naturally ventilated)
 * Result:
 *     °C  dry-bulb temperature
 * Formula: vapour_pressure_from_psychrometer(t, twb, p) = rh / 100 ps(t)
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - Relative humidity is limited to 0 to 100 %, not rejected.
 *     - A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_wet_bulb_and_relative_humidity(
    size_t count,
    const float *wet_bulb, ptrdiff_t wet_bulb_stride,
    const float *relative_humidity, ptrdiff_t relative_humidity_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation: Dry bulb of air with a wet bulb and
 *     percentage saturation.
 * Given:
 *     wet_bulb               float    °C  -100 .. 200      wet-bulb temperature
 *     percentage_saturation  float    %   0 .. 100         percentage saturation
 *     pressure               float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer           int32_t      selector         psychrometer type: 1 sling (aspirated),
 *                                                          2 screen (naturally ventilated)
 * Result:
 *     °C  dry-bulb temperature
 * Formula: moisture_content_from_psychrometer(t, twb, p) = percentage / 100 gs(t, p)
 * Notes:
 *     - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
 *       is not a number.
 *     - Up to where water boils at the atmospheric pressure. The percentage is not limited.
 *     - A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation(
    size_t count,
    const float *wet_bulb, ptrdiff_t wet_bulb_stride,
    const float *percentage_saturation, ptrdiff_t percentage_saturation_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dry_bulb_from_wet_bulb_and_enthalpy: Dry bulb of air with a wet bulb and specific
 *     enthalpy.
 * Given:
 *     wet_bulb      float    °C     -100 .. 200      wet-bulb temperature
 *     enthalpy      float    kJ/kg  -10 .. 460       specific enthalpy, by mass of dry air
 *     pressure      float    Pa     50000 .. 110000  atmospheric pressure
 *     psychrometer  int32_t         selector         psychrometer type: 1 sling (aspirated), 2
 *                                                    screen (naturally ventilated)
 * Result:
 *     °C  dry-bulb temperature
 * Formula: specific_enthalpy_from_psychrometer(t, twb, p) = h
 * Notes:
 *     - Badly conditioned, since the enthalpy hardly changes along a wet bulb: 0.01 kJ/kg of
 *       enthalpy can be 0.25 K of dry bulb. For wet bulbs from -50 to 55 °C, above which the
 *       enthalpy turns.
 *     - An enthalpy that no air of that wet bulb has, between saturated and dry, gives not a
 *       number; 1 K beyond saturation is allowed for, and gives the wet bulb.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dry_bulb_from_wet_bulb_and_enthalpy(
    size_t count,
    const float *wet_bulb, ptrdiff_t wet_bulb_stride,
    const float *enthalpy, ptrdiff_t enthalpy_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_adiabatic_mixing: Two streams of moist air that become one, without heat from outside.
 * Given:
 *     first_air_flow           float  kg/s   from 0       mass flow of dry air in the first stream,
 *                                                         or its share in any unit
 *     first_dry_bulb           float  °C     -100 .. 200  dry-bulb temperature of the first stream
 *     first_moisture_content   float  kg/kg  0 .. 0.1     moisture content of the first stream
 *     second_air_flow          float  kg/s   from 0       mass flow of dry air in the second
 *                                                         stream, in the same unit
 *     second_dry_bulb          float  °C     -100 .. 200  dry-bulb temperature of the second stream
 *     second_moisture_content  float  kg/kg  0 .. 0.1     moisture content of the second stream
 * Returned:
 *     dry_bulb          float  °C       dry-bulb temperature of the mixture
 *     moisture_content  float  kg/kg    moisture content of the mixture
 *     enthalpy          float  kJ/kg    specific enthalpy of the mixture, by mass of dry air
 * Formula: g = (m1 g1 + m2 g2) / (m1 + m2), h likewise; t from h and g
 * Notes:
 *     - All moisture counts as vapour: percentage_saturation says whether the mixture is above
 *       saturation and would form fog.
 *     - The enthalpies hold from -50 to 100 °C. Where no dry bulb from -100 to 200 °C belongs to
 *       the mixture, it is not a number; nor is anything without flow.
 */
QUORVEL_ARRAYS_API int32_t quorvel_adiabatic_mixing(
    size_t count,
    const float *first_air_flow, ptrdiff_t first_air_flow_stride,
    const float *first_dry_bulb, ptrdiff_t first_dry_bulb_stride,
    const float *first_moisture_content, ptrdiff_t first_moisture_content_stride,
    const float *second_air_flow, ptrdiff_t second_air_flow_stride,
    const float *second_dry_bulb, ptrdiff_t second_dry_bulb_stride,
    const float *second_moisture_content, ptrdiff_t second_moisture_content_stride,
    float *dry_bulb, ptrdiff_t dry_bulb_stride,
    float *moisture_content, ptrdiff_t moisture_content_stride,
    float *enthalpy, ptrdiff_t enthalpy_stride);

/*
 * quorvel_moisture_content_from_psychrometer (PSGS): Moisture content of air from the reading of a
 *     wet-and-dry-bulb psychrometer.
 * Given:
 *     dry_bulb      float    °C  -100 .. 200      dry-bulb temperature
 *     wet_bulb      float    °C  -100 .. 200      wet-bulb temperature
 *     pressure      float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                                 (naturally ventilated)
 * Result:
 *     kg/kg  moisture content, water vapour per dry air
 */
QUORVEL_ARRAYS_API int32_t quorvel_moisture_content_from_psychrometer(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *wet_bulb, ptrdiff_t wet_bulb_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_moisture_content: Moisture content of air with a vapour pressure.
 * Given:
 *     dry_bulb         float  °C  -100 .. 200      dry-bulb temperature
 *     vapour_pressure  float  Pa  from 0           vapour pressure
 *     pressure         float  Pa  50000 .. 110000  atmospheric pressure
 * Result:
 *     kg/kg  moisture content, water vapour per dry air
 * Formula: g = 0.62197 f pv / (p - f pv)
 * Notes:
 *     - Enhancement factor f of moisture_content_from_psychrometer, at the dry bulb.
 *     - Not limited: neither to saturation, nor to vapour pressures below the atmospheric.
 */
QUORVEL_ARRAYS_API int32_t quorvel_moisture_content(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *vapour_pressure, ptrdiff_t vapour_pressure_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_vapour_pressure_from_moisture_content: Vapour pressure of air with a moisture content,
 *     the inverse of moisture_content.
 * Given:
 *     dry_bulb          float  °C     -100 .. 200      dry-bulb temperature
 *     moisture_content  float  kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     pressure          float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     Pa  vapour pressure
 * Formula: pv = p g / (f (0.62197 + g))
 * Notes:
 *     - Not limited to saturation.
 */
QUORVEL_ARRAYS_API int32_t quorvel_vapour_pressure_from_moisture_content(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_moisture_content_from_percentage_saturation: Moisture content of air with a percentage
 *     saturation, the inverse of percentage_saturation.
 * Given:
 *     dry_bulb               float  °C  -100 .. 200      dry-bulb temperature
 *     percentage_saturation  float  %   0 .. 100         percentage saturation
 *     pressure               float  Pa  50000 .. 110000  atmospheric pressure
 * Result:
 *     kg/kg  moisture content, water vapour per dry air
 * Formula: g = percentage / 100 gs(t, p)
 * Notes:
 *     - Not limited. From boiling on, where the saturation pressure is above the atmospheric, it
 *       means nothing.
 */
QUORVEL_ARRAYS_API int32_t quorvel_moisture_content_from_percentage_saturation(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *percentage_saturation, ptrdiff_t percentage_saturation_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_moisture_content_from_enthalpy: Moisture content of air with a specific enthalpy, the
 *     inverse of specific_enthalpy.
 * Given:
 *     dry_bulb  float  °C     -50 .. 100  dry-bulb temperature
 *     enthalpy  float  kJ/kg  -10 .. 460  specific enthalpy, by mass of dry air
 * Result:
 *     kg/kg  moisture content, water vapour per dry air
 * Formula: g = (h - ha(t)) / hv(t)
 * Notes:
 *     - Not limited: negative where dry air alone has more, and neither to saturation.
 */
QUORVEL_ARRAYS_API int32_t quorvel_moisture_content_from_enthalpy(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *enthalpy, ptrdiff_t enthalpy_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_moist_air_density: Density of moist air.
 * Given:
 *     dry_bulb          float  °C     -100 .. 200      dry-bulb temperature
 *     moisture_content  float  kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     pressure          float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     kg/m³  density of the moist air
 * Formula: (1 + g) / v, by specific_volume
 * Notes:
 *     - A moisture content above saturation counts as saturation.
 */
QUORVEL_ARRAYS_API int32_t quorvel_moist_air_density(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_percentage_saturation (PSPCST): Percentage saturation: moisture content by that of
 *     saturated air at the same temperature and pressure.
 * Given:
 *     dry_bulb          float  °C     -100 .. 200      dry-bulb temperature
 *     moisture_content  float  kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     pressure          float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     %  percentage saturation
 */
QUORVEL_ARRAYS_API int32_t quorvel_percentage_saturation(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_specific_enthalpy: Specific enthalpy of moist air.
 * Given:
 *     dry_bulb          float  °C     -50 .. 100  dry-bulb temperature
 *     moisture_content  float  kg/kg  0 .. 0.1    moisture content, water vapour per dry air
 * Result:
 *     kJ/kg  specific enthalpy, by mass of dry air
 * Formula: h = ha(t) + g hv(t), by dry_air_enthalpy and water_vapour_enthalpy
 * Notes:
 *     - Per kilogram of dry air, from dry air and liquid water at 0 °C.
 *     - All moisture counts as vapour: the moisture content is not limited to that of saturated
 *       air.
 */
QUORVEL_ARRAYS_API int32_t quorvel_specific_enthalpy(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_specific_enthalpy_from_psychrometer (PSHWET): Specific enthalpy of moist air from the
 *     reading of a wet-and-dry-bulb psychrometer.
 * Given:
 *     dry_bulb      float    °C  -100 .. 200      dry-bulb temperature
 *     wet_bulb      float    °C  -100 .. 200      wet-bulb temperature
 *     pressure      float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                                 (naturally ventilated)
 * Result:
 *     kJ/kg  specific enthalpy, by mass of dry air
 */
QUORVEL_ARRAYS_API int32_t quorvel_specific_enthalpy_from_psychrometer(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *wet_bulb, ptrdiff_t wet_bulb_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_specific_volume (PSSPVL): Specific volume of moist air.
 * Given:
 *     dry_bulb          float  °C     -100 .. 200      dry-bulb temperature
 *     moisture_content  float  kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     pressure          float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     m³/kg  specific volume, by mass of dry air
 */
QUORVEL_ARRAYS_API int32_t quorvel_specific_volume(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_saturation_temperature_from_enthalpy (PSTSAT): Temperature at which saturated air has a
 *     specific enthalpy.
 * Given:
 *     enthalpy  float  kJ/kg  -10 .. 460       specific enthalpy, by mass of dry air
 *     pressure  float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     °C  saturation temperature
 */
QUORVEL_ARRAYS_API int32_t quorvel_saturation_temperature_from_enthalpy(
    size_t count,
    const float *enthalpy, ptrdiff_t enthalpy_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_pool_evaporation (TPPOOL): Evaporation from an indoor pool and its heat flows, for room
 *     air given by its moisture content.
 * Given:
 *     water_area             float    m²     from 0           area of the water surface
 *     wetted_area            float    m²     from 0           further wetted area, which adds to
 *                                                             the latent load only
 *     water_temperature      float    °C     -100 .. 200      water temperature
 *     dry_bulb               float    °C     -100 .. 200      dry-bulb temperature of the room air
 *     moisture_content       float    kg/kg  0 .. 0.1         moisture content of the room air
 *     reference_temperature  float    °C     -100 .. 200      second reference temperature
 *     bathers                int32_t         from 0           number of bathers, below 1 unoccupied
 *     reference_coefficient  float    W/m²K  from 0           coefficient of the exchange with the
 *                                                             second reference temperature
 *     pressure               float    Pa     50000 .. 110000  atmospheric pressure
 * Returned:
 *     evaporation_rate  float  kg/(m²s)    evaporation rate
 *     latent_load       float  W           latent load, 2.45 MJ per kg evaporated
 *     convective_load   float  W           convection from the water to the room air at 10 W/m²K
 *     reference_load    float  W           exchange of the water with the second reference
 *                                          temperature
 */
QUORVEL_ARRAYS_API int32_t quorvel_pool_evaporation(
    size_t count,
    const float *water_area, ptrdiff_t water_area_stride,
    const float *wetted_area, ptrdiff_t wetted_area_stride,
    const float *water_temperature, ptrdiff_t water_temperature_stride,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    const float *reference_temperature, ptrdiff_t reference_temperature_stride,
    const int32_t *bathers, ptrdiff_t bathers_stride,
    const float *reference_coefficient, ptrdiff_t reference_coefficient_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *evaporation_rate, ptrdiff_t evaporation_rate_stride,
    float *latent_load, ptrdiff_t latent_load_stride,
    float *convective_load, ptrdiff_t convective_load_stride,
    float *reference_load, ptrdiff_t reference_load_stride);

/*
 * quorvel_pool_evaporation_from_wet_bulb (TPPOOL2): Evaporation from an indoor pool and its heat
 *     flows, for room air given by its wet bulb.
 * Given:
 *     water_area             float    m²     from 0           area of the water surface
 *     wetted_area            float    m²     from 0           further wetted area, which adds to
 *                                                             the latent load only
 *     water_temperature      float    °C     -100 .. 200      water temperature
 *     dry_bulb               float    °C     -100 .. 200      dry-bulb temperature of the room air
 *     wet_bulb               float    °C     -100 .. 200      wet-bulb temperature of the room air,
 *                                                             sling psychrometer
 *     reference_temperature  float    °C     -100 .. 200      second reference temperature
 *     bathers                int32_t         from 0           number of bathers, below 1 unoccupied
 *     reference_coefficient  float    W/m²K  from 0           coefficient of the exchange with the
 *                                                             second reference temperature
 *     pressure               float    Pa     50000 .. 110000  atmospheric pressure
 * Returned:
 *     evaporation_rate  float  kg/(m²s)    evaporation rate
 *     latent_load       float  W           latent load, 2.45 MJ per kg evaporated
 *     convective_load   float  W           convection from the water to the room air at 10 W/m²K
 *     reference_load    float  W           exchange of the water with the second reference
 *                                          temperature
 */
QUORVEL_ARRAYS_API int32_t quorvel_pool_evaporation_from_wet_bulb(
    size_t count,
    const float *water_area, ptrdiff_t water_area_stride,
    const float *wetted_area, ptrdiff_t wetted_area_stride,
    const float *water_temperature, ptrdiff_t water_temperature_stride,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *wet_bulb, ptrdiff_t wet_bulb_stride,
    const float *reference_temperature, ptrdiff_t reference_temperature_stride,
    const int32_t *bathers, ptrdiff_t bathers_stride,
    const float *reference_coefficient, ptrdiff_t reference_coefficient_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    float *evaporation_rate, ptrdiff_t evaporation_rate_stride,
    float *latent_load, ptrdiff_t latent_load_stride,
    float *convective_load, ptrdiff_t convective_load_stride,
    float *reference_load, ptrdiff_t reference_load_stride);

/*
 * quorvel_saturation_pressure (PSSVP): Saturation vapour pressure over a plane surface of water, or
 *     of ice below 0 °C.
 * Given:
 *     temperature  float  °C  -100 .. 200  temperature
 * Result:
 *     Pa  saturation vapour pressure
 */
QUORVEL_ARRAYS_API int32_t quorvel_saturation_pressure(
    size_t count,
    const float *temperature, ptrdiff_t temperature_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dew_point: Dew point of air with a vapour pressure, the inverse of the saturation
 *     pressure; below 0 °C the frost point.
 * Given:
 *     vapour_pressure  float  Pa  from 0  vapour pressure
 * Result:
 *     °C  dew-point temperature, of frost below 0 °C
 * Formula: ps(dew_point) = pv
 * Notes:
 *     - Solved in double precision; saturation_pressure, in single precision, returns the vapour
 *       pressure to 0.002 %, and dew_point the temperature that was given to it to 0.001 K up to
 *       100 °C.
 *     - The vapour pressures between ice and water at 0 °C, 610.30 to 610.34 Pa, give 0 °C to
 *       0.0001 K.
 *     - Found from -200 to 400 °C. A pressure of 0 or less, or beyond those of this range, gives
 *       not a number.
 */
QUORVEL_ARRAYS_API int32_t quorvel_dew_point(
    size_t count,
    const float *vapour_pressure, ptrdiff_t vapour_pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_vapour_pressure (PSVP): Vapour pressure of air at a dry-bulb temperature and relative
 *     humidity.
 * Given:
 *     dry_bulb           float  °C  -100 .. 200  dry-bulb temperature
 *     relative_humidity  float  %   0 .. 100     relative humidity
 * Result:
 *     Pa  vapour pressure
 */
QUORVEL_ARRAYS_API int32_t quorvel_vapour_pressure(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *relative_humidity, ptrdiff_t relative_humidity_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_relative_humidity: Relative humidity of air with a vapour pressure.
 * Given:
 *     dry_bulb         float  °C  -100 .. 200  dry-bulb temperature
 *     vapour_pressure  float  Pa  from 0       vapour pressure
 * Result:
 *     %  relative humidity
 * Formula: rh = 100 pv / ps(t)
 * Notes:
 *     - Not limited: supersaturated air gives more than 100.
 */
QUORVEL_ARRAYS_API int32_t quorvel_relative_humidity(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *vapour_pressure, ptrdiff_t vapour_pressure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_vapour_pressure_from_psychrometer (PSVAP): Vapour pressure from the reading of a wet-and-
 *     dry-bulb psychrometer.
 * Given:
 *     dry_bulb      float    °C  -100 .. 200      dry-bulb temperature
 *     wet_bulb      float    °C  -100 .. 200      wet-bulb temperature
 *     pressure      float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                                 (naturally ventilated)
 * Result:
 *     Pa  vapour pressure
 */
QUORVEL_ARRAYS_API int32_t quorvel_vapour_pressure_from_psychrometer(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *wet_bulb, ptrdiff_t wet_bulb_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_weighted_temperature (PSTEFF): Weighted temperature of two air temperatures.
 * Given:
 *     first_temperature   float  °C  -100 .. 200  temperature with the greater weight
 *     second_temperature  float  °C  -100 .. 200  temperature with the lesser, negative weight
 * Result:
 *     °C  weighted temperature
 */
QUORVEL_ARRAYS_API int32_t quorvel_weighted_temperature(
    size_t count,
    const float *first_temperature, ptrdiff_t first_temperature_stride,
    const float *second_temperature, ptrdiff_t second_temperature_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_psychrometer_wet_bulb (PSTWET): Wet-bulb temperature that a psychrometer reads at a dry-
 *     bulb temperature and relative humidity.
 * Given:
 *     dry_bulb           float    °C  -100 .. 200      dry-bulb temperature
 *     relative_humidity  float    %   0 .. 100         relative humidity
 *     pressure           float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer       int32_t      selector         psychrometer type: 1 sling (aspirated), 2
 *                                                      screen (naturally ventilated)
 * Result:
 *     °C  wet-bulb temperature, never above the dry bulb
 */
QUORVEL_ARRAYS_API int32_t quorvel_psychrometer_wet_bulb(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *relative_humidity, ptrdiff_t relative_humidity_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_wet_bulb_from_percentage_saturation (PSTWB): Wet-bulb temperature that a psychrometer
 *     reads at a dry-bulb temperature and percentage saturation.
 * Given:
 *     dry_bulb               float    °C  -100 .. 200      dry-bulb temperature
 *     percentage_saturation  float    %   0 .. 100         percentage saturation
 *     pressure               float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer           int32_t      selector         psychrometer type: 1 sling (aspirated),
 *                                                          2 screen (naturally ventilated)
 * Result:
 *     °C  wet-bulb temperature
 */
QUORVEL_ARRAYS_API int32_t quorvel_wet_bulb_from_percentage_saturation(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *percentage_saturation, ptrdiff_t percentage_saturation_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_wet_bulb_from_moisture_content (PSWBLB): Wet-bulb temperature that a psychrometer reads
 *     at a dry-bulb temperature and moisture content.
 * Given:
 *     dry_bulb          float    °C     -100 .. 200      dry-bulb temperature
 *     moisture_content  float    kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     pressure          float    Pa     50000 .. 110000  atmospheric pressure
 *     psychrometer      int32_t         selector         psychrometer type: 1 sling (aspirated), 2
 *                                                        screen (naturally ventilated)
 * Result:
 *     °C  wet-bulb temperature
 */
QUORVEL_ARRAYS_API int32_t quorvel_wet_bulb_from_moisture_content(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *moisture_content, ptrdiff_t moisture_content_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_wet_bulb: Wet-bulb temperature that a psychrometer reads in air with a vapour pressure.
 * Given:
 *     dry_bulb         float    °C  -100 .. 200      dry-bulb temperature
 *     vapour_pressure  float    Pa  from 0           vapour pressure
 *     pressure         float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer     int32_t      selector         psychrometer type: 1 sling (aspirated), 2
 *                                                    screen (naturally ventilated)
 * Result:
 *     °C  wet-bulb temperature
 * Formula: ps(twb) - A p (t - twb) = pv
 * Notes:
 *     - The exact solution, in double precision; vapour_pressure_from_psychrometer gives the vapour
 *       pressure back to 0.002 % of saturation.
 *     - About 0 °C an iced wet bulb and one that is not can belong to the same air: that which is
 *       not iced is found.
 *     - At saturation or above the result is the dry bulb. A vapour pressure too far below 0 gives
 *       not a number.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 */
QUORVEL_ARRAYS_API int32_t quorvel_wet_bulb(
    size_t count,
    const float *dry_bulb, ptrdiff_t dry_bulb_stride,
    const float *vapour_pressure, ptrdiff_t vapour_pressure_stride,
    const float *pressure, ptrdiff_t pressure_stride,
    const int32_t *psychrometer, ptrdiff_t psychrometer_stride,
    float *result, ptrdiff_t result_stride);

/* ---- Building fabric ------------------------------------------------------------------------- */

/*
 * quorvel_cyclic_response (TPADMT): Admittance, decrement factor and surface factor of a
 *     construction with their time shifts, and its U-value.
 * Given:
 *     thickness           float    m      any       thickness of each layer, from the room
 *                                                   outwards; below 0: a layer of given resistance,
 *                                                   0: no layer [layers]
 *     conductivity        float    W/mK   from 0    conductivity of each layer; its resistance in
 *                                                   m²K/W where the thickness is below 0 [layers]
 *     density             float    kg/m³  from 0    density of each layer [layers]
 *     specific_heat       float    J/kgK  from 0    specific heat of each layer [layers]
 *     inside_resistance   float    m²K/W  from 0    resistance of the surface at the room
 *     outside_resistance  float    m²K/W  from 0    resistance of the far surface
 *     layers              int32_t         0 .. 20   number of layers
 *     harmonic            int32_t         from 0    cycles in 24 hours
 *     element_kind        int32_t         selector  kind of element: 1 element between two
 *                                                   environments, 2 internal partition, the same
 *                                                   swing on both sides
 * Returned:
 *     admittance          float  W/m²K    admittance Y; left as it was with more than 20 layers
 *     admittance_lead     float  h        time lead of the admittance, 0 to 24 / harmonic; left as
 *                                         it was with more than 20 layers
 *     decrement_factor    float  1        decrement factor f, 0 for a partition; left as it was
 *                                         with more than 20 layers
 *     decrement_lag       float  h        time lag of the decrement factor, 0 to 24 / harmonic, 0
 *                                         for a partition; left as it was with more than 20 layers
 *     surface_factor      float  1        surface factor F; left as it was with more than 20 layers
 *     surface_factor_lag  float  h        time lag of the surface factor, 0 to 24 / harmonic; left
 *                                         as it was with more than 20 layers
 *     u_value             float  W/m²K    U-value, as TPUVAL gives it; left as it was with more
 *                                         than 20 layers
 */
QUORVEL_ARRAYS_API int32_t quorvel_cyclic_response(
    size_t count,
    const float *thickness, ptrdiff_t thickness_stride,
    const float *conductivity, ptrdiff_t conductivity_stride,
    const float *density, ptrdiff_t density_stride,
    const float *specific_heat, ptrdiff_t specific_heat_stride,
    const float *inside_resistance, ptrdiff_t inside_resistance_stride,
    const float *outside_resistance, ptrdiff_t outside_resistance_stride,
    const int32_t *layers, ptrdiff_t layers_stride,
    const int32_t *harmonic, ptrdiff_t harmonic_stride,
    const int32_t *element_kind, ptrdiff_t element_kind_stride,
    float *admittance, ptrdiff_t admittance_stride,
    float *admittance_lead, ptrdiff_t admittance_lead_stride,
    float *decrement_factor, ptrdiff_t decrement_factor_stride,
    float *decrement_lag, ptrdiff_t decrement_lag_stride,
    float *surface_factor, ptrdiff_t surface_factor_stride,
    float *surface_factor_lag, ptrdiff_t surface_factor_lag_stride,
    float *u_value, ptrdiff_t u_value_stride);

/*
 * quorvel_vertical_cavity_resistance (TPRCAV): Thermal resistance of a sealed vertical air cavity
 *     between ordinary building surfaces.
 * Given:
 *     cavity_width  float  m  from 0.001  width
 * Result:
 *     m²K/W  cavity resistance, not below 0.1
 */
QUORVEL_ARRAYS_API int32_t quorvel_vertical_cavity_resistance(
    size_t count,
    const float *cavity_width, ptrdiff_t cavity_width_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_air_cavity_resistance (TPRCA2): Thermal resistance of a sealed air cavity by convection
 *     and long-wave radiation.
 * Given:
 *     tilt          float  rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                            flowing down
 *     cavity_width  float  m    from 0.001   width
 *     emissivity_1  float  1    0 .. 1       long-wave emissivity of one face
 *     emissivity_2  float  1    0 .. 1       long-wave emissivity of the other face
 * Result:
 *     m²K/W  cavity resistance
 */
QUORVEL_ARRAYS_API int32_t quorvel_air_cavity_resistance(
    size_t count,
    const float *tilt, ptrdiff_t tilt_stride,
    const float *cavity_width, ptrdiff_t cavity_width_stride,
    const float *emissivity_1, ptrdiff_t emissivity_1_stride,
    const float *emissivity_2, ptrdiff_t emissivity_2_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_gas_cavity_resistance (TPRCAX): Thermal resistance of a sealed cavity filled with any
 *     gas.
 * Given:
 *     tilt           float  rad    0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                               flowing down
 *     cavity_width   float  m      from 0.001   width
 *     emissivity_1   float  1      0 .. 1       long-wave emissivity of one face
 *     emissivity_2   float  1      0 .. 1       long-wave emissivity of the other face
 *     density        float  kg/m³  from 0       density of the gas
 *     conductivity   float  W/mK   from 0       thermal conductivity of the gas
 *     specific_heat  float  J/kgK  from 0       specific heat of the gas at constant pressure
 *     viscosity      float  Pa s   from 0       dynamic viscosity of the gas
 * Result:
 *     m²K/W  cavity resistance
 */
QUORVEL_ARRAYS_API int32_t quorvel_gas_cavity_resistance(
    size_t count,
    const float *tilt, ptrdiff_t tilt_stride,
    const float *cavity_width, ptrdiff_t cavity_width_stride,
    const float *emissivity_1, ptrdiff_t emissivity_1_stride,
    const float *emissivity_2, ptrdiff_t emissivity_2_stride,
    const float *density, ptrdiff_t density_stride,
    const float *conductivity, ptrdiff_t conductivity_stride,
    const float *specific_heat, ptrdiff_t specific_heat_stride,
    const float *viscosity, ptrdiff_t viscosity_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_total_vapour_resistance (TPDAMP): Vapour resistance of a construction.
 * Given:
 *     thickness           float    m            any      thickness of each layer; below 0: a layer
 *                                                        of given thermal resistance, 0: a membrane
 *                                                        [layers]
 *     vapour_resistivity  float    GN s/(kg m)  from 0   vapour resistivity of each layer; of a
 *                                                        membrane its vapour resistance in GN s/kg
 *                                                        [layers]
 *     layers              int32_t               0 .. 20  number of layers
 * Returned:
 *     vapour_resistance  float  N s/kg    total vapour resistance; left as it was with more than 20
 *                                         layers
 */
QUORVEL_ARRAYS_API int32_t quorvel_total_vapour_resistance(
    size_t count,
    const float *thickness, ptrdiff_t thickness_stride,
    const float *vapour_resistivity, ptrdiff_t vapour_resistivity_stride,
    const int32_t *layers, ptrdiff_t layers_stride,
    float *vapour_resistance, ptrdiff_t vapour_resistance_stride);

/*
 * quorvel_condensation_profile (TPGRAD): Steady temperature, vapour pressure and saturation
 *     pressure at the interfaces of a construction; the vapour pressure is held down to saturation
 *     where it would exceed it.
 * Given:
 *     thickness            float    m            any          thickness of each layer from the
 *                                                             inside; below 0: a layer of given
 *                                                             thermal resistance, 0: a membrane
 *                                                             [layers]
 *     conductivity         float    W/mK         from 0       conductivity of each layer; its
 *                                                             resistance in m²K/W where the
 *                                                             thickness is below 0 [layers]
 *     vapour_resistivity   float    GN s/(kg m)  from 0       vapour resistivity of each layer; of
 *                                                             a membrane its vapour resistance in
 *                                                             GN s/kg [layers]
 *     inside_resistance    float    m²K/W        from 0       resistance of the inside surface
 *     outside_resistance   float    m²K/W        from 0       resistance of the outside surface
 *     layers               int32_t               0 .. 20      number of layers
 *     inside_temperature   float    °C           -100 .. 200  inside air temperature
 *     outside_temperature  float    °C           -100 .. 200  outside air temperature
 *     inside_humidity      float    %            0 .. 100     inside relative humidity
 *     outside_humidity     float    %            0 .. 100     outside relative humidity
 * Returned:
 *     interface_temperature          float  °C    temperature at the interfaces, from the inside
 *                                                 surface to the outside one [21]; left as it was
 *                                                 with a count outside 0 to 20, and beyond element
 *                                                 layers + 1
 *     interface_vapour_pressure      float  Pa    vapour pressure at them [21]; left as it was with
 *                                                 a count outside 0 to 20, and beyond element
 *                                                 layers + 1
 *     interface_saturation_pressure  float  Pa    saturation pressure at them [21]; left as it was
 *                                                 with a count outside 0 to 20, and beyond element
 *                                                 layers + 1
 */
QUORVEL_ARRAYS_API int32_t quorvel_condensation_profile(
    size_t count,
    const float *thickness, ptrdiff_t thickness_stride,
    const float *conductivity, ptrdiff_t conductivity_stride,
    const float *vapour_resistivity, ptrdiff_t vapour_resistivity_stride,
    const float *inside_resistance, ptrdiff_t inside_resistance_stride,
    const float *outside_resistance, ptrdiff_t outside_resistance_stride,
    const int32_t *layers, ptrdiff_t layers_stride,
    const float *inside_temperature, ptrdiff_t inside_temperature_stride,
    const float *outside_temperature, ptrdiff_t outside_temperature_stride,
    const float *inside_humidity, ptrdiff_t inside_humidity_stride,
    const float *outside_humidity, ptrdiff_t outside_humidity_stride,
    float *interface_temperature, ptrdiff_t interface_temperature_stride,
    float *interface_vapour_pressure, ptrdiff_t interface_vapour_pressure_stride,
    float *interface_saturation_pressure, ptrdiff_t interface_saturation_pressure_stride);

/*
 * quorvel_condenses_within_layer (ITPCON): Whether vapour condenses inside a layer, from the
 *     temperatures and vapour pressures of its two faces.
 * Given:
 *     warm_temperature      float  °C  -100 .. 200  temperature of the warm face
 *     cold_temperature      float  °C  -100 .. 200  temperature of the cold face
 *     warm_vapour_pressure  float  Pa  from 0       vapour pressure at the warm face
 *     cold_vapour_pressure  float  Pa  from 0       vapour pressure at the cold face
 * Result:
 *   1 if vapour condenses, 0 if not
 */
QUORVEL_ARRAYS_API int32_t quorvel_condenses_within_layer(
    size_t count,
    const float *warm_temperature, ptrdiff_t warm_temperature_stride,
    const float *cold_temperature, ptrdiff_t cold_temperature_stride,
    const float *warm_vapour_pressure, ptrdiff_t warm_vapour_pressure_stride,
    const float *cold_vapour_pressure, ptrdiff_t cold_vapour_pressure_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_element_property (BELDAT): One property of one record of a construction, a list of
 *     elements from face to face.
 * Given:
 *     element_records  float    by field  any      ten fields of each record, counted from 1; the
 *                                                  first is its type code [10, record_count]
 *     record_count     int32_t            from 1   number of records
 *     record_number    int32_t            from 1   record asked about, counted from 1
 *     item             int32_t            1 .. 72  property asked for
 * Result:
 *     by item  the property; 1e20 for none
 */
QUORVEL_ARRAYS_API int32_t quorvel_element_property(
    size_t count,
    const float *element_records, ptrdiff_t element_records_stride,
    const int32_t *record_count, ptrdiff_t record_count_stride,
    const int32_t *record_number, ptrdiff_t record_number_stride,
    const int32_t *item, ptrdiff_t item_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_natural_convection_coefficient (TPHCON): Coefficient of natural convection at a surface
 *     of a room.
 * Given:
 *     temperature_difference  float    K  any       difference between surface and air temperature;
 *                                                   its sign makes no difference
 *     characteristic_length   float    m  from 0    characteristic length: height of a vertical
 *                                                   surface, four times the area over the perimeter
 *                                                   of a horizontal one
 *     heat_flow_direction     int32_t     selector  direction of the heat flow: 1 heat flow
 *                                                   upwards, 2 vertical surface, 3 heat flow
 *                                                   downwards
 * Result:
 *     W/m²K  convective coefficient
 */
QUORVEL_ARRAYS_API int32_t quorvel_natural_convection_coefficient(
    size_t count,
    const float *temperature_difference, ptrdiff_t temperature_difference_stride,
    const float *characteristic_length, ptrdiff_t characteristic_length_stride,
    const int32_t *heat_flow_direction, ptrdiff_t heat_flow_direction_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_pack_two_fractions (TPCOLW): Packs two fractions of two decimals into one real, or
 *     unpacks them.
 * Given:
 *     packing        int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed_number  float    1  0 .. 9999.99  packed number
 *     fraction_1     float    1  0 .. 0.99     fraction behind the point
 *     fraction_2     float    1  0 .. 0.99     fraction held as units and tens
 * Returned:
 *     packed_number  float  1  0 .. 9999.99  packed number; left as it was when unpacking; 1e20 for
 *                                            none
 *     fraction_1     float  1  0 .. 0.99     fraction behind the point; left as it was when
 *                                            packing; 1e20 for none
 *     fraction_2     float  1  0 .. 0.99     fraction held as units and tens; left as it was when
 *                                            packing; 1e20 for none
 */
QUORVEL_ARRAYS_API int32_t quorvel_pack_two_fractions(
    size_t count,
    const int32_t *packing, ptrdiff_t packing_stride,
    const float *packed_number, ptrdiff_t packed_number_stride,
    const float *fraction_1, ptrdiff_t fraction_1_stride,
    const float *fraction_2, ptrdiff_t fraction_2_stride,
    float *new_packed_number, ptrdiff_t new_packed_number_stride,
    float *new_fraction_1, ptrdiff_t new_fraction_1_stride,
    float *new_fraction_2, ptrdiff_t new_fraction_2_stride);

/*
 * quorvel_pack_three_fractions (TPCOLT): Packs three fractions of two decimals into one real, or
 *     unpacks them.
 * Given:
 *     packing        int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed_number  float    1  0 .. 9999.99  packed number
 *     fraction_1     float    1  0 .. 0.99     fraction behind the point
 *     fraction_2     float    1  0 .. 0.99     fraction held as units and tens
 *     fraction_3     float    1  0 .. 0.99     fraction held as hundreds and thousands
 * Returned:
 *     packed_number  float  1  0 .. 9999.99  packed number; left as it was when unpacking; 1e20 for
 *                                            none
 *     fraction_1     float  1  0 .. 0.99     fraction behind the point; left as it was when
 *                                            packing; 1e20 for none
 *     fraction_2     float  1  0 .. 0.99     fraction held as units and tens; left as it was when
 *                                            packing; 1e20 for none
 *     fraction_3     float  1  0 .. 0.99     fraction held as hundreds and thousands; left as it
 *                                            was when packing; 1e20 for none
 */
QUORVEL_ARRAYS_API int32_t quorvel_pack_three_fractions(
    size_t count,
    const int32_t *packing, ptrdiff_t packing_stride,
    const float *packed_number, ptrdiff_t packed_number_stride,
    const float *fraction_1, ptrdiff_t fraction_1_stride,
    const float *fraction_2, ptrdiff_t fraction_2_stride,
    const float *fraction_3, ptrdiff_t fraction_3_stride,
    float *new_packed_number, ptrdiff_t new_packed_number_stride,
    float *new_fraction_1, ptrdiff_t new_fraction_1_stride,
    float *new_fraction_2, ptrdiff_t new_fraction_2_stride,
    float *new_fraction_3, ptrdiff_t new_fraction_3_stride);

/*
 * quorvel_pack_three_fractions_third_first (TPCOLW2): TPCOLT with its arguments in another order.
 * Given:
 *     packing        int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed_number  float    1  0 .. 9999.99  packed number
 *     fraction_3     float    1  0 .. 0.99     fraction held as hundreds and thousands
 *     fraction_1     float    1  0 .. 0.99     fraction behind the point
 *     fraction_2     float    1  0 .. 0.99     fraction held as units and tens
 * Returned:
 *     packed_number  float  1  0 .. 9999.99  packed number; left as it was when unpacking; 1e20 for
 *                                            none
 *     fraction_3     float  1  0 .. 0.99     fraction held as hundreds and thousands; left as it
 *                                            was when packing; 1e20 for none
 *     fraction_1     float  1  0 .. 0.99     fraction behind the point; left as it was when
 *                                            packing; 1e20 for none
 *     fraction_2     float  1  0 .. 0.99     fraction held as units and tens; left as it was when
 *                                            packing; 1e20 for none
 */
QUORVEL_ARRAYS_API int32_t quorvel_pack_three_fractions_third_first(
    size_t count,
    const int32_t *packing, ptrdiff_t packing_stride,
    const float *packed_number, ptrdiff_t packed_number_stride,
    const float *fraction_3, ptrdiff_t fraction_3_stride,
    const float *fraction_1, ptrdiff_t fraction_1_stride,
    const float *fraction_2, ptrdiff_t fraction_2_stride,
    float *new_packed_number, ptrdiff_t new_packed_number_stride,
    float *new_fraction_3, ptrdiff_t new_fraction_3_stride,
    float *new_fraction_1, ptrdiff_t new_fraction_1_stride,
    float *new_fraction_2, ptrdiff_t new_fraction_2_stride);

/*
 * quorvel_pack_pane (TPCOSW): Packs the solar absorptance of a pane and the reflectances of its
 *     faces into one real, as absorptance and transmittances, or unpacks them.
 * Given:
 *     packing        int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed_number  float    1  0 .. 9999.99  packed number
 *     absorptance    float    1  0 .. 1        absorptance
 *     reflectance_1  float    1  0 .. 1        reflectance of the first face
 *     reflectance_2  float    1  0 .. 1        reflectance of the second face
 * Returned:
 *     packed_number  float  1  0 .. 9999.99  packed number; left as it was when unpacking; 1e20 for
 *                                            none
 *     absorptance    float  1  0 .. 1        absorptance; left as it was when packing; 1e20 for
 *                                            none
 *     reflectance_1  float  1  0 .. 1        reflectance of the first face; left as it was when
 *                                            packing; 1e20 for none
 *     reflectance_2  float  1  0 .. 1        reflectance of the second face; left as it was when
 *                                            packing; 1e20 for none
 */
QUORVEL_ARRAYS_API int32_t quorvel_pack_pane(
    size_t count,
    const int32_t *packing, ptrdiff_t packing_stride,
    const float *packed_number, ptrdiff_t packed_number_stride,
    const float *absorptance, ptrdiff_t absorptance_stride,
    const float *reflectance_1, ptrdiff_t reflectance_1_stride,
    const float *reflectance_2, ptrdiff_t reflectance_2_stride,
    float *new_packed_number, ptrdiff_t new_packed_number_stride,
    float *new_absorptance, ptrdiff_t new_absorptance_stride,
    float *new_reflectance_1, ptrdiff_t new_reflectance_1_stride,
    float *new_reflectance_2, ptrdiff_t new_reflectance_2_stride);

/*
 * quorvel_surface_resistance (TPRSUR): Thermal resistance of the inside or outside surface of an
 *     element, for an emissivity of 0.9.
 * Given:
 *     surface   int32_t       selector     surface: 1 outside, 2 inside
 *     tilt      float    rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing
 *                                          down
 *     exposure  int32_t       selector     exposure of an outside surface to the wind: 1 sheltered,
 *                                          2 normal, 3 severe
 * Result:
 *     m²K/W  surface resistance
 */
QUORVEL_ARRAYS_API int32_t quorvel_surface_resistance(
    size_t count,
    const int32_t *surface, ptrdiff_t surface_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    const int32_t *exposure, ptrdiff_t exposure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_surface_resistance_at_emissivity (TPRSU2): Thermal resistance of the inside or outside
 *     surface of an element of any emissivity.
 * Given:
 *     surface     int32_t       selector     surface: 1 outside, 2 inside
 *     tilt        float    rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                            flowing down
 *     exposure    int32_t       selector     exposure of an outside surface to the wind: 1
 *                                            sheltered, 2 normal, 3 severe
 *     emissivity  float    1    0 .. 1       long-wave emissivity of the surface
 * Result:
 *     m²K/W  surface resistance
 */
QUORVEL_ARRAYS_API int32_t quorvel_surface_resistance_at_emissivity(
    size_t count,
    const int32_t *surface, ptrdiff_t surface_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    const int32_t *exposure, ptrdiff_t exposure_stride,
    const float *emissivity, ptrdiff_t emissivity_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_u_value (TPUVAL): U-value of a construction of plane layers between two surface
 *     resistances.
 * Given:
 *     thickness             float    m      any      thickness of each layer; below 0: a layer of
 *                                                    given resistance, 0: no layer [layers]
 *     conductivity          float    W/mK   from 0   conductivity of each layer; its resistance in
 *                                                    m²K/W where the thickness is below 0 [layers]
 *     surface_resistance_1  float    m²K/W  from 0   resistance of one surface
 *     surface_resistance_2  float    m²K/W  from 0   resistance of the other
 *     layers                int32_t         0 .. 20  number of layers
 * Returned:
 *     u_value  float  W/m²K    U-value; left as it was with more than 20 layers
 */
QUORVEL_ARRAYS_API int32_t quorvel_u_value(
    size_t count,
    const float *thickness, ptrdiff_t thickness_stride,
    const float *conductivity, ptrdiff_t conductivity_stride,
    const float *surface_resistance_1, ptrdiff_t surface_resistance_1_stride,
    const float *surface_resistance_2, ptrdiff_t surface_resistance_2_stride,
    const int32_t *layers, ptrdiff_t layers_stride,
    float *u_value, ptrdiff_t u_value_stride);

/*
 * quorvel_u_value_at_tilt_and_exposure (TPUMOD): U-value of a construction at another tilt and
 *     exposure, from its U-value as a vertical wall in normal exposure.
 * Given:
 *     u_value   float    W/m²K  from 0       U-value with the surface resistances of a vertical
 *                                            wall at exposure 2
 *     tilt      float    rad    0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                            flowing down
 *     exposure  int32_t         selector     wind exposure of the outside surface: 1 sheltered, 2
 *                                            normal, 3 severe
 * Result:
 *     W/m²K  U-value at that tilt and exposure
 */
QUORVEL_ARRAYS_API int32_t quorvel_u_value_at_tilt_and_exposure(
    size_t count,
    const float *u_value, ptrdiff_t u_value_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    const int32_t *exposure, ptrdiff_t exposure_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_window_parameters (TPWNDO): U-value, admittance, decrement factor and surface factor of a
 *     glazing of one to three panes.
 * Given:
 *     panes           int32_t       1 .. 3       number of panes, pane 1 nearest the room
 *     pane_kind_1     int32_t       selector     kind of pane 1: 1 closes the cavities on both
 *                                                sides, 2 closes none
 *     emissivity_1    float    1    0 .. 1       long-wave emissivity of pane 1
 *     pane_kind_2     int32_t       selector     kind of pane 2: 1 closes the cavities on both
 *                                                sides, 2 closes none
 *     emissivity_2    float    1    0 .. 1       long-wave emissivity of pane 2
 *     pane_kind_3     int32_t       selector     kind of pane 3: 1 closes the cavities on both
 *                                                sides, 2 closes none
 *     emissivity_3    float    1    0 .. 1       long-wave emissivity of pane 3
 *     cavity_width_1  float    m    from 0.001   width of the cavity between panes 1 and 2
 *     cavity_width_2  float    m    from 0.001   width of the cavity between panes 2 and 3
 *     outer_surface   int32_t       selector     surface type of the outer face, normally 1: 1
 *                                                outside, 2 inside
 *     exposure        int32_t       selector     exposure of the outer face to the wind: 1
 *                                                sheltered, 2 normal, 3 severe
 *     tilt            float    rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                                flowing down
 * Returned:
 *     admittance          float  W/m²K    admittance, the U-value
 *     admittance_lead     float  h        time lead of the admittance, 0
 *     decrement_factor    float  1        decrement factor, 1
 *     decrement_lag       float  h        time lag of the decrement factor, 0
 *     surface_factor      float  1        surface factor, 1 - Rsi U
 *     surface_factor_lag  float  h        time lag of the surface factor, 0
 *     u_value             float  W/m²K    U-value
 */
QUORVEL_ARRAYS_API int32_t quorvel_window_parameters(
    size_t count,
    const int32_t *panes, ptrdiff_t panes_stride,
    const int32_t *pane_kind_1, ptrdiff_t pane_kind_1_stride,
    const float *emissivity_1, ptrdiff_t emissivity_1_stride,
    const int32_t *pane_kind_2, ptrdiff_t pane_kind_2_stride,
    const float *emissivity_2, ptrdiff_t emissivity_2_stride,
    const int32_t *pane_kind_3, ptrdiff_t pane_kind_3_stride,
    const float *emissivity_3, ptrdiff_t emissivity_3_stride,
    const float *cavity_width_1, ptrdiff_t cavity_width_1_stride,
    const float *cavity_width_2, ptrdiff_t cavity_width_2_stride,
    const int32_t *outer_surface, ptrdiff_t outer_surface_stride,
    const int32_t *exposure, ptrdiff_t exposure_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    float *admittance, ptrdiff_t admittance_stride,
    float *admittance_lead, ptrdiff_t admittance_lead_stride,
    float *decrement_factor, ptrdiff_t decrement_factor_stride,
    float *decrement_lag, ptrdiff_t decrement_lag_stride,
    float *surface_factor, ptrdiff_t surface_factor_stride,
    float *surface_factor_lag, ptrdiff_t surface_factor_lag_stride,
    float *u_value, ptrdiff_t u_value_stride);

/* ---- Glazing --------------------------------------------------------------------------------- */

/*
 * quorvel_glass_direct (WNDRGL): Transmittance, absorptance and reflectance of a pane for direct
 *     radiation, both polarisations.
 * Given:
 *     normal_transmittance  float  1    0 .. 0.92          normal transmittance
 *     normal_reflectance    float  1    0 .. 0.99          normal reflectance of coated glass, 0
 *                                                          for uncoated
 *     incidence             float  rad  -1.5708 .. 1.5708  angle of incidence
 * Returned:
 *     parallel_transmittance       float  1    transmittance, parallel polarisation
 *     parallel_absorptance         float  1    absorptance, parallel
 *     parallel_reflectance         float  1    reflectance, parallel
 *     perpendicular_transmittance  float  1    transmittance, perpendicular polarisation
 *     perpendicular_absorptance    float  1    absorptance, perpendicular
 *     perpendicular_reflectance    float  1    reflectance, perpendicular
 */
QUORVEL_ARRAYS_API int32_t quorvel_glass_direct(
    size_t count,
    const float *normal_transmittance, ptrdiff_t normal_transmittance_stride,
    const float *normal_reflectance, ptrdiff_t normal_reflectance_stride,
    const float *incidence, ptrdiff_t incidence_stride,
    float *parallel_transmittance, ptrdiff_t parallel_transmittance_stride,
    float *parallel_absorptance, ptrdiff_t parallel_absorptance_stride,
    float *parallel_reflectance, ptrdiff_t parallel_reflectance_stride,
    float *perpendicular_transmittance, ptrdiff_t perpendicular_transmittance_stride,
    float *perpendicular_absorptance, ptrdiff_t perpendicular_absorptance_stride,
    float *perpendicular_reflectance, ptrdiff_t perpendicular_reflectance_stride);

/*
 * quorvel_glass_diffuse (WNDFGL): Transmittance and absorptance of a pane for isotropic diffuse
 *     radiation.
 * Given:
 *     normal_transmittance  float  1  0 .. 0.92  normal transmittance
 *     normal_reflectance    float  1  0 .. 0.99  normal reflectance of coated glass, 0 for uncoated
 * Returned:
 *     transmittance  float  1    diffuse transmittance
 *     absorptance    float  1    diffuse absorptance
 */
QUORVEL_ARRAYS_API int32_t quorvel_glass_diffuse(
    size_t count,
    const float *normal_transmittance, ptrdiff_t normal_transmittance_stride,
    const float *normal_reflectance, ptrdiff_t normal_reflectance_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride);

/*
 * quorvel_stacked_layers (WNCOM2): Transmittance, absorptance and reflectance of a stack of layers,
 *     each reflection counted once.
 * Given:
 *     layers                int32_t     from 0  number of layers
 *     layer_transmittances  float    1  0 .. 1  transmittance of each layer [layers]
 *     layer_reflectances    float    1  0 .. 1  reflectance of each layer [layers]
 * Returned:
 *     transmittance  float  1    transmittance of the stack
 *     absorptance    float  1    absorptance, 1 - transmittance - reflectance
 *     reflectance    float  1    reflectance of the stack
 */
QUORVEL_ARRAYS_API int32_t quorvel_stacked_layers(
    size_t count,
    const int32_t *layers, ptrdiff_t layers_stride,
    const float *layer_transmittances, ptrdiff_t layer_transmittances_stride,
    const float *layer_reflectances, ptrdiff_t layer_reflectances_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_traced_layers (WNCOMP): Transmittance, absorptance and reflectance of a stack of layers
 *     with the inter-reflections between all of them.
 * Given:
 *     layers                int32_t     0 .. 11  number of layers
 *     layer_transmittances  float    1  0 .. 1   transmittance of each layer, the same from both
 *                                                sides [layers]
 *     layer_absorptances    float    1  0 .. 1   absorptance of each layer [layers]
 *     layer_reflectances    float    1  0 .. 1   reflectance of each layer, the same from both
 *                                                sides [layers]
 * Returned:
 *     transmittance  float  1    transmittance of the stack; left as it was with more than 11
 *                                layers
 *     absorptance    float  1    absorptance of the stack; left as it was with more than 11 layers
 *     reflectance    float  1    reflectance of the stack; left as it was with more than 11 layers
 */
QUORVEL_ARRAYS_API int32_t quorvel_traced_layers(
    size_t count,
    const int32_t *layers, ptrdiff_t layers_stride,
    const float *layer_transmittances, ptrdiff_t layer_transmittances_stride,
    const float *layer_absorptances, ptrdiff_t layer_absorptances_stride,
    const float *layer_reflectances, ptrdiff_t layer_reflectances_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_roller_blind (WNDRRO): Transmittance, absorptance and reflectance of a roller blind, the
 *     same at every angle.
 * Given:
 *     blind_transmittance  float  1  0 .. 1  transmittance of the blind
 *     blind_reflectance    float  1  0 .. 1  reflectance of the blind
 * Returned:
 *     transmittance  float  1    transmittance, that of the blind
 *     absorptance    float  1    absorptance, the rest
 *     reflectance    float  1    reflectance, that of the blind
 */
QUORVEL_ARRAYS_API int32_t quorvel_roller_blind(
    size_t count,
    const float *blind_transmittance, ptrdiff_t blind_transmittance_stride,
    const float *blind_reflectance, ptrdiff_t blind_reflectance_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_diffuse_roller_blind (WNDFRO): Transmittance, absorptance and reflectance of a roller
 *     blind for diffuse radiation.
 * Given:
 *     blind_transmittance  float  1  0 .. 1  transmittance of the blind
 *     blind_reflectance    float  1  0 .. 1  reflectance of the blind
 * Returned:
 *     transmittance  float  1    transmittance, that of the blind to rounding
 *     absorptance    float  1    absorptance, the rest to rounding
 *     reflectance    float  1    reflectance, 1 - transmittance - absorptance
 */
QUORVEL_ARRAYS_API int32_t quorvel_diffuse_roller_blind(
    size_t count,
    const float *blind_transmittance, ptrdiff_t blind_transmittance_stride,
    const float *blind_reflectance, ptrdiff_t blind_reflectance_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_refraction_angle (WNRANG): Angle of a ray inside the glass, by Snell's law.
 * Given:
 *     incidence         float  rad  -1.5708 .. 1.5708  angle of incidence
 *     refractive_index  float  1    1 .. 4             refractive index of the glass
 * Result:
 *     rad  refraction angle
 */
QUORVEL_ARRAYS_API int32_t quorvel_refraction_angle(
    size_t count,
    const float *incidence, ptrdiff_t incidence_stride,
    const float *refractive_index, ptrdiff_t refractive_index_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_surface_reflectance (WNREFL): Reflectance of one face of the glass for the two
 *     polarisations, by Fresnel's equations.
 * Given:
 *     incidence         float  rad  -1.5708 .. 1.5708  angle of incidence
 *     refraction_angle  float  rad  -1.5708 .. 1.5708  refraction angle, of the sign of the
 *                                                      incidence
 *     refractive_index  float  1    1 .. 4             refractive index, used at normal incidence
 *                                                      only
 * Returned:
 *     parallel_reflectance       float  1    reflectance, polarised parallel to the plane of
 *                                            incidence
 *     perpendicular_reflectance  float  1    reflectance, polarised perpendicular to it
 */
QUORVEL_ARRAYS_API int32_t quorvel_surface_reflectance(
    size_t count,
    const float *incidence, ptrdiff_t incidence_stride,
    const float *refraction_angle, ptrdiff_t refraction_angle_stride,
    const float *refractive_index, ptrdiff_t refractive_index_stride,
    float *parallel_reflectance, ptrdiff_t parallel_reflectance_stride,
    float *perpendicular_reflectance, ptrdiff_t perpendicular_reflectance_stride);

/*
 * quorvel_single_pass_absorption (WNABEN): Share of a ray that is absorbed in one pass through the
 *     body of a pane.
 * Given:
 *     refraction_angle    float  rad  -1.5708 .. 1.5708  refraction angle
 *     absorption_product  float  1    0 .. 20            absorption coefficient times thickness
 * Result:
 *     1  absorbed share
 */
QUORVEL_ARRAYS_API int32_t quorvel_single_pass_absorption(
    size_t count,
    const float *refraction_angle, ptrdiff_t refraction_angle_stride,
    const float *absorption_product, ptrdiff_t absorption_product_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_slab_optics (WNTAR): Transmittance, absorptance and reflectance of a pane for one
 *     polarisation, with all inter-reflections between its two faces.
 * Given:
 *     single_pass_absorptance  float  1  0 .. 1  share absorbed in a single pass
 *     face_reflectance         float  1  0 .. 1  reflectance of either face
 * Returned:
 *     transmittance  float  1    transmittance
 *     absorptance    float  1    absorptance, not below 0
 *     reflectance    float  1    reflectance
 */
QUORVEL_ARRAYS_API int32_t quorvel_slab_optics(
    size_t count,
    const float *single_pass_absorptance, ptrdiff_t single_pass_absorptance_stride,
    const float *face_reflectance, ptrdiff_t face_reflectance_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_absorption_product (WNKL): Absorption coefficient times thickness of a pane, from its
 *     transmittance at normal incidence.
 * Given:
 *     normal_transmittance  float  1  0 .. 0.92  normal transmittance of the pane
 *     refractive_index      float  1  1 .. 4     refractive index
 * Result:
 *     1  absorption coefficient times thickness
 */
QUORVEL_ARRAYS_API int32_t quorvel_absorption_product(
    size_t count,
    const float *normal_transmittance, ptrdiff_t normal_transmittance_stride,
    const float *refractive_index, ptrdiff_t refractive_index_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_normal_transmittance (WNTNOR): Transmittance of a pane at normal incidence: the inverse
 *     of WNKL.
 * Given:
 *     absorption_product  float  1  0 .. 20    absorption coefficient times thickness
 *     normal_reflectance  float  1  0 .. 0.99  normal reflectance of one face
 * Result:
 *     1  normal transmittance of the pane
 */
QUORVEL_ARRAYS_API int32_t quorvel_normal_transmittance(
    size_t count,
    const float *absorption_product, ptrdiff_t absorption_product_stride,
    const float *normal_reflectance, ptrdiff_t normal_reflectance_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_pane_temperatures (WNTEMP): Steady temperatures of the panes of a glazing from the air
 *     temperatures on both sides and the solar radiation that each pane absorbs.
 * Given:
 *     inside_temperature   float    °C    -100 .. 200  air temperature in the room
 *     outside_temperature  float    °C    -100 .. 200  air temperature outdoors
 *     panes                int32_t        1 .. 5       number of panes
 *     absorbed_1           float    W/m²  from 0       absorbed in pane 1, nearest the room
 *     absorbed_2           float    W/m²  from 0       absorbed in pane 2
 *     absorbed_3           float    W/m²  from 0       absorbed in pane 3
 *     absorbed_4           float    W/m²  from 0       absorbed in pane 4
 *     absorbed_5           float    W/m²  from 0       absorbed in pane 5
 * Returned:
 *     pane_temperature_1  float  °C    temperature of pane 1, nearest the room; left as it was with
 *                                      panes outside 1 to 5
 *     pane_temperature_2  float  °C    temperature of pane 2; left as it was with panes outside 2
 *                                      to 5
 *     pane_temperature_3  float  °C    temperature of pane 3; left as it was with panes outside 3
 *                                      to 5
 *     pane_temperature_4  float  °C    temperature of pane 4; left as it was with panes outside 4
 *                                      to 5
 *     pane_temperature_5  float  °C    temperature of pane 5; left as it was with panes outside 4
 *                                      to 5
 */
QUORVEL_ARRAYS_API int32_t quorvel_pane_temperatures(
    size_t count,
    const float *inside_temperature, ptrdiff_t inside_temperature_stride,
    const float *outside_temperature, ptrdiff_t outside_temperature_stride,
    const int32_t *panes, ptrdiff_t panes_stride,
    const float *absorbed_1, ptrdiff_t absorbed_1_stride,
    const float *absorbed_2, ptrdiff_t absorbed_2_stride,
    const float *absorbed_3, ptrdiff_t absorbed_3_stride,
    const float *absorbed_4, ptrdiff_t absorbed_4_stride,
    const float *absorbed_5, ptrdiff_t absorbed_5_stride,
    float *pane_temperature_1, ptrdiff_t pane_temperature_1_stride,
    float *pane_temperature_2, ptrdiff_t pane_temperature_2_stride,
    float *pane_temperature_3, ptrdiff_t pane_temperature_3_stride,
    float *pane_temperature_4, ptrdiff_t pane_temperature_4_stride,
    float *pane_temperature_5, ptrdiff_t pane_temperature_5_stride);

/*
 * quorvel_unit_direct (WNDRSC): Transmittance, absorptance and reflectance for direct radiation of
 *     a glazing unit known only by its shading coefficients.
 * Given:
 *     shortwave_shading_coefficient  float  1    0 .. 1.05          short-wave shading coefficient;
 *                                                                   the total one if the long-wave
 *                                                                   one is missing
 *     longwave_shading_coefficient   float  1    0 .. 1             long-wave shading coefficient,
 *                                                                   0 if missing
 *     incidence                      float  rad  -1.5708 .. 1.5708  angle of incidence
 * Returned:
 *     transmittance  float  1    transmittance
 *     absorptance    float  1    absorptance
 *     reflectance    float  1    reflectance, 1 - transmittance - absorptance, at least 0.01 to
 *                                rounding
 */
QUORVEL_ARRAYS_API int32_t quorvel_unit_direct(
    size_t count,
    const float *shortwave_shading_coefficient, ptrdiff_t shortwave_shading_coefficient_stride,
    const float *longwave_shading_coefficient, ptrdiff_t longwave_shading_coefficient_stride,
    const float *incidence, ptrdiff_t incidence_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_unit_diffuse (WNDFSC): Transmittance, absorptance and reflectance for isotropic diffuse
 *     radiation of a glazing unit known only by its shading coefficients.
 * Given:
 *     shortwave_shading_coefficient  float  1  0 .. 1.05  short-wave shading coefficient; the total
 *                                                         one if the long-wave one is missing
 *     longwave_shading_coefficient   float  1  0 .. 1     long-wave shading coefficient, 0 if
 *                                                         missing
 * Returned:
 *     transmittance  float  1    diffuse transmittance
 *     absorptance    float  1    diffuse absorptance
 *     reflectance    float  1    diffuse reflectance, 1 - transmittance - absorptance
 */
QUORVEL_ARRAYS_API int32_t quorvel_unit_diffuse(
    size_t count,
    const float *shortwave_shading_coefficient, ptrdiff_t shortwave_shading_coefficient_stride,
    const float *longwave_shading_coefficient, ptrdiff_t longwave_shading_coefficient_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_unit_direct_shares (WNDRSM): WNDRSC, with the remainder that is neither transmitted nor
 *     absorbed split among the panes of the unit.
 * Given:
 *     shortwave_shading_coefficient  float    1    0 .. 1.05          short-wave shading
 *                                                                     coefficient; the total one if
 *                                                                     the long-wave one is missing
 *     longwave_shading_coefficient   float    1    0 .. 1             long-wave shading
 *                                                                     coefficient, 0 if missing
 *     incidence                      float    rad  -1.5708 .. 1.5708  angle of incidence
 *     panes                          int32_t       1 .. 5             number of panes
 * Returned:
 *     transmittance  float  1    transmittance
 *     pane_shares    float  1    share of each pane in 1 - transmittance - absorptance [panes];
 *                                left as it was with a count outside 1 to 5
 *     absorptance    float  1    absorptance
 */
QUORVEL_ARRAYS_API int32_t quorvel_unit_direct_shares(
    size_t count,
    const float *shortwave_shading_coefficient, ptrdiff_t shortwave_shading_coefficient_stride,
    const float *longwave_shading_coefficient, ptrdiff_t longwave_shading_coefficient_stride,
    const float *incidence, ptrdiff_t incidence_stride,
    const int32_t *panes, ptrdiff_t panes_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *pane_shares, ptrdiff_t pane_shares_stride,
    float *absorptance, ptrdiff_t absorptance_stride);

/*
 * quorvel_unit_diffuse_shares (WNDFSM): WNDFSC, with the remainder that is neither transmitted nor
 *     absorbed split among the panes of the unit.
 * Given:
 *     shortwave_shading_coefficient  float    1  0 .. 1.05  short-wave shading coefficient; the
 *                                                           total one if the long-wave one is
 *                                                           missing
 *     longwave_shading_coefficient   float    1  0 .. 1     long-wave shading coefficient, 0 if
 *                                                           missing
 *     panes                          int32_t     1 .. 5     number of panes
 * Returned:
 *     transmittance  float  1    diffuse transmittance
 *     pane_shares    float  1    share of each pane in 1 - transmittance - absorptance [panes];
 *                                left as it was with a count outside 1 to 5
 *     absorptance    float  1    diffuse absorptance
 */
QUORVEL_ARRAYS_API int32_t quorvel_unit_diffuse_shares(
    size_t count,
    const float *shortwave_shading_coefficient, ptrdiff_t shortwave_shading_coefficient_stride,
    const float *longwave_shading_coefficient, ptrdiff_t longwave_shading_coefficient_stride,
    const int32_t *panes, ptrdiff_t panes_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *pane_shares, ptrdiff_t pane_shares_stride,
    float *absorptance, ptrdiff_t absorptance_stride);

/*
 * quorvel_unit_shares (WNDRS0): WNDRSM or WNDFSM, by a selector.
 * Given:
 *     radiation                      int32_t       selector           kind of radiation: 1 direct
 *                                                                     radiation (WNDRSM), 2 diffuse
 *                                                                     radiation (WNDFSM), as any
 *                                                                     other value
 *     shortwave_shading_coefficient  float    1    0 .. 1.05          short-wave shading
 *                                                                     coefficient; the total one if
 *                                                                     the long-wave one is missing
 *     longwave_shading_coefficient   float    1    0 .. 1             long-wave shading
 *                                                                     coefficient, 0 if missing
 *     incidence                      float    rad  -1.5708 .. 1.5708  angle of incidence, read for
 *                                                                     direct radiation only
 *     panes                          int32_t       1 .. 5             number of panes
 * Returned:
 *     transmittance  float  1    transmittance
 *     pane_shares    float  1    share of each pane in 1 - transmittance - absorptance [panes];
 *                                left as it was with a count outside 1 to 5
 *     absorptance    float  1    absorptance
 */
QUORVEL_ARRAYS_API int32_t quorvel_unit_shares(
    size_t count,
    const int32_t *radiation, ptrdiff_t radiation_stride,
    const float *shortwave_shading_coefficient, ptrdiff_t shortwave_shading_coefficient_stride,
    const float *longwave_shading_coefficient, ptrdiff_t longwave_shading_coefficient_stride,
    const float *incidence, ptrdiff_t incidence_stride,
    const int32_t *panes, ptrdiff_t panes_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *pane_shares, ptrdiff_t pane_shares_stride,
    float *absorptance, ptrdiff_t absorptance_stride);

/*
 * quorvel_slat_direct (WNDRSL): Transmittance, absorptance and reflectance of a slatted blind for a
 *     beam, both faces of the slats alike.
 * Given:
 *     slat_spacing      float  m    from 0             spacing of the slats; only its ratio to
 *                                                      their width matters, in whatever unit
 *     slat_width        float  m    from 0             width of a slat
 *     slat_angle        float  °    -90 .. 90          slat angle in degrees, 0 for level slats,
 *                                                      positive with the outer edge lowered
 *     profile_angle     float  rad  -1.5708 .. 1.5708  profile angle of the beam, positive from
 *                                                      above
 *     slat_absorptance  float  1    0 .. 1             absorptance of the slats
 * Returned:
 *     transmittance  float  1    transmittance
 *     absorptance    float  1    absorptance
 *     reflectance    float  1    reflectance, 1 - transmittance - absorptance
 */
QUORVEL_ARRAYS_API int32_t quorvel_slat_direct(
    size_t count,
    const float *slat_spacing, ptrdiff_t slat_spacing_stride,
    const float *slat_width, ptrdiff_t slat_width_stride,
    const float *slat_angle, ptrdiff_t slat_angle_stride,
    const float *profile_angle, ptrdiff_t profile_angle_stride,
    const float *slat_absorptance, ptrdiff_t slat_absorptance_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_two_faced_slat_direct (WNDRS2): Transmittance, absorptance and reflectance of a blind for
 *     a beam, whose slats have two different faces.
 * Given:
 *     slat_spacing          float  m    from 0             spacing of the slats; only its ratio to
 *                                                          their width matters, in whatever unit
 *     slat_width            float  m    from 0             width of a slat
 *     slat_angle            float  °    -90 .. 90          slat angle in degrees, 0 for level
 *                                                          slats, positive with the outer edge
 *                                                          lowered
 *     profile_angle         float  rad  -1.5708 .. 1.5708  profile angle of the beam, positive from
 *                                                          above
 *     struck_absorptance    float  1    0 .. 1             absorptance of the face that the beam
 *                                                          strikes first
 *     opposite_absorptance  float  1    0 .. 1             absorptance of the opposite face
 * Returned:
 *     transmittance  float  1    transmittance
 *     absorptance    float  1    absorptance
 *     reflectance    float  1    reflectance, 1 - transmittance - absorptance, not limited
 */
QUORVEL_ARRAYS_API int32_t quorvel_two_faced_slat_direct(
    size_t count,
    const float *slat_spacing, ptrdiff_t slat_spacing_stride,
    const float *slat_width, ptrdiff_t slat_width_stride,
    const float *slat_angle, ptrdiff_t slat_angle_stride,
    const float *profile_angle, ptrdiff_t profile_angle_stride,
    const float *struck_absorptance, ptrdiff_t struck_absorptance_stride,
    const float *opposite_absorptance, ptrdiff_t opposite_absorptance_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_open_slat_direct (WNDRS3): WNDRS2 for a blind that leaves a share of the radiation to
 *     pass untouched.
 * Given:
 *     slat_spacing          float  m    from 0             spacing of the slats; only its ratio to
 *                                                          their width matters, in whatever unit
 *     slat_width            float  m    from 0             width of a slat
 *     slat_angle            float  °    -90 .. 90          slat angle in degrees, 0 for level
 *                                                          slats, positive with the outer edge
 *                                                          lowered
 *     profile_angle         float  rad  -1.5708 .. 1.5708  profile angle of the beam, positive from
 *                                                          above
 *     open_share            float  1    0 .. 1             open share of the blind; 0 or less for
 *                                                          none
 *     struck_absorptance    float  1    0 .. 1             absorptance of the face that the beam
 *                                                          strikes first
 *     opposite_absorptance  float  1    0 .. 1             absorptance of the opposite face
 * Returned:
 *     transmittance  float  1    transmittance, the open share included
 *     absorptance    float  1    absorptance
 *     reflectance    float  1    reflectance
 */
QUORVEL_ARRAYS_API int32_t quorvel_open_slat_direct(
    size_t count,
    const float *slat_spacing, ptrdiff_t slat_spacing_stride,
    const float *slat_width, ptrdiff_t slat_width_stride,
    const float *slat_angle, ptrdiff_t slat_angle_stride,
    const float *profile_angle, ptrdiff_t profile_angle_stride,
    const float *open_share, ptrdiff_t open_share_stride,
    const float *struck_absorptance, ptrdiff_t struck_absorptance_stride,
    const float *opposite_absorptance, ptrdiff_t opposite_absorptance_stride,
    float *transmittance, ptrdiff_t transmittance_stride,
    float *absorptance, ptrdiff_t absorptance_stride,
    float *reflectance, ptrdiff_t reflectance_stride);

/*
 * quorvel_slat_diffuse (WNDFSL): Transmittance and absorptance of a slatted blind for the diffuse
 *     radiation from the sky's and from the ground's side, both faces of the slats alike.
 * Given:
 *     slat_spacing      float  m  from 0     spacing of the slats; only its ratio to their width
 *                                            matters, in whatever unit
 *     slat_width        float  m  from 0     width of a slat
 *     slat_angle        float  °  -90 .. 90  slat angle in degrees, 0 for level slats, positive
 *                                            with the outer edge lowered
 *     slat_absorptance  float  1  0 .. 1     absorptance of the slats
 * Returned:
 *     sky_transmittance     float  1    transmittance for radiation from above the horizon
 *     ground_transmittance  float  1    transmittance for radiation from below it
 *     sky_absorptance       float  1    absorptance for radiation from above the horizon
 *     ground_absorptance    float  1    absorptance for radiation from below it
 */
QUORVEL_ARRAYS_API int32_t quorvel_slat_diffuse(
    size_t count,
    const float *slat_spacing, ptrdiff_t slat_spacing_stride,
    const float *slat_width, ptrdiff_t slat_width_stride,
    const float *slat_angle, ptrdiff_t slat_angle_stride,
    const float *slat_absorptance, ptrdiff_t slat_absorptance_stride,
    float *sky_transmittance, ptrdiff_t sky_transmittance_stride,
    float *ground_transmittance, ptrdiff_t ground_transmittance_stride,
    float *sky_absorptance, ptrdiff_t sky_absorptance_stride,
    float *ground_absorptance, ptrdiff_t ground_absorptance_stride);

/*
 * quorvel_two_faced_slat_diffuse (WNDFS2): WNDFSL for slats with two different faces.
 * Given:
 *     slat_spacing          float  m  from 0     spacing of the slats; only its ratio to their
 *                                                width matters, in whatever unit
 *     slat_width            float  m  from 0     width of a slat
 *     slat_angle            float  °  -90 .. 90  slat angle in degrees, 0 for level slats, positive
 *                                                with the outer edge lowered
 *     struck_absorptance    float  1  0 .. 1     absorptance of the face that the beam strikes
 *                                                first
 *     opposite_absorptance  float  1  0 .. 1     absorptance of the opposite face
 * Returned:
 *     sky_transmittance     float  1    transmittance for radiation from above the horizon
 *     ground_transmittance  float  1    transmittance for radiation from below it
 *     sky_absorptance       float  1    absorptance for radiation from above the horizon
 *     ground_absorptance    float  1    absorptance for radiation from below it
 */
QUORVEL_ARRAYS_API int32_t quorvel_two_faced_slat_diffuse(
    size_t count,
    const float *slat_spacing, ptrdiff_t slat_spacing_stride,
    const float *slat_width, ptrdiff_t slat_width_stride,
    const float *slat_angle, ptrdiff_t slat_angle_stride,
    const float *struck_absorptance, ptrdiff_t struck_absorptance_stride,
    const float *opposite_absorptance, ptrdiff_t opposite_absorptance_stride,
    float *sky_transmittance, ptrdiff_t sky_transmittance_stride,
    float *ground_transmittance, ptrdiff_t ground_transmittance_stride,
    float *sky_absorptance, ptrdiff_t sky_absorptance_stride,
    float *ground_absorptance, ptrdiff_t ground_absorptance_stride);

/*
 * quorvel_open_slat_diffuse (WNDFS3): WNDFS2 for a blind that leaves a share of the radiation to
 *     pass untouched.
 * Given:
 *     slat_spacing          float  m  from 0     spacing of the slats; only its ratio to their
 *                                                width matters, in whatever unit
 *     slat_width            float  m  from 0     width of a slat
 *     slat_angle            float  °  -90 .. 90  slat angle in degrees, 0 for level slats, positive
 *                                                with the outer edge lowered
 *     open_share            float  1  0 .. 1     open share of the blind; 0 or less for none
 *     struck_absorptance    float  1  0 .. 1     absorptance of the face that the beam strikes
 *                                                first
 *     opposite_absorptance  float  1  0 .. 1     absorptance of the opposite face
 * Returned:
 *     sky_transmittance     float  1    transmittance for radiation from above the horizon
 *     ground_transmittance  float  1    transmittance for radiation from below it
 *     sky_absorptance       float  1    absorptance for radiation from above the horizon
 *     ground_absorptance    float  1    absorptance for radiation from below it
 */
QUORVEL_ARRAYS_API int32_t quorvel_open_slat_diffuse(
    size_t count,
    const float *slat_spacing, ptrdiff_t slat_spacing_stride,
    const float *slat_width, ptrdiff_t slat_width_stride,
    const float *slat_angle, ptrdiff_t slat_angle_stride,
    const float *open_share, ptrdiff_t open_share_stride,
    const float *struck_absorptance, ptrdiff_t struck_absorptance_stride,
    const float *opposite_absorptance, ptrdiff_t opposite_absorptance_stride,
    float *sky_transmittance, ptrdiff_t sky_transmittance_stride,
    float *ground_transmittance, ptrdiff_t ground_transmittance_stride,
    float *sky_absorptance, ptrdiff_t sky_absorptance_stride,
    float *ground_absorptance, ptrdiff_t ground_absorptance_stride);

/* ---- Calendar, sun and sky ------------------------------------------------------------------- */

/*
 * quorvel_locate_band (CLBAN1): Where a cumulative fraction of days lies among the ten bands of a
 *     month, in frequencies of the caller.
 * Given:
 *     fraction     float    1  0 .. 1   cumulative fraction of days
 *     month        int32_t     1 .. 12  month
 *     frequencies  float    1  0 .. 1   cumulative frequencies of each band in each month, not
 *                                       falling with the band [12, 10]
 * Returned:
 *     lower_band   int32_t       lower band, 1 to 9
 *     upper_band   int32_t       upper band, 2 to 10
 *     band_weight  float    1    (fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1
 */
QUORVEL_ARRAYS_API int32_t quorvel_locate_band(
    size_t count,
    const float *fraction, ptrdiff_t fraction_stride,
    const int32_t *month, ptrdiff_t month_stride,
    const float *frequencies, ptrdiff_t frequencies_stride,
    int32_t *lower_band, ptrdiff_t lower_band_stride,
    int32_t *upper_band, ptrdiff_t upper_band_stride,
    float *band_weight, ptrdiff_t band_weight_stride);

/*
 * quorvel_band_climate (CLBAND): Monthly climate of one of ten bands of days, or interpolated at a
 *     cumulative percentage of days.
 * Given:
 *     band        int32_t     0 .. 10   band, or 0 to interpolate at the percentage
 *     month       int32_t     1 .. 12   month
 *     band_set    int32_t     selector  set of bands: 1 bands from the warmest to the coldest days,
 *                                       2 bands from the highest to the lowest Q1
 *     percentage  float    %  0 .. 100  cumulative percentage of days: given with band 0, otherwise
 *                                       returned
 * Returned:
 *     percentage  float  %    0 .. 100  cumulative percentage of days: given with band 0, otherwise
 *                                       returned; left as it was with band 0
 *     q1          float  1              quantity Q1: beam factor
 *     q2          float  1              quantity Q2: diffuse factor
 *     q3          float  °C             quantity Q3: air temperature at time A
 *     q4          float  °C             quantity Q4: air temperature at time B
 *     q5          float  °C             quantity Q5: wet-bulb temperature at time A
 *     q6          float  °C             quantity Q6: wet-bulb temperature at time B
 *     time_a      float  h              time A, in the afternoon
 *     time_b      float  h              time B, about sunrise
 *     q7          float  %              quantity Q7: cloud-free share of the sky
 *     q8          float  m/s            quantity Q8: wind speed
 */
QUORVEL_ARRAYS_API int32_t quorvel_band_climate(
    size_t count,
    const int32_t *band, ptrdiff_t band_stride,
    const int32_t *month, ptrdiff_t month_stride,
    const int32_t *band_set, ptrdiff_t band_set_stride,
    const float *percentage, ptrdiff_t percentage_stride,
    float *new_percentage, ptrdiff_t new_percentage_stride,
    float *q1, ptrdiff_t q1_stride,
    float *q2, ptrdiff_t q2_stride,
    float *q3, ptrdiff_t q3_stride,
    float *q4, ptrdiff_t q4_stride,
    float *q5, ptrdiff_t q5_stride,
    float *q6, ptrdiff_t q6_stride,
    float *time_a, ptrdiff_t time_a_stride,
    float *time_b, ptrdiff_t time_b_stride,
    float *q7, ptrdiff_t q7_stride,
    float *q8, ptrdiff_t q8_stride);

/*
 * quorvel_interpolate_band_rows (CLBAN2): Value between two rows of the band table.
 * Given:
 *     base_row     int32_t     0 .. 174  row before the quantity's band 1: 2 for F, 12 for Q1, 22
 *                                        for Q2 and so on in set 1; 92 more in set 2
 *     lower_band   int32_t     1 .. 10   lower band
 *     upper_band   int32_t     1 .. 10   upper band
 *     month        int32_t     1 .. 12   month
 *     band_weight  float    1  -1 .. 1   share of the step from the lower to the upper row
 * Returned:
 *     value  float  1    value, in the quantity's unit
 */
QUORVEL_ARRAYS_API int32_t quorvel_interpolate_band_rows(
    size_t count,
    const int32_t *base_row, ptrdiff_t base_row_stride,
    const int32_t *lower_band, ptrdiff_t lower_band_stride,
    const int32_t *upper_band, ptrdiff_t upper_band_stride,
    const int32_t *month, ptrdiff_t month_stride,
    const float *band_weight, ptrdiff_t band_weight_stride,
    float *value, ptrdiff_t value_stride);

/*
 * quorvel_band_row (CLBAN3): One row of the band table, a value per month.
 * Given:
 *     row  int32_t    1 .. 184  row: 1 to 92 in set 1, 93 to 184 in set 2
 * Returned:
 *     values  float  1    values from January to December, in the row's unit [12]
 */
QUORVEL_ARRAYS_API int32_t quorvel_band_row(
    size_t count,
    const int32_t *row, ptrdiff_t row_stride,
    float *values, ptrdiff_t values_stride);

/*
 * quorvel_store_design_day (CLDAY): Design day of a month as a day of the year, as ICLDAY gives it.
 * Given:
 *     month  int32_t    1 .. 12  month
 * Returned:
 *     day  int32_t      design day of the year
 */
QUORVEL_ARRAYS_API int32_t quorvel_store_design_day(
    size_t count,
    const int32_t *month, ptrdiff_t month_stride,
    int32_t *day, ptrdiff_t day_stride);

/*
 * quorvel_store_design_day_by_option (CLDAYEX): Design day of a month as a day of the year or of
 *     the month, as ICLDAYEX gives it.
 * Given:
 *     month     int32_t    1 .. 12   month
 *     day_kind  int32_t    selector  how the day is counted: 1 day of the month, 2 day of the year
 * Returned:
 *     day  int32_t      design day
 */
QUORVEL_ARRAYS_API int32_t quorvel_store_design_day_by_option(
    size_t count,
    const int32_t *month, ptrdiff_t month_stride,
    const int32_t *day_kind, ptrdiff_t day_kind_stride,
    int32_t *day, ptrdiff_t day_stride);

/*
 * quorvel_design_day (ICLDAY): Design day of a month as a day of the year.
 * Given:
 *     month  int32_t    1 .. 12  month
 * Result:
 *   design day of the year
 */
QUORVEL_ARRAYS_API int32_t quorvel_design_day(
    size_t count,
    const int32_t *month, ptrdiff_t month_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_design_day_by_option (ICLDAYEX): Design day of a month as a day of the year or of the
 *     month.
 * Given:
 *     month     int32_t    1 .. 12   month
 *     day_kind  int32_t    selector  how the day is counted: 1 day of the month, 2 day of the year
 * Result:
 *   design day
 */
QUORVEL_ARRAYS_API int32_t quorvel_design_day_by_option(
    size_t count,
    const int32_t *month, ptrdiff_t month_stride,
    const int32_t *day_kind, ptrdiff_t day_kind_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_second_design_day (ICLDA2): Second design day of a month as a day of the year.
 * Given:
 *     month  int32_t    1 .. 12  month
 * Result:
 *   second design day of the year
 */
QUORVEL_ARRAYS_API int32_t quorvel_second_design_day(
    size_t count,
    const int32_t *month, ptrdiff_t month_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_second_design_day_by_option (ICLDA2EX): Second design day of a month as a day of the year
 *     or of the month.
 * Given:
 *     month     int32_t    1 .. 12   month
 *     day_kind  int32_t    selector  how the day is counted: 1 day of the month, 2 day of the year
 * Result:
 *   second design day
 */
QUORVEL_ARRAYS_API int32_t quorvel_second_design_day_by_option(
    size_t count,
    const int32_t *month, ptrdiff_t month_stride,
    const int32_t *day_kind, ptrdiff_t day_kind_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_daily_temperature (CLTAO): Temperature at an hour of a day, by half cosine waves between
 *     its highest and its lowest.
 * Given:
 *     hour                 float  h   0 .. 24      hour
 *     highest_temperature  float  °C  -100 .. 200  highest temperature of the day
 *     lowest_temperature   float  °C  -100 .. 200  lowest temperature of the day
 *     hour_of_highest      float  h   0 .. 24      hour of the highest
 *     hour_of_lowest       float  h   0 .. 24      hour of the lowest
 * Result:
 *     °C  temperature
 */
QUORVEL_ARRAYS_API int32_t quorvel_daily_temperature(
    size_t count,
    const float *hour, ptrdiff_t hour_stride,
    const float *highest_temperature, ptrdiff_t highest_temperature_stride,
    const float *lowest_temperature, ptrdiff_t lowest_temperature_stride,
    const float *hour_of_highest, ptrdiff_t hour_of_highest_stride,
    const float *hour_of_lowest, ptrdiff_t hour_of_lowest_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_daily_value (CLTAOX): Value at an hour of a day that swings about its mean by half cosine
 *     waves between two hours.
 * Given:
 *     hour              float  h  0 .. 24  hour
 *     mean              float  1  any      mean, in the unit of the result
 *     amplitude         float  1  any      half the difference of the extremes, in the same unit
 *     first_hour        float  h  0 .. 24  hour of the first extreme, the highest if amplitude
 *                                          times amplitude_factor is positive
 *     second_hour       float  h  0 .. 24  hour of the second extreme, after the first
 *     amplitude_factor  float  1  any      factor on the amplitude
 * Result:
 *     1  value
 */
QUORVEL_ARRAYS_API int32_t quorvel_daily_value(
    size_t count,
    const float *hour, ptrdiff_t hour_stride,
    const float *mean, ptrdiff_t mean_stride,
    const float *amplitude, ptrdiff_t amplitude_stride,
    const float *first_hour, ptrdiff_t first_hour_stride,
    const float *second_hour, ptrdiff_t second_hour_stride,
    const float *amplitude_factor, ptrdiff_t amplitude_factor_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_design_irradiance (CLSNNR): Design irradiance by solar altitude: direct normal and
 *     diffuse horizontal.
 * Given:
 *     solar_altitude  float    rad  0 .. 1.5707964  solar altitude
 *     site_height     float    m    0 .. 4000       height of the site above sea level
 *     sky_kind        int32_t       selector        kind of sky: 0 clear, 1 cloudy: the larger
 *                                                   diffuse irradiance
 * Returned:
 *     direct_normal       float  W/m²    direct normal irradiance, the same for both skies
 *     diffuse_horizontal  float  W/m²    diffuse irradiance on the horizontal
 */
QUORVEL_ARRAYS_API int32_t quorvel_design_irradiance(
    size_t count,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *site_height, ptrdiff_t site_height_stride,
    const int32_t *sky_kind, ptrdiff_t sky_kind_stride,
    float *direct_normal, ptrdiff_t direct_normal_stride,
    float *diffuse_horizontal, ptrdiff_t diffuse_horizontal_stride);

/*
 * quorvel_height_factor (CLHIGH): Factor by which irradiance grows with the height of the site.
 * Given:
 *     site_height     float  m    0 .. 4000       height of the site above sea level
 *     solar_altitude  float  rad  0 .. 1.5707964  solar altitude
 * Result:
 *     1  factor
 */
QUORVEL_ARRAYS_API int32_t quorvel_height_factor(
    size_t count,
    const float *site_height, ptrdiff_t site_height_stride,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_eccentricity_factor (CLETAJ): Irradiance outside the atmosphere on a day, by that at the
 *     mean distance of the sun.
 * Given:
 *     day  int32_t    1 .. 366  day of the year
 * Result:
 *     1  factor
 */
QUORVEL_ARRAYS_API int32_t quorvel_eccentricity_factor(
    size_t count,
    const int32_t *day, ptrdiff_t day_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_clearness_index (CLMODUL): Global horizontal irradiance by that outside the atmosphere.
 * Given:
 *     day                int32_t        1 .. 366        day of the year
 *     solar_altitude     float    rad   0 .. 1.5707964  solar altitude
 *     global_horizontal  float    W/m²  from 0          global horizontal irradiance
 * Result:
 *     1  clearness index
 */
QUORVEL_ARRAYS_API int32_t quorvel_clearness_index(
    size_t count,
    const int32_t *day, ptrdiff_t day_stride,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *global_horizontal, ptrdiff_t global_horizontal_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_muneer_slope (CLMUNRAD): Irradiance on a tilted surface by Muneer's sky: beam, sky
 *     diffuse and ground-reflected.
 * Given:
 *     solar_altitude               float  rad   0 .. 1.5707964  solar altitude
 *     solar_azimuth                float  rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth              float  rad   0 .. 6.2832     azimuth of the surface's outward
 *                                                               normal
 *     tilt                         float  rad   0 .. 3.1416     tilt from the horizontal
 *     beam_horizontal              float  W/m²  from 0          beam irradiance on the horizontal
 *     diffuse_horizontal           float  W/m²  from 0          diffuse irradiance on the
 *                                                               horizontal
 *     extraterrestrial_horizontal  float  W/m²  0 .. 1415       irradiance on the horizontal
 *                                                               outside the atmosphere
 *     ground_reflectance           float  1     0 .. 1          reflectance of the ground
 * Returned:
 *     surface_beam      float  W/m²    beam irradiance on the surface, 0 with the sun behind it
 *     surface_diffuse   float  W/m²    diffuse irradiance of the sky on the surface
 *     ground_reflected  float  W/m²    ground-reflected irradiance on the surface
 *     incidence         float  rad     angle of incidence, 1.5707964 with the sun behind the
 *                                      surface
 */
QUORVEL_ARRAYS_API int32_t quorvel_muneer_slope(
    size_t count,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *solar_azimuth, ptrdiff_t solar_azimuth_stride,
    const float *surface_azimuth, ptrdiff_t surface_azimuth_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    const float *beam_horizontal, ptrdiff_t beam_horizontal_stride,
    const float *diffuse_horizontal, ptrdiff_t diffuse_horizontal_stride,
    const float *extraterrestrial_horizontal, ptrdiff_t extraterrestrial_horizontal_stride,
    const float *ground_reflectance, ptrdiff_t ground_reflectance_stride,
    float *surface_beam, ptrdiff_t surface_beam_stride,
    float *surface_diffuse, ptrdiff_t surface_diffuse_stride,
    float *ground_reflected, ptrdiff_t ground_reflected_stride,
    float *incidence, ptrdiff_t incidence_stride);

/*
 * quorvel_perez_diffuse (CLPERSKY): Diffuse irradiance of the sky on a tilted surface by the
 *     anisotropic sky of Perez.
 * Given:
 *     solar_altitude           float  rad   0 .. 1.5707964  solar altitude
 *     tilt                     float  rad   0 .. 3.1416     tilt from the horizontal
 *     beam_horizontal          float  W/m²  from 0          beam irradiance on the horizontal
 *     diffuse_horizontal       float  W/m²  from 0          diffuse irradiance on the horizontal
 *     incidence                float  rad   0 .. 3.1416     angle of incidence of the sun on the
 *                                                           surface
 *     extraterrestrial_normal  float  W/m²  1320 .. 1415    normal irradiance outside the
 *                                                           atmosphere
 * Returned:
 *     surface_diffuse  float  W/m²    diffuse irradiance of the sky on the surface
 */
QUORVEL_ARRAYS_API int32_t quorvel_perez_diffuse(
    size_t count,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    const float *beam_horizontal, ptrdiff_t beam_horizontal_stride,
    const float *diffuse_horizontal, ptrdiff_t diffuse_horizontal_stride,
    const float *incidence, ptrdiff_t incidence_stride,
    const float *extraterrestrial_normal, ptrdiff_t extraterrestrial_normal_stride,
    float *surface_diffuse, ptrdiff_t surface_diffuse_stride);

/*
 * quorvel_site_constants (CLCONS): Radiation constants of a site class in a month.
 * Given:
 *     site_class  int32_t    1 .. 6   site class
 *     month       int32_t    1 .. 12  month
 * Returned:
 *     ground_reflectance          float  1    reflectance of the ground
 *     beam_factor                 float  1    factor on the direct normal irradiance
 *     diffuse_factor              float  1    factor on the diffuse horizontal irradiance
 *     alternative_diffuse_factor  float  1    factor that takes its place where it is 0
 */
QUORVEL_ARRAYS_API int32_t quorvel_site_constants(
    size_t count,
    const int32_t *site_class, ptrdiff_t site_class_stride,
    const int32_t *month, ptrdiff_t month_stride,
    float *ground_reflectance, ptrdiff_t ground_reflectance_stride,
    float *beam_factor, ptrdiff_t beam_factor_stride,
    float *diffuse_factor, ptrdiff_t diffuse_factor_stride,
    float *alternative_diffuse_factor, ptrdiff_t alternative_diffuse_factor_stride);

/*
 * quorvel_diffuse_tilt_factor (CLDIFRAD): Diffuse irradiance of the sky on a tilted surface without
 *     circumsolar part, by that on the horizontal.
 * Given:
 *     day              int32_t        1 .. 366        day of the year
 *     solar_altitude   float    rad   0 .. 1.5707964  solar altitude
 *     beam_horizontal  float    W/m²  from 0          beam irradiance on the horizontal
 *     tilt             float    rad   0 .. 3.1416     tilt from the horizontal
 *     sky_model        int32_t        selector        model of the sky: 0 radiance index by the
 *                                                     kind of sky, 1 clearness, northern Europe, 2
 *                                                     clearness, southern Europe, as any other
 *                                                     value
 * Result:
 *     1  factor, 1 for a horizontal surface
 */
QUORVEL_ARRAYS_API int32_t quorvel_diffuse_tilt_factor(
    size_t count,
    const int32_t *day, ptrdiff_t day_stride,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *beam_horizontal, ptrdiff_t beam_horizontal_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    const int32_t *sky_model, ptrdiff_t sky_model_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_slope_diffuse (CLDIFSLO): Diffuse irradiance of the sky on a tilted surface by day of the
 *     year and model of the sky.
 * Given:
 *     day                 int32_t        1 .. 366        day of the year
 *     solar_altitude      float    rad   0 .. 1.5707964  solar altitude
 *     solar_azimuth       float    rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth     float    rad   0 .. 6.2832     azimuth of the surface's outward normal
 *     tilt                float    rad   0 .. 3.1416     tilt from the horizontal
 *     beam_horizontal     float    W/m²  from 0          beam irradiance on the horizontal
 *     diffuse_horizontal  float    W/m²  from 0          diffuse irradiance on the horizontal
 *     sky_model           int32_t        selector        model of the sky: 0 radiance index by the
 *                                                        kind of sky, 1 clearness, northern Europe,
 *                                                        2 clearness, southern Europe, as any other
 *                                                        value
 * Result:
 *     W/m²  diffuse irradiance of the sky on the surface
 */
QUORVEL_ARRAYS_API int32_t quorvel_slope_diffuse(
    size_t count,
    const int32_t *day, ptrdiff_t day_stride,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *solar_azimuth, ptrdiff_t solar_azimuth_stride,
    const float *surface_azimuth, ptrdiff_t surface_azimuth_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    const float *beam_horizontal, ptrdiff_t beam_horizontal_stride,
    const float *diffuse_horizontal, ptrdiff_t diffuse_horizontal_stride,
    const int32_t *sky_model, ptrdiff_t sky_model_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_sol_air_temperature (CLTEO): Temperature of the sol-air kind: a base temperature raised
 *     by a net gain of heat.
 * Given:
 *     base_temperature     float  °C     -100 .. 200  base temperature, as of the air outdoors
 *     surface_coefficient  float  W/m²K  from 0       heat transfer coefficient of the surface
 *     absorptance          float  1      0 .. 1       absorptance
 *     irradiance           float  W/m²   from 0       solar irradiance on the surface
 *     long_wave_loss       float  W/m²   from 0       net loss
 * Result:
 *     °C  sol-air temperature
 */
QUORVEL_ARRAYS_API int32_t quorvel_sol_air_temperature(
    size_t count,
    const float *base_temperature, ptrdiff_t base_temperature_stride,
    const float *surface_coefficient, ptrdiff_t surface_coefficient_stride,
    const float *absorptance, ptrdiff_t absorptance_stride,
    const float *irradiance, ptrdiff_t irradiance_stride,
    const float *long_wave_loss, ptrdiff_t long_wave_loss_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_long_wave_loss (CLRERD): Net long-wave radiation that a surface loses to its
 *     surroundings, never negative.
 * Given:
 *     tilt         float  rad  0 .. 3.1416  tilt from the horizontal
 *     cloud_cover  float  1    0 .. 1       share of the sky that is covered by cloud
 * Result:
 *     W/m²  net loss
 */
QUORVEL_ARRAYS_API int32_t quorvel_long_wave_loss(
    size_t count,
    const float *tilt, ptrdiff_t tilt_stride,
    const float *cloud_cover, ptrdiff_t cloud_cover_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_solar_time_correction (CLTCOR): What is to be added to clock time to get solar time.
 * Given:
 *     clock_offset         float    h    any                hours by which the clock is put
 *                                                           forward, as in summer time
 *     day                  int32_t       1 .. 366           day of the year
 *     longitude            float    rad  -3.1416 .. 3.1416  longitude of the site, positive west
 *     reference_longitude  float    rad  -3.1416 .. 3.1416  longitude of the clock's meridian,
 *                                                           positive west
 * Result:
 *     h  correction
 */
QUORVEL_ARRAYS_API int32_t quorvel_solar_time_correction(
    size_t count,
    const float *clock_offset, ptrdiff_t clock_offset_stride,
    const int32_t *day, ptrdiff_t day_stride,
    const float *longitude, ptrdiff_t longitude_stride,
    const float *reference_longitude, ptrdiff_t reference_longitude_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_almanac_position (CLYALLOP): Altitude, azimuth and declination of the sun by calendar
 *     date and clock.
 * Given:
 *     time_kind      int32_t       selector                 what the time is: 1 solar time;
 *                                                           longitude and zone meridian are set to
 *                                                           0, 2 clock of the zone, at the
 *                                                           longitude, 3 solar time; the zone
 *                                                           meridian only dates the declination
 *     year           int32_t       1976 .. 2099             year
 *     month          int32_t       1 .. 12                  month
 *     day_of_month   int32_t       1 .. 31                  day of the month
 *     clock_time     float    h    0 .. 24                  clock hour
 *     latitude       float    rad  -1.5707964 .. 1.5707964  latitude, positive north
 *     longitude      float    rad  -3.1416 .. 3.1416        longitude, positive west
 *     zone_meridian  float    rad  -3.1416 .. 3.1416        longitude of the clock's meridian,
 *                                                           positive west
 * Returned:
 *     longitude       float  rad  -3.1416 .. 3.1416  longitude, positive west; left as it was
 *                                                    except with solar time
 *     zone_meridian   float  rad  -3.1416 .. 3.1416  longitude of the clock's meridian, positive
 *                                                    west; left as it was except with solar time
 *     solar_altitude  float  rad                     altitude, negative below the horizon; no
 *                                                    refraction
 *     solar_azimuth   float  rad                     azimuth
 *     declination     float  rad                     declination
 */
QUORVEL_ARRAYS_API int32_t quorvel_almanac_position(
    size_t count,
    const int32_t *time_kind, ptrdiff_t time_kind_stride,
    const int32_t *year, ptrdiff_t year_stride,
    const int32_t *month, ptrdiff_t month_stride,
    const int32_t *day_of_month, ptrdiff_t day_of_month_stride,
    const float *clock_time, ptrdiff_t clock_time_stride,
    const float *latitude, ptrdiff_t latitude_stride,
    const float *longitude, ptrdiff_t longitude_stride,
    const float *zone_meridian, ptrdiff_t zone_meridian_stride,
    float *new_longitude, ptrdiff_t new_longitude_stride,
    float *new_zone_meridian, ptrdiff_t new_zone_meridian_stride,
    float *solar_altitude, ptrdiff_t solar_altitude_stride,
    float *solar_azimuth, ptrdiff_t solar_azimuth_stride,
    float *declination, ptrdiff_t declination_stride);

/*
 * quorvel_almanac_sun_hours (CLRISESET): Sunrise and sunset in solar time by calendar date.
 * Given:
 *     year          int32_t       1976 .. 2099             year
 *     month         int32_t       1 .. 12                  month
 *     day_of_month  int32_t       1 .. 31                  day of the month
 *     latitude      float    rad  -1.5707964 .. 1.5707964  latitude, positive north
 * Returned:
 *     sunrise  float  h    sunrise; 25 when the sun does not rise, 0 when it does not set
 *     sunset   float  h    sunset; 25 when the sun does not set, 0 when it does not rise
 */
QUORVEL_ARRAYS_API int32_t quorvel_almanac_sun_hours(
    size_t count,
    const int32_t *year, ptrdiff_t year_stride,
    const int32_t *month, ptrdiff_t month_stride,
    const int32_t *day_of_month, ptrdiff_t day_of_month_stride,
    const float *latitude, ptrdiff_t latitude_stride,
    float *sunrise, ptrdiff_t sunrise_stride,
    float *sunset, ptrdiff_t sunset_stride);

/*
 * quorvel_solar_geometry (CLSNGE): Declination, altitude and azimuth of the sun, sunrise and
 *     sunset, by latitude, day of the year and solar hour.
 * Given:
 *     latitude    float    rad  -1.5707964 .. 1.5707964  latitude, positive north
 *     day         int32_t       1 .. 365                 day of the year
 *     solar_time  float    h    0 .. 24                  solar time, noon at 12
 * Returned:
 *     declination     float  rad    declination
 *     solar_altitude  float  rad    altitude, 0 when the sun is below the horizon
 *     solar_azimuth   float  rad    azimuth, 0 when the sun is below the horizon
 *     sunrise         float  h      sunrise; 25 when the sun does not rise, 0 when it does not set;
 *                                   left as it was with latitude, day or hour outside its range
 *     sunset          float  h      sunset; 25 when the sun does not set, 0 when it does not rise;
 *                                   left as it was with latitude, day or hour outside its range
 */
QUORVEL_ARRAYS_API int32_t quorvel_solar_geometry(
    size_t count,
    const float *latitude, ptrdiff_t latitude_stride,
    const int32_t *day, ptrdiff_t day_stride,
    const float *solar_time, ptrdiff_t solar_time_stride,
    float *declination, ptrdiff_t declination_stride,
    float *solar_altitude, ptrdiff_t solar_altitude_stride,
    float *solar_azimuth, ptrdiff_t solar_azimuth_stride,
    float *sunrise, ptrdiff_t sunrise_stride,
    float *sunset, ptrdiff_t sunset_stride);

/*
 * quorvel_surface_angles (CLSNSR): Angle of incidence of the sun on a surface, and its angles in
 *     the vertical and the horizontal sense.
 * Given:
 *     solar_altitude   float  rad  -1.5707964 .. 1.5707964  solar altitude
 *     solar_azimuth    float  rad  0 .. 6.2832              solar azimuth
 *     surface_azimuth  float  rad  0 .. 6.2832              azimuth of the surface's outward normal
 *     tilt             float  rad  0 .. 3.1416              tilt from the horizontal
 * Returned:
 *     incidence                float  rad    angle of incidence, 0 to pi; above pi/2 the sun is
 *                                            behind the surface
 *     vertical_shadow_angle    float  rad    angle off the normal in the plane of normal and slope,
 *                                            positive up the slope; the profile angle of a vertical
 *                                            surface
 *     horizontal_shadow_angle  float  rad    angle off the normal in the plane of normal and level
 *                                            line, positive clockwise seen from above
 */
QUORVEL_ARRAYS_API int32_t quorvel_surface_angles(
    size_t count,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *solar_azimuth, ptrdiff_t solar_azimuth_stride,
    const float *surface_azimuth, ptrdiff_t surface_azimuth_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    float *incidence, ptrdiff_t incidence_stride,
    float *vertical_shadow_angle, ptrdiff_t vertical_shadow_angle_stride,
    float *horizontal_shadow_angle, ptrdiff_t horizontal_shadow_angle_stride);

/*
 * quorvel_surface_irradiance (CLSORD): Irradiance on the plane of a surface: direct from the sun,
 *     diffuse from the sky, reflected from the ground.
 * Given:
 *     solar_altitude      float  rad   0 .. 1.5707964  solar altitude
 *     solar_azimuth       float  rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth     float  rad   0 .. 6.2832     azimuth of the surface's outward normal
 *     tilt                float  rad   0 .. 3.1416     tilt from the horizontal
 *     direct_normal       float  W/m²  from 0          direct normal irradiance
 *     diffuse_horizontal  float  W/m²  from 0          diffuse irradiance on the horizontal
 *     ground_reflectance  float  1     0 .. 1          reflectance of the ground
 *     beam_factor         float  1     from 0          factor on the direct normal irradiance
 *     diffuse_factor      float  1     from 0          factor on the diffuse horizontal irradiance
 * Returned:
 *     surface_beam      float  W/m²    beam irradiance on the surface, 0 with the sun behind it
 *     surface_diffuse   float  W/m²    diffuse irradiance of the sky on the surface
 *     ground_reflected  float  W/m²    ground-reflected irradiance on the surface
 */
QUORVEL_ARRAYS_API int32_t quorvel_surface_irradiance(
    size_t count,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *solar_azimuth, ptrdiff_t solar_azimuth_stride,
    const float *surface_azimuth, ptrdiff_t surface_azimuth_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    const float *direct_normal, ptrdiff_t direct_normal_stride,
    const float *diffuse_horizontal, ptrdiff_t diffuse_horizontal_stride,
    const float *ground_reflectance, ptrdiff_t ground_reflectance_stride,
    const float *beam_factor, ptrdiff_t beam_factor_stride,
    const float *diffuse_factor, ptrdiff_t diffuse_factor_stride,
    float *surface_beam, ptrdiff_t surface_beam_stride,
    float *surface_diffuse, ptrdiff_t surface_diffuse_stride,
    float *ground_reflected, ptrdiff_t ground_reflected_stride);

/*
 * quorvel_surface_irradiance_and_incidence (CLSOR2): Irradiance on the plane of a surface as
 *     CLSORD, and the angle of incidence.
 * Given:
 *     solar_altitude      float  rad   0 .. 1.5707964  solar altitude
 *     solar_azimuth       float  rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth     float  rad   0 .. 6.2832     azimuth of the surface's outward normal
 *     tilt                float  rad   0 .. 3.1416     tilt from the horizontal
 *     direct_normal       float  W/m²  from 0          direct normal irradiance
 *     diffuse_horizontal  float  W/m²  from 0          diffuse irradiance on the horizontal
 *     ground_reflectance  float  1     0 .. 1          reflectance of the ground
 *     beam_factor         float  1     from 0          factor on the direct normal irradiance
 *     diffuse_factor      float  1     from 0          factor on the diffuse horizontal irradiance
 * Returned:
 *     surface_beam      float  W/m²    beam irradiance on the surface, 0 with the sun behind it
 *     surface_diffuse   float  W/m²    diffuse irradiance of the sky on the surface
 *     ground_reflected  float  W/m²    ground-reflected irradiance on the surface
 *     incidence         float  rad     angle of incidence, 1.5707964 with the sun behind the
 *                                      surface
 */
QUORVEL_ARRAYS_API int32_t quorvel_surface_irradiance_and_incidence(
    size_t count,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *solar_azimuth, ptrdiff_t solar_azimuth_stride,
    const float *surface_azimuth, ptrdiff_t surface_azimuth_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    const float *direct_normal, ptrdiff_t direct_normal_stride,
    const float *diffuse_horizontal, ptrdiff_t diffuse_horizontal_stride,
    const float *ground_reflectance, ptrdiff_t ground_reflectance_stride,
    const float *beam_factor, ptrdiff_t beam_factor_stride,
    const float *diffuse_factor, ptrdiff_t diffuse_factor_stride,
    float *surface_beam, ptrdiff_t surface_beam_stride,
    float *surface_diffuse, ptrdiff_t surface_diffuse_stride,
    float *ground_reflected, ptrdiff_t ground_reflected_stride,
    float *incidence, ptrdiff_t incidence_stride);

/* ---- Geometry -------------------------------------------------------------------------------- */

/*
 * quorvel_clip (HOHOLEDP): Difference A - B and overlap of two simple polygons A and B in plan, in
 *     double precision.
 * Given:
 *     x                    double   m  any        x of the pool of points; new points are appended
 *                                                 [point_capacity]
 *     y                    double   m  any        y of the pool of points [point_capacity]
 *     vertices_a           int32_t     from 3     number of vertices of A, from 3
 *     positions_a          int32_t     from 1     vertices of A: positions in the pool, from 1
 *                                                 [vertices_a]
 *     vertices_b           int32_t     from 3     number of vertices of B, from 3
 *     positions_b          int32_t     from 1     vertices of B [vertices_b]
 *     point_capacity       int32_t     from 0     capacity of the pool
 *     crossing_capacity    int32_t     0 .. 1024  most crossings of A and B to deal with, up to
 *                                                 1024
 *     difference_capacity  int32_t     from 0     capacity of difference_pieces
 *     overlap_capacity     int32_t     from 0     capacity of overlap_pieces
 *     used_points          int32_t     from 1     points in use in the pool
 * Returned:
 *     x                  double   m  any     x of the pool of points; new points are appended
 *                                            [point_capacity]
 *     y                  double   m  any     y of the pool of points [point_capacity]
 *     used_points        int32_t     from 1  points in use in the pool
 *     difference_pieces  int32_t             pieces of A - B [difference_capacity]; left as it was
 *                                            with a status other than 0
 *     overlap_pieces     int32_t             pieces of the overlap [overlap_capacity]; left as it
 *                                            was with a status other than 0
 *     status             int32_t             0 success, else what went wrong
 */
QUORVEL_ARRAYS_API int32_t quorvel_clip(
    size_t count,
    const double *x, ptrdiff_t x_stride,
    const double *y, ptrdiff_t y_stride,
    const int32_t *vertices_a, ptrdiff_t vertices_a_stride,
    const int32_t *positions_a, ptrdiff_t positions_a_stride,
    const int32_t *vertices_b, ptrdiff_t vertices_b_stride,
    const int32_t *positions_b, ptrdiff_t positions_b_stride,
    const int32_t *point_capacity, ptrdiff_t point_capacity_stride,
    const int32_t *crossing_capacity, ptrdiff_t crossing_capacity_stride,
    const int32_t *difference_capacity, ptrdiff_t difference_capacity_stride,
    const int32_t *overlap_capacity, ptrdiff_t overlap_capacity_stride,
    const int32_t *used_points, ptrdiff_t used_points_stride,
    double *new_x, ptrdiff_t new_x_stride,
    double *new_y, ptrdiff_t new_y_stride,
    int32_t *new_used_points, ptrdiff_t new_used_points_stride,
    int32_t *difference_pieces, ptrdiff_t difference_pieces_stride,
    int32_t *overlap_pieces, ptrdiff_t overlap_pieces_stride,
    int32_t *status, ptrdiff_t status_stride);

/*
 * quorvel_overlap (GEOVER): Pieces and area of the overlap of two simple polygons in plan.
 * Given:
 *     x_1         float    m  any     x of polygon 1 [vertices_1]
 *     y_1         float    m  any     y of polygon 1 [vertices_1]
 *     vertices_1  int32_t     from 3  number of vertices of polygon 1, from 3
 *     x_2         float    m  any     x of polygon 2 [vertices_2]
 *     y_2         float    m  any     y of polygon 2 [vertices_2]
 *     vertices_2  int32_t     from 3  number of vertices of polygon 2, from 3
 * Returned:
 *     piece_x         float    m     x of the vertices of the pieces, a column each; 0 beyond them
 *                                    [25, 5]
 *     piece_y         float    m     y of the vertices of the pieces [25, 5]
 *     piece_vertices  int32_t        number of vertices of each piece, 0 beyond the last [5]
 *     area            float    m²    area of the overlap
 */
QUORVEL_ARRAYS_API int32_t quorvel_overlap(
    size_t count,
    const float *x_1, ptrdiff_t x_1_stride,
    const float *y_1, ptrdiff_t y_1_stride,
    const int32_t *vertices_1, ptrdiff_t vertices_1_stride,
    const float *x_2, ptrdiff_t x_2_stride,
    const float *y_2, ptrdiff_t y_2_stride,
    const int32_t *vertices_2, ptrdiff_t vertices_2_stride,
    float *piece_x, ptrdiff_t piece_x_stride,
    float *piece_y, ptrdiff_t piece_y_stride,
    int32_t *piece_vertices, ptrdiff_t piece_vertices_stride,
    float *area, ptrdiff_t area_stride);

/*
 * quorvel_overlap_alias (GEHOLE): The same as GEOVER.
 * Given:
 *     x_1         float    m  any     x of polygon 1 [vertices_1]
 *     y_1         float    m  any     y of polygon 1 [vertices_1]
 *     vertices_1  int32_t     from 3  number of vertices of polygon 1, from 3
 *     x_2         float    m  any     x of polygon 2 [vertices_2]
 *     y_2         float    m  any     y of polygon 2 [vertices_2]
 *     vertices_2  int32_t     from 3  number of vertices of polygon 2, from 3
 * Returned:
 *     piece_x         float    m     x of the vertices of the pieces, a column each; 0 beyond them
 *                                    [25, 5]
 *     piece_y         float    m     y of the vertices of the pieces [25, 5]
 *     piece_vertices  int32_t        number of vertices of each piece, 0 beyond the last [5]
 *     area            float    m²    area of the overlap
 */
QUORVEL_ARRAYS_API int32_t quorvel_overlap_alias(
    size_t count,
    const float *x_1, ptrdiff_t x_1_stride,
    const float *y_1, ptrdiff_t y_1_stride,
    const int32_t *vertices_1, ptrdiff_t vertices_1_stride,
    const float *x_2, ptrdiff_t x_2_stride,
    const float *y_2, ptrdiff_t y_2_stride,
    const int32_t *vertices_2, ptrdiff_t vertices_2_stride,
    float *piece_x, ptrdiff_t piece_x_stride,
    float *piece_y, ptrdiff_t piece_y_stride,
    int32_t *piece_vertices, ptrdiff_t piece_vertices_stride,
    float *area, ptrdiff_t area_stride);

/*
 * quorvel_collinearity (IGELIN): Whether points in plan lie on one straight line.
 * Given:
 *     x       float    m  any     x of the vertices [points]
 *     y       float    m  any     y of the vertices [points]
 *     points  int32_t     from 1  number of points
 * Result:
 *   1 on one line; otherwise the number, counted from 1, of the first point whose y differs from
 *         that of the first of all
 */
QUORVEL_ARRAYS_API int32_t quorvel_collinearity(
    size_t count,
    const float *x, ptrdiff_t x_stride,
    const float *y, ptrdiff_t y_stride,
    const int32_t *points, ptrdiff_t points_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_count_enclosed (GECLOS): How many points lie in a convex polygon with clockwise vertices
 *     or on its boundary, and which.
 * Given:
 *     x         float    m  any       x of the vertices [vertices]
 *     y         float    m  any       y of the vertices [vertices]
 *     vertices  int32_t     from 3    number of vertices
 *     point_x   float    m  any       x of the points [points]
 *     point_y   float    m  any       y of the points [points]
 *     points    int32_t     from 1    number of points
 *     enclosed  int32_t     selector  1 for points that are enclosed: 0 not enclosed, 1 enclosed
 *                                     [points]
 * Returned:
 *     enclosed         int32_t    selector  1 for points that are enclosed: 0 not enclosed, 1
 *                                           enclosed [points]; left as it was for points that are
 *                                           not enclosed
 *     enclosed_points  int32_t              number of enclosed points
 */
QUORVEL_ARRAYS_API int32_t quorvel_count_enclosed(
    size_t count,
    const float *x, ptrdiff_t x_stride,
    const float *y, ptrdiff_t y_stride,
    const int32_t *vertices, ptrdiff_t vertices_stride,
    const float *point_x, ptrdiff_t point_x_stride,
    const float *point_y, ptrdiff_t point_y_stride,
    const int32_t *points, ptrdiff_t points_stride,
    const int32_t *enclosed, ptrdiff_t enclosed_stride,
    int32_t *new_enclosed, ptrdiff_t new_enclosed_stride,
    int32_t *enclosed_points, ptrdiff_t enclosed_points_stride);

/*
 * quorvel_boundary_crossing (GESIDE): Where a segment crosses the boundary of a polygon in plan.
 * Given:
 *     segment_start  float    m  any     start of the segment [2]
 *     segment_end    float    m  any     end of the segment [2]
 *     x              float    m  any     x of the vertices [vertices]
 *     y              float    m  any     y of the vertices [vertices]
 *     vertices       int32_t     from 3  number of vertices
 * Returned:
 *     crossing_point  float    m    crossing point, or what the notes say [2]; 1e20 for none
 *     crossing_code   int32_t       number, counted from 1, of the vertex that ends the crossed
 *                                   edge, or what the notes say
 */
QUORVEL_ARRAYS_API int32_t quorvel_boundary_crossing(
    size_t count,
    const float *segment_start, ptrdiff_t segment_start_stride,
    const float *segment_end, ptrdiff_t segment_end_stride,
    const float *x, ptrdiff_t x_stride,
    const float *y, ptrdiff_t y_stride,
    const int32_t *vertices, ptrdiff_t vertices_stride,
    float *crossing_point, ptrdiff_t crossing_point_stride,
    int32_t *crossing_code, ptrdiff_t crossing_code_stride);

/*
 * quorvel_inside (GEINSI): Whether a point in the plane of a polygon in space lies inside or on its
 *     boundary.
 * Given:
 *     point     float    m  any     point [3]
 *     polygon   float    m  any     vertices, the last of which repeats the first [3, vertices]
 *     vertices  int32_t     from 4  number of vertices, the repeated one included
 * Returned:
 *     inside  int32_t      1 inside, 0 outside
 */
QUORVEL_ARRAYS_API int32_t quorvel_inside(
    size_t count,
    const float *point, ptrdiff_t point_stride,
    const float *polygon, ptrdiff_t polygon_stride,
    const int32_t *vertices, ptrdiff_t vertices_stride,
    int32_t *inside, ptrdiff_t inside_stride);

/*
 * quorvel_parallel_planes (GEPLEL): Whether the planes of two triangles are parallel.
 * Given:
 *     triangle_1  double  m  any  corners of one triangle [3, 3]
 *     triangle_2  double  m  any  corners of the other [3, 3]
 * Result:
 *   whether they are parallel; -1 if so, else 0
 */
QUORVEL_ARRAYS_API int32_t quorvel_parallel_planes(
    size_t count,
    const double *triangle_1, ptrdiff_t triangle_1_stride,
    const double *triangle_2, ptrdiff_t triangle_2_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_parallel_sides (GEPSID): Whether two triangles have parallel sides, and which.
 * Given:
 *     triangle_1  double  m  any  corners of one triangle [3, 3]
 *     triangle_2  double  m  any  corners of the other [3, 3]
 * Result:
 *   whether there are any; -1 if so, else 0
 * Returned:
 *     side_1  int32_t      side of one triangle: 1 between its first two corners, 2 between its
 *                          last two; 3 none
 *     side_2  int32_t      side of the other, likewise
 */
QUORVEL_ARRAYS_API int32_t quorvel_parallel_sides(
    size_t count,
    const double *triangle_1, ptrdiff_t triangle_1_stride,
    const double *triangle_2, ptrdiff_t triangle_2_stride,
    int32_t *result, ptrdiff_t result_stride,
    int32_t *side_1, ptrdiff_t side_1_stride,
    int32_t *side_2, ptrdiff_t side_2_stride);

/*
 * quorvel_rectangular (GERECT): Whether a quadrilateral is rectangular.
 * Given:
 *     quadrilateral  double  m  any  corners in turn [3, 4]
 * Result:
 *   whether it is rectangular; -1 if so, else 0
 */
QUORVEL_ARRAYS_API int32_t quorvel_rectangular(
    size_t count,
    const double *quadrilateral, ptrdiff_t quadrilateral_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_facing (GETILT): Azimuth and tilt of the plane of a triangle.
 * Given:
 *     triangle  double  m  any          corners, clockwise seen from outside [3, 3]
 *     azimuth   double  °  0 .. 6.2832  azimuth of the outward normal; given, what a level triangle
 *                                       gets, in radians
 * Returned:
 *     azimuth  double  °  0 .. 6.2832  azimuth of the outward normal; given, what a level triangle
 *                                      gets, in radians
 *     tilt     double  °               tilt: 0 horizontal facing up, 90 vertical, 180 facing down
 */
QUORVEL_ARRAYS_API int32_t quorvel_facing(
    size_t count,
    const double *triangle, ptrdiff_t triangle_stride,
    const double *azimuth, ptrdiff_t azimuth_stride,
    double *new_azimuth, ptrdiff_t new_azimuth_stride,
    double *tilt, ptrdiff_t tilt_stride);

/*
 * quorvel_local_coordinates (GELCAL): Two quadrilaterals in local coordinates of the first.
 * Given:
 *     quadrilateral_1  double  m  any  corners of the first [3, 4]
 *     quadrilateral_2  double  m  any  corners of the second [3, 4]
 * Returned:
 *     local_1  double  m    the first in local coordinates [3, 4]
 *     local_2  double  m    the second in local coordinates [3, 4]
 */
QUORVEL_ARRAYS_API int32_t quorvel_local_coordinates(
    size_t count,
    const double *quadrilateral_1, ptrdiff_t quadrilateral_1_stride,
    const double *quadrilateral_2, ptrdiff_t quadrilateral_2_stride,
    double *local_1, ptrdiff_t local_1_stride,
    double *local_2, ptrdiff_t local_2_stride);

/*
 * quorvel_to_local (GETRNS): Components of each of four points along three axes.
 * Given:
 *     corners  double  m  any  points [3, 4]
 *     x_axis   double  1  any  x axis [3]
 *     y_axis   double  1  any  y axis [3]
 *     z_axis   double  1  any  z axis [3]
 * Returned:
 *     corners  double  m  any  points [3, 4]
 */
QUORVEL_ARRAYS_API int32_t quorvel_to_local(
    size_t count,
    const double *corners, ptrdiff_t corners_stride,
    const double *x_axis, ptrdiff_t x_axis_stride,
    const double *y_axis, ptrdiff_t y_axis_stride,
    const double *z_axis, ptrdiff_t z_axis_stride,
    double *new_corners, ptrdiff_t new_corners_stride);

/*
 * quorvel_meeting_point (GEMEET): Where two infinite lines in plan meet.
 * Given:
 *     line_1_start  float  m  any  point of line 1 [2]
 *     line_1_end    float  m  any  another point of line 1 [2]
 *     line_2_start  float  m  any  point of line 2 [2]
 *     line_2_end    float  m  any  another point of line 2 [2]
 * Returned:
 *     meeting_point  float  m    meeting point [2]; 1e20 for none
 */
QUORVEL_ARRAYS_API int32_t quorvel_meeting_point(
    size_t count,
    const float *line_1_start, ptrdiff_t line_1_start_stride,
    const float *line_1_end, ptrdiff_t line_1_end_stride,
    const float *line_2_start, ptrdiff_t line_2_start_stride,
    const float *line_2_end, ptrdiff_t line_2_end_stride,
    float *meeting_point, ptrdiff_t meeting_point_stride);

/*
 * quorvel_crossing_point (GECROS): Where two segments in plan cross or touch.
 * Given:
 *     segment_1_start  float  m  any  start of segment 1 [2]
 *     segment_1_end    float  m  any  end of segment 1 [2]
 *     segment_2_start  float  m  any  start of segment 2 [2]
 *     segment_2_end    float  m  any  end of segment 2 [2]
 * Returned:
 *     crossing_point  float  m    crossing point [2]; 1e20 for none
 */
QUORVEL_ARRAYS_API int32_t quorvel_crossing_point(
    size_t count,
    const float *segment_1_start, ptrdiff_t segment_1_start_stride,
    const float *segment_1_end, ptrdiff_t segment_1_end_stride,
    const float *segment_2_start, ptrdiff_t segment_2_start_stride,
    const float *segment_2_end, ptrdiff_t segment_2_end_stride,
    float *crossing_point, ptrdiff_t crossing_point_stride);

/*
 * quorvel_in_span (GEINLN): Whether a point of the line AB lies between A and B.
 * Given:
 *     first_end   float  m  any  one end [3]
 *     second_end  float  m  any  other end [3]
 *     point       float  m  any  point on the line AB [3]
 * Result:
 *     1  1 between them or at an end, else 0
 */
QUORVEL_ARRAYS_API int32_t quorvel_in_span(
    size_t count,
    const float *first_end, ptrdiff_t first_end_stride,
    const float *second_end, ptrdiff_t second_end_stride,
    const float *point, ptrdiff_t point_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_ahead_and_nearer (GEINLN2): Whether a point lies on B's side of A and nearer to A than B
 *     does.
 * Given:
 *     first_end   float  m  any  one end [3]
 *     second_end  float  m  any  other end [3]
 *     point       float  m  any  point [3]
 * Result:
 *     1  1 if so, else 0
 */
QUORVEL_ARRAYS_API int32_t quorvel_ahead_and_nearer(
    size_t count,
    const float *first_end, ptrdiff_t first_end_stride,
    const float *second_end, ptrdiff_t second_end_stride,
    const float *point, ptrdiff_t point_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_coincide (GECOIN): Whether two points in plan coincide.
 * Given:
 *     x_1  float  m  any  x of one point
 *     y_1  float  m  any  y of one point
 *     x_2  float  m  any  x of the other
 *     y_2  float  m  any  y of the other
 * Result:
 *   whether both coordinates differ by less than 1e-5; -1 if so, else 0
 */
QUORVEL_ARRAYS_API int32_t quorvel_coincide(
    size_t count,
    const float *x_1, ptrdiff_t x_1_stride,
    const float *y_1, ptrdiff_t y_1_stride,
    const float *x_2, ptrdiff_t x_2_stride,
    const float *y_2, ptrdiff_t y_2_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_side_of_line (IGEPNT): Side of a directed line in plan on which a point lies.
 * Given:
 *     line_start  float  m  any  start of the line [2]
 *     line_end    float  m  any  point towards which it runs [2]
 *     point       float  m  any  point [2]
 * Result:
 *   1 right of the line, -1 left of it, 0 nearer to it than 1e-5
 */
QUORVEL_ARRAYS_API int32_t quorvel_side_of_line(
    size_t count,
    const float *line_start, ptrdiff_t line_start_stride,
    const float *line_end, ptrdiff_t line_end_stride,
    const float *point, ptrdiff_t point_stride,
    int32_t *result, ptrdiff_t result_stride);

/*
 * quorvel_back_azimuth (BORI): Azimuth opposite to a direction that is given by its angle from
 *     east, anticlockwise; also the angle of an azimuth.
 * Given:
 *     angle  float  °  0 .. 360  angle from east, anticlockwise, or azimuth
 * Result:
 *     °  azimuth of the opposite direction, or angle of it
 */
QUORVEL_ARRAYS_API int32_t quorvel_back_azimuth(
    size_t count,
    const float *angle, ptrdiff_t angle_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_direction_to (GESUNV): Unit vector of a direction, such as that to the sun.
 * Given:
 *     solar_altitude  float  rad  -1.5708 .. 1.5708  altitude
 *     solar_azimuth   float  rad  0 .. 6.2832        azimuth
 * Returned:
 *     direction  float  1    direction [3]
 */
QUORVEL_ARRAYS_API int32_t quorvel_direction_to(
    size_t count,
    const float *solar_altitude, ptrdiff_t solar_altitude_stride,
    const float *solar_azimuth, ptrdiff_t solar_azimuth_stride,
    float *direction, ptrdiff_t direction_stride);

/*
 * quorvel_surface_axes (GERSET): Rotation matrix of a surface, from local to global coordinates,
 *     and its inverse.
 * Given:
 *     surface_azimuth  float  rad  0 .. 6.2832  azimuth of the surface's outward normal
 *     tilt             float  rad  0 .. 3.1416  tilt: 0 horizontal facing up, pi/2 vertical
 * Returned:
 *     rotation_matrix  float  1    matrix; its columns are the local axes in global coordinates [3,
 *                                  3]
 *     inverse_matrix   float  1    inverse of it [3, 3]
 */
QUORVEL_ARRAYS_API int32_t quorvel_surface_axes(
    size_t count,
    const float *surface_azimuth, ptrdiff_t surface_azimuth_stride,
    const float *tilt, ptrdiff_t tilt_stride,
    float *rotation_matrix, ptrdiff_t rotation_matrix_stride,
    float *inverse_matrix, ptrdiff_t inverse_matrix_stride);

/*
 * quorvel_local_to_global (GERAXI): Local to global coordinates: the rotation matrix times the
 *     vector.
 * Given:
 *     local_vector     float  m  any      vector in local coordinates [3]
 *     rotation_matrix  float  1  -1 .. 1  rotation matrix [3, 3]
 * Returned:
 *     global_vector  float  m    vector in global coordinates [3]
 */
QUORVEL_ARRAYS_API int32_t quorvel_local_to_global(
    size_t count,
    const float *local_vector, ptrdiff_t local_vector_stride,
    const float *rotation_matrix, ptrdiff_t rotation_matrix_stride,
    float *global_vector, ptrdiff_t global_vector_stride);

/*
 * quorvel_global_to_local (GERAX2): Global to local coordinates: the transpose of the rotation
 *     matrix times the vector.
 * Given:
 *     global_vector    float  m  any      vector in global coordinates [3]
 *     rotation_matrix  float  1  -1 .. 1  rotation matrix [3, 3]
 * Returned:
 *     local_vector  float  m    vector in local coordinates [3]
 */
QUORVEL_ARRAYS_API int32_t quorvel_global_to_local(
    size_t count,
    const float *global_vector, ptrdiff_t global_vector_stride,
    const float *rotation_matrix, ptrdiff_t rotation_matrix_stride,
    float *local_vector, ptrdiff_t local_vector_stride);

/*
 * quorvel_plan_area (GEAPOL): Area of a polygon in plan.
 * Given:
 *     x         float    m  any     x of the vertices [vertices]
 *     y         float    m  any     y of the vertices [vertices]
 *     vertices  int32_t     from 3  number of vertices
 * Result:
 *     m²  area
 */
QUORVEL_ARRAYS_API int32_t quorvel_plan_area(
    size_t count,
    const float *x, ptrdiff_t x_stride,
    const float *y, ptrdiff_t y_stride,
    const int32_t *vertices, ptrdiff_t vertices_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_signed_plan_area (GEAPO2): Area of a polygon in plan, positive for clockwise vertices.
 * Given:
 *     x         float    m  any     x of the vertices [vertices]
 *     y         float    m  any     y of the vertices [vertices]
 *     vertices  int32_t     from 3  number of vertices
 * Result:
 *     m²  area, negative for anticlockwise vertices
 */
QUORVEL_ARRAYS_API int32_t quorvel_signed_plan_area(
    size_t count,
    const float *x, ptrdiff_t x_stride,
    const float *y, ptrdiff_t y_stride,
    const int32_t *vertices, ptrdiff_t vertices_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_area_in_space (GEAPO3): Area of a plane polygon in space.
 * Given:
 *     x         float    m  any     x of the vertices [vertices]
 *     y         float    m  any     y of the vertices [vertices]
 *     z         float    m  any     z of the vertices [vertices]
 *     vertices  int32_t     from 3  number of vertices
 * Result:
 *     m²  area
 */
QUORVEL_ARRAYS_API int32_t quorvel_area_in_space(
    size_t count,
    const float *x, ptrdiff_t x_stride,
    const float *y, ptrdiff_t y_stride,
    const float *z, ptrdiff_t z_stride,
    const int32_t *vertices, ptrdiff_t vertices_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_polygon_orientation (GEASO): Area, tilt and orientation of a plane polygon in space.
 * Given:
 *     vertices  int32_t     from 3  number of vertices
 *     polygon   float    m  any     vertices [3, vertices]
 * Returned:
 *     area          float  m²    area, positive when the vertices run as the corner at the first
 *                                one turns
 *     tilt          float  °     angle between the normal and the vertical; left as it was with
 *                                fewer than one vertex
 *     back_azimuth  float  °     azimuth opposite to the normal; left as it was with fewer than one
 *                                vertex
 */
QUORVEL_ARRAYS_API int32_t quorvel_polygon_orientation(
    size_t count,
    const int32_t *vertices, ptrdiff_t vertices_stride,
    const float *polygon, ptrdiff_t polygon_stride,
    float *area, ptrdiff_t area_stride,
    float *tilt, ptrdiff_t tilt_stride,
    float *back_azimuth, ptrdiff_t back_azimuth_stride);

/*
 * quorvel_projection (GEPROJ): Projection of a point along a direction, forwards or backwards, onto
 *     a plane.
 * Given:
 *     plane_point   float  m  any  a point of the plane [3]
 *     plane_normal  float  1  any  normal of the plane, of any length [3]
 *     point         float  m  any  the point [3]
 *     direction     float  1  any  direction, of any length [3]
 * Returned:
 *     projected_point  float  m    projected point [3]; 1e20 for none
 */
QUORVEL_ARRAYS_API int32_t quorvel_projection(
    size_t count,
    const float *plane_point, ptrdiff_t plane_point_stride,
    const float *plane_normal, ptrdiff_t plane_normal_stride,
    const float *point, ptrdiff_t point_stride,
    const float *direction, ptrdiff_t direction_stride,
    float *projected_point, ptrdiff_t projected_point_stride);

/*
 * quorvel_forward_projection (GEPROJ2): Projection of a point along a direction, forwards only,
 *     onto a plane.
 * Given:
 *     plane_point   float  m  any  a point of the plane [3]
 *     plane_normal  float  1  any  normal of the plane, of any length [3]
 *     point         float  m  any  the point [3]
 *     direction     float  1  any  direction, of any length [3]
 * Returned:
 *     projected_point  float  m    projected point [3]; 1e20 for none
 */
QUORVEL_ARRAYS_API int32_t quorvel_forward_projection(
    size_t count,
    const float *plane_point, ptrdiff_t plane_point_stride,
    const float *plane_normal, ptrdiff_t plane_normal_stride,
    const float *point, ptrdiff_t point_stride,
    const float *direction, ptrdiff_t direction_stride,
    float *projected_point, ptrdiff_t projected_point_stride);

/*
 * quorvel_forward_projection_or_start (GEPROJ3): Projection of a point along a direction onto a
 *     plane, or the point itself where the plane does not lie ahead.
 * Given:
 *     plane_point   float  m  any  a point of the plane [3]
 *     plane_normal  float  1  any  normal of the plane, of any length [3]
 *     point         float  m  any  the point [3]
 *     direction     float  1  any  direction, of any length [3]
 * Returned:
 *     projected_point  float  m    projected point, or the point itself [3]
 */
QUORVEL_ARRAYS_API int32_t quorvel_forward_projection_or_start(
    size_t count,
    const float *plane_point, ptrdiff_t plane_point_stride,
    const float *plane_normal, ptrdiff_t plane_normal_stride,
    const float *point, ptrdiff_t point_stride,
    const float *direction, ptrdiff_t direction_stride,
    float *projected_point, ptrdiff_t projected_point_stride);

/*
 * quorvel_dot_product (GEDOTP): Dot product of two vectors.
 * Given:
 *     vector_a  float  m  any  vector [3]
 *     vector_b  float  m  any  vector [3]
 * Result:
 *     m²  a . b
 */
QUORVEL_ARRAYS_API int32_t quorvel_dot_product(
    size_t count,
    const float *vector_a, ptrdiff_t vector_a_stride,
    const float *vector_b, ptrdiff_t vector_b_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_dot_product_in_double (GEDTDP): Dot product of two vectors in double precision.
 * Given:
 *     vector_a  double  m  any  vector [3]
 *     vector_b  double  m  any  vector [3]
 * Result:
 *     m²  a . b
 */
QUORVEL_ARRAYS_API int32_t quorvel_dot_product_in_double(
    size_t count,
    const double *vector_a, ptrdiff_t vector_a_stride,
    const double *vector_b, ptrdiff_t vector_b_stride,
    double *result, ptrdiff_t result_stride);

/*
 * quorvel_cross_product (GEXPRO): Cross product of two vectors.
 * Given:
 *     vector_a  float  m  any  vector [3]
 *     vector_b  float  m  any  vector [3]
 * Returned:
 *     cross_product  float  m²    a x b [3]
 */
QUORVEL_ARRAYS_API int32_t quorvel_cross_product(
    size_t count,
    const float *vector_a, ptrdiff_t vector_a_stride,
    const float *vector_b, ptrdiff_t vector_b_stride,
    float *cross_product, ptrdiff_t cross_product_stride);

/*
 * quorvel_cross_product_in_double (GEXPDP): Cross product of two vectors in double precision.
 * Given:
 *     vector_a  double  m  any  vector [3]
 *     vector_b  double  m  any  vector [3]
 * Returned:
 *     cross_product  double  m²    a x b [3]
 */
QUORVEL_ARRAYS_API int32_t quorvel_cross_product_in_double(
    size_t count,
    const double *vector_a, ptrdiff_t vector_a_stride,
    const double *vector_b, ptrdiff_t vector_b_stride,
    double *cross_product, ptrdiff_t cross_product_stride);

/*
 * quorvel_length (GEVMOD): Length of a vector.
 * Given:
 *     vector  float  m  any  vector [3]
 * Result:
 *     m  length
 */
QUORVEL_ARRAYS_API int32_t quorvel_length(
    size_t count,
    const float *vector, ptrdiff_t vector_stride,
    float *result, ptrdiff_t result_stride);

/*
 * quorvel_length_in_double (GEVMDP): Length of a vector in double precision.
 * Given:
 *     vector  double  m  any  vector [3]
 * Result:
 *     m  length
 */
QUORVEL_ARRAYS_API int32_t quorvel_length_in_double(
    size_t count,
    const double *vector, ptrdiff_t vector_stride,
    double *result, ptrdiff_t result_stride);

#ifdef __cplusplus
}
#endif

#endif /* QUORVEL_ARRAYS_H */
