// Produced from the catalogue of routines (catalogue/); do not edit.
using System;
using System.Runtime.InteropServices;

namespace Quorvel
{
    /// <summary>What the libraries export, argument by argument as in quorvel.h and quorvel_arrays.h.</summary>
    internal static partial class Native
    {
        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSHDRY(ref float temperature);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_air_enthalpy(UIntPtr count, ref float temperature,
            IntPtr temperatureStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSHVAP(ref float temperature);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_water_vapour_enthalpy(UIntPtr count, ref float temperature,
            IntPtr temperatureStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSCPDR(ref float temperature);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_air_specific_heat(UIntPtr count, ref float temperature,
            IntPtr temperatureStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSCPVA(ref float temperature);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_water_vapour_specific_heat(UIntPtr count, ref float temperature,
            IntPtr temperatureStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSHFG(ref float temperature);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_latent_heat(UIntPtr count, ref float temperature, IntPtr temperatureStride,
            ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity(UIntPtr count,
            ref float vapourPressure, IntPtr vapourPressureStride, ref float relativeHumidity,
            IntPtr relativeHumidityStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation(UIntPtr count,
            ref float vapourPressure, IntPtr vapourPressureStride, ref float percentageSaturation,
            IntPtr percentageSaturationStride, ref float pressure, IntPtr pressureStride, ref float result,
            IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_moisture_content_and_relative_humidity(UIntPtr count,
            ref float moistureContent, IntPtr moistureContentStride, ref float relativeHumidity,
            IntPtr relativeHumidityStride, ref float pressure, IntPtr pressureStride, ref float result,
            IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_moisture_content_and_percentage_saturation(UIntPtr count,
            ref float moistureContent, IntPtr moistureContentStride, ref float percentageSaturation,
            IntPtr percentageSaturationStride, ref float pressure, IntPtr pressureStride, ref float result,
            IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_enthalpy_and_moisture_content(UIntPtr count,
            ref float enthalpy, IntPtr enthalpyStride, ref float moistureContent, IntPtr moistureContentStride,
            ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_enthalpy_and_vapour_pressure(UIntPtr count, ref float enthalpy,
            IntPtr enthalpyStride, ref float vapourPressure, IntPtr vapourPressureStride, ref float pressure,
            IntPtr pressureStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_enthalpy_and_relative_humidity(UIntPtr count,
            ref float enthalpy, IntPtr enthalpyStride, ref float relativeHumidity, IntPtr relativeHumidityStride,
            ref float pressure, IntPtr pressureStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_enthalpy_and_percentage_saturation(UIntPtr count,
            ref float enthalpy, IntPtr enthalpyStride, ref float percentageSaturation,
            IntPtr percentageSaturationStride, ref float pressure, IntPtr pressureStride, ref float result,
            IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure(UIntPtr count, ref float wetBulb,
            IntPtr wetBulbStride, ref float vapourPressure, IntPtr vapourPressureStride, ref float pressure,
            IntPtr pressureStride, ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result,
            IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_wet_bulb_and_moisture_content(UIntPtr count, ref float wetBulb,
            IntPtr wetBulbStride, ref float moistureContent, IntPtr moistureContentStride, ref float pressure,
            IntPtr pressureStride, ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result,
            IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_wet_bulb_and_relative_humidity(UIntPtr count,
            ref float wetBulb, IntPtr wetBulbStride, ref float relativeHumidity, IntPtr relativeHumidityStride,
            ref float pressure, IntPtr pressureStride, ref Psychrometer psychrometer, IntPtr psychrometerStride,
            ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation(UIntPtr count,
            ref float wetBulb, IntPtr wetBulbStride, ref float percentageSaturation, IntPtr percentageSaturationStride,
            ref float pressure, IntPtr pressureStride, ref Psychrometer psychrometer, IntPtr psychrometerStride,
            ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dry_bulb_from_wet_bulb_and_enthalpy(UIntPtr count, ref float wetBulb,
            IntPtr wetBulbStride, ref float enthalpy, IntPtr enthalpyStride, ref float pressure, IntPtr pressureStride,
            ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_adiabatic_mixing(UIntPtr count, ref float firstAirFlow,
            IntPtr firstAirFlowStride, ref float firstDryBulb, IntPtr firstDryBulbStride,
            ref float firstMoistureContent, IntPtr firstMoistureContentStride, ref float secondAirFlow,
            IntPtr secondAirFlowStride, ref float secondDryBulb, IntPtr secondDryBulbStride,
            ref float secondMoistureContent, IntPtr secondMoistureContentStride, ref float dryBulb,
            IntPtr dryBulbStride, ref float moistureContent, IntPtr moistureContentStride, ref float enthalpy,
            IntPtr enthalpyStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSGS(ref float dryBulb, ref float wetBulb, ref float pressure,
            ref Psychrometer psychrometer);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_moisture_content_from_psychrometer(UIntPtr count, ref float dryBulb,
            IntPtr dryBulbStride, ref float wetBulb, IntPtr wetBulbStride, ref float pressure, IntPtr pressureStride,
            ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_moisture_content(UIntPtr count, ref float dryBulb, IntPtr dryBulbStride,
            ref float vapourPressure, IntPtr vapourPressureStride, ref float pressure, IntPtr pressureStride,
            ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_vapour_pressure_from_moisture_content(UIntPtr count, ref float dryBulb,
            IntPtr dryBulbStride, ref float moistureContent, IntPtr moistureContentStride, ref float pressure,
            IntPtr pressureStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_moisture_content_from_percentage_saturation(UIntPtr count, ref float dryBulb,
            IntPtr dryBulbStride, ref float percentageSaturation, IntPtr percentageSaturationStride, ref float pressure,
            IntPtr pressureStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_moisture_content_from_enthalpy(UIntPtr count, ref float dryBulb,
            IntPtr dryBulbStride, ref float enthalpy, IntPtr enthalpyStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_moist_air_density(UIntPtr count, ref float dryBulb, IntPtr dryBulbStride,
            ref float moistureContent, IntPtr moistureContentStride, ref float pressure, IntPtr pressureStride,
            ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSPCST(ref float dryBulb, ref float moistureContent, ref float pressure);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_percentage_saturation(UIntPtr count, ref float dryBulb, IntPtr dryBulbStride,
            ref float moistureContent, IntPtr moistureContentStride, ref float pressure, IntPtr pressureStride,
            ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_specific_enthalpy(UIntPtr count, ref float dryBulb, IntPtr dryBulbStride,
            ref float moistureContent, IntPtr moistureContentStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSHWET(ref float dryBulb, ref float wetBulb, ref float pressure,
            ref Psychrometer psychrometer);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_specific_enthalpy_from_psychrometer(UIntPtr count, ref float dryBulb,
            IntPtr dryBulbStride, ref float wetBulb, IntPtr wetBulbStride, ref float pressure, IntPtr pressureStride,
            ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSSPVL(ref float dryBulb, ref float moistureContent, ref float pressure);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_specific_volume(UIntPtr count, ref float dryBulb, IntPtr dryBulbStride,
            ref float moistureContent, IntPtr moistureContentStride, ref float pressure, IntPtr pressureStride,
            ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSTSAT(ref float enthalpy, ref float pressure);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_saturation_temperature_from_enthalpy(UIntPtr count, ref float enthalpy,
            IntPtr enthalpyStride, ref float pressure, IntPtr pressureStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPPOOL(ref float waterArea, ref float wettedArea, ref float waterTemperature,
            ref float dryBulb, ref float moistureContent, ref float referenceTemperature, ref int bathers,
            ref float referenceCoefficient, ref float pressure, ref float evaporationRate, ref float latentLoad,
            ref float convectiveLoad, ref float referenceLoad);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_pool_evaporation(UIntPtr count, ref float waterArea, IntPtr waterAreaStride,
            ref float wettedArea, IntPtr wettedAreaStride, ref float waterTemperature, IntPtr waterTemperatureStride,
            ref float dryBulb, IntPtr dryBulbStride, ref float moistureContent, IntPtr moistureContentStride,
            ref float referenceTemperature, IntPtr referenceTemperatureStride, ref int bathers, IntPtr bathersStride,
            ref float referenceCoefficient, IntPtr referenceCoefficientStride, ref float pressure,
            IntPtr pressureStride, ref float evaporationRate, IntPtr evaporationRateStride, ref float latentLoad,
            IntPtr latentLoadStride, ref float convectiveLoad, IntPtr convectiveLoadStride, ref float referenceLoad,
            IntPtr referenceLoadStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPPOOL2(ref float waterArea, ref float wettedArea, ref float waterTemperature,
            ref float dryBulb, ref float wetBulb, ref float referenceTemperature, ref int bathers,
            ref float referenceCoefficient, ref float pressure, ref float evaporationRate, ref float latentLoad,
            ref float convectiveLoad, ref float referenceLoad);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_pool_evaporation_from_wet_bulb(UIntPtr count, ref float waterArea,
            IntPtr waterAreaStride, ref float wettedArea, IntPtr wettedAreaStride, ref float waterTemperature,
            IntPtr waterTemperatureStride, ref float dryBulb, IntPtr dryBulbStride, ref float wetBulb,
            IntPtr wetBulbStride, ref float referenceTemperature, IntPtr referenceTemperatureStride, ref int bathers,
            IntPtr bathersStride, ref float referenceCoefficient, IntPtr referenceCoefficientStride, ref float pressure,
            IntPtr pressureStride, ref float evaporationRate, IntPtr evaporationRateStride, ref float latentLoad,
            IntPtr latentLoadStride, ref float convectiveLoad, IntPtr convectiveLoadStride, ref float referenceLoad,
            IntPtr referenceLoadStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSSVP(ref float temperature);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_saturation_pressure(UIntPtr count, ref float temperature,
            IntPtr temperatureStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_dew_point(UIntPtr count, ref float vapourPressure,
            IntPtr vapourPressureStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSVP(ref float dryBulb, ref float relativeHumidity);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_vapour_pressure(UIntPtr count, ref float dryBulb, IntPtr dryBulbStride,
            ref float relativeHumidity, IntPtr relativeHumidityStride, ref float result, IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_relative_humidity(UIntPtr count, ref float dryBulb, IntPtr dryBulbStride,
            ref float vapourPressure, IntPtr vapourPressureStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSVAP(ref float dryBulb, ref float wetBulb, ref float pressure,
            ref Psychrometer psychrometer);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_vapour_pressure_from_psychrometer(UIntPtr count, ref float dryBulb,
            IntPtr dryBulbStride, ref float wetBulb, IntPtr wetBulbStride, ref float pressure, IntPtr pressureStride,
            ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSTEFF(ref float firstTemperature, ref float secondTemperature);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_weighted_temperature(UIntPtr count, ref float firstTemperature,
            IntPtr firstTemperatureStride, ref float secondTemperature, IntPtr secondTemperatureStride,
            ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSTWET(ref float dryBulb, ref float relativeHumidity, ref float pressure,
            ref Psychrometer psychrometer);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_psychrometer_wet_bulb(UIntPtr count, ref float dryBulb, IntPtr dryBulbStride,
            ref float relativeHumidity, IntPtr relativeHumidityStride, ref float pressure, IntPtr pressureStride,
            ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSTWB(ref float dryBulb, ref float percentageSaturation, ref float pressure,
            ref Psychrometer psychrometer);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_wet_bulb_from_percentage_saturation(UIntPtr count, ref float dryBulb,
            IntPtr dryBulbStride, ref float percentageSaturation, IntPtr percentageSaturationStride, ref float pressure,
            IntPtr pressureStride, ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result,
            IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float PSWBLB(ref float dryBulb, ref float moistureContent, ref float pressure,
            ref Psychrometer psychrometer);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_wet_bulb_from_moisture_content(UIntPtr count, ref float dryBulb,
            IntPtr dryBulbStride, ref float moistureContent, IntPtr moistureContentStride, ref float pressure,
            IntPtr pressureStride, ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result,
            IntPtr resultStride);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_wet_bulb(UIntPtr count, ref float dryBulb, IntPtr dryBulbStride,
            ref float vapourPressure, IntPtr vapourPressureStride, ref float pressure, IntPtr pressureStride,
            ref Psychrometer psychrometer, IntPtr psychrometerStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPADMT([In] float[] thickness, [In] float[] conductivity, [In] float[] density,
            [In] float[] specificHeat, ref float insideResistance, ref float outsideResistance, ref int layers,
            ref int harmonic, ref ElementKind elementKind, ref float admittance, ref float admittanceLead,
            ref float decrementFactor, ref float decrementLag, ref float surfaceFactor, ref float surfaceFactorLag,
            ref float uValue);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float TPRCAV(ref float cavityWidth);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_vertical_cavity_resistance(UIntPtr count, ref float cavityWidth,
            IntPtr cavityWidthStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float TPRCA2(ref float tilt, ref float cavityWidth, ref float emissivity1,
            ref float emissivity2);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_air_cavity_resistance(UIntPtr count, ref float tilt, IntPtr tiltStride,
            ref float cavityWidth, IntPtr cavityWidthStride, ref float emissivity1, IntPtr emissivity1Stride,
            ref float emissivity2, IntPtr emissivity2Stride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float TPRCAX(ref float tilt, ref float cavityWidth, ref float emissivity1,
            ref float emissivity2, ref float density, ref float conductivity, ref float specificHeat,
            ref float viscosity);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_gas_cavity_resistance(UIntPtr count, ref float tilt, IntPtr tiltStride,
            ref float cavityWidth, IntPtr cavityWidthStride, ref float emissivity1, IntPtr emissivity1Stride,
            ref float emissivity2, IntPtr emissivity2Stride, ref float density, IntPtr densityStride,
            ref float conductivity, IntPtr conductivityStride, ref float specificHeat, IntPtr specificHeatStride,
            ref float viscosity, IntPtr viscosityStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPDAMP([In] float[] thickness, [In] float[] vapourResistivity, ref int layers,
            ref float vapourResistance);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPGRAD([In] float[] thickness, [In] float[] conductivity,
            [In] float[] vapourResistivity, ref float insideResistance, ref float outsideResistance, ref int layers,
            ref float insideTemperature, ref float outsideTemperature, ref float insideHumidity,
            ref float outsideHumidity, [In, Out] float[] interfaceTemperature, [In,
            Out] float[] interfaceVapourPressure, [In, Out] float[] interfaceSaturationPressure);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int ITPCON(ref float warmTemperature, ref float coldTemperature,
            ref float warmVapourPressure, ref float coldVapourPressure);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_condenses_within_layer(UIntPtr count, ref float warmTemperature,
            IntPtr warmTemperatureStride, ref float coldTemperature, IntPtr coldTemperatureStride,
            ref float warmVapourPressure, IntPtr warmVapourPressureStride, ref float coldVapourPressure,
            IntPtr coldVapourPressureStride, ref int result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float BELDAT([In] float[,] elementRecords, ref int recordCount, ref int recordNumber,
            ref int item);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float TPHCON(ref float temperatureDifference, ref float characteristicLength,
            ref HeatFlowDirection heatFlowDirection);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_natural_convection_coefficient(UIntPtr count,
            ref float temperatureDifference, IntPtr temperatureDifferenceStride, ref float characteristicLength,
            IntPtr characteristicLengthStride, ref HeatFlowDirection heatFlowDirection, IntPtr heatFlowDirectionStride,
            ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPCOLW(ref Packing packing, ref float packedNumber, ref float fraction1,
            ref float fraction2);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_pack_two_fractions(UIntPtr count, ref Packing packing, IntPtr packingStride,
            ref float packedNumber, IntPtr packedNumberStride, ref float fraction1, IntPtr fraction1Stride,
            ref float fraction2, IntPtr fraction2Stride, ref float newPackedNumber, IntPtr newPackedNumberStride,
            ref float newFraction1, IntPtr newFraction1Stride, ref float newFraction2, IntPtr newFraction2Stride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPCOLT(ref Packing packing, ref float packedNumber, ref float fraction1,
            ref float fraction2, ref float fraction3);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_pack_three_fractions(UIntPtr count, ref Packing packing,
            IntPtr packingStride, ref float packedNumber, IntPtr packedNumberStride, ref float fraction1,
            IntPtr fraction1Stride, ref float fraction2, IntPtr fraction2Stride, ref float fraction3,
            IntPtr fraction3Stride, ref float newPackedNumber, IntPtr newPackedNumberStride, ref float newFraction1,
            IntPtr newFraction1Stride, ref float newFraction2, IntPtr newFraction2Stride, ref float newFraction3,
            IntPtr newFraction3Stride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPCOLW2(ref Packing packing, ref float packedNumber, ref float fraction3,
            ref float fraction1, ref float fraction2);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_pack_three_fractions_third_first(UIntPtr count, ref Packing packing,
            IntPtr packingStride, ref float packedNumber, IntPtr packedNumberStride, ref float fraction3,
            IntPtr fraction3Stride, ref float fraction1, IntPtr fraction1Stride, ref float fraction2,
            IntPtr fraction2Stride, ref float newPackedNumber, IntPtr newPackedNumberStride, ref float newFraction3,
            IntPtr newFraction3Stride, ref float newFraction1, IntPtr newFraction1Stride, ref float newFraction2,
            IntPtr newFraction2Stride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPCOSW(ref Packing packing, ref float packedNumber, ref float absorptance,
            ref float reflectance1, ref float reflectance2);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_pack_pane(UIntPtr count, ref Packing packing, IntPtr packingStride,
            ref float packedNumber, IntPtr packedNumberStride, ref float absorptance, IntPtr absorptanceStride,
            ref float reflectance1, IntPtr reflectance1Stride, ref float reflectance2, IntPtr reflectance2Stride,
            ref float newPackedNumber, IntPtr newPackedNumberStride, ref float newAbsorptance,
            IntPtr newAbsorptanceStride, ref float newReflectance1, IntPtr newReflectance1Stride,
            ref float newReflectance2, IntPtr newReflectance2Stride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float TPRSUR(ref Surface surface, ref float tilt, ref Exposure exposure);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_surface_resistance(UIntPtr count, ref Surface surface, IntPtr surfaceStride,
            ref float tilt, IntPtr tiltStride, ref Exposure exposure, IntPtr exposureStride, ref float result,
            IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float TPRSU2(ref Surface surface, ref float tilt, ref Exposure exposure,
            ref float emissivity);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_surface_resistance_at_emissivity(UIntPtr count, ref Surface surface,
            IntPtr surfaceStride, ref float tilt, IntPtr tiltStride, ref Exposure exposure, IntPtr exposureStride,
            ref float emissivity, IntPtr emissivityStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPUVAL([In] float[] thickness, [In] float[] conductivity,
            ref float surfaceResistance1, ref float surfaceResistance2, ref int layers, ref float uValue);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float TPUMOD(ref float uValue, ref float tilt, ref Exposure exposure);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_u_value_at_tilt_and_exposure(UIntPtr count, ref float uValue,
            IntPtr uValueStride, ref float tilt, IntPtr tiltStride, ref Exposure exposure, IntPtr exposureStride,
            ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void TPWNDO(ref int panes, ref PaneKind paneKind1, ref float emissivity1,
            ref PaneKind paneKind2, ref float emissivity2, ref PaneKind paneKind3, ref float emissivity3,
            ref float cavityWidth1, ref float cavityWidth2, ref Surface outerSurface, ref Exposure exposure,
            ref float tilt, ref float unused, ref float admittance, ref float admittanceLead, ref float decrementFactor,
            ref float decrementLag, ref float surfaceFactor, ref float surfaceFactorLag, ref float uValue);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_window_parameters(UIntPtr count, ref int panes, IntPtr panesStride,
            ref PaneKind paneKind1, IntPtr paneKind1Stride, ref float emissivity1, IntPtr emissivity1Stride,
            ref PaneKind paneKind2, IntPtr paneKind2Stride, ref float emissivity2, IntPtr emissivity2Stride,
            ref PaneKind paneKind3, IntPtr paneKind3Stride, ref float emissivity3, IntPtr emissivity3Stride,
            ref float cavityWidth1, IntPtr cavityWidth1Stride, ref float cavityWidth2, IntPtr cavityWidth2Stride,
            ref Surface outerSurface, IntPtr outerSurfaceStride, ref Exposure exposure, IntPtr exposureStride,
            ref float tilt, IntPtr tiltStride, ref float admittance, IntPtr admittanceStride, ref float admittanceLead,
            IntPtr admittanceLeadStride, ref float decrementFactor, IntPtr decrementFactorStride,
            ref float decrementLag, IntPtr decrementLagStride, ref float surfaceFactor, IntPtr surfaceFactorStride,
            ref float surfaceFactorLag, IntPtr surfaceFactorLagStride, ref float uValue, IntPtr uValueStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDRGL(ref float normalTransmittance, ref float normalReflectance,
            ref float incidence, ref float parallelTransmittance, ref float parallelAbsorptance,
            ref float parallelReflectance, ref float perpendicularTransmittance, ref float perpendicularAbsorptance,
            ref float perpendicularReflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_glass_direct(UIntPtr count, ref float normalTransmittance,
            IntPtr normalTransmittanceStride, ref float normalReflectance, IntPtr normalReflectanceStride,
            ref float incidence, IntPtr incidenceStride, ref float parallelTransmittance,
            IntPtr parallelTransmittanceStride, ref float parallelAbsorptance, IntPtr parallelAbsorptanceStride,
            ref float parallelReflectance, IntPtr parallelReflectanceStride, ref float perpendicularTransmittance,
            IntPtr perpendicularTransmittanceStride, ref float perpendicularAbsorptance,
            IntPtr perpendicularAbsorptanceStride, ref float perpendicularReflectance,
            IntPtr perpendicularReflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDFGL(ref float normalTransmittance, ref float normalReflectance,
            ref float transmittance, ref float absorptance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_glass_diffuse(UIntPtr count, ref float normalTransmittance,
            IntPtr normalTransmittanceStride, ref float normalReflectance, IntPtr normalReflectanceStride,
            ref float transmittance, IntPtr transmittanceStride, ref float absorptance, IntPtr absorptanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNCOM2(ref int layers, [In] float[] layerTransmittances, ref float unused,
            [In] float[] layerReflectances, ref float transmittance, ref float absorptance, ref float reflectance);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNCOMP(ref int layers, [In] float[] layerTransmittances,
            [In] float[] layerAbsorptances, [In] float[] layerReflectances, ref float transmittance,
            ref float absorptance, ref float reflectance);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDRRO(ref float blindTransmittance, ref float blindReflectance,
            ref float incidence, ref float transmittance, ref float absorptance, ref float reflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_roller_blind(UIntPtr count, ref float blindTransmittance,
            IntPtr blindTransmittanceStride, ref float blindReflectance, IntPtr blindReflectanceStride,
            ref float transmittance, IntPtr transmittanceStride, ref float absorptance, IntPtr absorptanceStride,
            ref float reflectance, IntPtr reflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDFRO(ref float blindTransmittance, ref float blindReflectance,
            ref float transmittance, ref float absorptance, ref float reflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_diffuse_roller_blind(UIntPtr count, ref float blindTransmittance,
            IntPtr blindTransmittanceStride, ref float blindReflectance, IntPtr blindReflectanceStride,
            ref float transmittance, IntPtr transmittanceStride, ref float absorptance, IntPtr absorptanceStride,
            ref float reflectance, IntPtr reflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float WNRANG(ref float incidence, ref float refractiveIndex);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_refraction_angle(UIntPtr count, ref float incidence, IntPtr incidenceStride,
            ref float refractiveIndex, IntPtr refractiveIndexStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNREFL(ref float incidence, ref float refractionAngle, ref float refractiveIndex,
            ref float parallelReflectance, ref float perpendicularReflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_surface_reflectance(UIntPtr count, ref float incidence,
            IntPtr incidenceStride, ref float refractionAngle, IntPtr refractionAngleStride, ref float refractiveIndex,
            IntPtr refractiveIndexStride, ref float parallelReflectance, IntPtr parallelReflectanceStride,
            ref float perpendicularReflectance, IntPtr perpendicularReflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float WNABEN(ref float refractionAngle, ref float absorptionProduct, ref float unused);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_single_pass_absorption(UIntPtr count, ref float refractionAngle,
            IntPtr refractionAngleStride, ref float absorptionProduct, IntPtr absorptionProductStride, ref float result,
            IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNTAR(ref float singlePassAbsorptance, ref float faceReflectance,
            ref float transmittance, ref float absorptance, ref float reflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_slab_optics(UIntPtr count, ref float singlePassAbsorptance,
            IntPtr singlePassAbsorptanceStride, ref float faceReflectance, IntPtr faceReflectanceStride,
            ref float transmittance, IntPtr transmittanceStride, ref float absorptance, IntPtr absorptanceStride,
            ref float reflectance, IntPtr reflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float WNKL(ref float normalTransmittance, ref float refractiveIndex);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_absorption_product(UIntPtr count, ref float normalTransmittance,
            IntPtr normalTransmittanceStride, ref float refractiveIndex, IntPtr refractiveIndexStride, ref float result,
            IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float WNTNOR(ref float absorptionProduct, ref float normalReflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_normal_transmittance(UIntPtr count, ref float absorptionProduct,
            IntPtr absorptionProductStride, ref float normalReflectance, IntPtr normalReflectanceStride,
            ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNTEMP(ref float insideTemperature, ref float outsideTemperature, ref int panes,
            ref float absorbed1, ref float absorbed2, ref float absorbed3, ref float absorbed4, ref float absorbed5,
            ref float paneTemperature1, ref float paneTemperature2, ref float paneTemperature3,
            ref float paneTemperature4, ref float paneTemperature5);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_pane_temperatures(UIntPtr count, ref float insideTemperature,
            IntPtr insideTemperatureStride, ref float outsideTemperature, IntPtr outsideTemperatureStride,
            ref int panes, IntPtr panesStride, ref float absorbed1, IntPtr absorbed1Stride, ref float absorbed2,
            IntPtr absorbed2Stride, ref float absorbed3, IntPtr absorbed3Stride, ref float absorbed4,
            IntPtr absorbed4Stride, ref float absorbed5, IntPtr absorbed5Stride, ref float paneTemperature1,
            IntPtr paneTemperature1Stride, ref float paneTemperature2, IntPtr paneTemperature2Stride,
            ref float paneTemperature3, IntPtr paneTemperature3Stride, ref float paneTemperature4,
            IntPtr paneTemperature4Stride, ref float paneTemperature5, IntPtr paneTemperature5Stride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDRSC(ref float shortwaveShadingCoefficient, ref float longwaveShadingCoefficient,
            ref float incidence, ref float transmittance, ref float absorptance, ref float reflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_unit_direct(UIntPtr count, ref float shortwaveShadingCoefficient,
            IntPtr shortwaveShadingCoefficientStride, ref float longwaveShadingCoefficient,
            IntPtr longwaveShadingCoefficientStride, ref float incidence, IntPtr incidenceStride,
            ref float transmittance, IntPtr transmittanceStride, ref float absorptance, IntPtr absorptanceStride,
            ref float reflectance, IntPtr reflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDFSC(ref float shortwaveShadingCoefficient, ref float longwaveShadingCoefficient,
            ref float transmittance, ref float absorptance, ref float reflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_unit_diffuse(UIntPtr count, ref float shortwaveShadingCoefficient,
            IntPtr shortwaveShadingCoefficientStride, ref float longwaveShadingCoefficient,
            IntPtr longwaveShadingCoefficientStride, ref float transmittance, IntPtr transmittanceStride,
            ref float absorptance, IntPtr absorptanceStride, ref float reflectance, IntPtr reflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDRSM(ref float shortwaveShadingCoefficient, ref float longwaveShadingCoefficient,
            ref float incidence, ref int panes, ref float transmittance, [In, Out] float[] paneShares,
            ref float absorptance);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDFSM(ref float shortwaveShadingCoefficient, ref float longwaveShadingCoefficient,
            ref int panes, ref float transmittance, [In, Out] float[] paneShares, ref float absorptance);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDRS0(ref Radiation radiation, ref float shortwaveShadingCoefficient,
            ref float longwaveShadingCoefficient, ref float incidence, ref int panes, ref float transmittance, [In,
            Out] float[] paneShares, ref float absorptance);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDRSL(ref float slatSpacing, ref float slatWidth, ref float slatAngle,
            ref float profileAngle, ref float slatAbsorptance, ref float transmittance, ref float absorptance,
            ref float reflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_slat_direct(UIntPtr count, ref float slatSpacing, IntPtr slatSpacingStride,
            ref float slatWidth, IntPtr slatWidthStride, ref float slatAngle, IntPtr slatAngleStride,
            ref float profileAngle, IntPtr profileAngleStride, ref float slatAbsorptance, IntPtr slatAbsorptanceStride,
            ref float transmittance, IntPtr transmittanceStride, ref float absorptance, IntPtr absorptanceStride,
            ref float reflectance, IntPtr reflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDRS2(ref float slatSpacing, ref float slatWidth, ref float slatAngle,
            ref float profileAngle, ref float struckAbsorptance, ref float oppositeAbsorptance, ref float transmittance,
            ref float absorptance, ref float reflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_two_faced_slat_direct(UIntPtr count, ref float slatSpacing,
            IntPtr slatSpacingStride, ref float slatWidth, IntPtr slatWidthStride, ref float slatAngle,
            IntPtr slatAngleStride, ref float profileAngle, IntPtr profileAngleStride, ref float struckAbsorptance,
            IntPtr struckAbsorptanceStride, ref float oppositeAbsorptance, IntPtr oppositeAbsorptanceStride,
            ref float transmittance, IntPtr transmittanceStride, ref float absorptance, IntPtr absorptanceStride,
            ref float reflectance, IntPtr reflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDRS3(ref float slatSpacing, ref float slatWidth, ref float slatAngle,
            ref float profileAngle, ref float openShare, ref float struckAbsorptance, ref float oppositeAbsorptance,
            ref float transmittance, ref float absorptance, ref float reflectance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_open_slat_direct(UIntPtr count, ref float slatSpacing,
            IntPtr slatSpacingStride, ref float slatWidth, IntPtr slatWidthStride, ref float slatAngle,
            IntPtr slatAngleStride, ref float profileAngle, IntPtr profileAngleStride, ref float openShare,
            IntPtr openShareStride, ref float struckAbsorptance, IntPtr struckAbsorptanceStride,
            ref float oppositeAbsorptance, IntPtr oppositeAbsorptanceStride, ref float transmittance,
            IntPtr transmittanceStride, ref float absorptance, IntPtr absorptanceStride, ref float reflectance,
            IntPtr reflectanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDFSL(ref float slatSpacing, ref float slatWidth, ref float slatAngle,
            ref float slatAbsorptance, ref float skyTransmittance, ref float groundTransmittance,
            ref float skyAbsorptance, ref float groundAbsorptance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_slat_diffuse(UIntPtr count, ref float slatSpacing, IntPtr slatSpacingStride,
            ref float slatWidth, IntPtr slatWidthStride, ref float slatAngle, IntPtr slatAngleStride,
            ref float slatAbsorptance, IntPtr slatAbsorptanceStride, ref float skyTransmittance,
            IntPtr skyTransmittanceStride, ref float groundTransmittance, IntPtr groundTransmittanceStride,
            ref float skyAbsorptance, IntPtr skyAbsorptanceStride, ref float groundAbsorptance,
            IntPtr groundAbsorptanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDFS2(ref float slatSpacing, ref float slatWidth, ref float slatAngle,
            ref float struckAbsorptance, ref float oppositeAbsorptance, ref float skyTransmittance,
            ref float groundTransmittance, ref float skyAbsorptance, ref float groundAbsorptance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_two_faced_slat_diffuse(UIntPtr count, ref float slatSpacing,
            IntPtr slatSpacingStride, ref float slatWidth, IntPtr slatWidthStride, ref float slatAngle,
            IntPtr slatAngleStride, ref float struckAbsorptance, IntPtr struckAbsorptanceStride,
            ref float oppositeAbsorptance, IntPtr oppositeAbsorptanceStride, ref float skyTransmittance,
            IntPtr skyTransmittanceStride, ref float groundTransmittance, IntPtr groundTransmittanceStride,
            ref float skyAbsorptance, IntPtr skyAbsorptanceStride, ref float groundAbsorptance,
            IntPtr groundAbsorptanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void WNDFS3(ref float slatSpacing, ref float slatWidth, ref float slatAngle,
            ref float openShare, ref float struckAbsorptance, ref float oppositeAbsorptance, ref float skyTransmittance,
            ref float groundTransmittance, ref float skyAbsorptance, ref float groundAbsorptance);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_open_slat_diffuse(UIntPtr count, ref float slatSpacing,
            IntPtr slatSpacingStride, ref float slatWidth, IntPtr slatWidthStride, ref float slatAngle,
            IntPtr slatAngleStride, ref float openShare, IntPtr openShareStride, ref float struckAbsorptance,
            IntPtr struckAbsorptanceStride, ref float oppositeAbsorptance, IntPtr oppositeAbsorptanceStride,
            ref float skyTransmittance, IntPtr skyTransmittanceStride, ref float groundTransmittance,
            IntPtr groundTransmittanceStride, ref float skyAbsorptance, IntPtr skyAbsorptanceStride,
            ref float groundAbsorptance, IntPtr groundAbsorptanceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLBAN1(ref float fraction, ref int month, [In] float[,] frequencies,
            ref int lowerBand, ref int upperBand, ref float bandWeight);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLBAND(ref int band, ref int month, ref BandSet bandSet, ref float percentage,
            ref float q1, ref float q2, ref float q3, ref float q4, ref float q5, ref float q6, ref float timeA,
            ref float timeB, ref float q7, ref float q8);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_band_climate(UIntPtr count, ref int band, IntPtr bandStride, ref int month,
            IntPtr monthStride, ref BandSet bandSet, IntPtr bandSetStride, ref float percentage,
            IntPtr percentageStride, ref float newPercentage, IntPtr newPercentageStride, ref float q1, IntPtr q1Stride,
            ref float q2, IntPtr q2Stride, ref float q3, IntPtr q3Stride, ref float q4, IntPtr q4Stride, ref float q5,
            IntPtr q5Stride, ref float q6, IntPtr q6Stride, ref float timeA, IntPtr timeAStride, ref float timeB,
            IntPtr timeBStride, ref float q7, IntPtr q7Stride, ref float q8, IntPtr q8Stride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLBAN2(ref int baseRow, ref int lowerBand, ref int upperBand, ref int month,
            ref float bandWeight, ref float value);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_interpolate_band_rows(UIntPtr count, ref int baseRow, IntPtr baseRowStride,
            ref int lowerBand, IntPtr lowerBandStride, ref int upperBand, IntPtr upperBandStride, ref int month,
            IntPtr monthStride, ref float bandWeight, IntPtr bandWeightStride, ref float value, IntPtr valueStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLBAN3(ref int row, [In, Out] float[] values);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLDAY(ref int month, ref int day);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_store_design_day(UIntPtr count, ref int month, IntPtr monthStride,
            ref int day, IntPtr dayStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLDAYEX(ref int month, ref int day, ref DayKind dayKind);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_store_design_day_by_option(UIntPtr count, ref int month, IntPtr monthStride,
            ref DayKind dayKind, IntPtr dayKindStride, ref int day, IntPtr dayStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int ICLDAY(ref int month);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_design_day(UIntPtr count, ref int month, IntPtr monthStride, ref int result,
            IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int ICLDAYEX(ref int month, ref DayKind dayKind);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_design_day_by_option(UIntPtr count, ref int month, IntPtr monthStride,
            ref DayKind dayKind, IntPtr dayKindStride, ref int result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int ICLDA2(ref int month);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_second_design_day(UIntPtr count, ref int month, IntPtr monthStride,
            ref int result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int ICLDA2EX(ref int month, ref DayKind dayKind);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_second_design_day_by_option(UIntPtr count, ref int month, IntPtr monthStride,
            ref DayKind dayKind, IntPtr dayKindStride, ref int result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLBNF0([In] byte[] fileName, ref int station, ref int month, [In,
            Out] float[,] stationRecords);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLBNFI(ref FileUnit fileUnit, ref int station, ref int band, ref int month,
            ref BandSet bandSet, ref float percentage, ref float q1, ref float q2, ref float q3, ref float q4,
            ref float q5, ref float q6, ref float q7, ref float timeA, ref float timeB);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLBNF1(ref float fraction, ref int month, ref int lowerBand, ref int upperBand,
            ref float bandWeight);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLBNF2(ref int baseRow, ref int lowerBand, ref int upperBand, ref int month,
            ref float bandWeight, ref float value);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLBNF3(ref int row, [In, Out] float[] values);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLTAO(ref float hour, ref float highestTemperature, ref float lowestTemperature,
            ref float hourOfHighest, ref float hourOfLowest);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_daily_temperature(UIntPtr count, ref float hour, IntPtr hourStride,
            ref float highestTemperature, IntPtr highestTemperatureStride, ref float lowestTemperature,
            IntPtr lowestTemperatureStride, ref float hourOfHighest, IntPtr hourOfHighestStride, ref float hourOfLowest,
            IntPtr hourOfLowestStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLTAOX(ref float hour, ref float mean, ref float amplitude, ref float firstHour,
            ref float secondHour, ref float amplitudeFactor);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_daily_value(UIntPtr count, ref float hour, IntPtr hourStride, ref float mean,
            IntPtr meanStride, ref float amplitude, IntPtr amplitudeStride, ref float firstHour, IntPtr firstHourStride,
            ref float secondHour, IntPtr secondHourStride, ref float amplitudeFactor, IntPtr amplitudeFactorStride,
            ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLSNNR(ref float solarAltitude, ref float solarAzimuth, ref float siteHeight,
            ref SkyKind skyKind, ref float directNormal, ref float diffuseHorizontal);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_design_irradiance(UIntPtr count, ref float solarAltitude,
            IntPtr solarAltitudeStride, ref float siteHeight, IntPtr siteHeightStride, ref SkyKind skyKind,
            IntPtr skyKindStride, ref float directNormal, IntPtr directNormalStride, ref float diffuseHorizontal,
            IntPtr diffuseHorizontalStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLHIGH(ref float siteHeight, ref float solarAltitude);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_height_factor(UIntPtr count, ref float siteHeight, IntPtr siteHeightStride,
            ref float solarAltitude, IntPtr solarAltitudeStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLETAJ(ref int day);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_eccentricity_factor(UIntPtr count, ref int day, IntPtr dayStride,
            ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLMODUL(ref int day, ref float solarAltitude, ref float globalHorizontal);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_clearness_index(UIntPtr count, ref int day, IntPtr dayStride,
            ref float solarAltitude, IntPtr solarAltitudeStride, ref float globalHorizontal,
            IntPtr globalHorizontalStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLMUNRAD(ref float solarAltitude, ref float solarAzimuth, ref float surfaceAzimuth,
            ref float tilt, ref float beamHorizontal, ref float diffuseHorizontal, ref float extraterrestrialHorizontal,
            ref float groundReflectance, ref float surfaceBeam, ref float surfaceDiffuse, ref float groundReflected,
            ref float incidence);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_muneer_slope(UIntPtr count, ref float solarAltitude,
            IntPtr solarAltitudeStride, ref float solarAzimuth, IntPtr solarAzimuthStride, ref float surfaceAzimuth,
            IntPtr surfaceAzimuthStride, ref float tilt, IntPtr tiltStride, ref float beamHorizontal,
            IntPtr beamHorizontalStride, ref float diffuseHorizontal, IntPtr diffuseHorizontalStride,
            ref float extraterrestrialHorizontal, IntPtr extraterrestrialHorizontalStride, ref float groundReflectance,
            IntPtr groundReflectanceStride, ref float surfaceBeam, IntPtr surfaceBeamStride, ref float surfaceDiffuse,
            IntPtr surfaceDiffuseStride, ref float groundReflected, IntPtr groundReflectedStride, ref float incidence,
            IntPtr incidenceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLPERSKY(ref float solarAltitude, ref float tilt, ref float beamHorizontal,
            ref float diffuseHorizontal, ref float surfaceDiffuse, ref float incidence,
            ref float extraterrestrialNormal);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_perez_diffuse(UIntPtr count, ref float solarAltitude,
            IntPtr solarAltitudeStride, ref float tilt, IntPtr tiltStride, ref float beamHorizontal,
            IntPtr beamHorizontalStride, ref float diffuseHorizontal, IntPtr diffuseHorizontalStride,
            ref float incidence, IntPtr incidenceStride, ref float extraterrestrialNormal,
            IntPtr extraterrestrialNormalStride, ref float surfaceDiffuse, IntPtr surfaceDiffuseStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLCONS(ref int siteClass, ref int month, ref float groundReflectance,
            ref float beamFactor, ref float diffuseFactor, ref float alternativeDiffuseFactor);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_site_constants(UIntPtr count, ref int siteClass, IntPtr siteClassStride,
            ref int month, IntPtr monthStride, ref float groundReflectance, IntPtr groundReflectanceStride,
            ref float beamFactor, IntPtr beamFactorStride, ref float diffuseFactor, IntPtr diffuseFactorStride,
            ref float alternativeDiffuseFactor, IntPtr alternativeDiffuseFactorStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLDIFRAD(ref int day, ref float solarAltitude, ref float beamHorizontal,
            ref float unused, ref float tilt, ref SkyModel skyModel);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_diffuse_tilt_factor(UIntPtr count, ref int day, IntPtr dayStride,
            ref float solarAltitude, IntPtr solarAltitudeStride, ref float beamHorizontal, IntPtr beamHorizontalStride,
            ref float tilt, IntPtr tiltStride, ref SkyModel skyModel, IntPtr skyModelStride, ref float result,
            IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLDIFSLO(ref int day, ref float solarAltitude, ref float solarAzimuth,
            ref float surfaceAzimuth, ref float tilt, ref float beamHorizontal, ref float diffuseHorizontal,
            ref SkyModel skyModel);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_slope_diffuse(UIntPtr count, ref int day, IntPtr dayStride,
            ref float solarAltitude, IntPtr solarAltitudeStride, ref float solarAzimuth, IntPtr solarAzimuthStride,
            ref float surfaceAzimuth, IntPtr surfaceAzimuthStride, ref float tilt, IntPtr tiltStride,
            ref float beamHorizontal, IntPtr beamHorizontalStride, ref float diffuseHorizontal,
            IntPtr diffuseHorizontalStride, ref SkyModel skyModel, IntPtr skyModelStride, ref float result,
            IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLTEO(ref float baseTemperature, ref float surfaceCoefficient,
            ref float absorptance, ref float unused1, ref float unused2, ref float irradiance, ref float longWaveLoss);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_sol_air_temperature(UIntPtr count, ref float baseTemperature,
            IntPtr baseTemperatureStride, ref float surfaceCoefficient, IntPtr surfaceCoefficientStride,
            ref float absorptance, IntPtr absorptanceStride, ref float irradiance, IntPtr irradianceStride,
            ref float longWaveLoss, IntPtr longWaveLossStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLRERD(ref float tilt, ref float cloudCover);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_long_wave_loss(UIntPtr count, ref float tilt, IntPtr tiltStride,
            ref float cloudCover, IntPtr cloudCoverStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float CLTCOR(ref float clockOffset, ref int day, ref float longitude,
            ref float referenceLongitude);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_solar_time_correction(UIntPtr count, ref float clockOffset,
            IntPtr clockOffsetStride, ref int day, IntPtr dayStride, ref float longitude, IntPtr longitudeStride,
            ref float referenceLongitude, IntPtr referenceLongitudeStride, ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLYALLOP(ref TimeKind timeKind, ref int year, ref int month, ref int dayOfMonth,
            ref float clockTime, ref float latitude, ref float longitude, ref float zoneMeridian,
            ref float solarAltitude, ref float solarAzimuth, ref float declination);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_almanac_position(UIntPtr count, ref TimeKind timeKind, IntPtr timeKindStride,
            ref int year, IntPtr yearStride, ref int month, IntPtr monthStride, ref int dayOfMonth,
            IntPtr dayOfMonthStride, ref float clockTime, IntPtr clockTimeStride, ref float latitude,
            IntPtr latitudeStride, ref float longitude, IntPtr longitudeStride, ref float zoneMeridian,
            IntPtr zoneMeridianStride, ref float newLongitude, IntPtr newLongitudeStride, ref float newZoneMeridian,
            IntPtr newZoneMeridianStride, ref float solarAltitude, IntPtr solarAltitudeStride, ref float solarAzimuth,
            IntPtr solarAzimuthStride, ref float declination, IntPtr declinationStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLRISESET(ref int year, ref int month, ref int dayOfMonth, ref float latitude,
            ref float sunrise, ref float sunset);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_almanac_sun_hours(UIntPtr count, ref int year, IntPtr yearStride,
            ref int month, IntPtr monthStride, ref int dayOfMonth, IntPtr dayOfMonthStride, ref float latitude,
            IntPtr latitudeStride, ref float sunrise, IntPtr sunriseStride, ref float sunset, IntPtr sunsetStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLSNGE(ref float latitude, ref int day, ref float solarTime, ref float declination,
            ref float solarAltitude, ref float solarAzimuth, ref float sunrise, ref float sunset);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_solar_geometry(UIntPtr count, ref float latitude, IntPtr latitudeStride,
            ref int day, IntPtr dayStride, ref float solarTime, IntPtr solarTimeStride, ref float declination,
            IntPtr declinationStride, ref float solarAltitude, IntPtr solarAltitudeStride, ref float solarAzimuth,
            IntPtr solarAzimuthStride, ref float sunrise, IntPtr sunriseStride, ref float sunset, IntPtr sunsetStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLSNSR(ref float solarAltitude, ref float solarAzimuth, ref float surfaceAzimuth,
            ref float tilt, ref float incidence, ref float verticalShadowAngle, ref float horizontalShadowAngle);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_surface_angles(UIntPtr count, ref float solarAltitude,
            IntPtr solarAltitudeStride, ref float solarAzimuth, IntPtr solarAzimuthStride, ref float surfaceAzimuth,
            IntPtr surfaceAzimuthStride, ref float tilt, IntPtr tiltStride, ref float incidence, IntPtr incidenceStride,
            ref float verticalShadowAngle, IntPtr verticalShadowAngleStride, ref float horizontalShadowAngle,
            IntPtr horizontalShadowAngleStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLSORD(ref float solarAltitude, ref float solarAzimuth, ref float surfaceAzimuth,
            ref float tilt, ref float directNormal, ref float diffuseHorizontal, ref float groundReflectance,
            ref float beamFactor, ref float diffuseFactor, ref float surfaceBeam, ref float surfaceDiffuse,
            ref float groundReflected);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_surface_irradiance(UIntPtr count, ref float solarAltitude,
            IntPtr solarAltitudeStride, ref float solarAzimuth, IntPtr solarAzimuthStride, ref float surfaceAzimuth,
            IntPtr surfaceAzimuthStride, ref float tilt, IntPtr tiltStride, ref float directNormal,
            IntPtr directNormalStride, ref float diffuseHorizontal, IntPtr diffuseHorizontalStride,
            ref float groundReflectance, IntPtr groundReflectanceStride, ref float beamFactor, IntPtr beamFactorStride,
            ref float diffuseFactor, IntPtr diffuseFactorStride, ref float surfaceBeam, IntPtr surfaceBeamStride,
            ref float surfaceDiffuse, IntPtr surfaceDiffuseStride, ref float groundReflected,
            IntPtr groundReflectedStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void CLSOR2(ref float solarAltitude, ref float solarAzimuth, ref float surfaceAzimuth,
            ref float tilt, ref float directNormal, ref float diffuseHorizontal, ref float groundReflectance,
            ref float beamFactor, ref float diffuseFactor, ref float surfaceBeam, ref float surfaceDiffuse,
            ref float groundReflected, ref float incidence);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_surface_irradiance_and_incidence(UIntPtr count, ref float solarAltitude,
            IntPtr solarAltitudeStride, ref float solarAzimuth, IntPtr solarAzimuthStride, ref float surfaceAzimuth,
            IntPtr surfaceAzimuthStride, ref float tilt, IntPtr tiltStride, ref float directNormal,
            IntPtr directNormalStride, ref float diffuseHorizontal, IntPtr diffuseHorizontalStride,
            ref float groundReflectance, IntPtr groundReflectanceStride, ref float beamFactor, IntPtr beamFactorStride,
            ref float diffuseFactor, IntPtr diffuseFactorStride, ref float surfaceBeam, IntPtr surfaceBeamStride,
            ref float surfaceDiffuse, IntPtr surfaceDiffuseStride, ref float groundReflected,
            IntPtr groundReflectedStride, ref float incidence, IntPtr incidenceStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void HOHOLEDP([In, Out] double[] x, [In, Out] double[] y, ref int verticesA,
            [In] int[] positionsA, ref int verticesB, [In] int[] positionsB, ref int pointCapacity,
            ref int crossingCapacity, ref int differenceCapacity, ref int overlapCapacity, ref int usedPoints, [In,
            Out] int[] differencePieces, [In, Out] int[] overlapPieces, ref int status);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEOVER([In] float[] x1, [In] float[] y1, ref int vertices1, [In] float[] x2,
            [In] float[] y2, ref int vertices2, [In, Out] float[,] pieceX, [In, Out] float[,] pieceY, [In,
            Out] int[] pieceVertices, ref float area);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEHOLE([In] float[] x1, [In] float[] y1, ref int vertices1, [In] float[] x2,
            [In] float[] y2, ref int vertices2, [In, Out] float[,] pieceX, [In, Out] float[,] pieceY, [In,
            Out] int[] pieceVertices, ref float area);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int IGELIN([In] float[] x, [In] float[] y, ref int points);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GECLOS([In] float[] x, [In] float[] y, ref int vertices, [In] float[] pointX,
            [In] float[] pointY, ref int points, [In, Out] Enclosed[] enclosed, ref int enclosedPoints);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GESIDE([In] float[] segmentStart, [In] float[] segmentEnd, [In] float[] x,
            [In] float[] y, ref int vertices, [In, Out] float[] crossingPoint, ref int crossingCode);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEINSI([In] float[] point, [In] float[,] polygon, ref int vertices, ref int inside);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int GEPLEL([In] double[,] triangle1, [In] double[,] triangle2);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int GEPSID([In] double[,] triangle1, [In] double[,] triangle2, ref int side1,
            ref int side2);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int GERECT([In] double[,] quadrilateral);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GETILT([In] double[,] triangle, ref double azimuth, ref double tilt);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GELCAL([In] double[,] quadrilateral1, [In] double[,] quadrilateral2, [In,
            Out] double[,] local1, [In, Out] double[,] local2);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GETRNS([In, Out] double[,] corners, [In] double[] xAxis, [In] double[] yAxis,
            [In] double[] zAxis);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEMEET([In] float[] line1Start, [In] float[] line1End, [In] float[] line2Start,
            [In] float[] line2End, [In, Out] float[] meetingPoint);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GECROS([In] float[] segment1Start, [In] float[] segment1End,
            [In] float[] segment2Start, [In] float[] segment2End, [In, Out] float[] crossingPoint);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float GEINLN([In] float[] firstEnd, [In] float[] secondEnd, [In] float[] point);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float GEINLN2([In] float[] firstEnd, [In] float[] secondEnd, [In] float[] point);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int GECOIN(ref float x1, ref float y1, ref float x2, ref float y2);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_coincide(UIntPtr count, ref float x1, IntPtr x1Stride, ref float y1,
            IntPtr y1Stride, ref float x2, IntPtr x2Stride, ref float y2, IntPtr y2Stride, ref int result,
            IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern int IGEPNT([In] float[] lineStart, [In] float[] lineEnd, [In] float[] point);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float BORI(ref float angle);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_back_azimuth(UIntPtr count, ref float angle, IntPtr angleStride,
            ref float result, IntPtr resultStride);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GESUNV(ref float solarAltitude, ref float solarAzimuth, [In,
            Out] float[] direction);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GERSET(ref float surfaceAzimuth, ref float tilt, [In, Out] float[,] rotationMatrix,
            [In, Out] float[,] inverseMatrix);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GERAXI([In] float[] localVector, [In] float[,] rotationMatrix, [In,
            Out] float[] globalVector);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GERAX2([In] float[] globalVector, [In] float[,] rotationMatrix, [In,
            Out] float[] localVector);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float GEAPOL([In] float[] x, [In] float[] y, ref int vertices);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float GEAPO2([In] float[] x, [In] float[] y, ref int vertices);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float GEAPO3([In] float[] x, [In] float[] y, [In] float[] z, ref int vertices);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEASO(ref int vertices, [In] float[,] polygon, ref float area, ref float tilt,
            ref float backAzimuth);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEPROJ([In] float[] planePoint, [In] float[] planeNormal, [In] float[] point,
            [In] float[] direction, [In, Out] float[] projectedPoint);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEPROJ2([In] float[] planePoint, [In] float[] planeNormal, [In] float[] point,
            [In] float[] direction, [In, Out] float[] projectedPoint);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEPROJ3([In] float[] planePoint, [In] float[] planeNormal, [In] float[] point,
            [In] float[] direction, [In, Out] float[] projectedPoint);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float GEDOTP([In] float[] vectorA, [In] float[] vectorB);

        [DllImport(Library, CallingConvention = C)]
        internal static extern double GEDTDP([In] double[] vectorA, [In] double[] vectorB);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEXPRO([In] float[] vectorA, [In] float[] vectorB, [In, Out] float[] crossProduct);

        [DllImport(Library, CallingConvention = C)]
        internal static extern void GEXPDP([In] double[] vectorA, [In] double[] vectorB, [In,
            Out] double[] crossProduct);

        [DllImport(Library, CallingConvention = C)]
        internal static extern float GEVMOD([In] float[] vector);

        [DllImport(Library, CallingConvention = C)]
        internal static extern double GEVMDP([In] double[] vector);
    }
}
