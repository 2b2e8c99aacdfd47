// Produced from the catalogue of routines (catalogue/); do not edit.
using System;

namespace Quorvel
{
    /// <summary>What <c>Fabric.CyclicResponse</c> returns.</summary>
    public struct CyclicResponse
    {
        /// <summary>Admittance Y [W/m²K].</summary>
        public float Admittance;

        /// <summary>Time lead of the admittance, 0 to 24 / harmonic [h].</summary>
        public float AdmittanceLead;

        /// <summary>Decrement factor f, 0 for a partition.</summary>
        public float DecrementFactor;

        /// <summary>Time lag of the decrement factor, 0 to 24 / harmonic, 0 for a partition [h].</summary>
        public float DecrementLag;

        /// <summary>Surface factor F.</summary>
        public float SurfaceFactor;

        /// <summary>Time lag of the surface factor, 0 to 24 / harmonic [h].</summary>
        public float SurfaceFactorLag;

        /// <summary>U-value, as <c>Fabric.UValue</c> gives it [W/m²K].</summary>
        public float UValue;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float admittance, out float admittanceLead, out float decrementFactor,
            out float decrementLag, out float surfaceFactor, out float surfaceFactorLag, out float uValue)
        {
            admittance = Admittance;
            admittanceLead = AdmittanceLead;
            decrementFactor = DecrementFactor;
            decrementLag = DecrementLag;
            surfaceFactor = SurfaceFactor;
            surfaceFactorLag = SurfaceFactorLag;
            uValue = UValue;
        }
    }

    /// <summary>What <c>Fabric.CondensationProfile</c> returns.</summary>
    public struct CondensationProfile
    {
        /// <summary>Temperature at the interfaces, from the inside surface to the outside one [°C]; not a number beyond
        /// element layers + 1.</summary>
        public float[] InterfaceTemperature;

        /// <summary>Vapour pressure at them [Pa]; not a number beyond element layers + 1.</summary>
        public float[] InterfaceVapourPressure;

        /// <summary>Saturation pressure at them [Pa]; not a number beyond element layers + 1.</summary>
        public float[] InterfaceSaturationPressure;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float[] interfaceTemperature, out float[] interfaceVapourPressure,
            out float[] interfaceSaturationPressure)
        {
            interfaceTemperature = InterfaceTemperature;
            interfaceVapourPressure = InterfaceVapourPressure;
            interfaceSaturationPressure = InterfaceSaturationPressure;
        }
    }

    /// <summary>What <c>Fabric.PackTwoFractions</c> returns.</summary>
    public struct PackTwoFractions
    {
        /// <summary>Packed number; 1e20 where there is none; as given when unpacking.</summary>
        public float PackedNumber;

        /// <summary>Fraction behind the point; 1e20 where there is none; as given when packing.</summary>
        public float Fraction1;

        /// <summary>Fraction held as units and tens; 1e20 where there is none; as given when packing.</summary>
        public float Fraction2;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float packedNumber, out float fraction1, out float fraction2)
        {
            packedNumber = PackedNumber;
            fraction1 = Fraction1;
            fraction2 = Fraction2;
        }
    }

    /// <summary>What <c>Fabric.PackThreeFractions</c> returns.</summary>
    public struct PackThreeFractions
    {
        /// <summary>Packed number; 1e20 where there is none; as given when unpacking.</summary>
        public float PackedNumber;

        /// <summary>Fraction behind the point; 1e20 where there is none; as given when packing.</summary>
        public float Fraction1;

        /// <summary>Fraction held as units and tens; 1e20 where there is none; as given when packing.</summary>
        public float Fraction2;

        /// <summary>Fraction held as hundreds and thousands; 1e20 where there is none; as given when packing.</summary>
        public float Fraction3;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float packedNumber, out float fraction1, out float fraction2, out float fraction3)
        {
            packedNumber = PackedNumber;
            fraction1 = Fraction1;
            fraction2 = Fraction2;
            fraction3 = Fraction3;
        }
    }

    /// <summary>What <c>Fabric.PackThreeFractionsThirdFirst</c> returns.</summary>
    public struct PackThreeFractionsThirdFirst
    {
        /// <summary>Packed number; 1e20 where there is none; as given when unpacking.</summary>
        public float PackedNumber;

        /// <summary>Fraction held as hundreds and thousands; 1e20 where there is none; as given when packing.</summary>
        public float Fraction3;

        /// <summary>Fraction behind the point; 1e20 where there is none; as given when packing.</summary>
        public float Fraction1;

        /// <summary>Fraction held as units and tens; 1e20 where there is none; as given when packing.</summary>
        public float Fraction2;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float packedNumber, out float fraction3, out float fraction1, out float fraction2)
        {
            packedNumber = PackedNumber;
            fraction3 = Fraction3;
            fraction1 = Fraction1;
            fraction2 = Fraction2;
        }
    }

    /// <summary>What <c>Fabric.PackPane</c> returns.</summary>
    public struct PackPane
    {
        /// <summary>Packed number; 1e20 where there is none; as given when unpacking.</summary>
        public float PackedNumber;

        /// <summary>Absorptance; 1e20 where there is none; as given when packing.</summary>
        public float Absorptance;

        /// <summary>Reflectance of the first face; 1e20 where there is none; as given when packing.</summary>
        public float Reflectance1;

        /// <summary>Reflectance of the second face; 1e20 where there is none; as given when packing.</summary>
        public float Reflectance2;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float packedNumber, out float absorptance, out float reflectance1,
            out float reflectance2)
        {
            packedNumber = PackedNumber;
            absorptance = Absorptance;
            reflectance1 = Reflectance1;
            reflectance2 = Reflectance2;
        }
    }

    /// <summary>What <c>Fabric.WindowParameters</c> returns.</summary>
    public struct WindowParameters
    {
        /// <summary>Admittance, the U-value [W/m²K].</summary>
        public float Admittance;

        /// <summary>Time lead of the admittance, 0 [h].</summary>
        public float AdmittanceLead;

        /// <summary>Decrement factor, 1.</summary>
        public float DecrementFactor;

        /// <summary>Time lag of the decrement factor, 0 [h].</summary>
        public float DecrementLag;

        /// <summary>Surface factor, 1 - Rsi U.</summary>
        public float SurfaceFactor;

        /// <summary>Time lag of the surface factor, 0 [h].</summary>
        public float SurfaceFactorLag;

        /// <summary>U-value [W/m²K].</summary>
        public float UValue;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float admittance, out float admittanceLead, out float decrementFactor,
            out float decrementLag, out float surfaceFactor, out float surfaceFactorLag, out float uValue)
        {
            admittance = Admittance;
            admittanceLead = AdmittanceLead;
            decrementFactor = DecrementFactor;
            decrementLag = DecrementLag;
            surfaceFactor = SurfaceFactor;
            surfaceFactorLag = SurfaceFactorLag;
            uValue = UValue;
        }
    }

    /// <summary>Building fabric.</summary>
    public static partial class Fabric
    {
        /// <summary>Admittance, decrement factor and surface factor of a construction with their time shifts, and its
        /// U-value.</summary>
        /// <param name="thickness">Thickness of each layer, from the room outwards; below 0: a layer of given
        /// resistance, 0: no layer [m].</param>
        /// <param name="conductivity">Conductivity of each layer; its resistance in m²K/W where the thickness is below
        /// 0 [W/mK]; valid from 0.</param>
        /// <param name="density">Density of each layer [kg/m³]; valid from 0.</param>
        /// <param name="specificHeat">Specific heat of each layer [J/kgK]; valid from 0.</param>
        /// <param name="insideResistance">Resistance of the surface at the room [m²K/W]; valid from 0.</param>
        /// <param name="outsideResistance">Resistance of the far surface [m²K/W]; valid from 0.</param>
        /// <param name="harmonic">Cycles in 24 hours; valid from 0.</param>
        /// <param name="elementKind">Kind of element.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: M = Msi M1 ... Mn Mso; Y = m22 / m12, of a partition (m22 - 1) / m12; f = 1 / (UValue m12); F
        /// = 1 - insideResistance Y</para>
        /// <para>Without layers the two surfaces are left.</para>
        /// <para>Any kind but 2 counts as 1. A harmonic of 0 is a steady temperature: the admittance is U, the time
        /// shifts are not numbers. One below 0 gives no numbers.</para>
        /// <para>A layer without heat capacity acts as its resistance. One with very little is the less accurate the
        /// smaller x is, its thickness over the depth at which the swing has sunk to 1/e (0.1 to 0.2 m in masonry): the
        /// relative error of its resistance is about 1e-7 / x, since sinh is formed as a difference in single
        /// precision.</para>
        /// <para>Shifts near 0 can come out near a whole cycle: rounding decides on which side of 0 an angle falls. One
        /// that is exactly 0 may be -0, as both lags of layers without heat capacity are.</para>
        /// <para>The moduli of all three factors are formed so that no square under- or overflows: a decrement factor
        /// of 2.8e-24 (four layers of 0.6 m of concrete under harmonic 12) is one.</para>
        /// <para>Where the x of all layers add up to about 87 the elements of the matrix overflow: the admittance is
        /// infinite or not a number, and from 89 on nothing but U is a number. That is 12.3 m of concrete of 1.75 W/mK,
        /// 2400 kg/m³ and 1000 J/kgK under the daily cycle; of 2 W/mK, 2000 kg/m³ and 880 J/kgK 15 m still have
        /// numbers.</para>
        /// <para>Density and specific heat enter as their product only.</para>
        /// <para>The formula's M is the product of the transmission matrices of the surfaces and the layers. Its
        /// complex Y, f and F are the admittance, the decrement factor and the surface factor with their time
        /// shifts.</para>
        /// <para>Source: Pipes, Matrix analysis of heat transfer problems, Journal of the Franklin Institute 263, 1957;
        /// Milbank and Harrington-Lynn, Thermal response and the admittance procedure, Building Research Establishment
        /// CP 61/74, 1974; ISO 13786.</para>
        /// <para>The bits of TPADMT in quorvel.h.</para>
        /// </remarks>
        public static CyclicResponse CyclicResponse(float[] thickness, float[] conductivity, float[] density,
            float[] specificHeat, float insideResistance, float outsideResistance, int harmonic,
            ElementKind elementKind)
        {
            Check.Length("Fabric.CyclicResponse", "thickness", thickness, 0, 20);
            Check.Range("Fabric.CyclicResponse", "thickness", thickness, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Fabric.CyclicResponse", "conductivity", conductivity, 0f, float.PositiveInfinity, " W/mK");
            Check.Range("Fabric.CyclicResponse", "density", density, 0f, float.PositiveInfinity, " kg/m³");
            Check.Range("Fabric.CyclicResponse", "specificHeat", specificHeat, 0f, float.PositiveInfinity, " J/kgK");
            Check.Range("Fabric.CyclicResponse", "insideResistance", insideResistance, 0f, float.PositiveInfinity,
                " m²K/W");
            Check.Range("Fabric.CyclicResponse", "outsideResistance", outsideResistance, 0f, float.PositiveInfinity,
                " m²K/W");
            Check.Range("Fabric.CyclicResponse", "harmonic", harmonic, 0, int.MaxValue, "");
            Check.Selector("Fabric.CyclicResponse", "elementKind", elementKind, 1, 2);
            return Unchecked.Fabric.CyclicResponse(thickness, conductivity, density, specificHeat, insideResistance,
                outsideResistance, harmonic, elementKind);
        }

        /// <summary>Thermal resistance of a sealed vertical air cavity between ordinary building surfaces.</summary>
        /// <param name="cavityWidth">Width [m]; valid from 0.001.</param>
        /// <returns>Cavity resistance, not below 0.1 [m²K/W].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width), at least 0.1; Nu = 0.035 Ra^0.38, at
        /// least 1; Ra = 793.00165 width^3 / 4.4e-7</para>
        /// <para>A width below 0.001 gives 0.1, where <c>Fabric.AirCavityResistance</c> and
        /// <c>Fabric.GasCavityResistance</c> give 0: deliberate. Not a number stays so.</para>
        /// <para>The emissivities e1 and e2 of the faces are 0.85 and 0.86.</para>
        /// <para>Source: As <c>Fabric.AirCavityResistance</c>.</para>
        /// <para>The bits of TPRCAV in quorvel.h.</para>
        /// </remarks>
        public static float VerticalCavityResistance(float cavityWidth)
        {
            Check.Range("Fabric.VerticalCavityResistance", "cavityWidth", cavityWidth, 0.001f, float.PositiveInfinity,
                " m");
            return Unchecked.Fabric.VerticalCavityResistance(cavityWidth);
        }

        /// <inheritdoc cref="Quorvel.Fabric.VerticalCavityResistance(float)"/>
        public static float[] VerticalCavityResistance(Input<float> cavityWidth)
        {
            Check.Range("Fabric.VerticalCavityResistance", "cavityWidth", cavityWidth, 0.001f, float.PositiveInfinity,
                " m");
            return Unchecked.Fabric.VerticalCavityResistance(cavityWidth);
        }

        /// <summary>Thermal resistance of a sealed air cavity by convection and long-wave radiation.</summary>
        /// <param name="tilt">Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to
        /// 3.1416.</param>
        /// <param name="cavityWidth">Width [m]; valid from 0.001.</param>
        /// <param name="emissivity1">Long-wave emissivity of one face; valid 0 to 1.</param>
        /// <param name="emissivity2">Long-wave emissivity of the other face; valid 0 to 1.</param>
        /// <returns>Cavity resistance [m²K/W].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width); Nu = C Ra^n, at least 1; Ra =
        /// 793.00165 width^3 / 4.4e-7</para>
        /// <para>A tilt outside 0..3.1416 and a width below 0.001 give 0.</para>
        /// <para>C and n of the Nusselt number C Ra^n, which is at least 1, are interpolated over the tilt between 0,
        /// 0.785 and 1.57, and carried on as far as 1.59. From there the air rests and only conducts: the resistance
        /// jumps.</para>
        /// <para>Two faces of emissivity 0 leave the exchange undefined (0/0).</para>
        /// <para>Source: EN 673, Glass in building - Determination of thermal transmittance: C and n for vertical,
        /// inclined and horizontal cavities, and air at 10 °C with 15 K between the faces.</para>
        /// <para>The bits of TPRCA2 in quorvel.h.</para>
        /// </remarks>
        public static float AirCavityResistance(float tilt, float cavityWidth, float emissivity1, float emissivity2)
        {
            Check.Range("Fabric.AirCavityResistance", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Fabric.AirCavityResistance", "cavityWidth", cavityWidth, 0.001f, float.PositiveInfinity, " m");
            Check.Range("Fabric.AirCavityResistance", "emissivity1", emissivity1, 0f, 1f, "");
            Check.Range("Fabric.AirCavityResistance", "emissivity2", emissivity2, 0f, 1f, "");
            return Unchecked.Fabric.AirCavityResistance(tilt, cavityWidth, emissivity1, emissivity2);
        }

        /// <inheritdoc cref="Quorvel.Fabric.AirCavityResistance(float, float, float, float)"/>
        public static float[] AirCavityResistance(Input<float> tilt, Input<float> cavityWidth, Input<float> emissivity1,
            Input<float> emissivity2)
        {
            Check.Range("Fabric.AirCavityResistance", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Fabric.AirCavityResistance", "cavityWidth", cavityWidth, 0.001f, float.PositiveInfinity, " m");
            Check.Range("Fabric.AirCavityResistance", "emissivity1", emissivity1, 0f, 1f, "");
            Check.Range("Fabric.AirCavityResistance", "emissivity2", emissivity2, 0f, 1f, "");
            return Unchecked.Fabric.AirCavityResistance(tilt, cavityWidth, emissivity1, emissivity2);
        }

        /// <summary>Thermal resistance of a sealed cavity filled with any gas.</summary>
        /// <param name="tilt">Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to
        /// 3.1416.</param>
        /// <param name="cavityWidth">Width [m]; valid from 0.001.</param>
        /// <param name="emissivity1">Long-wave emissivity of one face; valid 0 to 1.</param>
        /// <param name="emissivity2">Long-wave emissivity of the other face; valid 0 to 1.</param>
        /// <param name="density">Density of the gas [kg/m³]; valid from 0.</param>
        /// <param name="conductivity">Thermal conductivity of the gas [W/mK]; valid from 0.</param>
        /// <param name="specificHeat">Specific heat of the gas at constant pressure [J/kgK]; valid from 0.</param>
        /// <param name="viscosity">Dynamic viscosity of the gas [Pa s]; valid from 0.</param>
        /// <returns>Cavity resistance [m²K/W].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + conductivity Nu / width); Nu = C Ra^n, at least 1; Ra =
        /// 0.52 specificHeat density^2 width^3 / (viscosity conductivity)</para>
        /// <para>Guards and correlation as in <c>Fabric.AirCavityResistance</c>.</para>
        /// <para>The Rayleigh number has a factor of 0.52 m/s² for gravity times expansion times temperature
        /// difference, whatever the gas and its temperature.</para>
        /// <para>A negative Rayleigh number has no power: not a number.</para>
        /// <para>Source: As <c>Fabric.AirCavityResistance</c>.</para>
        /// <para>The bits of TPRCAX in quorvel.h.</para>
        /// </remarks>
        public static float GasCavityResistance(float tilt, float cavityWidth, float emissivity1, float emissivity2,
            float density, float conductivity, float specificHeat, float viscosity)
        {
            Check.Range("Fabric.GasCavityResistance", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Fabric.GasCavityResistance", "cavityWidth", cavityWidth, 0.001f, float.PositiveInfinity, " m");
            Check.Range("Fabric.GasCavityResistance", "emissivity1", emissivity1, 0f, 1f, "");
            Check.Range("Fabric.GasCavityResistance", "emissivity2", emissivity2, 0f, 1f, "");
            Check.Range("Fabric.GasCavityResistance", "density", density, 0f, float.PositiveInfinity, " kg/m³");
            Check.Range("Fabric.GasCavityResistance", "conductivity", conductivity, 0f, float.PositiveInfinity,
                " W/mK");
            Check.Range("Fabric.GasCavityResistance", "specificHeat", specificHeat, 0f, float.PositiveInfinity,
                " J/kgK");
            Check.Range("Fabric.GasCavityResistance", "viscosity", viscosity, 0f, float.PositiveInfinity, " Pa s");
            return Unchecked.Fabric.GasCavityResistance(tilt, cavityWidth, emissivity1, emissivity2, density,
                conductivity, specificHeat, viscosity);
        }

        /// <inheritdoc cref="Quorvel.Fabric.GasCavityResistance(float, float, float, float, float, float, float, float)"/>
        public static float[] GasCavityResistance(Input<float> tilt, Input<float> cavityWidth, Input<float> emissivity1,
            Input<float> emissivity2, Input<float> density, Input<float> conductivity, Input<float> specificHeat,
            Input<float> viscosity)
        {
            Check.Range("Fabric.GasCavityResistance", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Fabric.GasCavityResistance", "cavityWidth", cavityWidth, 0.001f, float.PositiveInfinity, " m");
            Check.Range("Fabric.GasCavityResistance", "emissivity1", emissivity1, 0f, 1f, "");
            Check.Range("Fabric.GasCavityResistance", "emissivity2", emissivity2, 0f, 1f, "");
            Check.Range("Fabric.GasCavityResistance", "density", density, 0f, float.PositiveInfinity, " kg/m³");
            Check.Range("Fabric.GasCavityResistance", "conductivity", conductivity, 0f, float.PositiveInfinity,
                " W/mK");
            Check.Range("Fabric.GasCavityResistance", "specificHeat", specificHeat, 0f, float.PositiveInfinity,
                " J/kgK");
            Check.Range("Fabric.GasCavityResistance", "viscosity", viscosity, 0f, float.PositiveInfinity, " Pa s");
            return Unchecked.Fabric.GasCavityResistance(tilt, cavityWidth, emissivity1, emissivity2, density,
                conductivity, specificHeat, viscosity);
        }

        /// <summary>Vapour resistance of a construction.</summary>
        /// <param name="thickness">Thickness of each layer; below 0: a layer of given thermal resistance, 0: a membrane
        /// [m].</param>
        /// <param name="vapourResistivity">Vapour resistivity of each layer; of a membrane its vapour resistance in GN
        /// s/kg [GN s/(kg m)]; valid from 0.</param>
        /// <returns>Total vapour resistance [N s/kg].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: sum of 1e9 thickness vapourResistivity</para>
        /// <para>A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, whatever
        /// its resistivity: an air gap 0.05 m wide is entered as -0.05, not as -1.</para>
        /// <para>Without layers it is 0.</para>
        /// <para>Results are in N s/kg, resistivities in GN s/(kg m).</para>
        /// <para>Source: Vapour resistances in series; 5 GN s/(kg m) is the customary resistivity of still air.</para>
        /// <para>The bits of TPDAMP in quorvel.h.</para>
        /// </remarks>
        public static float TotalVapourResistance(float[] thickness, float[] vapourResistivity)
        {
            Check.Length("Fabric.TotalVapourResistance", "thickness", thickness, 0, 20);
            Check.Range("Fabric.TotalVapourResistance", "thickness", thickness, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Fabric.TotalVapourResistance", "vapourResistivity", vapourResistivity, 0f,
                float.PositiveInfinity, " GN s/(kg m)");
            return Unchecked.Fabric.TotalVapourResistance(thickness, vapourResistivity);
        }

        /// <summary>Steady temperature, vapour pressure and saturation pressure at the interfaces of a construction;
        /// the vapour pressure is held down to saturation where it would exceed it.</summary>
        /// <param name="thickness">Thickness of each layer from the inside; below 0: a layer of given thermal
        /// resistance, 0: a membrane [m].</param>
        /// <param name="conductivity">Conductivity of each layer; its resistance in m²K/W where the thickness is below
        /// 0 [W/mK]; valid from 0.</param>
        /// <param name="vapourResistivity">Vapour resistivity of each layer; of a membrane its vapour resistance in GN
        /// s/kg [GN s/(kg m)]; valid from 0.</param>
        /// <param name="insideResistance">Resistance of the inside surface [m²K/W]; valid from 0.</param>
        /// <param name="outsideResistance">Resistance of the outside surface [m²K/W]; valid from 0.</param>
        /// <param name="insideTemperature">Inside air temperature [°C]; valid -100 to 200.</param>
        /// <param name="outsideTemperature">Outside air temperature [°C]; valid -100 to 200.</param>
        /// <param name="insideHumidity">Inside relative humidity [%]; valid 0 to 100.</param>
        /// <param name="outsideHumidity">Outside relative humidity [%]; valid 0 to 100.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The first and the last interface are the surfaces. Without layers there is one surface, with the
        /// temperature and the vapour pressure of its inside.</para>
        /// <para>Vapour condenses at an interface where the vapour pressure equals the saturation pressure.</para>
        /// <para>Relative humidities are limited to 0 to 100 %, the vapour pressures at the two surfaces to saturation
        /// there. Between two surfaces without any vapour resistance the vapour pressure is no number.</para>
        /// <para>A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, as in
        /// <c>Fabric.TotalVapourResistance</c>.</para>
        /// <para>Saturation inside a layer, between its interfaces, is not looked for: see
        /// <c>Fabric.CondensesWithinLayer</c>.</para>
        /// <para>Source: Glaser's method in the stepwise form of ISO 13788: the vapour line is straight over the vapour
        /// resistance between the interfaces at which it is held to saturation.</para>
        /// <para>The bits of TPGRAD in quorvel.h.</para>
        /// </remarks>
        public static CondensationProfile CondensationProfile(float[] thickness, float[] conductivity,
            float[] vapourResistivity, float insideResistance, float outsideResistance, float insideTemperature,
            float outsideTemperature, float insideHumidity, float outsideHumidity)
        {
            Check.Length("Fabric.CondensationProfile", "thickness", thickness, 0, 20);
            Check.Range("Fabric.CondensationProfile", "thickness", thickness, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Fabric.CondensationProfile", "conductivity", conductivity, 0f, float.PositiveInfinity,
                " W/mK");
            Check.Range("Fabric.CondensationProfile", "vapourResistivity", vapourResistivity, 0f,
                float.PositiveInfinity, " GN s/(kg m)");
            Check.Range("Fabric.CondensationProfile", "insideResistance", insideResistance, 0f, float.PositiveInfinity,
                " m²K/W");
            Check.Range("Fabric.CondensationProfile", "outsideResistance", outsideResistance, 0f,
                float.PositiveInfinity, " m²K/W");
            Check.Range("Fabric.CondensationProfile", "insideTemperature", insideTemperature, -100f, 200f, " °C");
            Check.Range("Fabric.CondensationProfile", "outsideTemperature", outsideTemperature, -100f, 200f, " °C");
            Check.Range("Fabric.CondensationProfile", "insideHumidity", insideHumidity, 0f, 100f, " %");
            Check.Range("Fabric.CondensationProfile", "outsideHumidity", outsideHumidity, 0f, 100f, " %");
            return Unchecked.Fabric.CondensationProfile(thickness, conductivity, vapourResistivity, insideResistance,
                outsideResistance, insideTemperature, outsideTemperature, insideHumidity, outsideHumidity);
        }

        /// <summary>Whether vapour condenses inside a layer, from the temperatures and vapour pressures of its two
        /// faces.</summary>
        /// <param name="warmTemperature">Temperature of the warm face [°C]; valid -100 to 200.</param>
        /// <param name="coldTemperature">Temperature of the cold face [°C]; valid -100 to 200.</param>
        /// <param name="warmVapourPressure">Vapour pressure at the warm face [Pa]; valid from 0.</param>
        /// <param name="coldVapourPressure">Vapour pressure at the cold face [Pa]; valid from 0.</param>
        /// <returns>1 if vapour condenses, 0 if not.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The layer is looked at in steps of 0.5 K from the warm face: the warm face itself is not, the cold
        /// face only if a step falls on it. Faces less than 0.5 K apart give 0.</para>
        /// <para>A cold face that is not below the warm one, or a temperature that is no number, gives 0.</para>
        /// <para>Where the temperature is so large that a step of 0.5 K is lost in its rounding (8.4 million °C), the
        /// search ends there with 0.</para>
        /// <para>Source: Straight lines of temperature and vapour pressure through a homogeneous layer, against the
        /// saturation pressure of <c>Psychro.SaturationPressure</c>.</para>
        /// <para>The bits of ITPCON in quorvel.h.</para>
        /// </remarks>
        public static int CondensesWithinLayer(float warmTemperature, float coldTemperature, float warmVapourPressure,
            float coldVapourPressure)
        {
            Check.Range("Fabric.CondensesWithinLayer", "warmTemperature", warmTemperature, -100f, 200f, " °C");
            Check.Range("Fabric.CondensesWithinLayer", "coldTemperature", coldTemperature, -100f, 200f, " °C");
            Check.Range("Fabric.CondensesWithinLayer", "warmVapourPressure", warmVapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            Check.Range("Fabric.CondensesWithinLayer", "coldVapourPressure", coldVapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            return Unchecked.Fabric.CondensesWithinLayer(warmTemperature, coldTemperature, warmVapourPressure,
                coldVapourPressure);
        }

        /// <inheritdoc cref="Quorvel.Fabric.CondensesWithinLayer(float, float, float, float)"/>
        public static int[] CondensesWithinLayer(Input<float> warmTemperature, Input<float> coldTemperature,
            Input<float> warmVapourPressure, Input<float> coldVapourPressure)
        {
            Check.Range("Fabric.CondensesWithinLayer", "warmTemperature", warmTemperature, -100f, 200f, " °C");
            Check.Range("Fabric.CondensesWithinLayer", "coldTemperature", coldTemperature, -100f, 200f, " °C");
            Check.Range("Fabric.CondensesWithinLayer", "warmVapourPressure", warmVapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            Check.Range("Fabric.CondensesWithinLayer", "coldVapourPressure", coldVapourPressure, 0f,
                float.PositiveInfinity, " Pa");
            return Unchecked.Fabric.CondensesWithinLayer(warmTemperature, coldTemperature, warmVapourPressure,
                coldVapourPressure);
        }

        /// <summary>One property of one record of a construction, a list of elements from face to face.</summary>
        /// <param name="elementRecords">Ten fields of each record, counted from 1; the first is its type code [by
        /// field].</param>
        /// <param name="recordNumber">Record asked about, counted from 1; valid from 1.</param>
        /// <param name="item">Property asked for; valid 1 to 72.</param>
        /// <returns>The property [by item]; 1e20 where there is none.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The type code, 50 to 999, is 100 times the class plus the subtype: class 1 solid layer, 2 another
        /// layer, 3 gap (300 of given resistance, 302 filled with gas), 4 translucent layer, 5 boundary, 6 end marker;
        /// other classes have no meaning. It is rounded after the limits are tested: 149.6 is class 1, subtype 50; 49.6
        /// and what is no number are no codes.</para>
        /// <para>Items of every class: 1 type code.</para>
        /// <para>Items of classes 1, 3 and 4: 2 thickness in mm; 4 and 5 fields 4 and 5, of a layer the two factors of
        /// its volumetric heat capacity, of a gas specific heat and density. Of 1 and 4: 3 conductivity in W/mK. Of 1
        /// and 3: 6 field 6.</para>
        /// <para>Items of class 3: 7 viscosity of the gas; 11 resistance in m²K/W, or conductivity of the gas; 61 and
        /// 62 field 8, with subtype 1 and 2.</para>
        /// <para>Items of classes 2, 4 and 5: 12 field 6. Of class 5 with subtype 1 or 2: 21 to 23 fields 2 to
        /// 4.</para>
        /// <para>Items of packed fields (<c>Fabric.PackThreeFractions</c>), all classes but 3 and 6: 31 solar
        /// transmittance, 32 front and 33 back reflectance, 34 and 35 front and back absorptance, from field 9; 41 to
        /// 45 the same from field 7; 54 and 55 the long-wave fractions of the two faces, 52 and 53 one less these, from
        /// field 8.</para>
        /// <para>Items of every class: 71 and 72 are 1 if the list ends with a record of code 601 and 602, whichever
        /// valid record is asked about.</para>
        /// <para>The complements of an undefined packed field, items 34, 35, 44, 45, 52 and 53, are -1e20 or -2e20, not
        /// 1e20: deliberate.</para>
        /// <para>Source: Layout of the element records.</para>
        /// <para>The bits of BELDAT in quorvel.h.</para>
        /// </remarks>
        public static float ElementProperty(float[,] elementRecords, int recordNumber, int item)
        {
            Check.Length("Fabric.ElementProperty", "elementRecords", elementRecords, 1, 2147483647);
            Check.Range("Fabric.ElementProperty", "elementRecords", elementRecords, -float.PositiveInfinity,
                float.PositiveInfinity, " by field");
            Check.Range("Fabric.ElementProperty", "recordNumber", recordNumber, 1, int.MaxValue, "");
            Check.Range("Fabric.ElementProperty", "item", item, 1, 72, "");
            return Unchecked.Fabric.ElementProperty(elementRecords, recordNumber, item);
        }

        /// <summary>Coefficient of natural convection at a surface of a room.</summary>
        /// <param name="temperatureDifference">Difference between surface and air temperature; its sign makes no
        /// difference [K].</param>
        /// <param name="characteristicLength">Characteristic length: height of a vertical surface, four times the area
        /// over the perimeter of a horizontal one [m]; valid from 0.</param>
        /// <param name="heatFlowDirection">Direction of the heat flow.</param>
        /// <returns>Convective coefficient [W/m²K].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: ((1.63 dT^(1/3))^6 + (1.40 (dT / L)^(1/4))^6)^(1/6) upwards, 1.23 and 1.50 for 1.63 and 1.40
        /// at a vertical surface, 0.6 (dT / L^2)^(1/5) downwards; dT = |temperatureDifference|, L =
        /// characteristicLength</para>
        /// <para>Any other direction gives 0.</para>
        /// <para>The coefficients 1.23 and 1.50 of a vertical surface have the laminar term larger than the turbulent
        /// one, with an upward flow it is the other way round; both are as published.</para>
        /// <para>A length of 0 gives an infinite coefficient, one below 0 no number but for a downward flow.</para>
        /// <para>Source: Alamdari and Hammond, Improved data correlations for buoyancy-driven convection in rooms,
        /// Building Services Engineering Research and Technology 4, 1983.</para>
        /// <para>The bits of TPHCON in quorvel.h.</para>
        /// </remarks>
        public static float NaturalConvectionCoefficient(float temperatureDifference, float characteristicLength,
            HeatFlowDirection heatFlowDirection)
        {
            Check.Range("Fabric.NaturalConvectionCoefficient", "temperatureDifference", temperatureDifference,
                -float.PositiveInfinity, float.PositiveInfinity, " K");
            Check.Range("Fabric.NaturalConvectionCoefficient", "characteristicLength", characteristicLength, 0f,
                float.PositiveInfinity, " m");
            Check.Selector("Fabric.NaturalConvectionCoefficient", "heatFlowDirection", heatFlowDirection, 1, 3);
            return Unchecked.Fabric.NaturalConvectionCoefficient(temperatureDifference, characteristicLength,
                heatFlowDirection);
        }

        /// <inheritdoc cref="Quorvel.Fabric.NaturalConvectionCoefficient(float, float, HeatFlowDirection)"/>
        public static float[] NaturalConvectionCoefficient(Input<float> temperatureDifference,
            Input<float> characteristicLength, Input<HeatFlowDirection> heatFlowDirection)
        {
            Check.Range("Fabric.NaturalConvectionCoefficient", "temperatureDifference", temperatureDifference,
                -float.PositiveInfinity, float.PositiveInfinity, " K");
            Check.Range("Fabric.NaturalConvectionCoefficient", "characteristicLength", characteristicLength, 0f,
                float.PositiveInfinity, " m");
            Check.Selector("Fabric.NaturalConvectionCoefficient", "heatFlowDirection", heatFlowDirection, 1, 3);
            return Unchecked.Fabric.NaturalConvectionCoefficient(temperatureDifference, characteristicLength,
                heatFlowDirection);
        }

        /// <summary>Packs two fractions of two decimals into one real, or unpacks them.</summary>
        /// <param name="packing">Direction.</param>
        /// <param name="packedNumber">Packed number; valid 0 to 9999.99.</param>
        /// <param name="fraction1">Fraction behind the point; valid 0 to 0.99.</param>
        /// <param name="fraction2">Fraction held as units and tens; valid 0 to 0.99.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>As <c>Fabric.PackThreeFractions</c> with a third fraction of 0, which is not returned: what stands
        /// above 100 is ignored.</para>
        /// <para>Source: As <c>Fabric.PackThreeFractions</c>.</para>
        /// <para>The bits of TPCOLW in quorvel.h.</para>
        /// </remarks>
        public static PackTwoFractions PackTwoFractions(Packing packing, float packedNumber, float fraction1,
            float fraction2)
        {
            Check.Selector("Fabric.PackTwoFractions", "packing", packing, 1, 2);
            Check.Range("Fabric.PackTwoFractions", "packedNumber", packedNumber, 0f, 9999.99f, "");
            Check.Range("Fabric.PackTwoFractions", "fraction1", fraction1, 0f, 0.99f, "");
            Check.Range("Fabric.PackTwoFractions", "fraction2", fraction2, 0f, 0.99f, "");
            return Unchecked.Fabric.PackTwoFractions(packing, packedNumber, fraction1, fraction2);
        }

        /// <inheritdoc cref="Quorvel.Fabric.PackTwoFractions(Packing, float, float, float)"/>
        public static PackTwoFractions[] PackTwoFractions(Input<Packing> packing, Input<float> packedNumber,
            Input<float> fraction1, Input<float> fraction2)
        {
            Check.Selector("Fabric.PackTwoFractions", "packing", packing, 1, 2);
            Check.Range("Fabric.PackTwoFractions", "packedNumber", packedNumber, 0f, 9999.99f, "");
            Check.Range("Fabric.PackTwoFractions", "fraction1", fraction1, 0f, 0.99f, "");
            Check.Range("Fabric.PackTwoFractions", "fraction2", fraction2, 0f, 0.99f, "");
            return Unchecked.Fabric.PackTwoFractions(packing, packedNumber, fraction1, fraction2);
        }

        /// <summary>Packs three fractions of two decimals into one real, or unpacks them.</summary>
        /// <param name="packing">Direction.</param>
        /// <param name="packedNumber">Packed number; valid 0 to 9999.99.</param>
        /// <param name="fraction1">Fraction behind the point; valid 0 to 0.99.</param>
        /// <param name="fraction2">Fraction held as units and tens; valid 0 to 0.99.</param>
        /// <param name="fraction3">Fraction held as hundreds and thousands; valid 0 to 0.99.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>0.25, 0.40, 0.07 are packed as 740.25.</para>
        /// <para>Fractions that add up to more than 1e10, and a packed number above 1e10, are undefined and give
        /// 1e20.</para>
        /// <para>Fractions 2 and 3 are cut to two decimals, with a tenth of a hundredth to spare; fraction 1 is added
        /// as it stands and cut when unpacked.</para>
        /// <para>All triples from 0.00 to 0.99 come back, as hundredths times the float 0.01: for 29 of the hundred
        /// fractions, 0.40 among them, that is the float next to the nearest.</para>
        /// <para>A fraction of 1.00 is carried into the next one, 1 into 2 and 2 into 3.</para>
        /// <para>Source: Format of the packed property numbers of element records
        /// (<c>Fabric.ElementProperty</c>).</para>
        /// <para>The bits of TPCOLT in quorvel.h.</para>
        /// </remarks>
        public static PackThreeFractions PackThreeFractions(Packing packing, float packedNumber, float fraction1,
            float fraction2, float fraction3)
        {
            Check.Selector("Fabric.PackThreeFractions", "packing", packing, 1, 2);
            Check.Range("Fabric.PackThreeFractions", "packedNumber", packedNumber, 0f, 9999.99f, "");
            Check.Range("Fabric.PackThreeFractions", "fraction1", fraction1, 0f, 0.99f, "");
            Check.Range("Fabric.PackThreeFractions", "fraction2", fraction2, 0f, 0.99f, "");
            Check.Range("Fabric.PackThreeFractions", "fraction3", fraction3, 0f, 0.99f, "");
            return Unchecked.Fabric.PackThreeFractions(packing, packedNumber, fraction1, fraction2, fraction3);
        }

        /// <inheritdoc cref="Quorvel.Fabric.PackThreeFractions(Packing, float, float, float, float)"/>
        public static PackThreeFractions[] PackThreeFractions(Input<Packing> packing, Input<float> packedNumber,
            Input<float> fraction1, Input<float> fraction2, Input<float> fraction3)
        {
            Check.Selector("Fabric.PackThreeFractions", "packing", packing, 1, 2);
            Check.Range("Fabric.PackThreeFractions", "packedNumber", packedNumber, 0f, 9999.99f, "");
            Check.Range("Fabric.PackThreeFractions", "fraction1", fraction1, 0f, 0.99f, "");
            Check.Range("Fabric.PackThreeFractions", "fraction2", fraction2, 0f, 0.99f, "");
            Check.Range("Fabric.PackThreeFractions", "fraction3", fraction3, 0f, 0.99f, "");
            return Unchecked.Fabric.PackThreeFractions(packing, packedNumber, fraction1, fraction2, fraction3);
        }

        /// <summary><c>Fabric.PackThreeFractions</c> with its arguments in another order.</summary>
        /// <param name="packing">Direction.</param>
        /// <param name="packedNumber">Packed number; valid 0 to 9999.99.</param>
        /// <param name="fraction3">Fraction held as hundreds and thousands; valid 0 to 0.99.</param>
        /// <param name="fraction1">Fraction behind the point; valid 0 to 0.99.</param>
        /// <param name="fraction2">Fraction held as units and tens; valid 0 to 0.99.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Source: As <c>Fabric.PackThreeFractions</c>.</para>
        /// <para>The bits of TPCOLW2 in quorvel.h.</para>
        /// </remarks>
        public static PackThreeFractionsThirdFirst PackThreeFractionsThirdFirst(Packing packing, float packedNumber,
            float fraction3, float fraction1, float fraction2)
        {
            Check.Selector("Fabric.PackThreeFractionsThirdFirst", "packing", packing, 1, 2);
            Check.Range("Fabric.PackThreeFractionsThirdFirst", "packedNumber", packedNumber, 0f, 9999.99f, "");
            Check.Range("Fabric.PackThreeFractionsThirdFirst", "fraction3", fraction3, 0f, 0.99f, "");
            Check.Range("Fabric.PackThreeFractionsThirdFirst", "fraction1", fraction1, 0f, 0.99f, "");
            Check.Range("Fabric.PackThreeFractionsThirdFirst", "fraction2", fraction2, 0f, 0.99f, "");
            return Unchecked.Fabric.PackThreeFractionsThirdFirst(packing, packedNumber, fraction3, fraction1,
                fraction2);
        }

        /// <inheritdoc cref="Quorvel.Fabric.PackThreeFractionsThirdFirst(Packing, float, float, float, float)"/>
        public static PackThreeFractionsThirdFirst[] PackThreeFractionsThirdFirst(Input<Packing> packing,
            Input<float> packedNumber, Input<float> fraction3, Input<float> fraction1, Input<float> fraction2)
        {
            Check.Selector("Fabric.PackThreeFractionsThirdFirst", "packing", packing, 1, 2);
            Check.Range("Fabric.PackThreeFractionsThirdFirst", "packedNumber", packedNumber, 0f, 9999.99f, "");
            Check.Range("Fabric.PackThreeFractionsThirdFirst", "fraction3", fraction3, 0f, 0.99f, "");
            Check.Range("Fabric.PackThreeFractionsThirdFirst", "fraction1", fraction1, 0f, 0.99f, "");
            Check.Range("Fabric.PackThreeFractionsThirdFirst", "fraction2", fraction2, 0f, 0.99f, "");
            return Unchecked.Fabric.PackThreeFractionsThirdFirst(packing, packedNumber, fraction3, fraction1,
                fraction2);
        }

        /// <summary>Packs the solar absorptance of a pane and the reflectances of its faces into one real, as
        /// absorptance and transmittances, or unpacks them.</summary>
        /// <param name="packing">Direction.</param>
        /// <param name="packedNumber">Packed number; valid 0 to 9999.99.</param>
        /// <param name="absorptance">Absorptance; valid 0 to 1.</param>
        /// <param name="reflectance1">Reflectance of the first face; valid 0 to 1.</param>
        /// <param name="reflectance2">Reflectance of the second face; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Packed as <c>Fabric.PackThreeFractions</c> packs the absorptance and the transmittances 1 -
        /// absorptance - reflectance of the two faces. Undefined values as there.</para>
        /// <para>A face that neither absorbs nor reflects transmits 1.00, which is carried into the next
        /// position.</para>
        /// <para>Absorptance and reflectance of a face that exceed 1 together do not come back.</para>
        /// <para>Source: As <c>Fabric.PackThreeFractions</c>.</para>
        /// <para>The bits of TPCOSW in quorvel.h.</para>
        /// </remarks>
        public static PackPane PackPane(Packing packing, float packedNumber, float absorptance, float reflectance1,
            float reflectance2)
        {
            Check.Selector("Fabric.PackPane", "packing", packing, 1, 2);
            Check.Range("Fabric.PackPane", "packedNumber", packedNumber, 0f, 9999.99f, "");
            Check.Range("Fabric.PackPane", "absorptance", absorptance, 0f, 1f, "");
            Check.Range("Fabric.PackPane", "reflectance1", reflectance1, 0f, 1f, "");
            Check.Range("Fabric.PackPane", "reflectance2", reflectance2, 0f, 1f, "");
            return Unchecked.Fabric.PackPane(packing, packedNumber, absorptance, reflectance1, reflectance2);
        }

        /// <inheritdoc cref="Quorvel.Fabric.PackPane(Packing, float, float, float, float)"/>
        public static PackPane[] PackPane(Input<Packing> packing, Input<float> packedNumber, Input<float> absorptance,
            Input<float> reflectance1, Input<float> reflectance2)
        {
            Check.Selector("Fabric.PackPane", "packing", packing, 1, 2);
            Check.Range("Fabric.PackPane", "packedNumber", packedNumber, 0f, 9999.99f, "");
            Check.Range("Fabric.PackPane", "absorptance", absorptance, 0f, 1f, "");
            Check.Range("Fabric.PackPane", "reflectance1", reflectance1, 0f, 1f, "");
            Check.Range("Fabric.PackPane", "reflectance2", reflectance2, 0f, 1f, "");
            return Unchecked.Fabric.PackPane(packing, packedNumber, absorptance, reflectance1, reflectance2);
        }

        /// <summary>Thermal resistance of the inside or outside surface of an element, for an emissivity of
        /// 0.9.</summary>
        /// <param name="surface">Surface.</param>
        /// <param name="tilt">Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to
        /// 3.1416.</param>
        /// <param name="exposure">Exposure of an outside surface to the wind.</param>
        /// <returns>Surface resistance [m²K/W].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: inside 1 / (9.53 - 2.6 tilt / pi), outside 1 / (4.59 + a + 4 b (1 - tilt / pi)^2)</para>
        /// <para>Another surface type gives 0. Another exposure counts as the nearest one.</para>
        /// <para>An inside vertical surface has 1 / 8.23 = 0.12 m²K/W.</para>
        /// <para>The tilt is not tested.</para>
        /// <para>a is 4.3, 9.1 and 20.7 W/m²K by exposure, b is 1.3, 2.8 and 6.1.</para>
        /// <para>Source: Radiation and convection side by side. The customary values of inside surfaces (0.10 up, 0.12
        /// horizontal, 0.14 down) and of outside ones in normal and severe exposure (walls 0.06 and 0.03, roofs 0.04
        /// and 0.02) are met to two decimals; the origin of the convective coefficients is not recorded.</para>
        /// <para>The bits of TPRSUR in quorvel.h.</para>
        /// </remarks>
        public static float SurfaceResistance(Surface surface, float tilt, Exposure exposure)
        {
            Check.Selector("Fabric.SurfaceResistance", "surface", surface, 1, 2);
            Check.Range("Fabric.SurfaceResistance", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Selector("Fabric.SurfaceResistance", "exposure", exposure, 1, 3);
            return Unchecked.Fabric.SurfaceResistance(surface, tilt, exposure);
        }

        /// <inheritdoc cref="Quorvel.Fabric.SurfaceResistance(Surface, float, Exposure)"/>
        public static float[] SurfaceResistance(Input<Surface> surface, Input<float> tilt, Input<Exposure> exposure)
        {
            Check.Selector("Fabric.SurfaceResistance", "surface", surface, 1, 2);
            Check.Range("Fabric.SurfaceResistance", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Selector("Fabric.SurfaceResistance", "exposure", exposure, 1, 3);
            return Unchecked.Fabric.SurfaceResistance(surface, tilt, exposure);
        }

        /// <summary>Thermal resistance of the inside or outside surface of an element of any emissivity.</summary>
        /// <param name="surface">Surface.</param>
        /// <param name="tilt">Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to
        /// 3.1416.</param>
        /// <param name="exposure">Exposure of an outside surface to the wind.</param>
        /// <param name="emissivity">Long-wave emissivity of the surface; valid 0 to 1.</param>
        /// <returns>Surface resistance [m²K/W].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: inside 1 / (4.4 - 2.6 tilt / pi + 5.7 emissivity), outside 1 / (5.1 emissivity + a + 4 b (1 -
        /// tilt / pi)^2)</para>
        /// <para>Another surface type gives 0. Another exposure counts as the nearest one.</para>
        /// <para>At an emissivity of 0.9 it is <c>Fabric.SurfaceResistance</c> to rounding.</para>
        /// <para>Tilt and emissivity are not tested.</para>
        /// <para>a and b are those of <c>Fabric.SurfaceResistance</c>.</para>
        /// <para>Source: As <c>Fabric.SurfaceResistance</c>, with black-body coefficients of 5.1 W/m²K outside and 5.7
        /// W/m²K inside.</para>
        /// <para>The bits of TPRSU2 in quorvel.h.</para>
        /// </remarks>
        public static float SurfaceResistanceAtEmissivity(Surface surface, float tilt, Exposure exposure,
            float emissivity)
        {
            Check.Selector("Fabric.SurfaceResistanceAtEmissivity", "surface", surface, 1, 2);
            Check.Range("Fabric.SurfaceResistanceAtEmissivity", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Selector("Fabric.SurfaceResistanceAtEmissivity", "exposure", exposure, 1, 3);
            Check.Range("Fabric.SurfaceResistanceAtEmissivity", "emissivity", emissivity, 0f, 1f, "");
            return Unchecked.Fabric.SurfaceResistanceAtEmissivity(surface, tilt, exposure, emissivity);
        }

        /// <inheritdoc cref="Quorvel.Fabric.SurfaceResistanceAtEmissivity(Surface, float, Exposure, float)"/>
        public static float[] SurfaceResistanceAtEmissivity(Input<Surface> surface, Input<float> tilt,
            Input<Exposure> exposure, Input<float> emissivity)
        {
            Check.Selector("Fabric.SurfaceResistanceAtEmissivity", "surface", surface, 1, 2);
            Check.Range("Fabric.SurfaceResistanceAtEmissivity", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Selector("Fabric.SurfaceResistanceAtEmissivity", "exposure", exposure, 1, 3);
            Check.Range("Fabric.SurfaceResistanceAtEmissivity", "emissivity", emissivity, 0f, 1f, "");
            return Unchecked.Fabric.SurfaceResistanceAtEmissivity(surface, tilt, exposure, emissivity);
        }

        /// <summary>U-value of a construction of plane layers between two surface resistances.</summary>
        /// <param name="thickness">Thickness of each layer; below 0: a layer of given resistance, 0: no layer
        /// [m].</param>
        /// <param name="conductivity">Conductivity of each layer; its resistance in m²K/W where the thickness is below
        /// 0 [W/mK]; valid from 0.</param>
        /// <param name="surfaceResistance1">Resistance of one surface [m²K/W]; valid from 0.</param>
        /// <param name="surfaceResistance2">Resistance of the other [m²K/W]; valid from 0.</param>
        /// <returns>U-value [W/m²K].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 1 / (surfaceResistance1 + surfaceResistance2 + sum of thickness / conductivity)</para>
        /// <para>Without layers the two surfaces are left.</para>
        /// <para>How far below 0 a thickness is makes no difference here; it does in
        /// <c>Fabric.TotalVapourResistance</c> and <c>Fabric.CondensationProfile</c>.</para>
        /// <para>A thickness that is no number gives no number.</para>
        /// <para>Source: Resistances in series; ISO 6946.</para>
        /// <para>The bits of TPUVAL in quorvel.h.</para>
        /// </remarks>
        public static float UValue(float[] thickness, float[] conductivity, float surfaceResistance1,
            float surfaceResistance2)
        {
            Check.Length("Fabric.UValue", "thickness", thickness, 0, 20);
            Check.Range("Fabric.UValue", "thickness", thickness, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Fabric.UValue", "conductivity", conductivity, 0f, float.PositiveInfinity, " W/mK");
            Check.Range("Fabric.UValue", "surfaceResistance1", surfaceResistance1, 0f, float.PositiveInfinity,
                " m²K/W");
            Check.Range("Fabric.UValue", "surfaceResistance2", surfaceResistance2, 0f, float.PositiveInfinity,
                " m²K/W");
            return Unchecked.Fabric.UValue(thickness, conductivity, surfaceResistance1, surfaceResistance2);
        }

        /// <summary>U-value of a construction at another tilt and exposure, from its U-value as a vertical wall in
        /// normal exposure.</summary>
        /// <param name="uValue">U-value with the surface resistances of a vertical wall at exposure 2 [W/m²K]; valid
        /// from 0.</param>
        /// <param name="tilt">Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to
        /// 3.1416.</param>
        /// <param name="exposure">Wind exposure of the outside surface.</param>
        /// <returns>U-value at that tilt and exposure [W/m²K].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 1 / (1 / UValue - Rso - Rsi + Rso(tilt, exposure) + Rsi(tilt)), Rso and Rsi of a vertical
        /// surface in normal exposure where nothing else is said</para>
        /// <para>A U-value that is not above 0, or no number, comes back as it is.</para>
        /// <para>Above 5.49 W/m²K, what the two surfaces of the wall let through by themselves, the layers would have a
        /// negative resistance; the result is formed with it all the same.</para>
        /// <para>An exposure below 1 counts as 1, above 3 as 3. The tilt is not limited.</para>
        /// <para>Source: Surface resistances of <c>Fabric.SurfaceResistance</c>, exchanged.</para>
        /// <para>The bits of TPUMOD in quorvel.h.</para>
        /// </remarks>
        public static float UValueAtTiltAndExposure(float uValue, float tilt, Exposure exposure)
        {
            Check.Range("Fabric.UValueAtTiltAndExposure", "uValue", uValue, 0f, float.PositiveInfinity, " W/m²K");
            Check.Range("Fabric.UValueAtTiltAndExposure", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Selector("Fabric.UValueAtTiltAndExposure", "exposure", exposure, 1, 3);
            return Unchecked.Fabric.UValueAtTiltAndExposure(uValue, tilt, exposure);
        }

        /// <inheritdoc cref="Quorvel.Fabric.UValueAtTiltAndExposure(float, float, Exposure)"/>
        public static float[] UValueAtTiltAndExposure(Input<float> uValue, Input<float> tilt, Input<Exposure> exposure)
        {
            Check.Range("Fabric.UValueAtTiltAndExposure", "uValue", uValue, 0f, float.PositiveInfinity, " W/m²K");
            Check.Range("Fabric.UValueAtTiltAndExposure", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Selector("Fabric.UValueAtTiltAndExposure", "exposure", exposure, 1, 3);
            return Unchecked.Fabric.UValueAtTiltAndExposure(uValue, tilt, exposure);
        }

        /// <summary>U-value, admittance, decrement factor and surface factor of a glazing of one to three
        /// panes.</summary>
        /// <param name="panes">Number of panes, pane 1 nearest the room; valid 1 to 3.</param>
        /// <param name="paneKind1">Kind of pane 1.</param>
        /// <param name="emissivity1">Long-wave emissivity of pane 1; valid 0 to 1.</param>
        /// <param name="paneKind2">Kind of pane 2.</param>
        /// <param name="emissivity2">Long-wave emissivity of pane 2; valid 0 to 1.</param>
        /// <param name="paneKind3">Kind of pane 3.</param>
        /// <param name="emissivity3">Long-wave emissivity of pane 3; valid 0 to 1.</param>
        /// <param name="cavityWidth1">Width of the cavity between panes 1 and 2 [m]; valid from 0.001.</param>
        /// <param name="cavityWidth2">Width of the cavity between panes 2 and 3 [m]; valid from 0.001.</param>
        /// <param name="outerSurface">Surface type of the outer face, normally 1.</param>
        /// <param name="exposure">Exposure of the outer face to the wind.</param>
        /// <param name="tilt">Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to
        /// 3.1416.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: UValue = 1 / (Rso + Rsi + the resistances of the cavities), surfaceFactor = 1 - Rsi
        /// UValue</para>
        /// <para>The resistance of the glass is neglected and nothing is stored in it.</para>
        /// <para>Of three panes one may be open: the middle one leaves a single cavity as wide as both. With two open
        /// panes, and with one open pane of two, there is no cavity.</para>
        /// <para>The kinds of the panes are told by their sum: 0, 1, 2 count as three closed panes.</para>
        /// <para>Another number of panes counts as one pane, with the emissivity of pane 3 outside.</para>
        /// <para>Cavities as <c>Fabric.AirCavityResistance</c>: one that it rejects has no resistance.</para>
        /// <para>Rsi and Rso are the resistances of the inner and the outer surface.</para>
        /// <para>Source: Surface resistances of <c>Fabric.SurfaceResistanceAtEmissivity</c> and cavities of
        /// <c>Fabric.AirCavityResistance</c> in series.</para>
        /// <para>The bits of TPWNDO in quorvel.h.</para>
        /// </remarks>
        public static WindowParameters WindowParameters(int panes, PaneKind paneKind1, float emissivity1,
            PaneKind paneKind2, float emissivity2, PaneKind paneKind3, float emissivity3, float cavityWidth1,
            float cavityWidth2, Surface outerSurface, Exposure exposure, float tilt)
        {
            Check.Range("Fabric.WindowParameters", "panes", panes, 1, 3, "");
            Check.Selector("Fabric.WindowParameters", "paneKind1", paneKind1, 1, 2);
            Check.Range("Fabric.WindowParameters", "emissivity1", emissivity1, 0f, 1f, "");
            Check.Selector("Fabric.WindowParameters", "paneKind2", paneKind2, 1, 2);
            Check.Range("Fabric.WindowParameters", "emissivity2", emissivity2, 0f, 1f, "");
            Check.Selector("Fabric.WindowParameters", "paneKind3", paneKind3, 1, 2);
            Check.Range("Fabric.WindowParameters", "emissivity3", emissivity3, 0f, 1f, "");
            Check.Range("Fabric.WindowParameters", "cavityWidth1", cavityWidth1, 0.001f, float.PositiveInfinity, " m");
            Check.Range("Fabric.WindowParameters", "cavityWidth2", cavityWidth2, 0.001f, float.PositiveInfinity, " m");
            Check.Selector("Fabric.WindowParameters", "outerSurface", outerSurface, 1, 2);
            Check.Selector("Fabric.WindowParameters", "exposure", exposure, 1, 3);
            Check.Range("Fabric.WindowParameters", "tilt", tilt, 0f, 3.1416f, " rad");
            return Unchecked.Fabric.WindowParameters(panes, paneKind1, emissivity1, paneKind2, emissivity2, paneKind3,
                emissivity3, cavityWidth1, cavityWidth2, outerSurface, exposure, tilt);
        }

        /// <inheritdoc cref="Quorvel.Fabric.WindowParameters(int, PaneKind, float, PaneKind, float, PaneKind, float, float, float, Surface, Exposure, float)"/>
        public static WindowParameters[] WindowParameters(Input<int> panes, Input<PaneKind> paneKind1,
            Input<float> emissivity1, Input<PaneKind> paneKind2, Input<float> emissivity2, Input<PaneKind> paneKind3,
            Input<float> emissivity3, Input<float> cavityWidth1, Input<float> cavityWidth2, Input<Surface> outerSurface,
            Input<Exposure> exposure, Input<float> tilt)
        {
            Check.Range("Fabric.WindowParameters", "panes", panes, 1, 3, "");
            Check.Selector("Fabric.WindowParameters", "paneKind1", paneKind1, 1, 2);
            Check.Range("Fabric.WindowParameters", "emissivity1", emissivity1, 0f, 1f, "");
            Check.Selector("Fabric.WindowParameters", "paneKind2", paneKind2, 1, 2);
            Check.Range("Fabric.WindowParameters", "emissivity2", emissivity2, 0f, 1f, "");
            Check.Selector("Fabric.WindowParameters", "paneKind3", paneKind3, 1, 2);
            Check.Range("Fabric.WindowParameters", "emissivity3", emissivity3, 0f, 1f, "");
            Check.Range("Fabric.WindowParameters", "cavityWidth1", cavityWidth1, 0.001f, float.PositiveInfinity, " m");
            Check.Range("Fabric.WindowParameters", "cavityWidth2", cavityWidth2, 0.001f, float.PositiveInfinity, " m");
            Check.Selector("Fabric.WindowParameters", "outerSurface", outerSurface, 1, 2);
            Check.Selector("Fabric.WindowParameters", "exposure", exposure, 1, 3);
            Check.Range("Fabric.WindowParameters", "tilt", tilt, 0f, 3.1416f, " rad");
            return Unchecked.Fabric.WindowParameters(panes, paneKind1, emissivity1, paneKind2, emissivity2, paneKind3,
                emissivity3, cavityWidth1, cavityWidth2, outerSurface, exposure, tilt);
        }
    }

    public static partial class Unchecked
    {
        /// <summary>Building fabric, unchecked.</summary>
        public static class Fabric
        {
            /// <inheritdoc cref="Quorvel.Fabric.CyclicResponse(float[], float[], float[], float[], float, float, int, ElementKind)"/>
            public static CyclicResponse CyclicResponse(float[] thickness, float[] conductivity, float[] density,
                float[] specificHeat, float insideResistance, float outsideResistance, int harmonic,
                ElementKind elementKind)
            {
                int layers = Check.Count("Fabric.CyclicResponse", "thickness", thickness);
                Check.Count("Fabric.CyclicResponse", "conductivity", conductivity, "thickness", layers);
                Check.Count("Fabric.CyclicResponse", "density", density, "thickness", layers);
                Check.Count("Fabric.CyclicResponse", "specificHeat", specificHeat, "thickness", layers);
                var results = new CyclicResponse { Admittance = float.NaN, AdmittanceLead = float.NaN,
                    DecrementFactor = float.NaN, DecrementLag = float.NaN, SurfaceFactor = float.NaN,
                    SurfaceFactorLag = float.NaN, UValue = float.NaN };
                Native.TPADMT(thickness, conductivity, density, specificHeat, ref insideResistance,
                    ref outsideResistance, ref layers, ref harmonic, ref elementKind, ref results.Admittance,
                    ref results.AdmittanceLead, ref results.DecrementFactor, ref results.DecrementLag,
                    ref results.SurfaceFactor, ref results.SurfaceFactorLag, ref results.UValue);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.VerticalCavityResistance(float)"/>
            public static float VerticalCavityResistance(float cavityWidth)
            {
                return Native.TPRCAV(ref cavityWidth);
            }

            /// <inheritdoc cref="Quorvel.Fabric.VerticalCavityResistance(float)"/>
            public static float[] VerticalCavityResistance(Input<float> cavityWidth)
            {
                int count = Elements.Count("Fabric.VerticalCavityResistance", ("cavityWidth", cavityWidth.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_vertical_cavity_resistance((UIntPtr)count, ref cavityWidth.First,
                    cavityWidth.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.AirCavityResistance(float, float, float, float)"/>
            public static float AirCavityResistance(float tilt, float cavityWidth, float emissivity1, float emissivity2)
            {
                return Native.TPRCA2(ref tilt, ref cavityWidth, ref emissivity1, ref emissivity2);
            }

            /// <inheritdoc cref="Quorvel.Fabric.AirCavityResistance(float, float, float, float)"/>
            public static float[] AirCavityResistance(Input<float> tilt, Input<float> cavityWidth,
                Input<float> emissivity1, Input<float> emissivity2)
            {
                int count = Elements.Count("Fabric.AirCavityResistance", ("tilt", tilt.Length), ("cavityWidth",
                    cavityWidth.Length), ("emissivity1", emissivity1.Length), ("emissivity2", emissivity2.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_air_cavity_resistance((UIntPtr)count, ref tilt.First, tilt.Stride,
                    ref cavityWidth.First, cavityWidth.Stride, ref emissivity1.First, emissivity1.Stride,
                    ref emissivity2.First, emissivity2.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.GasCavityResistance(float, float, float, float, float, float, float, float)"/>
            public static float GasCavityResistance(float tilt, float cavityWidth, float emissivity1, float emissivity2,
                float density, float conductivity, float specificHeat, float viscosity)
            {
                return Native.TPRCAX(ref tilt, ref cavityWidth, ref emissivity1, ref emissivity2, ref density,
                    ref conductivity, ref specificHeat, ref viscosity);
            }

            /// <inheritdoc cref="Quorvel.Fabric.GasCavityResistance(float, float, float, float, float, float, float, float)"/>
            public static float[] GasCavityResistance(Input<float> tilt, Input<float> cavityWidth,
                Input<float> emissivity1, Input<float> emissivity2, Input<float> density, Input<float> conductivity,
                Input<float> specificHeat, Input<float> viscosity)
            {
                int count = Elements.Count("Fabric.GasCavityResistance", ("tilt", tilt.Length), ("cavityWidth",
                    cavityWidth.Length), ("emissivity1", emissivity1.Length), ("emissivity2", emissivity2.Length),
                    ("density", density.Length), ("conductivity", conductivity.Length), ("specificHeat",
                    specificHeat.Length), ("viscosity", viscosity.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_gas_cavity_resistance((UIntPtr)count, ref tilt.First, tilt.Stride,
                    ref cavityWidth.First, cavityWidth.Stride, ref emissivity1.First, emissivity1.Stride,
                    ref emissivity2.First, emissivity2.Stride, ref density.First, density.Stride,
                    ref conductivity.First, conductivity.Stride, ref specificHeat.First, specificHeat.Stride,
                    ref viscosity.First, viscosity.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.TotalVapourResistance(float[], float[])"/>
            public static float TotalVapourResistance(float[] thickness, float[] vapourResistivity)
            {
                int layers = Check.Count("Fabric.TotalVapourResistance", "thickness", thickness);
                Check.Count("Fabric.TotalVapourResistance", "vapourResistivity", vapourResistivity, "thickness",
                    layers);
                float results = float.NaN;
                Native.TPDAMP(thickness, vapourResistivity, ref layers, ref results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.CondensationProfile(float[], float[], float[], float, float, float, float, float, float)"/>
            public static CondensationProfile CondensationProfile(float[] thickness, float[] conductivity,
                float[] vapourResistivity, float insideResistance, float outsideResistance, float insideTemperature,
                float outsideTemperature, float insideHumidity, float outsideHumidity)
            {
                int layers = Check.Count("Fabric.CondensationProfile", "thickness", thickness);
                Check.Count("Fabric.CondensationProfile", "conductivity", conductivity, "thickness", layers);
                Check.Count("Fabric.CondensationProfile", "vapourResistivity", vapourResistivity, "thickness", layers);
                var results = new CondensationProfile { InterfaceTemperature = Blank.Of(new float[21]),
                    InterfaceVapourPressure = Blank.Of(new float[21]),
                    InterfaceSaturationPressure = Blank.Of(new float[21]) };
                Native.TPGRAD(thickness, conductivity, vapourResistivity, ref insideResistance, ref outsideResistance,
                    ref layers, ref insideTemperature, ref outsideTemperature, ref insideHumidity, ref outsideHumidity,
                    results.InterfaceTemperature, results.InterfaceVapourPressure, results.InterfaceSaturationPressure);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.CondensesWithinLayer(float, float, float, float)"/>
            public static int CondensesWithinLayer(float warmTemperature, float coldTemperature,
                float warmVapourPressure, float coldVapourPressure)
            {
                return Native.ITPCON(ref warmTemperature, ref coldTemperature, ref warmVapourPressure,
                    ref coldVapourPressure);
            }

            /// <inheritdoc cref="Quorvel.Fabric.CondensesWithinLayer(float, float, float, float)"/>
            public static int[] CondensesWithinLayer(Input<float> warmTemperature, Input<float> coldTemperature,
                Input<float> warmVapourPressure, Input<float> coldVapourPressure)
            {
                int count = Elements.Count("Fabric.CondensesWithinLayer", ("warmTemperature", warmTemperature.Length),
                    ("coldTemperature", coldTemperature.Length), ("warmVapourPressure", warmVapourPressure.Length),
                    ("coldVapourPressure", coldVapourPressure.Length));
                var results = new int[count];
                Elements.Done(Native.quorvel_condenses_within_layer((UIntPtr)count, ref warmTemperature.First,
                    warmTemperature.Stride, ref coldTemperature.First, coldTemperature.Stride,
                    ref warmVapourPressure.First, warmVapourPressure.Stride, ref coldVapourPressure.First,
                    coldVapourPressure.Stride, ref Elements.First(results), Elements<int>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.ElementProperty(float[,], int, int)"/>
            public static float ElementProperty(float[,] elementRecords, int recordNumber, int item)
            {
                int recordCount = Check.Count("Fabric.ElementProperty", "elementRecords", elementRecords);
                Check.Shape("Fabric.ElementProperty", "elementRecords", elementRecords, -1, 10);
                return Native.BELDAT(elementRecords, ref recordCount, ref recordNumber, ref item);
            }

            /// <inheritdoc cref="Quorvel.Fabric.NaturalConvectionCoefficient(float, float, HeatFlowDirection)"/>
            public static float NaturalConvectionCoefficient(float temperatureDifference, float characteristicLength,
                HeatFlowDirection heatFlowDirection)
            {
                return Native.TPHCON(ref temperatureDifference, ref characteristicLength, ref heatFlowDirection);
            }

            /// <inheritdoc cref="Quorvel.Fabric.NaturalConvectionCoefficient(float, float, HeatFlowDirection)"/>
            public static float[] NaturalConvectionCoefficient(Input<float> temperatureDifference,
                Input<float> characteristicLength, Input<HeatFlowDirection> heatFlowDirection)
            {
                int count = Elements.Count("Fabric.NaturalConvectionCoefficient", ("temperatureDifference",
                    temperatureDifference.Length), ("characteristicLength", characteristicLength.Length),
                    ("heatFlowDirection", heatFlowDirection.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_natural_convection_coefficient((UIntPtr)count,
                    ref temperatureDifference.First, temperatureDifference.Stride, ref characteristicLength.First,
                    characteristicLength.Stride, ref heatFlowDirection.First, heatFlowDirection.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.PackTwoFractions(Packing, float, float, float)"/>
            public static PackTwoFractions PackTwoFractions(Packing packing, float packedNumber, float fraction1,
                float fraction2)
            {
                var results = new PackTwoFractions { PackedNumber = packedNumber, Fraction1 = fraction1,
                    Fraction2 = fraction2 };
                Native.TPCOLW(ref packing, ref results.PackedNumber, ref results.Fraction1, ref results.Fraction2);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.PackTwoFractions(Packing, float, float, float)"/>
            public static PackTwoFractions[] PackTwoFractions(Input<Packing> packing, Input<float> packedNumber,
                Input<float> fraction1, Input<float> fraction2)
            {
                int count = Elements.Count("Fabric.PackTwoFractions", ("packing", packing.Length), ("packedNumber",
                    packedNumber.Length), ("fraction1", fraction1.Length), ("fraction2", fraction2.Length));
                var results = new PackTwoFractions[count];
                Elements.Done(Native.quorvel_pack_two_fractions((UIntPtr)count, ref packing.First, packing.Stride,
                    ref packedNumber.First, packedNumber.Stride, ref fraction1.First, fraction1.Stride,
                    ref fraction2.First, fraction2.Stride, ref Elements.First(results).PackedNumber,
                    Elements<PackTwoFractions>.Stride, ref Elements.First(results).Fraction1,
                    Elements<PackTwoFractions>.Stride, ref Elements.First(results).Fraction2,
                    Elements<PackTwoFractions>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.PackThreeFractions(Packing, float, float, float, float)"/>
            public static PackThreeFractions PackThreeFractions(Packing packing, float packedNumber, float fraction1,
                float fraction2, float fraction3)
            {
                var results = new PackThreeFractions { PackedNumber = packedNumber, Fraction1 = fraction1,
                    Fraction2 = fraction2, Fraction3 = fraction3 };
                Native.TPCOLT(ref packing, ref results.PackedNumber, ref results.Fraction1, ref results.Fraction2,
                    ref results.Fraction3);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.PackThreeFractions(Packing, float, float, float, float)"/>
            public static PackThreeFractions[] PackThreeFractions(Input<Packing> packing, Input<float> packedNumber,
                Input<float> fraction1, Input<float> fraction2, Input<float> fraction3)
            {
                int count = Elements.Count("Fabric.PackThreeFractions", ("packing", packing.Length), ("packedNumber",
                    packedNumber.Length), ("fraction1", fraction1.Length), ("fraction2", fraction2.Length),
                    ("fraction3", fraction3.Length));
                var results = new PackThreeFractions[count];
                Elements.Done(Native.quorvel_pack_three_fractions((UIntPtr)count, ref packing.First, packing.Stride,
                    ref packedNumber.First, packedNumber.Stride, ref fraction1.First, fraction1.Stride,
                    ref fraction2.First, fraction2.Stride, ref fraction3.First, fraction3.Stride,
                    ref Elements.First(results).PackedNumber, Elements<PackThreeFractions>.Stride,
                    ref Elements.First(results).Fraction1, Elements<PackThreeFractions>.Stride,
                    ref Elements.First(results).Fraction2, Elements<PackThreeFractions>.Stride,
                    ref Elements.First(results).Fraction3, Elements<PackThreeFractions>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.PackThreeFractionsThirdFirst(Packing, float, float, float, float)"/>
            public static PackThreeFractionsThirdFirst PackThreeFractionsThirdFirst(Packing packing, float packedNumber,
                float fraction3, float fraction1, float fraction2)
            {
                var results = new PackThreeFractionsThirdFirst { PackedNumber = packedNumber, Fraction3 = fraction3,
                    Fraction1 = fraction1, Fraction2 = fraction2 };
                Native.TPCOLW2(ref packing, ref results.PackedNumber, ref results.Fraction3, ref results.Fraction1,
                    ref results.Fraction2);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.PackThreeFractionsThirdFirst(Packing, float, float, float, float)"/>
            public static PackThreeFractionsThirdFirst[] PackThreeFractionsThirdFirst(Input<Packing> packing,
                Input<float> packedNumber, Input<float> fraction3, Input<float> fraction1, Input<float> fraction2)
            {
                int count = Elements.Count("Fabric.PackThreeFractionsThirdFirst", ("packing", packing.Length),
                    ("packedNumber", packedNumber.Length), ("fraction3", fraction3.Length), ("fraction1",
                    fraction1.Length), ("fraction2", fraction2.Length));
                var results = new PackThreeFractionsThirdFirst[count];
                Elements.Done(Native.quorvel_pack_three_fractions_third_first((UIntPtr)count, ref packing.First,
                    packing.Stride, ref packedNumber.First, packedNumber.Stride, ref fraction3.First, fraction3.Stride,
                    ref fraction1.First, fraction1.Stride, ref fraction2.First, fraction2.Stride,
                    ref Elements.First(results).PackedNumber, Elements<PackThreeFractionsThirdFirst>.Stride,
                    ref Elements.First(results).Fraction3, Elements<PackThreeFractionsThirdFirst>.Stride,
                    ref Elements.First(results).Fraction1, Elements<PackThreeFractionsThirdFirst>.Stride,
                    ref Elements.First(results).Fraction2, Elements<PackThreeFractionsThirdFirst>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.PackPane(Packing, float, float, float, float)"/>
            public static PackPane PackPane(Packing packing, float packedNumber, float absorptance, float reflectance1,
                float reflectance2)
            {
                var results = new PackPane { PackedNumber = packedNumber, Absorptance = absorptance,
                    Reflectance1 = reflectance1, Reflectance2 = reflectance2 };
                Native.TPCOSW(ref packing, ref results.PackedNumber, ref results.Absorptance, ref results.Reflectance1,
                    ref results.Reflectance2);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.PackPane(Packing, float, float, float, float)"/>
            public static PackPane[] PackPane(Input<Packing> packing, Input<float> packedNumber,
                Input<float> absorptance, Input<float> reflectance1, Input<float> reflectance2)
            {
                int count = Elements.Count("Fabric.PackPane", ("packing", packing.Length), ("packedNumber",
                    packedNumber.Length), ("absorptance", absorptance.Length), ("reflectance1", reflectance1.Length),
                    ("reflectance2", reflectance2.Length));
                var results = new PackPane[count];
                Elements.Done(Native.quorvel_pack_pane((UIntPtr)count, ref packing.First, packing.Stride,
                    ref packedNumber.First, packedNumber.Stride, ref absorptance.First, absorptance.Stride,
                    ref reflectance1.First, reflectance1.Stride, ref reflectance2.First, reflectance2.Stride,
                    ref Elements.First(results).PackedNumber, Elements<PackPane>.Stride,
                    ref Elements.First(results).Absorptance, Elements<PackPane>.Stride,
                    ref Elements.First(results).Reflectance1, Elements<PackPane>.Stride,
                    ref Elements.First(results).Reflectance2, Elements<PackPane>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.SurfaceResistance(Surface, float, Exposure)"/>
            public static float SurfaceResistance(Surface surface, float tilt, Exposure exposure)
            {
                return Native.TPRSUR(ref surface, ref tilt, ref exposure);
            }

            /// <inheritdoc cref="Quorvel.Fabric.SurfaceResistance(Surface, float, Exposure)"/>
            public static float[] SurfaceResistance(Input<Surface> surface, Input<float> tilt, Input<Exposure> exposure)
            {
                int count = Elements.Count("Fabric.SurfaceResistance", ("surface", surface.Length), ("tilt",
                    tilt.Length), ("exposure", exposure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_surface_resistance((UIntPtr)count, ref surface.First, surface.Stride,
                    ref tilt.First, tilt.Stride, ref exposure.First, exposure.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.SurfaceResistanceAtEmissivity(Surface, float, Exposure, float)"/>
            public static float SurfaceResistanceAtEmissivity(Surface surface, float tilt, Exposure exposure,
                float emissivity)
            {
                return Native.TPRSU2(ref surface, ref tilt, ref exposure, ref emissivity);
            }

            /// <inheritdoc cref="Quorvel.Fabric.SurfaceResistanceAtEmissivity(Surface, float, Exposure, float)"/>
            public static float[] SurfaceResistanceAtEmissivity(Input<Surface> surface, Input<float> tilt,
                Input<Exposure> exposure, Input<float> emissivity)
            {
                int count = Elements.Count("Fabric.SurfaceResistanceAtEmissivity", ("surface", surface.Length), ("tilt",
                    tilt.Length), ("exposure", exposure.Length), ("emissivity", emissivity.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_surface_resistance_at_emissivity((UIntPtr)count, ref surface.First,
                    surface.Stride, ref tilt.First, tilt.Stride, ref exposure.First, exposure.Stride,
                    ref emissivity.First, emissivity.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.UValue(float[], float[], float, float)"/>
            public static float UValue(float[] thickness, float[] conductivity, float surfaceResistance1,
                float surfaceResistance2)
            {
                int layers = Check.Count("Fabric.UValue", "thickness", thickness);
                Check.Count("Fabric.UValue", "conductivity", conductivity, "thickness", layers);
                float results = float.NaN;
                Native.TPUVAL(thickness, conductivity, ref surfaceResistance1, ref surfaceResistance2, ref layers,
                    ref results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.UValueAtTiltAndExposure(float, float, Exposure)"/>
            public static float UValueAtTiltAndExposure(float uValue, float tilt, Exposure exposure)
            {
                return Native.TPUMOD(ref uValue, ref tilt, ref exposure);
            }

            /// <inheritdoc cref="Quorvel.Fabric.UValueAtTiltAndExposure(float, float, Exposure)"/>
            public static float[] UValueAtTiltAndExposure(Input<float> uValue, Input<float> tilt,
                Input<Exposure> exposure)
            {
                int count = Elements.Count("Fabric.UValueAtTiltAndExposure", ("uValue", uValue.Length), ("tilt",
                    tilt.Length), ("exposure", exposure.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_u_value_at_tilt_and_exposure((UIntPtr)count, ref uValue.First,
                    uValue.Stride, ref tilt.First, tilt.Stride, ref exposure.First, exposure.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.WindowParameters(int, PaneKind, float, PaneKind, float, PaneKind, float, float, float, Surface, Exposure, float)"/>
            public static WindowParameters WindowParameters(int panes, PaneKind paneKind1, float emissivity1,
                PaneKind paneKind2, float emissivity2, PaneKind paneKind3, float emissivity3, float cavityWidth1,
                float cavityWidth2, Surface outerSurface, Exposure exposure, float tilt)
            {
                var results = new WindowParameters { Admittance = float.NaN, AdmittanceLead = float.NaN,
                    DecrementFactor = float.NaN, DecrementLag = float.NaN, SurfaceFactor = float.NaN,
                    SurfaceFactorLag = float.NaN, UValue = float.NaN };
                Native.TPWNDO(ref panes, ref paneKind1, ref emissivity1, ref paneKind2, ref emissivity2, ref paneKind3,
                    ref emissivity3, ref cavityWidth1, ref cavityWidth2, ref outerSurface, ref exposure, ref tilt,
                    ref Unread.Real, ref results.Admittance, ref results.AdmittanceLead, ref results.DecrementFactor,
                    ref results.DecrementLag, ref results.SurfaceFactor, ref results.SurfaceFactorLag,
                    ref results.UValue);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Fabric.WindowParameters(int, PaneKind, float, PaneKind, float, PaneKind, float, float, float, Surface, Exposure, float)"/>
            public static WindowParameters[] WindowParameters(Input<int> panes, Input<PaneKind> paneKind1,
                Input<float> emissivity1, Input<PaneKind> paneKind2, Input<float> emissivity2,
                Input<PaneKind> paneKind3, Input<float> emissivity3, Input<float> cavityWidth1,
                Input<float> cavityWidth2, Input<Surface> outerSurface, Input<Exposure> exposure, Input<float> tilt)
            {
                int count = Elements.Count("Fabric.WindowParameters", ("panes", panes.Length), ("paneKind1",
                    paneKind1.Length), ("emissivity1", emissivity1.Length), ("paneKind2", paneKind2.Length),
                    ("emissivity2", emissivity2.Length), ("paneKind3", paneKind3.Length), ("emissivity3",
                    emissivity3.Length), ("cavityWidth1", cavityWidth1.Length), ("cavityWidth2", cavityWidth2.Length),
                    ("outerSurface", outerSurface.Length), ("exposure", exposure.Length), ("tilt", tilt.Length));
                var results = new WindowParameters[count];
                Elements.Done(Native.quorvel_window_parameters((UIntPtr)count, ref panes.First, panes.Stride,
                    ref paneKind1.First, paneKind1.Stride, ref emissivity1.First, emissivity1.Stride,
                    ref paneKind2.First, paneKind2.Stride, ref emissivity2.First, emissivity2.Stride,
                    ref paneKind3.First, paneKind3.Stride, ref emissivity3.First, emissivity3.Stride,
                    ref cavityWidth1.First, cavityWidth1.Stride, ref cavityWidth2.First, cavityWidth2.Stride,
                    ref outerSurface.First, outerSurface.Stride, ref exposure.First, exposure.Stride, ref tilt.First,
                    tilt.Stride, ref Elements.First(results).Admittance, Elements<WindowParameters>.Stride,
                    ref Elements.First(results).AdmittanceLead, Elements<WindowParameters>.Stride,
                    ref Elements.First(results).DecrementFactor, Elements<WindowParameters>.Stride,
                    ref Elements.First(results).DecrementLag, Elements<WindowParameters>.Stride,
                    ref Elements.First(results).SurfaceFactor, Elements<WindowParameters>.Stride,
                    ref Elements.First(results).SurfaceFactorLag, Elements<WindowParameters>.Stride,
                    ref Elements.First(results).UValue, Elements<WindowParameters>.Stride));
                return results;
            }
        }
    }
}
