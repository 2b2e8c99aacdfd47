// Produced from the catalogue of routines (catalogue/); do not edit.
using System;

namespace Quorvel
{
    /// <summary>What <c>Psychro.AdiabaticMixing</c> returns.</summary>
    public struct AdiabaticMixing
    {
        /// <summary>Dry-bulb temperature of the mixture [°C].</summary>
        public float DryBulb;

        /// <summary>Moisture content of the mixture [kg/kg].</summary>
        public float MoistureContent;

        /// <summary>Specific enthalpy of the mixture, by mass of dry air [kJ/kg].</summary>
        public float Enthalpy;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float dryBulb, out float moistureContent, out float enthalpy)
        {
            dryBulb = DryBulb;
            moistureContent = MoistureContent;
            enthalpy = Enthalpy;
        }
    }

    /// <summary>What <c>Psychro.PoolEvaporation</c> returns.</summary>
    public struct PoolEvaporation
    {
        /// <summary>Evaporation rate [kg/(m²s)].</summary>
        public float EvaporationRate;

        /// <summary>Latent load, 2.45 MJ per kg evaporated [W].</summary>
        public float LatentLoad;

        /// <summary>Convection from the water to the room air at 10 W/m²K [W].</summary>
        public float ConvectiveLoad;

        /// <summary>Exchange of the water with the second reference temperature [W].</summary>
        public float ReferenceLoad;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float evaporationRate, out float latentLoad, out float convectiveLoad,
            out float referenceLoad)
        {
            evaporationRate = EvaporationRate;
            latentLoad = LatentLoad;
            convectiveLoad = ConvectiveLoad;
            referenceLoad = ReferenceLoad;
        }
    }

    /// <summary>What <c>Psychro.PoolEvaporationFromWetBulb</c> returns.</summary>
    public struct PoolEvaporationFromWetBulb
    {
        /// <summary>Evaporation rate [kg/(m²s)].</summary>
        public float EvaporationRate;

        /// <summary>Latent load, 2.45 MJ per kg evaporated [W].</summary>
        public float LatentLoad;

        /// <summary>Convection from the water to the room air at 10 W/m²K [W].</summary>
        public float ConvectiveLoad;

        /// <summary>Exchange of the water with the second reference temperature [W].</summary>
        public float ReferenceLoad;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float evaporationRate, out float latentLoad, out float convectiveLoad,
            out float referenceLoad)
        {
            evaporationRate = EvaporationRate;
            latentLoad = LatentLoad;
            convectiveLoad = ConvectiveLoad;
            referenceLoad = ReferenceLoad;
        }
    }

    /// <summary>Moist air.</summary>
    public static partial class Psychro
    {
        /// <summary>Specific enthalpy of dry air.</summary>
        /// <param name="temperature">Temperature [°C]; valid -50 to 100.</param>
        /// <returns>Specific enthalpy, 0 at 0 °C [kJ/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 0.00071035 + 1.0058 t + 1.7139e-5 t^2 - 7.7976e-7 t^3 + 2.2256e-8 t^4 - 1.691e-10 t^5, t =
        /// temperature</para>
        /// <para>Within 0.02 kJ/kg of the ASHRAE tables from -20 to 50 °C, but 0.3 above them at -50 °C.</para>
        /// <para>At 0 °C it is 0.0007 kJ/kg: the constant of the fit is deliberate.</para>
        /// <para>Source: Polynomial fit to tables of dry air; its author is not known.</para>
        /// <para>The bits of PSHDRY in quorvel.h.</para>
        /// </remarks>
        public static float DryAirEnthalpy(float temperature)
        {
            Check.Range("Psychro.DryAirEnthalpy", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.DryAirEnthalpy(temperature);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryAirEnthalpy(float)"/>
        public static float[] DryAirEnthalpy(Input<float> temperature)
        {
            Check.Range("Psychro.DryAirEnthalpy", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.DryAirEnthalpy(temperature);
        }

        /// <summary>Specific enthalpy of water vapour.</summary>
        /// <param name="temperature">Temperature [°C]; valid -50 to 100.</param>
        /// <returns>Specific enthalpy, from liquid water at 0 °C [kJ/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 2500.9 + 1.8439 t + 2.5285e-5 t^2 - 1.6297e-5 t^3 + 5.8962e-9 t^4 + 1.248e-9 t^5, t =
        /// temperature</para>
        /// <para>Within 0.5 kJ/kg of saturated steam from 0 to 60 °C (IAPWS 1995), within 7 at 100 °C.</para>
        /// <para>Source: Polynomial fit to tables of water vapour; its author is not known.</para>
        /// <para>The bits of PSHVAP in quorvel.h.</para>
        /// </remarks>
        public static float WaterVapourEnthalpy(float temperature)
        {
            Check.Range("Psychro.WaterVapourEnthalpy", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.WaterVapourEnthalpy(temperature);
        }

        /// <inheritdoc cref="Quorvel.Psychro.WaterVapourEnthalpy(float)"/>
        public static float[] WaterVapourEnthalpy(Input<float> temperature)
        {
            Check.Range("Psychro.WaterVapourEnthalpy", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.WaterVapourEnthalpy(temperature);
        }

        /// <summary>Specific heat of dry air at constant pressure.</summary>
        /// <param name="temperature">Temperature [°C]; valid -50 to 100.</param>
        /// <returns>Specific heat [kJ/kgK].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The pieces meet, but for steps of 0.00004 kJ/kgK up at 40 °C and down at 50 °C, which are
        /// deliberate.</para>
        /// <para>Source: Straight lines between tabulated values for each 10 K; the author of the table is not
        /// known.</para>
        /// <para>The bits of PSCPDR in quorvel.h.</para>
        /// </remarks>
        public static float DryAirSpecificHeat(float temperature)
        {
            Check.Range("Psychro.DryAirSpecificHeat", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.DryAirSpecificHeat(temperature);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryAirSpecificHeat(float)"/>
        public static float[] DryAirSpecificHeat(Input<float> temperature)
        {
            Check.Range("Psychro.DryAirSpecificHeat", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.DryAirSpecificHeat(temperature);
        }

        /// <summary>Specific heat of water vapour at constant pressure.</summary>
        /// <param name="temperature">Temperature [°C]; valid -50 to 100.</param>
        /// <returns>Specific heat [kJ/kgK].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 1.7 + 0.01 temperature, at most 1.9</para>
        /// <para>Constant from 20 °C up.</para>
        /// <para>Source: Rounded engineering values; their author is not known.</para>
        /// <para>The bits of PSCPVA in quorvel.h.</para>
        /// </remarks>
        public static float WaterVapourSpecificHeat(float temperature)
        {
            Check.Range("Psychro.WaterVapourSpecificHeat", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.WaterVapourSpecificHeat(temperature);
        }

        /// <inheritdoc cref="Quorvel.Psychro.WaterVapourSpecificHeat(float)"/>
        public static float[] WaterVapourSpecificHeat(Input<float> temperature)
        {
            Check.Range("Psychro.WaterVapourSpecificHeat", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.WaterVapourSpecificHeat(temperature);
        }

        /// <summary>Latent heat of evaporation of water, of sublimation of ice below 0 °C.</summary>
        /// <param name="temperature">Temperature [°C]; valid -50 to 100.</param>
        /// <returns>Latent heat [kJ/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>At exactly 60 °C the result is 0: the table's row for it is empty, which is deliberate. Just below and
        /// above, it is 2357.9.</para>
        /// <para>Within 0.5 kJ/kg of the international values (IAPWS 1995) from 0 to 60 °C.</para>
        /// <para>Source: Straight lines between tabulated values for each 10 K; the author of the table is not
        /// known.</para>
        /// <para>The bits of PSHFG in quorvel.h.</para>
        /// </remarks>
        public static float LatentHeat(float temperature)
        {
            Check.Range("Psychro.LatentHeat", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.LatentHeat(temperature);
        }

        /// <inheritdoc cref="Quorvel.Psychro.LatentHeat(float)"/>
        public static float[] LatentHeat(Input<float> temperature)
        {
            Check.Range("Psychro.LatentHeat", "temperature", temperature, -50f, 100f, " °C");
            return Unchecked.Psychro.LatentHeat(temperature);
        }

        /// <summary>Dry bulb of air with a vapour pressure and relative humidity.</summary>
        /// <param name="vapourPressure">Vapour pressure [Pa]; valid from 0.</param>
        /// <param name="relativeHumidity">Relative humidity [%]; valid 0 to 100.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: rh / 100 ps(t) = pv</para>
        /// <para>Found from -200 to 400 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.</para>
        /// <para>Source: The dew point of saturated air of that temperature, by DewPoint.</para>
        /// </remarks>
        public static float DryBulbFromVapourPressureAndRelativeHumidity(float vapourPressure, float relativeHumidity)
        {
            Check.Range("Psychro.DryBulbFromVapourPressureAndRelativeHumidity", "vapourPressure", vapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            Check.Range("Psychro.DryBulbFromVapourPressureAndRelativeHumidity", "relativeHumidity", relativeHumidity,
                0f, 100f, " %");
            return Unchecked.Psychro.DryBulbFromVapourPressureAndRelativeHumidity(vapourPressure, relativeHumidity);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromVapourPressureAndRelativeHumidity(float, float)"/>
        public static float[] DryBulbFromVapourPressureAndRelativeHumidity(Input<float> vapourPressure,
            Input<float> relativeHumidity)
        {
            Check.Range("Psychro.DryBulbFromVapourPressureAndRelativeHumidity", "vapourPressure", vapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            Check.Range("Psychro.DryBulbFromVapourPressureAndRelativeHumidity", "relativeHumidity", relativeHumidity,
                0f, 100f, " %");
            return Unchecked.Psychro.DryBulbFromVapourPressureAndRelativeHumidity(vapourPressure, relativeHumidity);
        }

        /// <summary>Dry bulb of air with a vapour pressure and percentage saturation.</summary>
        /// <param name="vapourPressure">Vapour pressure [Pa]; valid from 0.</param>
        /// <param name="percentageSaturation">Percentage saturation [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: percentage / 100 gs(t, p) = MoistureContent(t, pv, p)</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>Up to where water boils at the atmospheric pressure. The percentage is not limited.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromVapourPressureAndPercentageSaturation(float vapourPressure,
            float percentageSaturation, float pressure)
        {
            Check.Range("Psychro.DryBulbFromVapourPressureAndPercentageSaturation", "vapourPressure", vapourPressure,
                0f, float.PositiveInfinity, " Pa");
            Check.Range("Psychro.DryBulbFromVapourPressureAndPercentageSaturation", "percentageSaturation",
                percentageSaturation, 0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromVapourPressureAndPercentageSaturation", "pressure", pressure, 50000f,
                110000f, " Pa");
            return Unchecked.Psychro.DryBulbFromVapourPressureAndPercentageSaturation(vapourPressure,
                percentageSaturation, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromVapourPressureAndPercentageSaturation(float, float, float)"/>
        public static float[] DryBulbFromVapourPressureAndPercentageSaturation(Input<float> vapourPressure,
            Input<float> percentageSaturation, Input<float> pressure)
        {
            Check.Range("Psychro.DryBulbFromVapourPressureAndPercentageSaturation", "vapourPressure", vapourPressure,
                0f, float.PositiveInfinity, " Pa");
            Check.Range("Psychro.DryBulbFromVapourPressureAndPercentageSaturation", "percentageSaturation",
                percentageSaturation, 0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromVapourPressureAndPercentageSaturation", "pressure", pressure, 50000f,
                110000f, " Pa");
            return Unchecked.Psychro.DryBulbFromVapourPressureAndPercentageSaturation(vapourPressure,
                percentageSaturation, pressure);
        }

        /// <summary>Dry bulb of air with a moisture content and relative humidity.</summary>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="relativeHumidity">Relative humidity [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: rh / 100 ps(t) = VapourPressureFromMoistureContent(t, g, p)</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromMoistureContentAndRelativeHumidity(float moistureContent, float relativeHumidity,
            float pressure)
        {
            Check.Range("Psychro.DryBulbFromMoistureContentAndRelativeHumidity", "moistureContent", moistureContent, 0f,
                0.1f, " kg/kg");
            Check.Range("Psychro.DryBulbFromMoistureContentAndRelativeHumidity", "relativeHumidity", relativeHumidity,
                0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromMoistureContentAndRelativeHumidity", "pressure", pressure, 50000f, 110000f,
                " Pa");
            return Unchecked.Psychro.DryBulbFromMoistureContentAndRelativeHumidity(moistureContent, relativeHumidity,
                pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromMoistureContentAndRelativeHumidity(float, float, float)"/>
        public static float[] DryBulbFromMoistureContentAndRelativeHumidity(Input<float> moistureContent,
            Input<float> relativeHumidity, Input<float> pressure)
        {
            Check.Range("Psychro.DryBulbFromMoistureContentAndRelativeHumidity", "moistureContent", moistureContent, 0f,
                0.1f, " kg/kg");
            Check.Range("Psychro.DryBulbFromMoistureContentAndRelativeHumidity", "relativeHumidity", relativeHumidity,
                0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromMoistureContentAndRelativeHumidity", "pressure", pressure, 50000f, 110000f,
                " Pa");
            return Unchecked.Psychro.DryBulbFromMoistureContentAndRelativeHumidity(moistureContent, relativeHumidity,
                pressure);
        }

        /// <summary>Dry bulb of air with a moisture content and percentage saturation.</summary>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="percentageSaturation">Percentage saturation [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: percentage / 100 gs(t, p) = g</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>Up to where water boils at the atmospheric pressure. The percentage is not limited.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromMoistureContentAndPercentageSaturation(float moistureContent,
            float percentageSaturation, float pressure)
        {
            Check.Range("Psychro.DryBulbFromMoistureContentAndPercentageSaturation", "moistureContent", moistureContent,
                0f, 0.1f, " kg/kg");
            Check.Range("Psychro.DryBulbFromMoistureContentAndPercentageSaturation", "percentageSaturation",
                percentageSaturation, 0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromMoistureContentAndPercentageSaturation", "pressure", pressure, 50000f,
                110000f, " Pa");
            return Unchecked.Psychro.DryBulbFromMoistureContentAndPercentageSaturation(moistureContent,
                percentageSaturation, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromMoistureContentAndPercentageSaturation(float, float, float)"/>
        public static float[] DryBulbFromMoistureContentAndPercentageSaturation(Input<float> moistureContent,
            Input<float> percentageSaturation, Input<float> pressure)
        {
            Check.Range("Psychro.DryBulbFromMoistureContentAndPercentageSaturation", "moistureContent", moistureContent,
                0f, 0.1f, " kg/kg");
            Check.Range("Psychro.DryBulbFromMoistureContentAndPercentageSaturation", "percentageSaturation",
                percentageSaturation, 0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromMoistureContentAndPercentageSaturation", "pressure", pressure, 50000f,
                110000f, " Pa");
            return Unchecked.Psychro.DryBulbFromMoistureContentAndPercentageSaturation(moistureContent,
                percentageSaturation, pressure);
        }

        /// <summary>Dry bulb of air with a specific enthalpy and moisture content.</summary>
        /// <param name="enthalpy">Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.</param>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: ha(t) + g hv(t) = h</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>The enthalpies hold from -50 to 100 °C.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromEnthalpyAndMoistureContent(float enthalpy, float moistureContent)
        {
            Check.Range("Psychro.DryBulbFromEnthalpyAndMoistureContent", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.DryBulbFromEnthalpyAndMoistureContent", "moistureContent", moistureContent, 0f, 0.1f,
                " kg/kg");
            return Unchecked.Psychro.DryBulbFromEnthalpyAndMoistureContent(enthalpy, moistureContent);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndMoistureContent(float, float)"/>
        public static float[] DryBulbFromEnthalpyAndMoistureContent(Input<float> enthalpy, Input<float> moistureContent)
        {
            Check.Range("Psychro.DryBulbFromEnthalpyAndMoistureContent", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.DryBulbFromEnthalpyAndMoistureContent", "moistureContent", moistureContent, 0f, 0.1f,
                " kg/kg");
            return Unchecked.Psychro.DryBulbFromEnthalpyAndMoistureContent(enthalpy, moistureContent);
        }

        /// <summary>Dry bulb of air with a specific enthalpy and vapour pressure.</summary>
        /// <param name="enthalpy">Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.</param>
        /// <param name="vapourPressure">Vapour pressure [Pa]; valid from 0.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: MoistureContentFromEnthalpy(t, h) = MoistureContent(t, pv, p)</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>The enthalpies hold from -50 to 100 °C.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromEnthalpyAndVapourPressure(float enthalpy, float vapourPressure, float pressure)
        {
            Check.Range("Psychro.DryBulbFromEnthalpyAndVapourPressure", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.DryBulbFromEnthalpyAndVapourPressure", "vapourPressure", vapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            Check.Range("Psychro.DryBulbFromEnthalpyAndVapourPressure", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.DryBulbFromEnthalpyAndVapourPressure(enthalpy, vapourPressure, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndVapourPressure(float, float, float)"/>
        public static float[] DryBulbFromEnthalpyAndVapourPressure(Input<float> enthalpy, Input<float> vapourPressure,
            Input<float> pressure)
        {
            Check.Range("Psychro.DryBulbFromEnthalpyAndVapourPressure", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.DryBulbFromEnthalpyAndVapourPressure", "vapourPressure", vapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            Check.Range("Psychro.DryBulbFromEnthalpyAndVapourPressure", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.DryBulbFromEnthalpyAndVapourPressure(enthalpy, vapourPressure, pressure);
        }

        /// <summary>Dry bulb of air with a specific enthalpy and relative humidity.</summary>
        /// <param name="enthalpy">Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.</param>
        /// <param name="relativeHumidity">Relative humidity [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: MoistureContentFromEnthalpy(t, h) = MoistureContent(t, rh / 100 ps(t), p)</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>The enthalpies hold from -50 to 100 °C.</para>
        /// <para>Relative humidity is limited to 0 to 100 %, not rejected.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromEnthalpyAndRelativeHumidity(float enthalpy, float relativeHumidity,
            float pressure)
        {
            Check.Range("Psychro.DryBulbFromEnthalpyAndRelativeHumidity", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.DryBulbFromEnthalpyAndRelativeHumidity", "relativeHumidity", relativeHumidity, 0f,
                100f, " %");
            Check.Range("Psychro.DryBulbFromEnthalpyAndRelativeHumidity", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.DryBulbFromEnthalpyAndRelativeHumidity(enthalpy, relativeHumidity, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndRelativeHumidity(float, float, float)"/>
        public static float[] DryBulbFromEnthalpyAndRelativeHumidity(Input<float> enthalpy,
            Input<float> relativeHumidity, Input<float> pressure)
        {
            Check.Range("Psychro.DryBulbFromEnthalpyAndRelativeHumidity", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.DryBulbFromEnthalpyAndRelativeHumidity", "relativeHumidity", relativeHumidity, 0f,
                100f, " %");
            Check.Range("Psychro.DryBulbFromEnthalpyAndRelativeHumidity", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.DryBulbFromEnthalpyAndRelativeHumidity(enthalpy, relativeHumidity, pressure);
        }

        /// <summary>Dry bulb of air with a specific enthalpy and percentage saturation.</summary>
        /// <param name="enthalpy">Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.</param>
        /// <param name="percentageSaturation">Percentage saturation [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: MoistureContentFromEnthalpy(t, h) = percentage / 100 gs(t, p)</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>The enthalpies hold from -50 to 100 °C.</para>
        /// <para>Up to where water boils at the atmospheric pressure. The percentage is not limited.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromEnthalpyAndPercentageSaturation(float enthalpy, float percentageSaturation,
            float pressure)
        {
            Check.Range("Psychro.DryBulbFromEnthalpyAndPercentageSaturation", "enthalpy", enthalpy, -10f, 460f,
                " kJ/kg");
            Check.Range("Psychro.DryBulbFromEnthalpyAndPercentageSaturation", "percentageSaturation",
                percentageSaturation, 0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromEnthalpyAndPercentageSaturation", "pressure", pressure, 50000f, 110000f,
                " Pa");
            return Unchecked.Psychro.DryBulbFromEnthalpyAndPercentageSaturation(enthalpy, percentageSaturation,
                pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndPercentageSaturation(float, float, float)"/>
        public static float[] DryBulbFromEnthalpyAndPercentageSaturation(Input<float> enthalpy,
            Input<float> percentageSaturation, Input<float> pressure)
        {
            Check.Range("Psychro.DryBulbFromEnthalpyAndPercentageSaturation", "enthalpy", enthalpy, -10f, 460f,
                " kJ/kg");
            Check.Range("Psychro.DryBulbFromEnthalpyAndPercentageSaturation", "percentageSaturation",
                percentageSaturation, 0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromEnthalpyAndPercentageSaturation", "pressure", pressure, 50000f, 110000f,
                " Pa");
            return Unchecked.Psychro.DryBulbFromEnthalpyAndPercentageSaturation(enthalpy, percentageSaturation,
                pressure);
        }

        /// <summary>Dry bulb of air with a wet bulb and vapour pressure.</summary>
        /// <param name="wetBulb">Wet-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="vapourPressure">Vapour pressure [Pa]; valid from 0.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: t = twb + (ps(twb) - pv) / (A p)</para>
        /// <para>A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Psychrometer equation of VapourPressureFromPsychrometer, solved for the dry bulb.</para>
        /// </remarks>
        public static float DryBulbFromWetBulbAndVapourPressure(float wetBulb, float vapourPressure, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndVapourPressure", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndVapourPressure", "vapourPressure", vapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            Check.Range("Psychro.DryBulbFromWetBulbAndVapourPressure", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndVapourPressure", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndVapourPressure(wetBulb, vapourPressure, pressure,
                psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndVapourPressure(float, float, float, Psychrometer)"/>
        public static float[] DryBulbFromWetBulbAndVapourPressure(Input<float> wetBulb, Input<float> vapourPressure,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndVapourPressure", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndVapourPressure", "vapourPressure", vapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            Check.Range("Psychro.DryBulbFromWetBulbAndVapourPressure", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndVapourPressure", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndVapourPressure(wetBulb, vapourPressure, pressure,
                psychrometer);
        }

        /// <summary>Dry bulb of air with a wet bulb and moisture content.</summary>
        /// <param name="wetBulb">Wet-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: VapourPressureFromPsychrometer(t, twb, p) = VapourPressureFromMoistureContent(t, g, p)</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromWetBulbAndMoistureContent(float wetBulb, float moistureContent, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndMoistureContent", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndMoistureContent", "moistureContent", moistureContent, 0f, 0.1f,
                " kg/kg");
            Check.Range("Psychro.DryBulbFromWetBulbAndMoistureContent", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndMoistureContent", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndMoistureContent(wetBulb, moistureContent, pressure,
                psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndMoistureContent(float, float, float, Psychrometer)"/>
        public static float[] DryBulbFromWetBulbAndMoistureContent(Input<float> wetBulb, Input<float> moistureContent,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndMoistureContent", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndMoistureContent", "moistureContent", moistureContent, 0f, 0.1f,
                " kg/kg");
            Check.Range("Psychro.DryBulbFromWetBulbAndMoistureContent", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndMoistureContent", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndMoistureContent(wetBulb, moistureContent, pressure,
                psychrometer);
        }

        /// <summary>Dry bulb of air with a wet bulb and relative humidity.</summary>
        /// <param name="wetBulb">Wet-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="relativeHumidity">Relative humidity [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: VapourPressureFromPsychrometer(t, twb, p) = rh / 100 ps(t)</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>Relative humidity is limited to 0 to 100 %, not rejected.</para>
        /// <para>A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromWetBulbAndRelativeHumidity(float wetBulb, float relativeHumidity, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndRelativeHumidity", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndRelativeHumidity", "relativeHumidity", relativeHumidity, 0f, 100f,
                " %");
            Check.Range("Psychro.DryBulbFromWetBulbAndRelativeHumidity", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndRelativeHumidity", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndRelativeHumidity(wetBulb, relativeHumidity, pressure,
                psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndRelativeHumidity(float, float, float, Psychrometer)"/>
        public static float[] DryBulbFromWetBulbAndRelativeHumidity(Input<float> wetBulb, Input<float> relativeHumidity,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndRelativeHumidity", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndRelativeHumidity", "relativeHumidity", relativeHumidity, 0f, 100f,
                " %");
            Check.Range("Psychro.DryBulbFromWetBulbAndRelativeHumidity", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndRelativeHumidity", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndRelativeHumidity(wetBulb, relativeHumidity, pressure,
                psychrometer);
        }

        /// <summary>Dry bulb of air with a wet bulb and percentage saturation.</summary>
        /// <param name="wetBulb">Wet-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="percentageSaturation">Percentage saturation [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: MoistureContentFromPsychrometer(t, twb, p) = percentage / 100 gs(t, p)</para>
        /// <para>Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a
        /// number.</para>
        /// <para>Up to where water boils at the atmospheric pressure. The percentage is not limited.</para>
        /// <para>A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromWetBulbAndPercentageSaturation(float wetBulb, float percentageSaturation,
            float pressure, Psychrometer psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndPercentageSaturation", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndPercentageSaturation", "percentageSaturation",
                percentageSaturation, 0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromWetBulbAndPercentageSaturation", "pressure", pressure, 50000f, 110000f,
                " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndPercentageSaturation", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndPercentageSaturation(wetBulb, percentageSaturation, pressure,
                psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndPercentageSaturation(float, float, float, Psychrometer)"/>
        public static float[] DryBulbFromWetBulbAndPercentageSaturation(Input<float> wetBulb,
            Input<float> percentageSaturation, Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndPercentageSaturation", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndPercentageSaturation", "percentageSaturation",
                percentageSaturation, 0f, 100f, " %");
            Check.Range("Psychro.DryBulbFromWetBulbAndPercentageSaturation", "pressure", pressure, 50000f, 110000f,
                " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndPercentageSaturation", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndPercentageSaturation(wetBulb, percentageSaturation, pressure,
                psychrometer);
        }

        /// <summary>Dry bulb of air with a wet bulb and specific enthalpy.</summary>
        /// <param name="wetBulb">Wet-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="enthalpy">Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Dry-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: SpecificEnthalpyFromPsychrometer(t, twb, p) = h</para>
        /// <para>Badly conditioned, since the enthalpy hardly changes along a wet bulb: 0.01 kJ/kg of enthalpy can be
        /// 0.25 K of dry bulb. For wet bulbs from -50 to 55 °C, above which the enthalpy turns.</para>
        /// <para>An enthalpy that no air of that wet bulb has, between saturated and dry, gives not a number; 1 K
        /// beyond saturation is allowed for, and gives the wet bulb.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Newton's method in double precision on the equations of the routines named.</para>
        /// </remarks>
        public static float DryBulbFromWetBulbAndEnthalpy(float wetBulb, float enthalpy, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndEnthalpy", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndEnthalpy", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.DryBulbFromWetBulbAndEnthalpy", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndEnthalpy", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndEnthalpy(wetBulb, enthalpy, pressure, psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndEnthalpy(float, float, float, Psychrometer)"/>
        public static float[] DryBulbFromWetBulbAndEnthalpy(Input<float> wetBulb, Input<float> enthalpy,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.DryBulbFromWetBulbAndEnthalpy", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.DryBulbFromWetBulbAndEnthalpy", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.DryBulbFromWetBulbAndEnthalpy", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.DryBulbFromWetBulbAndEnthalpy", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.DryBulbFromWetBulbAndEnthalpy(wetBulb, enthalpy, pressure, psychrometer);
        }

        /// <summary>Two streams of moist air that become one, without heat from outside.</summary>
        /// <param name="firstAirFlow">Mass flow of dry air in the first stream, or its share in any unit [kg/s]; valid
        /// from 0.</param>
        /// <param name="firstDryBulb">Dry-bulb temperature of the first stream [°C]; valid -100 to 200.</param>
        /// <param name="firstMoistureContent">Moisture content of the first stream [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="secondAirFlow">Mass flow of dry air in the second stream, in the same unit [kg/s]; valid from
        /// 0.</param>
        /// <param name="secondDryBulb">Dry-bulb temperature of the second stream [°C]; valid -100 to 200.</param>
        /// <param name="secondMoistureContent">Moisture content of the second stream [kg/kg]; valid 0 to 0.1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: g = (m1 g1 + m2 g2) / (m1 + m2), h likewise; t from h and g</para>
        /// <para>All moisture counts as vapour: PercentageSaturation says whether the mixture is above saturation and
        /// would form fog.</para>
        /// <para>The enthalpies hold from -50 to 100 °C. Where no dry bulb from -100 to 200 °C belongs to the mixture,
        /// it is not a number; nor is anything without flow.</para>
        /// <para>Source: Balances of enthalpy, water and dry air: ASHRAE Handbook Fundamentals 2017, chapter 1,
        /// adiabatic mixing of two moist airstreams.</para>
        /// </remarks>
        public static AdiabaticMixing AdiabaticMixing(float firstAirFlow, float firstDryBulb,
            float firstMoistureContent, float secondAirFlow, float secondDryBulb, float secondMoistureContent)
        {
            Check.Range("Psychro.AdiabaticMixing", "firstAirFlow", firstAirFlow, 0f, float.PositiveInfinity, " kg/s");
            Check.Range("Psychro.AdiabaticMixing", "firstDryBulb", firstDryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.AdiabaticMixing", "firstMoistureContent", firstMoistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.AdiabaticMixing", "secondAirFlow", secondAirFlow, 0f, float.PositiveInfinity, " kg/s");
            Check.Range("Psychro.AdiabaticMixing", "secondDryBulb", secondDryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.AdiabaticMixing", "secondMoistureContent", secondMoistureContent, 0f, 0.1f, " kg/kg");
            return Unchecked.Psychro.AdiabaticMixing(firstAirFlow, firstDryBulb, firstMoistureContent, secondAirFlow,
                secondDryBulb, secondMoistureContent);
        }

        /// <inheritdoc cref="Quorvel.Psychro.AdiabaticMixing(float, float, float, float, float, float)"/>
        public static AdiabaticMixing[] AdiabaticMixing(Input<float> firstAirFlow, Input<float> firstDryBulb,
            Input<float> firstMoistureContent, Input<float> secondAirFlow, Input<float> secondDryBulb,
            Input<float> secondMoistureContent)
        {
            Check.Range("Psychro.AdiabaticMixing", "firstAirFlow", firstAirFlow, 0f, float.PositiveInfinity, " kg/s");
            Check.Range("Psychro.AdiabaticMixing", "firstDryBulb", firstDryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.AdiabaticMixing", "firstMoistureContent", firstMoistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.AdiabaticMixing", "secondAirFlow", secondAirFlow, 0f, float.PositiveInfinity, " kg/s");
            Check.Range("Psychro.AdiabaticMixing", "secondDryBulb", secondDryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.AdiabaticMixing", "secondMoistureContent", secondMoistureContent, 0f, 0.1f, " kg/kg");
            return Unchecked.Psychro.AdiabaticMixing(firstAirFlow, firstDryBulb, firstMoistureContent, secondAirFlow,
                secondDryBulb, secondMoistureContent);
        }

        /// <summary>Moisture content of air from the reading of a wet-and-dry-bulb psychrometer.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="wetBulb">Wet-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Moisture content, water vapour per dry air [kg/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: g = 0.62197 f pv / (p - f pv)</para>
        /// <para>A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken
        /// when the wet bulb is below 0 °C.</para>
        /// <para>The enhancement factor takes its ice coefficients at 0 °C and below, where the saturation pressure
        /// counts exactly 0 °C as water; the difference is deliberate.</para>
        /// <para>Not limited: a reading drier than any air gives a negative content, a vapour pressure above the
        /// atmospheric too.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Vapour pressure of <c>Psychro.VapourPressureFromPsychrometer</c>; the enhancement factor f is
        /// a quadratic in absolute temperature whose coefficients are linear in pressure.</para>
        /// <para>The bits of PSGS in quorvel.h.</para>
        /// </remarks>
        public static float MoistureContentFromPsychrometer(float dryBulb, float wetBulb, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.MoistureContentFromPsychrometer", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistureContentFromPsychrometer", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistureContentFromPsychrometer", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.MoistureContentFromPsychrometer", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.MoistureContentFromPsychrometer(dryBulb, wetBulb, pressure, psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.MoistureContentFromPsychrometer(float, float, float, Psychrometer)"/>
        public static float[] MoistureContentFromPsychrometer(Input<float> dryBulb, Input<float> wetBulb,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.MoistureContentFromPsychrometer", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistureContentFromPsychrometer", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistureContentFromPsychrometer", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.MoistureContentFromPsychrometer", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.MoistureContentFromPsychrometer(dryBulb, wetBulb, pressure, psychrometer);
        }

        /// <summary>Moisture content of air with a vapour pressure.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="vapourPressure">Vapour pressure [Pa]; valid from 0.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Moisture content, water vapour per dry air [kg/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: g = 0.62197 f pv / (p - f pv)</para>
        /// <para>Enhancement factor f of MoistureContentFromPsychrometer, at the dry bulb.</para>
        /// <para>Not limited: neither to saturation, nor to vapour pressures below the atmospheric.</para>
        /// <para>Source: Definition for a mixture of ideal gases, ASHRAE Handbook Fundamentals 2017, chapter 1, with
        /// the enhancement factor of MoistureContentFromPsychrometer.</para>
        /// </remarks>
        public static float MoistureContent(float dryBulb, float vapourPressure, float pressure)
        {
            Check.Range("Psychro.MoistureContent", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistureContent", "vapourPressure", vapourPressure, 0f, float.PositiveInfinity, " Pa");
            Check.Range("Psychro.MoistureContent", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.MoistureContent(dryBulb, vapourPressure, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.MoistureContent(float, float, float)"/>
        public static float[] MoistureContent(Input<float> dryBulb, Input<float> vapourPressure, Input<float> pressure)
        {
            Check.Range("Psychro.MoistureContent", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistureContent", "vapourPressure", vapourPressure, 0f, float.PositiveInfinity, " Pa");
            Check.Range("Psychro.MoistureContent", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.MoistureContent(dryBulb, vapourPressure, pressure);
        }

        /// <summary>Vapour pressure of air with a moisture content, the inverse of MoistureContent.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Vapour pressure [Pa].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: pv = p g / (f (0.62197 + g))</para>
        /// <para>Not limited to saturation.</para>
        /// <para>Source: As MoistureContent.</para>
        /// </remarks>
        public static float VapourPressureFromMoistureContent(float dryBulb, float moistureContent, float pressure)
        {
            Check.Range("Psychro.VapourPressureFromMoistureContent", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.VapourPressureFromMoistureContent", "moistureContent", moistureContent, 0f, 0.1f,
                " kg/kg");
            Check.Range("Psychro.VapourPressureFromMoistureContent", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.VapourPressureFromMoistureContent(dryBulb, moistureContent, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.VapourPressureFromMoistureContent(float, float, float)"/>
        public static float[] VapourPressureFromMoistureContent(Input<float> dryBulb, Input<float> moistureContent,
            Input<float> pressure)
        {
            Check.Range("Psychro.VapourPressureFromMoistureContent", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.VapourPressureFromMoistureContent", "moistureContent", moistureContent, 0f, 0.1f,
                " kg/kg");
            Check.Range("Psychro.VapourPressureFromMoistureContent", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.VapourPressureFromMoistureContent(dryBulb, moistureContent, pressure);
        }

        /// <summary>Moisture content of air with a percentage saturation, the inverse of
        /// PercentageSaturation.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="percentageSaturation">Percentage saturation [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Moisture content, water vapour per dry air [kg/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: g = percentage / 100 gs(t, p)</para>
        /// <para>Not limited. From boiling on, where the saturation pressure is above the atmospheric, it means
        /// nothing.</para>
        /// <para>Source: Definition, with the saturation moisture content of MoistureContentFromPsychrometer.</para>
        /// </remarks>
        public static float MoistureContentFromPercentageSaturation(float dryBulb, float percentageSaturation,
            float pressure)
        {
            Check.Range("Psychro.MoistureContentFromPercentageSaturation", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistureContentFromPercentageSaturation", "percentageSaturation", percentageSaturation,
                0f, 100f, " %");
            Check.Range("Psychro.MoistureContentFromPercentageSaturation", "pressure", pressure, 50000f, 110000f,
                " Pa");
            return Unchecked.Psychro.MoistureContentFromPercentageSaturation(dryBulb, percentageSaturation, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.MoistureContentFromPercentageSaturation(float, float, float)"/>
        public static float[] MoistureContentFromPercentageSaturation(Input<float> dryBulb,
            Input<float> percentageSaturation, Input<float> pressure)
        {
            Check.Range("Psychro.MoistureContentFromPercentageSaturation", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistureContentFromPercentageSaturation", "percentageSaturation", percentageSaturation,
                0f, 100f, " %");
            Check.Range("Psychro.MoistureContentFromPercentageSaturation", "pressure", pressure, 50000f, 110000f,
                " Pa");
            return Unchecked.Psychro.MoistureContentFromPercentageSaturation(dryBulb, percentageSaturation, pressure);
        }

        /// <summary>Moisture content of air with a specific enthalpy, the inverse of SpecificEnthalpy.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -50 to 100.</param>
        /// <param name="enthalpy">Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.</param>
        /// <returns>Moisture content, water vapour per dry air [kg/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: g = (h - ha(t)) / hv(t)</para>
        /// <para>Not limited: negative where dry air alone has more, and neither to saturation.</para>
        /// <para>Source: As SpecificEnthalpy.</para>
        /// </remarks>
        public static float MoistureContentFromEnthalpy(float dryBulb, float enthalpy)
        {
            Check.Range("Psychro.MoistureContentFromEnthalpy", "dryBulb", dryBulb, -50f, 100f, " °C");
            Check.Range("Psychro.MoistureContentFromEnthalpy", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            return Unchecked.Psychro.MoistureContentFromEnthalpy(dryBulb, enthalpy);
        }

        /// <inheritdoc cref="Quorvel.Psychro.MoistureContentFromEnthalpy(float, float)"/>
        public static float[] MoistureContentFromEnthalpy(Input<float> dryBulb, Input<float> enthalpy)
        {
            Check.Range("Psychro.MoistureContentFromEnthalpy", "dryBulb", dryBulb, -50f, 100f, " °C");
            Check.Range("Psychro.MoistureContentFromEnthalpy", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            return Unchecked.Psychro.MoistureContentFromEnthalpy(dryBulb, enthalpy);
        }

        /// <summary>Density of moist air.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Density of the moist air [kg/m³].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: (1 + g) / v, by SpecificVolume</para>
        /// <para>A moisture content above saturation counts as saturation.</para>
        /// <para>Source: Definition: ASHRAE Handbook Fundamentals 2017, chapter 1.</para>
        /// </remarks>
        public static float MoistAirDensity(float dryBulb, float moistureContent, float pressure)
        {
            Check.Range("Psychro.MoistAirDensity", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistAirDensity", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.MoistAirDensity", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.MoistAirDensity(dryBulb, moistureContent, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.MoistAirDensity(float, float, float)"/>
        public static float[] MoistAirDensity(Input<float> dryBulb, Input<float> moistureContent, Input<float> pressure)
        {
            Check.Range("Psychro.MoistAirDensity", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.MoistAirDensity", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.MoistAirDensity", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.MoistAirDensity(dryBulb, moistureContent, pressure);
        }

        /// <summary>Percentage saturation: moisture content by that of saturated air at the same temperature and
        /// pressure.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Percentage saturation [%].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 100 g / gs(t, p)</para>
        /// <para>Not limited: supersaturated air gives more than 100.</para>
        /// <para>Percentage saturation is not relative humidity, the ratio of vapour pressures, and is the lower of the
        /// two.</para>
        /// <para>Source: Definition, with the saturation moisture content of
        /// <c>Psychro.MoistureContentFromPsychrometer</c>.</para>
        /// <para>The bits of PSPCST in quorvel.h.</para>
        /// </remarks>
        public static float PercentageSaturation(float dryBulb, float moistureContent, float pressure)
        {
            Check.Range("Psychro.PercentageSaturation", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PercentageSaturation", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.PercentageSaturation", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.PercentageSaturation(dryBulb, moistureContent, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.PercentageSaturation(float, float, float)"/>
        public static float[] PercentageSaturation(Input<float> dryBulb, Input<float> moistureContent,
            Input<float> pressure)
        {
            Check.Range("Psychro.PercentageSaturation", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PercentageSaturation", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.PercentageSaturation", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.PercentageSaturation(dryBulb, moistureContent, pressure);
        }

        /// <summary>Specific enthalpy of moist air.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -50 to 100.</param>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <returns>Specific enthalpy, by mass of dry air [kJ/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: h = ha(t) + g hv(t), by DryAirEnthalpy and WaterVapourEnthalpy</para>
        /// <para>Per kilogram of dry air, from dry air and liquid water at 0 °C.</para>
        /// <para>All moisture counts as vapour: the moisture content is not limited to that of saturated air.</para>
        /// <para>Source: Sum over dry air and vapour, as for mixtures of ideal gases: ASHRAE Handbook Fundamentals
        /// 2017, chapter 1.</para>
        /// </remarks>
        public static float SpecificEnthalpy(float dryBulb, float moistureContent)
        {
            Check.Range("Psychro.SpecificEnthalpy", "dryBulb", dryBulb, -50f, 100f, " °C");
            Check.Range("Psychro.SpecificEnthalpy", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            return Unchecked.Psychro.SpecificEnthalpy(dryBulb, moistureContent);
        }

        /// <inheritdoc cref="Quorvel.Psychro.SpecificEnthalpy(float, float)"/>
        public static float[] SpecificEnthalpy(Input<float> dryBulb, Input<float> moistureContent)
        {
            Check.Range("Psychro.SpecificEnthalpy", "dryBulb", dryBulb, -50f, 100f, " °C");
            Check.Range("Psychro.SpecificEnthalpy", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            return Unchecked.Psychro.SpecificEnthalpy(dryBulb, moistureContent);
        }

        /// <summary>Specific enthalpy of moist air from the reading of a wet-and-dry-bulb psychrometer.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="wetBulb">Wet-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Specific enthalpy, by mass of dry air [kJ/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: h = <c>Psychro.DryAirEnthalpy</c>(t) + g <c>Psychro.WaterVapourEnthalpy</c>(t), g =
        /// <c>Psychro.MoistureContentFromPsychrometer</c>(t, twb, p)</para>
        /// <para>A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken
        /// when the wet bulb is below 0 °C.</para>
        /// <para>Per kilogram of dry air, from dry air and liquid water at 0 °C.</para>
        /// <para>Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 °C, within 0.2 %
        /// up to 50 °C.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Enthalpies of <c>Psychro.DryAirEnthalpy</c> and <c>Psychro.WaterVapourEnthalpy</c>, moisture
        /// content of <c>Psychro.MoistureContentFromPsychrometer</c>.</para>
        /// <para>The bits of PSHWET in quorvel.h.</para>
        /// </remarks>
        public static float SpecificEnthalpyFromPsychrometer(float dryBulb, float wetBulb, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.SpecificEnthalpyFromPsychrometer", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.SpecificEnthalpyFromPsychrometer", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.SpecificEnthalpyFromPsychrometer", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.SpecificEnthalpyFromPsychrometer", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.SpecificEnthalpyFromPsychrometer(dryBulb, wetBulb, pressure, psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.SpecificEnthalpyFromPsychrometer(float, float, float, Psychrometer)"/>
        public static float[] SpecificEnthalpyFromPsychrometer(Input<float> dryBulb, Input<float> wetBulb,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.SpecificEnthalpyFromPsychrometer", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.SpecificEnthalpyFromPsychrometer", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.SpecificEnthalpyFromPsychrometer", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.SpecificEnthalpyFromPsychrometer", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.SpecificEnthalpyFromPsychrometer(dryBulb, wetBulb, pressure, psychrometer);
        }

        /// <summary>Specific volume of moist air.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Specific volume, by mass of dry air [m³/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: v = 287.04 (t + 273.15) / pa - xa^2 B - 2 xa xv C - xv^2 D; xa = 0.62197 / (0.62197 + g), xv
        /// = 1 - xa, pa = p - p g / (1.0045 (0.62197 + g))</para>
        /// <para>A moisture content above saturation counts as saturation.</para>
        /// <para>Per kilogram of dry air: the reciprocal is not the density of the moist air.</para>
        /// <para>Virial coefficients of air, B = (4.542 - 0.082785 t + 0.0004353 t^2 - 2.1418e-6 t^3) / 10000, and of
        /// air with vapour, C = (1.45 - 0.0097 t + 0.32 (t / 100)^2) / 1000; that of vapour, D, follows straight lines,
        /// one below 0 °C and one for each 10 K up to 50 °C and beyond.</para>
        /// <para>Source: Virial equation of the mixture, written for 101325 Pa (1.0045 is the enhancement factor
        /// there); its author is not known.</para>
        /// <para>The bits of PSSPVL in quorvel.h.</para>
        /// </remarks>
        public static float SpecificVolume(float dryBulb, float moistureContent, float pressure)
        {
            Check.Range("Psychro.SpecificVolume", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.SpecificVolume", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.SpecificVolume", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.SpecificVolume(dryBulb, moistureContent, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.SpecificVolume(float, float, float)"/>
        public static float[] SpecificVolume(Input<float> dryBulb, Input<float> moistureContent, Input<float> pressure)
        {
            Check.Range("Psychro.SpecificVolume", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.SpecificVolume", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.SpecificVolume", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.SpecificVolume(dryBulb, moistureContent, pressure);
        }

        /// <summary>Temperature at which saturated air has a specific enthalpy.</summary>
        /// <param name="enthalpy">Specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <returns>Saturation temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>An enthalpy below -10 gives -13.4, above 460 it gives 60, whatever the pressure; at 101325 Pa the
        /// search itself gives -12.98 and 59.98 there.</para>
        /// <para>A stepping search with steps down to 0.01 K: the result is below the exact temperature by less than
        /// that, or above it by 0.001 K at most.</para>
        /// <para>Where the search would never end (a pressure so low that the water boils, an argument that is not a
        /// number), the value it has reached is returned: some ten thousand degrees.</para>
        /// <para>Source: Enthalpy of <c>Psychro.SpecificEnthalpyFromPsychrometer</c>, solved by a step-and-refine
        /// search.</para>
        /// <para>The bits of PSTSAT in quorvel.h.</para>
        /// </remarks>
        public static float SaturationTemperatureFromEnthalpy(float enthalpy, float pressure)
        {
            Check.Range("Psychro.SaturationTemperatureFromEnthalpy", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.SaturationTemperatureFromEnthalpy", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.SaturationTemperatureFromEnthalpy(enthalpy, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.SaturationTemperatureFromEnthalpy(float, float)"/>
        public static float[] SaturationTemperatureFromEnthalpy(Input<float> enthalpy, Input<float> pressure)
        {
            Check.Range("Psychro.SaturationTemperatureFromEnthalpy", "enthalpy", enthalpy, -10f, 460f, " kJ/kg");
            Check.Range("Psychro.SaturationTemperatureFromEnthalpy", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.SaturationTemperatureFromEnthalpy(enthalpy, pressure);
        }

        /// <summary>Evaporation from an indoor pool and its heat flows, for room air given by its moisture
        /// content.</summary>
        /// <param name="waterArea">Area of the water surface [m²]; valid from 0.</param>
        /// <param name="wettedArea">Further wetted area, which adds to the latent load only [m²]; valid from 0.</param>
        /// <param name="waterTemperature">Water temperature [°C]; valid -100 to 200.</param>
        /// <param name="dryBulb">Dry-bulb temperature of the room air [°C]; valid -100 to 200.</param>
        /// <param name="moistureContent">Moisture content of the room air [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="referenceTemperature">Second reference temperature [°C]; valid -100 to 200.</param>
        /// <param name="bathers">Number of bathers, below 1 unoccupied; valid from 0.</param>
        /// <param name="referenceCoefficient">Coefficient of the exchange with the second reference temperature
        /// [W/m²K]; valid from 0.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: dp = ps(waterTemperature) - pv; evaporationRate = 2.193e-8 dp - 1.64e-5 without bathers,
        /// 4.17e-8 dp bathers / waterArea + 3.28e-5 with them; latentLoad = 2.45e6 evaporationRate (waterArea +
        /// wettedArea)</para>
        /// <para>The vapour pressure is that of a sling psychrometer at the wet bulb of
        /// <c>Psychro.WetBulbFromMoistureContent</c>, and good to the step of that search.</para>
        /// <para>Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.</para>
        /// <para>With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.</para>
        /// <para>Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp
        /// in kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.</para>
        /// <para>The bits of TPPOOL in quorvel.h.</para>
        /// </remarks>
        public static PoolEvaporation PoolEvaporation(float waterArea, float wettedArea, float waterTemperature,
            float dryBulb, float moistureContent, float referenceTemperature, int bathers, float referenceCoefficient,
            float pressure)
        {
            Check.Range("Psychro.PoolEvaporation", "waterArea", waterArea, 0f, float.PositiveInfinity, " m²");
            Check.Range("Psychro.PoolEvaporation", "wettedArea", wettedArea, 0f, float.PositiveInfinity, " m²");
            Check.Range("Psychro.PoolEvaporation", "waterTemperature", waterTemperature, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporation", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporation", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.PoolEvaporation", "referenceTemperature", referenceTemperature, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporation", "bathers", bathers, 0, int.MaxValue, "");
            Check.Range("Psychro.PoolEvaporation", "referenceCoefficient", referenceCoefficient, 0f,
                float.PositiveInfinity, " W/m²K");
            Check.Range("Psychro.PoolEvaporation", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.PoolEvaporation(waterArea, wettedArea, waterTemperature, dryBulb, moistureContent,
                referenceTemperature, bathers, referenceCoefficient, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.PoolEvaporation(float, float, float, float, float, float, int, float, float)"/>
        public static PoolEvaporation[] PoolEvaporation(Input<float> waterArea, Input<float> wettedArea,
            Input<float> waterTemperature, Input<float> dryBulb, Input<float> moistureContent,
            Input<float> referenceTemperature, Input<int> bathers, Input<float> referenceCoefficient,
            Input<float> pressure)
        {
            Check.Range("Psychro.PoolEvaporation", "waterArea", waterArea, 0f, float.PositiveInfinity, " m²");
            Check.Range("Psychro.PoolEvaporation", "wettedArea", wettedArea, 0f, float.PositiveInfinity, " m²");
            Check.Range("Psychro.PoolEvaporation", "waterTemperature", waterTemperature, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporation", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporation", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.PoolEvaporation", "referenceTemperature", referenceTemperature, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporation", "bathers", bathers, 0, int.MaxValue, "");
            Check.Range("Psychro.PoolEvaporation", "referenceCoefficient", referenceCoefficient, 0f,
                float.PositiveInfinity, " W/m²K");
            Check.Range("Psychro.PoolEvaporation", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.PoolEvaporation(waterArea, wettedArea, waterTemperature, dryBulb, moistureContent,
                referenceTemperature, bathers, referenceCoefficient, pressure);
        }

        /// <summary>Evaporation from an indoor pool and its heat flows, for room air given by its wet bulb.</summary>
        /// <param name="waterArea">Area of the water surface [m²]; valid from 0.</param>
        /// <param name="wettedArea">Further wetted area, which adds to the latent load only [m²]; valid from 0.</param>
        /// <param name="waterTemperature">Water temperature [°C]; valid -100 to 200.</param>
        /// <param name="dryBulb">Dry-bulb temperature of the room air [°C]; valid -100 to 200.</param>
        /// <param name="wetBulb">Wet-bulb temperature of the room air, sling psychrometer [°C]; valid -100 to
        /// 200.</param>
        /// <param name="referenceTemperature">Second reference temperature [°C]; valid -100 to 200.</param>
        /// <param name="bathers">Number of bathers, below 1 unoccupied; valid from 0.</param>
        /// <param name="referenceCoefficient">Coefficient of the exchange with the second reference temperature
        /// [W/m²K]; valid from 0.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: dp = ps(waterTemperature) - pv; evaporationRate = 2.193e-8 dp - 1.64e-5 without bathers,
        /// 4.17e-8 dp bathers / waterArea + 3.28e-5 with them; latentLoad = 2.45e6 evaporationRate (waterArea +
        /// wettedArea)</para>
        /// <para>A wet bulb at or above the dry bulb counts as saturated air.</para>
        /// <para>Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.</para>
        /// <para>With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.</para>
        /// <para>Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp
        /// in kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.</para>
        /// <para>The bits of TPPOOL2 in quorvel.h.</para>
        /// </remarks>
        public static PoolEvaporationFromWetBulb PoolEvaporationFromWetBulb(float waterArea, float wettedArea,
            float waterTemperature, float dryBulb, float wetBulb, float referenceTemperature, int bathers,
            float referenceCoefficient, float pressure)
        {
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "waterArea", waterArea, 0f, float.PositiveInfinity,
                " m²");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "wettedArea", wettedArea, 0f, float.PositiveInfinity,
                " m²");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "waterTemperature", waterTemperature, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "referenceTemperature", referenceTemperature, -100f, 200f,
                " °C");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "bathers", bathers, 0, int.MaxValue, "");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "referenceCoefficient", referenceCoefficient, 0f,
                float.PositiveInfinity, " W/m²K");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.PoolEvaporationFromWetBulb(waterArea, wettedArea, waterTemperature, dryBulb,
                wetBulb, referenceTemperature, bathers, referenceCoefficient, pressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.PoolEvaporationFromWetBulb(float, float, float, float, float, float, int, float, float)"/>
        public static PoolEvaporationFromWetBulb[] PoolEvaporationFromWetBulb(Input<float> waterArea,
            Input<float> wettedArea, Input<float> waterTemperature, Input<float> dryBulb, Input<float> wetBulb,
            Input<float> referenceTemperature, Input<int> bathers, Input<float> referenceCoefficient,
            Input<float> pressure)
        {
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "waterArea", waterArea, 0f, float.PositiveInfinity,
                " m²");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "wettedArea", wettedArea, 0f, float.PositiveInfinity,
                " m²");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "waterTemperature", waterTemperature, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "referenceTemperature", referenceTemperature, -100f, 200f,
                " °C");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "bathers", bathers, 0, int.MaxValue, "");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "referenceCoefficient", referenceCoefficient, 0f,
                float.PositiveInfinity, " W/m²K");
            Check.Range("Psychro.PoolEvaporationFromWetBulb", "pressure", pressure, 50000f, 110000f, " Pa");
            return Unchecked.Psychro.PoolEvaporationFromWetBulb(waterArea, wettedArea, waterTemperature, dryBulb,
                wetBulb, referenceTemperature, bathers, referenceCoefficient, pressure);
        }

        /// <summary>Saturation vapour pressure over a plane surface of water, or of ice below 0 °C.</summary>
        /// <param name="temperature">Temperature [°C]; valid -100 to 200.</param>
        /// <returns>Saturation vapour pressure [Pa].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: log10(ps) = 33.59051 - 3142.31 / T - 8.2 log10(T) + 0.0024804 T over water, 12.538099 -
        /// 2663.91 / T over ice; T = temperature + 273.15</para>
        /// <para>Exactly 0 °C counts as water. The two branches meet there only to 0.04 Pa (610.34 over water, 610.30
        /// over ice); the step is deliberate.</para>
        /// <para>Within 0.4 % of the international formulation from -20 to 150 °C, within 1 % down to -40 °C.</para>
        /// <para>Source: National Engineering Laboratory, Steam Tables 1964, in the reduced form that building services
        /// guides print.</para>
        /// <para>The bits of PSSVP in quorvel.h.</para>
        /// </remarks>
        public static float SaturationPressure(float temperature)
        {
            Check.Range("Psychro.SaturationPressure", "temperature", temperature, -100f, 200f, " °C");
            return Unchecked.Psychro.SaturationPressure(temperature);
        }

        /// <inheritdoc cref="Quorvel.Psychro.SaturationPressure(float)"/>
        public static float[] SaturationPressure(Input<float> temperature)
        {
            Check.Range("Psychro.SaturationPressure", "temperature", temperature, -100f, 200f, " °C");
            return Unchecked.Psychro.SaturationPressure(temperature);
        }

        /// <summary>Dew point of air with a vapour pressure, the inverse of the saturation pressure; below 0 °C the
        /// frost point.</summary>
        /// <param name="vapourPressure">Vapour pressure [Pa]; valid from 0.</param>
        /// <returns>Dew-point temperature, of frost below 0 °C [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: ps(DewPoint) = pv</para>
        /// <para>Solved in double precision; SaturationPressure, in single precision, returns the vapour pressure to
        /// 0.002 %, and DewPoint the temperature that was given to it to 0.001 K up to 100 °C.</para>
        /// <para>The vapour pressures between ice and water at 0 °C, 610.30 to 610.34 Pa, give 0 °C to 0.0001 K.</para>
        /// <para>Found from -200 to 400 °C. A pressure of 0 or less, or beyond those of this range, gives not a
        /// number.</para>
        /// <para>Source: Saturation pressure of SaturationPressure (National Engineering Laboratory, Steam Tables
        /// 1964), solved by Newton's method.</para>
        /// </remarks>
        public static float DewPoint(float vapourPressure)
        {
            Check.Range("Psychro.DewPoint", "vapourPressure", vapourPressure, 0f, float.PositiveInfinity, " Pa");
            return Unchecked.Psychro.DewPoint(vapourPressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.DewPoint(float)"/>
        public static float[] DewPoint(Input<float> vapourPressure)
        {
            Check.Range("Psychro.DewPoint", "vapourPressure", vapourPressure, 0f, float.PositiveInfinity, " Pa");
            return Unchecked.Psychro.DewPoint(vapourPressure);
        }

        /// <summary>Vapour pressure of air at a dry-bulb temperature and relative humidity.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="relativeHumidity">Relative humidity [%]; valid 0 to 100.</param>
        /// <returns>Vapour pressure [Pa].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: pv = rh / 100 ps(t)</para>
        /// <para>Relative humidity is limited to 0 to 100 %, not rejected.</para>
        /// <para>Source: Definition of relative humidity, with the saturation pressure of
        /// <c>Psychro.SaturationPressure</c>.</para>
        /// <para>The bits of PSVP in quorvel.h.</para>
        /// </remarks>
        public static float VapourPressure(float dryBulb, float relativeHumidity)
        {
            Check.Range("Psychro.VapourPressure", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.VapourPressure", "relativeHumidity", relativeHumidity, 0f, 100f, " %");
            return Unchecked.Psychro.VapourPressure(dryBulb, relativeHumidity);
        }

        /// <inheritdoc cref="Quorvel.Psychro.VapourPressure(float, float)"/>
        public static float[] VapourPressure(Input<float> dryBulb, Input<float> relativeHumidity)
        {
            Check.Range("Psychro.VapourPressure", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.VapourPressure", "relativeHumidity", relativeHumidity, 0f, 100f, " %");
            return Unchecked.Psychro.VapourPressure(dryBulb, relativeHumidity);
        }

        /// <summary>Relative humidity of air with a vapour pressure.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="vapourPressure">Vapour pressure [Pa]; valid from 0.</param>
        /// <returns>Relative humidity [%].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: rh = 100 pv / ps(t)</para>
        /// <para>Not limited: supersaturated air gives more than 100.</para>
        /// <para>Source: Definition of relative humidity, the ratio of vapour pressures, with
        /// SaturationPressure.</para>
        /// </remarks>
        public static float RelativeHumidity(float dryBulb, float vapourPressure)
        {
            Check.Range("Psychro.RelativeHumidity", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.RelativeHumidity", "vapourPressure", vapourPressure, 0f, float.PositiveInfinity,
                " Pa");
            return Unchecked.Psychro.RelativeHumidity(dryBulb, vapourPressure);
        }

        /// <inheritdoc cref="Quorvel.Psychro.RelativeHumidity(float, float)"/>
        public static float[] RelativeHumidity(Input<float> dryBulb, Input<float> vapourPressure)
        {
            Check.Range("Psychro.RelativeHumidity", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.RelativeHumidity", "vapourPressure", vapourPressure, 0f, float.PositiveInfinity,
                " Pa");
            return Unchecked.Psychro.RelativeHumidity(dryBulb, vapourPressure);
        }

        /// <summary>Vapour pressure from the reading of a wet-and-dry-bulb psychrometer.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="wetBulb">Wet-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Vapour pressure [Pa].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: pv = ps(twb) - A p (t - twb)</para>
        /// <para>The coefficient of an iced bulb is taken when the wet bulb is below 0 °C.</para>
        /// <para>A wet bulb at or above the dry bulb gives the saturation pressure at the dry-bulb temperature.</para>
        /// <para>The result is not limited: a reading drier than any air gives a negative pressure.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>A is 0.000666 1/K for a sling psychrometer and 0.000799 for a screen one, 0.000594 and 0.00072 with an
        /// iced bulb.</para>
        /// <para>Source: Psychrometer equation with the customary coefficients A.</para>
        /// <para>The bits of PSVAP in quorvel.h.</para>
        /// </remarks>
        public static float VapourPressureFromPsychrometer(float dryBulb, float wetBulb, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.VapourPressureFromPsychrometer", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.VapourPressureFromPsychrometer", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.VapourPressureFromPsychrometer", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.VapourPressureFromPsychrometer", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.VapourPressureFromPsychrometer(dryBulb, wetBulb, pressure, psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.VapourPressureFromPsychrometer(float, float, float, Psychrometer)"/>
        public static float[] VapourPressureFromPsychrometer(Input<float> dryBulb, Input<float> wetBulb,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.VapourPressureFromPsychrometer", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.VapourPressureFromPsychrometer", "wetBulb", wetBulb, -100f, 200f, " °C");
            Check.Range("Psychro.VapourPressureFromPsychrometer", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.VapourPressureFromPsychrometer", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.VapourPressureFromPsychrometer(dryBulb, wetBulb, pressure, psychrometer);
        }

        /// <summary>Weighted temperature of two air temperatures.</summary>
        /// <param name="firstTemperature">Temperature with the greater weight [°C]; valid -100 to 200.</param>
        /// <param name="secondTemperature">Temperature with the lesser, negative weight [°C]; valid -100 to
        /// 200.</param>
        /// <returns>Weighted temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: (41.94 t1 - 7.33 t2) / (34.61 + t1 - t2)</para>
        /// <para>Two equal temperatures give that temperature. Infinite where the second is above the first by 34.61
        /// K.</para>
        /// <para>Source: The derivation is not known, so the second temperature has no other meaning than the
        /// formula's.</para>
        /// <para>The bits of PSTEFF in quorvel.h.</para>
        /// </remarks>
        public static float WeightedTemperature(float firstTemperature, float secondTemperature)
        {
            Check.Range("Psychro.WeightedTemperature", "firstTemperature", firstTemperature, -100f, 200f, " °C");
            Check.Range("Psychro.WeightedTemperature", "secondTemperature", secondTemperature, -100f, 200f, " °C");
            return Unchecked.Psychro.WeightedTemperature(firstTemperature, secondTemperature);
        }

        /// <inheritdoc cref="Quorvel.Psychro.WeightedTemperature(float, float)"/>
        public static float[] WeightedTemperature(Input<float> firstTemperature, Input<float> secondTemperature)
        {
            Check.Range("Psychro.WeightedTemperature", "firstTemperature", firstTemperature, -100f, 200f, " °C");
            Check.Range("Psychro.WeightedTemperature", "secondTemperature", secondTemperature, -100f, 200f, " °C");
            return Unchecked.Psychro.WeightedTemperature(firstTemperature, secondTemperature);
        }

        /// <summary>Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and relative
        /// humidity.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="relativeHumidity">Relative humidity [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Wet-bulb temperature, never above the dry bulb [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The coefficient of an iced bulb is taken when the dry bulb is below 0 °C, where
        /// <c>Psychro.VapourPressureFromPsychrometer</c> looks at the wet bulb; the asymmetry is deliberate.</para>
        /// <para>A stepping search that ends within 0.1 K: the result moves in small jumps with its arguments.</para>
        /// <para>Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure of zero or
        /// below, say), the value it has reached is returned.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Psychrometer equation of <c>Psychro.VapourPressureFromPsychrometer</c>, solved by a
        /// step-and-refine search.</para>
        /// <para>The bits of PSTWET in quorvel.h.</para>
        /// </remarks>
        public static float PsychrometerWetBulb(float dryBulb, float relativeHumidity, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.PsychrometerWetBulb", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PsychrometerWetBulb", "relativeHumidity", relativeHumidity, 0f, 100f, " %");
            Check.Range("Psychro.PsychrometerWetBulb", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.PsychrometerWetBulb", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.PsychrometerWetBulb(dryBulb, relativeHumidity, pressure, psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.PsychrometerWetBulb(float, float, float, Psychrometer)"/>
        public static float[] PsychrometerWetBulb(Input<float> dryBulb, Input<float> relativeHumidity,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.PsychrometerWetBulb", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.PsychrometerWetBulb", "relativeHumidity", relativeHumidity, 0f, 100f, " %");
            Check.Range("Psychro.PsychrometerWetBulb", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.PsychrometerWetBulb", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.PsychrometerWetBulb(dryBulb, relativeHumidity, pressure, psychrometer);
        }

        /// <summary>Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and percentage
        /// saturation.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="percentageSaturation">Percentage saturation [%]; valid 0 to 100.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Wet-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A stepping search with steps down to 0.01 K: the result is above the exact wet bulb by less than that
        /// and moves in small jumps with its arguments.</para>
        /// <para>The percentage is not limited: 100 and more give the dry bulb.</para>
        /// <para>About 0 °C, where the coefficient changes to that of an iced bulb, two wet bulbs can belong to one
        /// percentage; which of them is found depends on the steps.</para>
        /// <para>Where the search would never end (below absolute zero, say), the value it has reached is
        /// returned.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Psychrometer equation of <c>Psychro.VapourPressureFromPsychrometer</c> with the moisture
        /// content of <c>Psychro.MoistureContentFromPsychrometer</c>, solved by a step-and-refine search.</para>
        /// <para>The bits of PSTWB in quorvel.h.</para>
        /// </remarks>
        public static float WetBulbFromPercentageSaturation(float dryBulb, float percentageSaturation, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.WetBulbFromPercentageSaturation", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.WetBulbFromPercentageSaturation", "percentageSaturation", percentageSaturation, 0f,
                100f, " %");
            Check.Range("Psychro.WetBulbFromPercentageSaturation", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.WetBulbFromPercentageSaturation", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.WetBulbFromPercentageSaturation(dryBulb, percentageSaturation, pressure,
                psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.WetBulbFromPercentageSaturation(float, float, float, Psychrometer)"/>
        public static float[] WetBulbFromPercentageSaturation(Input<float> dryBulb, Input<float> percentageSaturation,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.WetBulbFromPercentageSaturation", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.WetBulbFromPercentageSaturation", "percentageSaturation", percentageSaturation, 0f,
                100f, " %");
            Check.Range("Psychro.WetBulbFromPercentageSaturation", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.WetBulbFromPercentageSaturation", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.WetBulbFromPercentageSaturation(dryBulb, percentageSaturation, pressure,
                psychrometer);
        }

        /// <summary>Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and moisture
        /// content.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="moistureContent">Moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Wet-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A stepping search with steps of 5 K down to 0.005 K and a last one of 0.0005 K: the result is within
        /// 0.005 K of the exact wet bulb.</para>
        /// <para>At saturation or above the result is the dry bulb, whatever that is. Otherwise a dry bulb above 10000
        /// °C gives -100, one that is not a number -200.</para>
        /// <para>Where the search would never end (a moisture content that is not a number, or far below 0), the value
        /// it has reached is returned.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Psychrometer equation of <c>Psychro.VapourPressureFromPsychrometer</c> with the moisture
        /// content of <c>Psychro.MoistureContentFromPsychrometer</c>, solved by a step-and-refine search.</para>
        /// <para>The bits of PSWBLB in quorvel.h.</para>
        /// </remarks>
        public static float WetBulbFromMoistureContent(float dryBulb, float moistureContent, float pressure,
            Psychrometer psychrometer)
        {
            Check.Range("Psychro.WetBulbFromMoistureContent", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.WetBulbFromMoistureContent", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.WetBulbFromMoistureContent", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.WetBulbFromMoistureContent", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.WetBulbFromMoistureContent(dryBulb, moistureContent, pressure, psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.WetBulbFromMoistureContent(float, float, float, Psychrometer)"/>
        public static float[] WetBulbFromMoistureContent(Input<float> dryBulb, Input<float> moistureContent,
            Input<float> pressure, Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.WetBulbFromMoistureContent", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.WetBulbFromMoistureContent", "moistureContent", moistureContent, 0f, 0.1f, " kg/kg");
            Check.Range("Psychro.WetBulbFromMoistureContent", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.WetBulbFromMoistureContent", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.WetBulbFromMoistureContent(dryBulb, moistureContent, pressure, psychrometer);
        }

        /// <summary>Wet-bulb temperature that a psychrometer reads in air with a vapour pressure.</summary>
        /// <param name="dryBulb">Dry-bulb temperature [°C]; valid -100 to 200.</param>
        /// <param name="vapourPressure">Vapour pressure [Pa]; valid from 0.</param>
        /// <param name="pressure">Atmospheric pressure [Pa]; valid 50000 to 110000.</param>
        /// <param name="psychrometer">Psychrometer type.</param>
        /// <returns>Wet-bulb temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: ps(twb) - A p (t - twb) = pv</para>
        /// <para>The exact solution, in double precision; VapourPressureFromPsychrometer gives the vapour pressure back
        /// to 0.002 % of saturation.</para>
        /// <para>About 0 °C an iced wet bulb and one that is not can belong to the same air: that which is not iced is
        /// found.</para>
        /// <para>At saturation or above the result is the dry bulb. A vapour pressure too far below 0 gives not a
        /// number.</para>
        /// <para>A psychrometer type below 1 counts as 1, above 2 as 2.</para>
        /// <para>Source: Psychrometer equation of VapourPressureFromPsychrometer, solved by Newton's method.</para>
        /// </remarks>
        public static float WetBulb(float dryBulb, float vapourPressure, float pressure, Psychrometer psychrometer)
        {
            Check.Range("Psychro.WetBulb", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.WetBulb", "vapourPressure", vapourPressure, 0f, float.PositiveInfinity, " Pa");
            Check.Range("Psychro.WetBulb", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.WetBulb", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.WetBulb(dryBulb, vapourPressure, pressure, psychrometer);
        }

        /// <inheritdoc cref="Quorvel.Psychro.WetBulb(float, float, float, Psychrometer)"/>
        public static float[] WetBulb(Input<float> dryBulb, Input<float> vapourPressure, Input<float> pressure,
            Input<Psychrometer> psychrometer)
        {
            Check.Range("Psychro.WetBulb", "dryBulb", dryBulb, -100f, 200f, " °C");
            Check.Range("Psychro.WetBulb", "vapourPressure", vapourPressure, 0f, float.PositiveInfinity, " Pa");
            Check.Range("Psychro.WetBulb", "pressure", pressure, 50000f, 110000f, " Pa");
            Check.Selector("Psychro.WetBulb", "psychrometer", psychrometer, 1, 2);
            return Unchecked.Psychro.WetBulb(dryBulb, vapourPressure, pressure, psychrometer);
        }
    }

    public static partial class Unchecked
    {
        /// <summary>Moist air, unchecked.</summary>
        public static class Psychro
        {
            /// <inheritdoc cref="Quorvel.Psychro.DryAirEnthalpy(float)"/>
            public static float DryAirEnthalpy(float temperature)
            {
                return Native.PSHDRY(ref temperature);
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryAirEnthalpy(float)"/>
            public static float[] DryAirEnthalpy(Input<float> temperature)
            {
                int count = Elements.Count("Psychro.DryAirEnthalpy", ("temperature", temperature.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_air_enthalpy((UIntPtr)count, ref temperature.First, temperature.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.WaterVapourEnthalpy(float)"/>
            public static float WaterVapourEnthalpy(float temperature)
            {
                return Native.PSHVAP(ref temperature);
            }

            /// <inheritdoc cref="Quorvel.Psychro.WaterVapourEnthalpy(float)"/>
            public static float[] WaterVapourEnthalpy(Input<float> temperature)
            {
                int count = Elements.Count("Psychro.WaterVapourEnthalpy", ("temperature", temperature.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_water_vapour_enthalpy((UIntPtr)count, ref temperature.First,
                    temperature.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryAirSpecificHeat(float)"/>
            public static float DryAirSpecificHeat(float temperature)
            {
                return Native.PSCPDR(ref temperature);
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryAirSpecificHeat(float)"/>
            public static float[] DryAirSpecificHeat(Input<float> temperature)
            {
                int count = Elements.Count("Psychro.DryAirSpecificHeat", ("temperature", temperature.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_air_specific_heat((UIntPtr)count, ref temperature.First,
                    temperature.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.WaterVapourSpecificHeat(float)"/>
            public static float WaterVapourSpecificHeat(float temperature)
            {
                return Native.PSCPVA(ref temperature);
            }

            /// <inheritdoc cref="Quorvel.Psychro.WaterVapourSpecificHeat(float)"/>
            public static float[] WaterVapourSpecificHeat(Input<float> temperature)
            {
                int count = Elements.Count("Psychro.WaterVapourSpecificHeat", ("temperature", temperature.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_water_vapour_specific_heat((UIntPtr)count, ref temperature.First,
                    temperature.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.LatentHeat(float)"/>
            public static float LatentHeat(float temperature)
            {
                return Native.PSHFG(ref temperature);
            }

            /// <inheritdoc cref="Quorvel.Psychro.LatentHeat(float)"/>
            public static float[] LatentHeat(Input<float> temperature)
            {
                int count = Elements.Count("Psychro.LatentHeat", ("temperature", temperature.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_latent_heat((UIntPtr)count, ref temperature.First, temperature.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromVapourPressureAndRelativeHumidity(float, float)"/>
            public static float DryBulbFromVapourPressureAndRelativeHumidity(float vapourPressure,
                float relativeHumidity)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity((UIntPtr)1,
                    ref vapourPressure, IntPtr.Zero, ref relativeHumidity, IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromVapourPressureAndRelativeHumidity(float, float)"/>
            public static float[] DryBulbFromVapourPressureAndRelativeHumidity(Input<float> vapourPressure,
                Input<float> relativeHumidity)
            {
                int count = Elements.Count("Psychro.DryBulbFromVapourPressureAndRelativeHumidity", ("vapourPressure",
                    vapourPressure.Length), ("relativeHumidity", relativeHumidity.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity((UIntPtr)count,
                    ref vapourPressure.First, vapourPressure.Stride, ref relativeHumidity.First,
                    relativeHumidity.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromVapourPressureAndPercentageSaturation(float, float, float)"/>
            public static float DryBulbFromVapourPressureAndPercentageSaturation(float vapourPressure,
                float percentageSaturation, float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation((UIntPtr)1,
                    ref vapourPressure, IntPtr.Zero, ref percentageSaturation, IntPtr.Zero, ref pressure, IntPtr.Zero,
                    ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromVapourPressureAndPercentageSaturation(float, float, float)"/>
            public static float[] DryBulbFromVapourPressureAndPercentageSaturation(Input<float> vapourPressure,
                Input<float> percentageSaturation, Input<float> pressure)
            {
                int count = Elements.Count("Psychro.DryBulbFromVapourPressureAndPercentageSaturation",
                    ("vapourPressure", vapourPressure.Length), ("percentageSaturation", percentageSaturation.Length),
                    ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation((UIntPtr)count,
                    ref vapourPressure.First, vapourPressure.Stride, ref percentageSaturation.First,
                    percentageSaturation.Stride, ref pressure.First, pressure.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromMoistureContentAndRelativeHumidity(float, float, float)"/>
            public static float DryBulbFromMoistureContentAndRelativeHumidity(float moistureContent,
                float relativeHumidity, float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_moisture_content_and_relative_humidity((UIntPtr)1,
                    ref moistureContent, IntPtr.Zero, ref relativeHumidity, IntPtr.Zero, ref pressure, IntPtr.Zero,
                    ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromMoistureContentAndRelativeHumidity(float, float, float)"/>
            public static float[] DryBulbFromMoistureContentAndRelativeHumidity(Input<float> moistureContent,
                Input<float> relativeHumidity, Input<float> pressure)
            {
                int count = Elements.Count("Psychro.DryBulbFromMoistureContentAndRelativeHumidity", ("moistureContent",
                    moistureContent.Length), ("relativeHumidity", relativeHumidity.Length), ("pressure",
                    pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_moisture_content_and_relative_humidity((UIntPtr)count,
                    ref moistureContent.First, moistureContent.Stride, ref relativeHumidity.First,
                    relativeHumidity.Stride, ref pressure.First, pressure.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromMoistureContentAndPercentageSaturation(float, float, float)"/>
            public static float DryBulbFromMoistureContentAndPercentageSaturation(float moistureContent,
                float percentageSaturation, float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_moisture_content_and_percentage_saturation((UIntPtr)1,
                    ref moistureContent, IntPtr.Zero, ref percentageSaturation, IntPtr.Zero, ref pressure, IntPtr.Zero,
                    ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromMoistureContentAndPercentageSaturation(float, float, float)"/>
            public static float[] DryBulbFromMoistureContentAndPercentageSaturation(Input<float> moistureContent,
                Input<float> percentageSaturation, Input<float> pressure)
            {
                int count = Elements.Count("Psychro.DryBulbFromMoistureContentAndPercentageSaturation",
                    ("moistureContent", moistureContent.Length), ("percentageSaturation", percentageSaturation.Length),
                    ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_moisture_content_and_percentage_saturation((UIntPtr)count,
                    ref moistureContent.First, moistureContent.Stride, ref percentageSaturation.First,
                    percentageSaturation.Stride, ref pressure.First, pressure.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndMoistureContent(float, float)"/>
            public static float DryBulbFromEnthalpyAndMoistureContent(float enthalpy, float moistureContent)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_enthalpy_and_moisture_content((UIntPtr)1, ref enthalpy,
                    IntPtr.Zero, ref moistureContent, IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndMoistureContent(float, float)"/>
            public static float[] DryBulbFromEnthalpyAndMoistureContent(Input<float> enthalpy,
                Input<float> moistureContent)
            {
                int count = Elements.Count("Psychro.DryBulbFromEnthalpyAndMoistureContent", ("enthalpy",
                    enthalpy.Length), ("moistureContent", moistureContent.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_enthalpy_and_moisture_content((UIntPtr)count,
                    ref enthalpy.First, enthalpy.Stride, ref moistureContent.First, moistureContent.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndVapourPressure(float, float, float)"/>
            public static float DryBulbFromEnthalpyAndVapourPressure(float enthalpy, float vapourPressure,
                float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_enthalpy_and_vapour_pressure((UIntPtr)1, ref enthalpy,
                    IntPtr.Zero, ref vapourPressure, IntPtr.Zero, ref pressure, IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndVapourPressure(float, float, float)"/>
            public static float[] DryBulbFromEnthalpyAndVapourPressure(Input<float> enthalpy,
                Input<float> vapourPressure, Input<float> pressure)
            {
                int count = Elements.Count("Psychro.DryBulbFromEnthalpyAndVapourPressure", ("enthalpy",
                    enthalpy.Length), ("vapourPressure", vapourPressure.Length), ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_enthalpy_and_vapour_pressure((UIntPtr)count,
                    ref enthalpy.First, enthalpy.Stride, ref vapourPressure.First, vapourPressure.Stride,
                    ref pressure.First, pressure.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndRelativeHumidity(float, float, float)"/>
            public static float DryBulbFromEnthalpyAndRelativeHumidity(float enthalpy, float relativeHumidity,
                float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_enthalpy_and_relative_humidity((UIntPtr)1, ref enthalpy,
                    IntPtr.Zero, ref relativeHumidity, IntPtr.Zero, ref pressure, IntPtr.Zero, ref results,
                    IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndRelativeHumidity(float, float, float)"/>
            public static float[] DryBulbFromEnthalpyAndRelativeHumidity(Input<float> enthalpy,
                Input<float> relativeHumidity, Input<float> pressure)
            {
                int count = Elements.Count("Psychro.DryBulbFromEnthalpyAndRelativeHumidity", ("enthalpy",
                    enthalpy.Length), ("relativeHumidity", relativeHumidity.Length), ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_enthalpy_and_relative_humidity((UIntPtr)count,
                    ref enthalpy.First, enthalpy.Stride, ref relativeHumidity.First, relativeHumidity.Stride,
                    ref pressure.First, pressure.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndPercentageSaturation(float, float, float)"/>
            public static float DryBulbFromEnthalpyAndPercentageSaturation(float enthalpy, float percentageSaturation,
                float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_enthalpy_and_percentage_saturation((UIntPtr)1, ref enthalpy,
                    IntPtr.Zero, ref percentageSaturation, IntPtr.Zero, ref pressure, IntPtr.Zero, ref results,
                    IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromEnthalpyAndPercentageSaturation(float, float, float)"/>
            public static float[] DryBulbFromEnthalpyAndPercentageSaturation(Input<float> enthalpy,
                Input<float> percentageSaturation, Input<float> pressure)
            {
                int count = Elements.Count("Psychro.DryBulbFromEnthalpyAndPercentageSaturation", ("enthalpy",
                    enthalpy.Length), ("percentageSaturation", percentageSaturation.Length), ("pressure",
                    pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_enthalpy_and_percentage_saturation((UIntPtr)count,
                    ref enthalpy.First, enthalpy.Stride, ref percentageSaturation.First, percentageSaturation.Stride,
                    ref pressure.First, pressure.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndVapourPressure(float, float, float, Psychrometer)"/>
            public static float DryBulbFromWetBulbAndVapourPressure(float wetBulb, float vapourPressure, float pressure,
                Psychrometer psychrometer)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure((UIntPtr)1, ref wetBulb,
                    IntPtr.Zero, ref vapourPressure, IntPtr.Zero, ref pressure, IntPtr.Zero, ref psychrometer,
                    IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndVapourPressure(float, float, float, Psychrometer)"/>
            public static float[] DryBulbFromWetBulbAndVapourPressure(Input<float> wetBulb, Input<float> vapourPressure,
                Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.DryBulbFromWetBulbAndVapourPressure", ("wetBulb", wetBulb.Length),
                    ("vapourPressure", vapourPressure.Length), ("pressure", pressure.Length), ("psychrometer",
                    psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure((UIntPtr)count,
                    ref wetBulb.First, wetBulb.Stride, ref vapourPressure.First, vapourPressure.Stride,
                    ref pressure.First, pressure.Stride, ref psychrometer.First, psychrometer.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndMoistureContent(float, float, float, Psychrometer)"/>
            public static float DryBulbFromWetBulbAndMoistureContent(float wetBulb, float moistureContent,
                float pressure, Psychrometer psychrometer)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_moisture_content((UIntPtr)1, ref wetBulb,
                    IntPtr.Zero, ref moistureContent, IntPtr.Zero, ref pressure, IntPtr.Zero, ref psychrometer,
                    IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndMoistureContent(float, float, float, Psychrometer)"/>
            public static float[] DryBulbFromWetBulbAndMoistureContent(Input<float> wetBulb,
                Input<float> moistureContent, Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.DryBulbFromWetBulbAndMoistureContent", ("wetBulb", wetBulb.Length),
                    ("moistureContent", moistureContent.Length), ("pressure", pressure.Length), ("psychrometer",
                    psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_moisture_content((UIntPtr)count,
                    ref wetBulb.First, wetBulb.Stride, ref moistureContent.First, moistureContent.Stride,
                    ref pressure.First, pressure.Stride, ref psychrometer.First, psychrometer.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndRelativeHumidity(float, float, float, Psychrometer)"/>
            public static float DryBulbFromWetBulbAndRelativeHumidity(float wetBulb, float relativeHumidity,
                float pressure, Psychrometer psychrometer)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_relative_humidity((UIntPtr)1, ref wetBulb,
                    IntPtr.Zero, ref relativeHumidity, IntPtr.Zero, ref pressure, IntPtr.Zero, ref psychrometer,
                    IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndRelativeHumidity(float, float, float, Psychrometer)"/>
            public static float[] DryBulbFromWetBulbAndRelativeHumidity(Input<float> wetBulb,
                Input<float> relativeHumidity, Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.DryBulbFromWetBulbAndRelativeHumidity", ("wetBulb", wetBulb.Length),
                    ("relativeHumidity", relativeHumidity.Length), ("pressure", pressure.Length), ("psychrometer",
                    psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_relative_humidity((UIntPtr)count,
                    ref wetBulb.First, wetBulb.Stride, ref relativeHumidity.First, relativeHumidity.Stride,
                    ref pressure.First, pressure.Stride, ref psychrometer.First, psychrometer.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndPercentageSaturation(float, float, float, Psychrometer)"/>
            public static float DryBulbFromWetBulbAndPercentageSaturation(float wetBulb, float percentageSaturation,
                float pressure, Psychrometer psychrometer)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation((UIntPtr)1, ref wetBulb,
                    IntPtr.Zero, ref percentageSaturation, IntPtr.Zero, ref pressure, IntPtr.Zero, ref psychrometer,
                    IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndPercentageSaturation(float, float, float, Psychrometer)"/>
            public static float[] DryBulbFromWetBulbAndPercentageSaturation(Input<float> wetBulb,
                Input<float> percentageSaturation, Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.DryBulbFromWetBulbAndPercentageSaturation", ("wetBulb",
                    wetBulb.Length), ("percentageSaturation", percentageSaturation.Length), ("pressure",
                    pressure.Length), ("psychrometer", psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation((UIntPtr)count,
                    ref wetBulb.First, wetBulb.Stride, ref percentageSaturation.First, percentageSaturation.Stride,
                    ref pressure.First, pressure.Stride, ref psychrometer.First, psychrometer.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndEnthalpy(float, float, float, Psychrometer)"/>
            public static float DryBulbFromWetBulbAndEnthalpy(float wetBulb, float enthalpy, float pressure,
                Psychrometer psychrometer)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_enthalpy((UIntPtr)1, ref wetBulb, IntPtr.Zero,
                    ref enthalpy, IntPtr.Zero, ref pressure, IntPtr.Zero, ref psychrometer, IntPtr.Zero, ref results,
                    IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DryBulbFromWetBulbAndEnthalpy(float, float, float, Psychrometer)"/>
            public static float[] DryBulbFromWetBulbAndEnthalpy(Input<float> wetBulb, Input<float> enthalpy,
                Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.DryBulbFromWetBulbAndEnthalpy", ("wetBulb", wetBulb.Length),
                    ("enthalpy", enthalpy.Length), ("pressure", pressure.Length), ("psychrometer",
                    psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dry_bulb_from_wet_bulb_and_enthalpy((UIntPtr)count, ref wetBulb.First,
                    wetBulb.Stride, ref enthalpy.First, enthalpy.Stride, ref pressure.First, pressure.Stride,
                    ref psychrometer.First, psychrometer.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.AdiabaticMixing(float, float, float, float, float, float)"/>
            public static AdiabaticMixing AdiabaticMixing(float firstAirFlow, float firstDryBulb,
                float firstMoistureContent, float secondAirFlow, float secondDryBulb, float secondMoistureContent)
            {
                var results = new AdiabaticMixing { DryBulb = float.NaN, MoistureContent = float.NaN,
                    Enthalpy = float.NaN };
                Elements.Done(Native.quorvel_adiabatic_mixing((UIntPtr)1, ref firstAirFlow, IntPtr.Zero,
                    ref firstDryBulb, IntPtr.Zero, ref firstMoistureContent, IntPtr.Zero, ref secondAirFlow,
                    IntPtr.Zero, ref secondDryBulb, IntPtr.Zero, ref secondMoistureContent, IntPtr.Zero,
                    ref results.DryBulb, IntPtr.Zero, ref results.MoistureContent, IntPtr.Zero, ref results.Enthalpy,
                    IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.AdiabaticMixing(float, float, float, float, float, float)"/>
            public static AdiabaticMixing[] AdiabaticMixing(Input<float> firstAirFlow, Input<float> firstDryBulb,
                Input<float> firstMoistureContent, Input<float> secondAirFlow, Input<float> secondDryBulb,
                Input<float> secondMoistureContent)
            {
                int count = Elements.Count("Psychro.AdiabaticMixing", ("firstAirFlow", firstAirFlow.Length),
                    ("firstDryBulb", firstDryBulb.Length), ("firstMoistureContent", firstMoistureContent.Length),
                    ("secondAirFlow", secondAirFlow.Length), ("secondDryBulb", secondDryBulb.Length),
                    ("secondMoistureContent", secondMoistureContent.Length));
                var results = new AdiabaticMixing[count];
                Elements.Done(Native.quorvel_adiabatic_mixing((UIntPtr)count, ref firstAirFlow.First,
                    firstAirFlow.Stride, ref firstDryBulb.First, firstDryBulb.Stride, ref firstMoistureContent.First,
                    firstMoistureContent.Stride, ref secondAirFlow.First, secondAirFlow.Stride, ref secondDryBulb.First,
                    secondDryBulb.Stride, ref secondMoistureContent.First, secondMoistureContent.Stride,
                    ref Elements.First(results).DryBulb, Elements<AdiabaticMixing>.Stride,
                    ref Elements.First(results).MoistureContent, Elements<AdiabaticMixing>.Stride,
                    ref Elements.First(results).Enthalpy, Elements<AdiabaticMixing>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistureContentFromPsychrometer(float, float, float, Psychrometer)"/>
            public static float MoistureContentFromPsychrometer(float dryBulb, float wetBulb, float pressure,
                Psychrometer psychrometer)
            {
                return Native.PSGS(ref dryBulb, ref wetBulb, ref pressure, ref psychrometer);
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistureContentFromPsychrometer(float, float, float, Psychrometer)"/>
            public static float[] MoistureContentFromPsychrometer(Input<float> dryBulb, Input<float> wetBulb,
                Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.MoistureContentFromPsychrometer", ("dryBulb", dryBulb.Length),
                    ("wetBulb", wetBulb.Length), ("pressure", pressure.Length), ("psychrometer", psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_moisture_content_from_psychrometer((UIntPtr)count, ref dryBulb.First,
                    dryBulb.Stride, ref wetBulb.First, wetBulb.Stride, ref pressure.First, pressure.Stride,
                    ref psychrometer.First, psychrometer.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistureContent(float, float, float)"/>
            public static float MoistureContent(float dryBulb, float vapourPressure, float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_moisture_content((UIntPtr)1, ref dryBulb, IntPtr.Zero, ref vapourPressure,
                    IntPtr.Zero, ref pressure, IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistureContent(float, float, float)"/>
            public static float[] MoistureContent(Input<float> dryBulb, Input<float> vapourPressure,
                Input<float> pressure)
            {
                int count = Elements.Count("Psychro.MoistureContent", ("dryBulb", dryBulb.Length), ("vapourPressure",
                    vapourPressure.Length), ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_moisture_content((UIntPtr)count, ref dryBulb.First, dryBulb.Stride,
                    ref vapourPressure.First, vapourPressure.Stride, ref pressure.First, pressure.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.VapourPressureFromMoistureContent(float, float, float)"/>
            public static float VapourPressureFromMoistureContent(float dryBulb, float moistureContent, float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_vapour_pressure_from_moisture_content((UIntPtr)1, ref dryBulb, IntPtr.Zero,
                    ref moistureContent, IntPtr.Zero, ref pressure, IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.VapourPressureFromMoistureContent(float, float, float)"/>
            public static float[] VapourPressureFromMoistureContent(Input<float> dryBulb, Input<float> moistureContent,
                Input<float> pressure)
            {
                int count = Elements.Count("Psychro.VapourPressureFromMoistureContent", ("dryBulb", dryBulb.Length),
                    ("moistureContent", moistureContent.Length), ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_vapour_pressure_from_moisture_content((UIntPtr)count, ref dryBulb.First,
                    dryBulb.Stride, ref moistureContent.First, moistureContent.Stride, ref pressure.First,
                    pressure.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistureContentFromPercentageSaturation(float, float, float)"/>
            public static float MoistureContentFromPercentageSaturation(float dryBulb, float percentageSaturation,
                float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_moisture_content_from_percentage_saturation((UIntPtr)1, ref dryBulb,
                    IntPtr.Zero, ref percentageSaturation, IntPtr.Zero, ref pressure, IntPtr.Zero, ref results,
                    IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistureContentFromPercentageSaturation(float, float, float)"/>
            public static float[] MoistureContentFromPercentageSaturation(Input<float> dryBulb,
                Input<float> percentageSaturation, Input<float> pressure)
            {
                int count = Elements.Count("Psychro.MoistureContentFromPercentageSaturation", ("dryBulb",
                    dryBulb.Length), ("percentageSaturation", percentageSaturation.Length), ("pressure",
                    pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_moisture_content_from_percentage_saturation((UIntPtr)count,
                    ref dryBulb.First, dryBulb.Stride, ref percentageSaturation.First, percentageSaturation.Stride,
                    ref pressure.First, pressure.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistureContentFromEnthalpy(float, float)"/>
            public static float MoistureContentFromEnthalpy(float dryBulb, float enthalpy)
            {
                float results = 0;
                Elements.Done(Native.quorvel_moisture_content_from_enthalpy((UIntPtr)1, ref dryBulb, IntPtr.Zero,
                    ref enthalpy, IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistureContentFromEnthalpy(float, float)"/>
            public static float[] MoistureContentFromEnthalpy(Input<float> dryBulb, Input<float> enthalpy)
            {
                int count = Elements.Count("Psychro.MoistureContentFromEnthalpy", ("dryBulb", dryBulb.Length),
                    ("enthalpy", enthalpy.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_moisture_content_from_enthalpy((UIntPtr)count, ref dryBulb.First,
                    dryBulb.Stride, ref enthalpy.First, enthalpy.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistAirDensity(float, float, float)"/>
            public static float MoistAirDensity(float dryBulb, float moistureContent, float pressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_moist_air_density((UIntPtr)1, ref dryBulb, IntPtr.Zero,
                    ref moistureContent, IntPtr.Zero, ref pressure, IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.MoistAirDensity(float, float, float)"/>
            public static float[] MoistAirDensity(Input<float> dryBulb, Input<float> moistureContent,
                Input<float> pressure)
            {
                int count = Elements.Count("Psychro.MoistAirDensity", ("dryBulb", dryBulb.Length), ("moistureContent",
                    moistureContent.Length), ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_moist_air_density((UIntPtr)count, ref dryBulb.First, dryBulb.Stride,
                    ref moistureContent.First, moistureContent.Stride, ref pressure.First, pressure.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.PercentageSaturation(float, float, float)"/>
            public static float PercentageSaturation(float dryBulb, float moistureContent, float pressure)
            {
                return Native.PSPCST(ref dryBulb, ref moistureContent, ref pressure);
            }

            /// <inheritdoc cref="Quorvel.Psychro.PercentageSaturation(float, float, float)"/>
            public static float[] PercentageSaturation(Input<float> dryBulb, Input<float> moistureContent,
                Input<float> pressure)
            {
                int count = Elements.Count("Psychro.PercentageSaturation", ("dryBulb", dryBulb.Length),
                    ("moistureContent", moistureContent.Length), ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_percentage_saturation((UIntPtr)count, ref dryBulb.First, dryBulb.Stride,
                    ref moistureContent.First, moistureContent.Stride, ref pressure.First, pressure.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.SpecificEnthalpy(float, float)"/>
            public static float SpecificEnthalpy(float dryBulb, float moistureContent)
            {
                float results = 0;
                Elements.Done(Native.quorvel_specific_enthalpy((UIntPtr)1, ref dryBulb, IntPtr.Zero,
                    ref moistureContent, IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.SpecificEnthalpy(float, float)"/>
            public static float[] SpecificEnthalpy(Input<float> dryBulb, Input<float> moistureContent)
            {
                int count = Elements.Count("Psychro.SpecificEnthalpy", ("dryBulb", dryBulb.Length), ("moistureContent",
                    moistureContent.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_specific_enthalpy((UIntPtr)count, ref dryBulb.First, dryBulb.Stride,
                    ref moistureContent.First, moistureContent.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.SpecificEnthalpyFromPsychrometer(float, float, float, Psychrometer)"/>
            public static float SpecificEnthalpyFromPsychrometer(float dryBulb, float wetBulb, float pressure,
                Psychrometer psychrometer)
            {
                return Native.PSHWET(ref dryBulb, ref wetBulb, ref pressure, ref psychrometer);
            }

            /// <inheritdoc cref="Quorvel.Psychro.SpecificEnthalpyFromPsychrometer(float, float, float, Psychrometer)"/>
            public static float[] SpecificEnthalpyFromPsychrometer(Input<float> dryBulb, Input<float> wetBulb,
                Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.SpecificEnthalpyFromPsychrometer", ("dryBulb", dryBulb.Length),
                    ("wetBulb", wetBulb.Length), ("pressure", pressure.Length), ("psychrometer", psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_specific_enthalpy_from_psychrometer((UIntPtr)count, ref dryBulb.First,
                    dryBulb.Stride, ref wetBulb.First, wetBulb.Stride, ref pressure.First, pressure.Stride,
                    ref psychrometer.First, psychrometer.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.SpecificVolume(float, float, float)"/>
            public static float SpecificVolume(float dryBulb, float moistureContent, float pressure)
            {
                return Native.PSSPVL(ref dryBulb, ref moistureContent, ref pressure);
            }

            /// <inheritdoc cref="Quorvel.Psychro.SpecificVolume(float, float, float)"/>
            public static float[] SpecificVolume(Input<float> dryBulb, Input<float> moistureContent,
                Input<float> pressure)
            {
                int count = Elements.Count("Psychro.SpecificVolume", ("dryBulb", dryBulb.Length), ("moistureContent",
                    moistureContent.Length), ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_specific_volume((UIntPtr)count, ref dryBulb.First, dryBulb.Stride,
                    ref moistureContent.First, moistureContent.Stride, ref pressure.First, pressure.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.SaturationTemperatureFromEnthalpy(float, float)"/>
            public static float SaturationTemperatureFromEnthalpy(float enthalpy, float pressure)
            {
                return Native.PSTSAT(ref enthalpy, ref pressure);
            }

            /// <inheritdoc cref="Quorvel.Psychro.SaturationTemperatureFromEnthalpy(float, float)"/>
            public static float[] SaturationTemperatureFromEnthalpy(Input<float> enthalpy, Input<float> pressure)
            {
                int count = Elements.Count("Psychro.SaturationTemperatureFromEnthalpy", ("enthalpy", enthalpy.Length),
                    ("pressure", pressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_saturation_temperature_from_enthalpy((UIntPtr)count, ref enthalpy.First,
                    enthalpy.Stride, ref pressure.First, pressure.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.PoolEvaporation(float, float, float, float, float, float, int, float, float)"/>
            public static PoolEvaporation PoolEvaporation(float waterArea, float wettedArea, float waterTemperature,
                float dryBulb, float moistureContent, float referenceTemperature, int bathers,
                float referenceCoefficient, float pressure)
            {
                var results = new PoolEvaporation { EvaporationRate = float.NaN, LatentLoad = float.NaN,
                    ConvectiveLoad = float.NaN, ReferenceLoad = float.NaN };
                Native.TPPOOL(ref waterArea, ref wettedArea, ref waterTemperature, ref dryBulb, ref moistureContent,
                    ref referenceTemperature, ref bathers, ref referenceCoefficient, ref pressure,
                    ref results.EvaporationRate, ref results.LatentLoad, ref results.ConvectiveLoad,
                    ref results.ReferenceLoad);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.PoolEvaporation(float, float, float, float, float, float, int, float, float)"/>
            public static PoolEvaporation[] PoolEvaporation(Input<float> waterArea, Input<float> wettedArea,
                Input<float> waterTemperature, Input<float> dryBulb, Input<float> moistureContent,
                Input<float> referenceTemperature, Input<int> bathers, Input<float> referenceCoefficient,
                Input<float> pressure)
            {
                int count = Elements.Count("Psychro.PoolEvaporation", ("waterArea", waterArea.Length), ("wettedArea",
                    wettedArea.Length), ("waterTemperature", waterTemperature.Length), ("dryBulb", dryBulb.Length),
                    ("moistureContent", moistureContent.Length), ("referenceTemperature", referenceTemperature.Length),
                    ("bathers", bathers.Length), ("referenceCoefficient", referenceCoefficient.Length), ("pressure",
                    pressure.Length));
                var results = new PoolEvaporation[count];
                Elements.Done(Native.quorvel_pool_evaporation((UIntPtr)count, ref waterArea.First, waterArea.Stride,
                    ref wettedArea.First, wettedArea.Stride, ref waterTemperature.First, waterTemperature.Stride,
                    ref dryBulb.First, dryBulb.Stride, ref moistureContent.First, moistureContent.Stride,
                    ref referenceTemperature.First, referenceTemperature.Stride, ref bathers.First, bathers.Stride,
                    ref referenceCoefficient.First, referenceCoefficient.Stride, ref pressure.First, pressure.Stride,
                    ref Elements.First(results).EvaporationRate, Elements<PoolEvaporation>.Stride,
                    ref Elements.First(results).LatentLoad, Elements<PoolEvaporation>.Stride,
                    ref Elements.First(results).ConvectiveLoad, Elements<PoolEvaporation>.Stride,
                    ref Elements.First(results).ReferenceLoad, Elements<PoolEvaporation>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.PoolEvaporationFromWetBulb(float, float, float, float, float, float, int, float, float)"/>
            public static PoolEvaporationFromWetBulb PoolEvaporationFromWetBulb(float waterArea, float wettedArea,
                float waterTemperature, float dryBulb, float wetBulb, float referenceTemperature, int bathers,
                float referenceCoefficient, float pressure)
            {
                var results = new PoolEvaporationFromWetBulb { EvaporationRate = float.NaN, LatentLoad = float.NaN,
                    ConvectiveLoad = float.NaN, ReferenceLoad = float.NaN };
                Native.TPPOOL2(ref waterArea, ref wettedArea, ref waterTemperature, ref dryBulb, ref wetBulb,
                    ref referenceTemperature, ref bathers, ref referenceCoefficient, ref pressure,
                    ref results.EvaporationRate, ref results.LatentLoad, ref results.ConvectiveLoad,
                    ref results.ReferenceLoad);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.PoolEvaporationFromWetBulb(float, float, float, float, float, float, int, float, float)"/>
            public static PoolEvaporationFromWetBulb[] PoolEvaporationFromWetBulb(Input<float> waterArea,
                Input<float> wettedArea, Input<float> waterTemperature, Input<float> dryBulb, Input<float> wetBulb,
                Input<float> referenceTemperature, Input<int> bathers, Input<float> referenceCoefficient,
                Input<float> pressure)
            {
                int count = Elements.Count("Psychro.PoolEvaporationFromWetBulb", ("waterArea", waterArea.Length),
                    ("wettedArea", wettedArea.Length), ("waterTemperature", waterTemperature.Length), ("dryBulb",
                    dryBulb.Length), ("wetBulb", wetBulb.Length), ("referenceTemperature", referenceTemperature.Length),
                    ("bathers", bathers.Length), ("referenceCoefficient", referenceCoefficient.Length), ("pressure",
                    pressure.Length));
                var results = new PoolEvaporationFromWetBulb[count];
                Elements.Done(Native.quorvel_pool_evaporation_from_wet_bulb((UIntPtr)count, ref waterArea.First,
                    waterArea.Stride, ref wettedArea.First, wettedArea.Stride, ref waterTemperature.First,
                    waterTemperature.Stride, ref dryBulb.First, dryBulb.Stride, ref wetBulb.First, wetBulb.Stride,
                    ref referenceTemperature.First, referenceTemperature.Stride, ref bathers.First, bathers.Stride,
                    ref referenceCoefficient.First, referenceCoefficient.Stride, ref pressure.First, pressure.Stride,
                    ref Elements.First(results).EvaporationRate, Elements<PoolEvaporationFromWetBulb>.Stride,
                    ref Elements.First(results).LatentLoad, Elements<PoolEvaporationFromWetBulb>.Stride,
                    ref Elements.First(results).ConvectiveLoad, Elements<PoolEvaporationFromWetBulb>.Stride,
                    ref Elements.First(results).ReferenceLoad, Elements<PoolEvaporationFromWetBulb>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.SaturationPressure(float)"/>
            public static float SaturationPressure(float temperature)
            {
                return Native.PSSVP(ref temperature);
            }

            /// <inheritdoc cref="Quorvel.Psychro.SaturationPressure(float)"/>
            public static float[] SaturationPressure(Input<float> temperature)
            {
                int count = Elements.Count("Psychro.SaturationPressure", ("temperature", temperature.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_saturation_pressure((UIntPtr)count, ref temperature.First,
                    temperature.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DewPoint(float)"/>
            public static float DewPoint(float vapourPressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_dew_point((UIntPtr)1, ref vapourPressure, IntPtr.Zero, ref results,
                    IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.DewPoint(float)"/>
            public static float[] DewPoint(Input<float> vapourPressure)
            {
                int count = Elements.Count("Psychro.DewPoint", ("vapourPressure", vapourPressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_dew_point((UIntPtr)count, ref vapourPressure.First, vapourPressure.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.VapourPressure(float, float)"/>
            public static float VapourPressure(float dryBulb, float relativeHumidity)
            {
                return Native.PSVP(ref dryBulb, ref relativeHumidity);
            }

            /// <inheritdoc cref="Quorvel.Psychro.VapourPressure(float, float)"/>
            public static float[] VapourPressure(Input<float> dryBulb, Input<float> relativeHumidity)
            {
                int count = Elements.Count("Psychro.VapourPressure", ("dryBulb", dryBulb.Length), ("relativeHumidity",
                    relativeHumidity.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_vapour_pressure((UIntPtr)count, ref dryBulb.First, dryBulb.Stride,
                    ref relativeHumidity.First, relativeHumidity.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.RelativeHumidity(float, float)"/>
            public static float RelativeHumidity(float dryBulb, float vapourPressure)
            {
                float results = 0;
                Elements.Done(Native.quorvel_relative_humidity((UIntPtr)1, ref dryBulb, IntPtr.Zero, ref vapourPressure,
                    IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.RelativeHumidity(float, float)"/>
            public static float[] RelativeHumidity(Input<float> dryBulb, Input<float> vapourPressure)
            {
                int count = Elements.Count("Psychro.RelativeHumidity", ("dryBulb", dryBulb.Length), ("vapourPressure",
                    vapourPressure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_relative_humidity((UIntPtr)count, ref dryBulb.First, dryBulb.Stride,
                    ref vapourPressure.First, vapourPressure.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.VapourPressureFromPsychrometer(float, float, float, Psychrometer)"/>
            public static float VapourPressureFromPsychrometer(float dryBulb, float wetBulb, float pressure,
                Psychrometer psychrometer)
            {
                return Native.PSVAP(ref dryBulb, ref wetBulb, ref pressure, ref psychrometer);
            }

            /// <inheritdoc cref="Quorvel.Psychro.VapourPressureFromPsychrometer(float, float, float, Psychrometer)"/>
            public static float[] VapourPressureFromPsychrometer(Input<float> dryBulb, Input<float> wetBulb,
                Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.VapourPressureFromPsychrometer", ("dryBulb", dryBulb.Length),
                    ("wetBulb", wetBulb.Length), ("pressure", pressure.Length), ("psychrometer", psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_vapour_pressure_from_psychrometer((UIntPtr)count, ref dryBulb.First,
                    dryBulb.Stride, ref wetBulb.First, wetBulb.Stride, ref pressure.First, pressure.Stride,
                    ref psychrometer.First, psychrometer.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.WeightedTemperature(float, float)"/>
            public static float WeightedTemperature(float firstTemperature, float secondTemperature)
            {
                return Native.PSTEFF(ref firstTemperature, ref secondTemperature);
            }

            /// <inheritdoc cref="Quorvel.Psychro.WeightedTemperature(float, float)"/>
            public static float[] WeightedTemperature(Input<float> firstTemperature, Input<float> secondTemperature)
            {
                int count = Elements.Count("Psychro.WeightedTemperature", ("firstTemperature", firstTemperature.Length),
                    ("secondTemperature", secondTemperature.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_weighted_temperature((UIntPtr)count, ref firstTemperature.First,
                    firstTemperature.Stride, ref secondTemperature.First, secondTemperature.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.PsychrometerWetBulb(float, float, float, Psychrometer)"/>
            public static float PsychrometerWetBulb(float dryBulb, float relativeHumidity, float pressure,
                Psychrometer psychrometer)
            {
                return Native.PSTWET(ref dryBulb, ref relativeHumidity, ref pressure, ref psychrometer);
            }

            /// <inheritdoc cref="Quorvel.Psychro.PsychrometerWetBulb(float, float, float, Psychrometer)"/>
            public static float[] PsychrometerWetBulb(Input<float> dryBulb, Input<float> relativeHumidity,
                Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.PsychrometerWetBulb", ("dryBulb", dryBulb.Length),
                    ("relativeHumidity", relativeHumidity.Length), ("pressure", pressure.Length), ("psychrometer",
                    psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_psychrometer_wet_bulb((UIntPtr)count, ref dryBulb.First, dryBulb.Stride,
                    ref relativeHumidity.First, relativeHumidity.Stride, ref pressure.First, pressure.Stride,
                    ref psychrometer.First, psychrometer.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.WetBulbFromPercentageSaturation(float, float, float, Psychrometer)"/>
            public static float WetBulbFromPercentageSaturation(float dryBulb, float percentageSaturation,
                float pressure, Psychrometer psychrometer)
            {
                return Native.PSTWB(ref dryBulb, ref percentageSaturation, ref pressure, ref psychrometer);
            }

            /// <inheritdoc cref="Quorvel.Psychro.WetBulbFromPercentageSaturation(float, float, float, Psychrometer)"/>
            public static float[] WetBulbFromPercentageSaturation(Input<float> dryBulb,
                Input<float> percentageSaturation, Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.WetBulbFromPercentageSaturation", ("dryBulb", dryBulb.Length),
                    ("percentageSaturation", percentageSaturation.Length), ("pressure", pressure.Length),
                    ("psychrometer", psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_wet_bulb_from_percentage_saturation((UIntPtr)count, ref dryBulb.First,
                    dryBulb.Stride, ref percentageSaturation.First, percentageSaturation.Stride, ref pressure.First,
                    pressure.Stride, ref psychrometer.First, psychrometer.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.WetBulbFromMoistureContent(float, float, float, Psychrometer)"/>
            public static float WetBulbFromMoistureContent(float dryBulb, float moistureContent, float pressure,
                Psychrometer psychrometer)
            {
                return Native.PSWBLB(ref dryBulb, ref moistureContent, ref pressure, ref psychrometer);
            }

            /// <inheritdoc cref="Quorvel.Psychro.WetBulbFromMoistureContent(float, float, float, Psychrometer)"/>
            public static float[] WetBulbFromMoistureContent(Input<float> dryBulb, Input<float> moistureContent,
                Input<float> pressure, Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.WetBulbFromMoistureContent", ("dryBulb", dryBulb.Length),
                    ("moistureContent", moistureContent.Length), ("pressure", pressure.Length), ("psychrometer",
                    psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_wet_bulb_from_moisture_content((UIntPtr)count, ref dryBulb.First,
                    dryBulb.Stride, ref moistureContent.First, moistureContent.Stride, ref pressure.First,
                    pressure.Stride, ref psychrometer.First, psychrometer.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.WetBulb(float, float, float, Psychrometer)"/>
            public static float WetBulb(float dryBulb, float vapourPressure, float pressure, Psychrometer psychrometer)
            {
                float results = 0;
                Elements.Done(Native.quorvel_wet_bulb((UIntPtr)1, ref dryBulb, IntPtr.Zero, ref vapourPressure,
                    IntPtr.Zero, ref pressure, IntPtr.Zero, ref psychrometer, IntPtr.Zero, ref results, IntPtr.Zero));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Psychro.WetBulb(float, float, float, Psychrometer)"/>
            public static float[] WetBulb(Input<float> dryBulb, Input<float> vapourPressure, Input<float> pressure,
                Input<Psychrometer> psychrometer)
            {
                int count = Elements.Count("Psychro.WetBulb", ("dryBulb", dryBulb.Length), ("vapourPressure",
                    vapourPressure.Length), ("pressure", pressure.Length), ("psychrometer", psychrometer.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_wet_bulb((UIntPtr)count, ref dryBulb.First, dryBulb.Stride,
                    ref vapourPressure.First, vapourPressure.Stride, ref pressure.First, pressure.Stride,
                    ref psychrometer.First, psychrometer.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }
        }
    }
}
