// Produced from the catalogue of routines (catalogue/); do not edit.
using System;

namespace Quorvel
{
    /// <summary>What <c>Glazing.GlassDirect</c> returns.</summary>
    public struct GlassDirect
    {
        /// <summary>Transmittance, parallel polarisation.</summary>
        public float ParallelTransmittance;

        /// <summary>Absorptance, parallel.</summary>
        public float ParallelAbsorptance;

        /// <summary>Reflectance, parallel.</summary>
        public float ParallelReflectance;

        /// <summary>Transmittance, perpendicular polarisation.</summary>
        public float PerpendicularTransmittance;

        /// <summary>Absorptance, perpendicular.</summary>
        public float PerpendicularAbsorptance;

        /// <summary>Reflectance, perpendicular.</summary>
        public float PerpendicularReflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float parallelTransmittance, out float parallelAbsorptance,
            out float parallelReflectance, out float perpendicularTransmittance, out float perpendicularAbsorptance,
            out float perpendicularReflectance)
        {
            parallelTransmittance = ParallelTransmittance;
            parallelAbsorptance = ParallelAbsorptance;
            parallelReflectance = ParallelReflectance;
            perpendicularTransmittance = PerpendicularTransmittance;
            perpendicularAbsorptance = PerpendicularAbsorptance;
            perpendicularReflectance = PerpendicularReflectance;
        }
    }

    /// <summary>What <c>Glazing.GlassDiffuse</c> returns.</summary>
    public struct GlassDiffuse
    {
        /// <summary>Diffuse transmittance.</summary>
        public float Transmittance;

        /// <summary>Diffuse absorptance.</summary>
        public float Absorptance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
        }
    }

    /// <summary>What <c>Glazing.StackedLayers</c> returns.</summary>
    public struct StackedLayers
    {
        /// <summary>Transmittance of the stack.</summary>
        public float Transmittance;

        /// <summary>Absorptance, 1 - transmittance - reflectance.</summary>
        public float Absorptance;

        /// <summary>Reflectance of the stack.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.TracedLayers</c> returns.</summary>
    public struct TracedLayers
    {
        /// <summary>Transmittance of the stack.</summary>
        public float Transmittance;

        /// <summary>Absorptance of the stack.</summary>
        public float Absorptance;

        /// <summary>Reflectance of the stack.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.RollerBlind</c> returns.</summary>
    public struct RollerBlind
    {
        /// <summary>Transmittance, that of the blind.</summary>
        public float Transmittance;

        /// <summary>Absorptance, the rest.</summary>
        public float Absorptance;

        /// <summary>Reflectance, that of the blind.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.DiffuseRollerBlind</c> returns.</summary>
    public struct DiffuseRollerBlind
    {
        /// <summary>Transmittance, that of the blind to rounding.</summary>
        public float Transmittance;

        /// <summary>Absorptance, the rest to rounding.</summary>
        public float Absorptance;

        /// <summary>Reflectance, 1 - transmittance - absorptance.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.SurfaceReflectance</c> returns.</summary>
    public struct SurfaceReflectance
    {
        /// <summary>Reflectance, polarised parallel to the plane of incidence.</summary>
        public float ParallelReflectance;

        /// <summary>Reflectance, polarised perpendicular to it.</summary>
        public float PerpendicularReflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float parallelReflectance, out float perpendicularReflectance)
        {
            parallelReflectance = ParallelReflectance;
            perpendicularReflectance = PerpendicularReflectance;
        }
    }

    /// <summary>What <c>Glazing.SlabOptics</c> returns.</summary>
    public struct SlabOptics
    {
        /// <summary>Transmittance.</summary>
        public float Transmittance;

        /// <summary>Absorptance, not below 0.</summary>
        public float Absorptance;

        /// <summary>Reflectance.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.PaneTemperatures</c> returns.</summary>
    public struct PaneTemperatures
    {
        /// <summary>Temperature of pane 1, nearest the room [°C]; not a number with panes outside 1 to 5.</summary>
        public float PaneTemperature1;

        /// <summary>Temperature of pane 2 [°C]; not a number with panes outside 2 to 5.</summary>
        public float PaneTemperature2;

        /// <summary>Temperature of pane 3 [°C]; not a number with panes outside 3 to 5.</summary>
        public float PaneTemperature3;

        /// <summary>Temperature of pane 4 [°C]; not a number with panes outside 4 to 5.</summary>
        public float PaneTemperature4;

        /// <summary>Temperature of pane 5 [°C]; not a number with panes outside 4 to 5.</summary>
        public float PaneTemperature5;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float paneTemperature1, out float paneTemperature2, out float paneTemperature3,
            out float paneTemperature4, out float paneTemperature5)
        {
            paneTemperature1 = PaneTemperature1;
            paneTemperature2 = PaneTemperature2;
            paneTemperature3 = PaneTemperature3;
            paneTemperature4 = PaneTemperature4;
            paneTemperature5 = PaneTemperature5;
        }
    }

    /// <summary>What <c>Glazing.UnitDirect</c> returns.</summary>
    public struct UnitDirect
    {
        /// <summary>Transmittance.</summary>
        public float Transmittance;

        /// <summary>Absorptance.</summary>
        public float Absorptance;

        /// <summary>Reflectance, 1 - transmittance - absorptance, at least 0.01 to rounding.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.UnitDiffuse</c> returns.</summary>
    public struct UnitDiffuse
    {
        /// <summary>Diffuse transmittance.</summary>
        public float Transmittance;

        /// <summary>Diffuse absorptance.</summary>
        public float Absorptance;

        /// <summary>Diffuse reflectance, 1 - transmittance - absorptance.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.UnitDirectShares</c> returns.</summary>
    public struct UnitDirectShares
    {
        /// <summary>Transmittance.</summary>
        public float Transmittance;

        /// <summary>Share of each pane in 1 - transmittance - absorptance.</summary>
        public float[] PaneShares;

        /// <summary>Absorptance.</summary>
        public float Absorptance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float[] paneShares, out float absorptance)
        {
            transmittance = Transmittance;
            paneShares = PaneShares;
            absorptance = Absorptance;
        }
    }

    /// <summary>What <c>Glazing.UnitDiffuseShares</c> returns.</summary>
    public struct UnitDiffuseShares
    {
        /// <summary>Diffuse transmittance.</summary>
        public float Transmittance;

        /// <summary>Share of each pane in 1 - transmittance - absorptance.</summary>
        public float[] PaneShares;

        /// <summary>Diffuse absorptance.</summary>
        public float Absorptance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float[] paneShares, out float absorptance)
        {
            transmittance = Transmittance;
            paneShares = PaneShares;
            absorptance = Absorptance;
        }
    }

    /// <summary>What <c>Glazing.UnitShares</c> returns.</summary>
    public struct UnitShares
    {
        /// <summary>Transmittance.</summary>
        public float Transmittance;

        /// <summary>Share of each pane in 1 - transmittance - absorptance.</summary>
        public float[] PaneShares;

        /// <summary>Absorptance.</summary>
        public float Absorptance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float[] paneShares, out float absorptance)
        {
            transmittance = Transmittance;
            paneShares = PaneShares;
            absorptance = Absorptance;
        }
    }

    /// <summary>What <c>Glazing.SlatDirect</c> returns.</summary>
    public struct SlatDirect
    {
        /// <summary>Transmittance.</summary>
        public float Transmittance;

        /// <summary>Absorptance.</summary>
        public float Absorptance;

        /// <summary>Reflectance, 1 - transmittance - absorptance.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.TwoFacedSlatDirect</c> returns.</summary>
    public struct TwoFacedSlatDirect
    {
        /// <summary>Transmittance.</summary>
        public float Transmittance;

        /// <summary>Absorptance.</summary>
        public float Absorptance;

        /// <summary>Reflectance, 1 - transmittance - absorptance, not limited.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.OpenSlatDirect</c> returns.</summary>
    public struct OpenSlatDirect
    {
        /// <summary>Transmittance, the open share included.</summary>
        public float Transmittance;

        /// <summary>Absorptance.</summary>
        public float Absorptance;

        /// <summary>Reflectance.</summary>
        public float Reflectance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float transmittance, out float absorptance, out float reflectance)
        {
            transmittance = Transmittance;
            absorptance = Absorptance;
            reflectance = Reflectance;
        }
    }

    /// <summary>What <c>Glazing.SlatDiffuse</c> returns.</summary>
    public struct SlatDiffuse
    {
        /// <summary>Transmittance for radiation from above the horizon.</summary>
        public float SkyTransmittance;

        /// <summary>Transmittance for radiation from below it.</summary>
        public float GroundTransmittance;

        /// <summary>Absorptance for radiation from above the horizon.</summary>
        public float SkyAbsorptance;

        /// <summary>Absorptance for radiation from below it.</summary>
        public float GroundAbsorptance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float skyTransmittance, out float groundTransmittance, out float skyAbsorptance,
            out float groundAbsorptance)
        {
            skyTransmittance = SkyTransmittance;
            groundTransmittance = GroundTransmittance;
            skyAbsorptance = SkyAbsorptance;
            groundAbsorptance = GroundAbsorptance;
        }
    }

    /// <summary>What <c>Glazing.TwoFacedSlatDiffuse</c> returns.</summary>
    public struct TwoFacedSlatDiffuse
    {
        /// <summary>Transmittance for radiation from above the horizon.</summary>
        public float SkyTransmittance;

        /// <summary>Transmittance for radiation from below it.</summary>
        public float GroundTransmittance;

        /// <summary>Absorptance for radiation from above the horizon.</summary>
        public float SkyAbsorptance;

        /// <summary>Absorptance for radiation from below it.</summary>
        public float GroundAbsorptance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float skyTransmittance, out float groundTransmittance, out float skyAbsorptance,
            out float groundAbsorptance)
        {
            skyTransmittance = SkyTransmittance;
            groundTransmittance = GroundTransmittance;
            skyAbsorptance = SkyAbsorptance;
            groundAbsorptance = GroundAbsorptance;
        }
    }

    /// <summary>What <c>Glazing.OpenSlatDiffuse</c> returns.</summary>
    public struct OpenSlatDiffuse
    {
        /// <summary>Transmittance for radiation from above the horizon.</summary>
        public float SkyTransmittance;

        /// <summary>Transmittance for radiation from below it.</summary>
        public float GroundTransmittance;

        /// <summary>Absorptance for radiation from above the horizon.</summary>
        public float SkyAbsorptance;

        /// <summary>Absorptance for radiation from below it.</summary>
        public float GroundAbsorptance;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float skyTransmittance, out float groundTransmittance, out float skyAbsorptance,
            out float groundAbsorptance)
        {
            skyTransmittance = SkyTransmittance;
            groundTransmittance = GroundTransmittance;
            skyAbsorptance = SkyAbsorptance;
            groundAbsorptance = GroundAbsorptance;
        }
    }

    /// <summary>Glazing.</summary>
    public static partial class Glazing
    {
        /// <summary>Transmittance, absorptance and reflectance of a pane for direct radiation, both
        /// polarisations.</summary>
        /// <param name="normalTransmittance">Normal transmittance; valid 0 to 0.92.</param>
        /// <param name="normalReflectance">Normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99.</param>
        /// <param name="incidence">Angle of incidence [rad]; valid -1.5708 to 1.5708.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The unpolarised values are the means of the two polarisations.</para>
        /// <para>A normal reflectance in 0.01..0.99 means coated: factors on the normal transmittance and on 1 -
        /// normalReflectance are interpolated from a table every 5 degrees, the same for both polarisations; beyond
        /// 1.57 rad everything is reflected. Any other means uncoated and is not used.</para>
        /// <para>Uncoated glass has the refractive index 1.52. Below a transmittance of 0.001 it is opaque and reflects
        /// everything.</para>
        /// <para>No uncoated glass has a normal transmittance above 0.9184: from there on its absorption would be below
        /// 0 and is held at 0, so that the three add up to more than 1. At 0.92 their unpolarised sum is 1.0018 at
        /// normal incidence, 1.0024 at 1.5 rad and 1.011 at 1.57 rad.</para>
        /// <para>For nearly opaque uncoated glass the difference in <c>Glazing.AbsorptionProduct</c> cancels: at normal
        /// incidence the transmittance comes back to within 4 % from 0.02 on and 34 % from 0.005 on; below that 0.002
        /// gives 0 and 0.0025 gives 0.006.</para>
        /// <para>Uncoated, an angle beyond pi/2 is not tested, and the results mean nothing there.</para>
        /// <para>The transmittance of coated glass is not tested: where it exceeds 1 with the reflectance the three do
        /// not add up to 1.</para>
        /// <para>Source: Uncoated glass: <c>Glazing.AbsorptionProduct</c>, <c>Glazing.RefractionAngle</c>,
        /// <c>Glazing.SurfaceReflectance</c>, <c>Glazing.SinglePassAbsorption</c>, <c>Glazing.SlabOptics</c> in turn.
        /// Coated glass: tabulated angular factors whose origin is not recorded.</para>
        /// <para>The bits of WNDRGL in quorvel.h.</para>
        /// </remarks>
        public static GlassDirect GlassDirect(float normalTransmittance, float normalReflectance, float incidence)
        {
            Check.Range("Glazing.GlassDirect", "normalTransmittance", normalTransmittance, 0f, 0.92f, "");
            Check.Range("Glazing.GlassDirect", "normalReflectance", normalReflectance, 0f, 0.99f, "");
            Check.Range("Glazing.GlassDirect", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            return Unchecked.Glazing.GlassDirect(normalTransmittance, normalReflectance, incidence);
        }

        /// <inheritdoc cref="Quorvel.Glazing.GlassDirect(float, float, float)"/>
        public static GlassDirect[] GlassDirect(Input<float> normalTransmittance, Input<float> normalReflectance,
            Input<float> incidence)
        {
            Check.Range("Glazing.GlassDirect", "normalTransmittance", normalTransmittance, 0f, 0.92f, "");
            Check.Range("Glazing.GlassDirect", "normalReflectance", normalReflectance, 0f, 0.99f, "");
            Check.Range("Glazing.GlassDirect", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            return Unchecked.Glazing.GlassDirect(normalTransmittance, normalReflectance, incidence);
        }

        /// <summary>Transmittance and absorptance of a pane for isotropic diffuse radiation.</summary>
        /// <param name="normalTransmittance">Normal transmittance; valid 0 to 0.92.</param>
        /// <param name="normalReflectance">Normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The pane is taken exactly as by <c>Glazing.GlassDirect</c>, coated and opaque glass included.</para>
        /// <para>The bits are those of <c>Glazing.GlassDirect</c> summed over the bands.</para>
        /// <para>Source: <c>Glazing.GlassDirect</c> at the centres of 18 bands of 5 degrees, each weighted with the
        /// integral of 2 sin cos over the band.</para>
        /// <para>The bits of WNDFGL in quorvel.h.</para>
        /// </remarks>
        public static GlassDiffuse GlassDiffuse(float normalTransmittance, float normalReflectance)
        {
            Check.Range("Glazing.GlassDiffuse", "normalTransmittance", normalTransmittance, 0f, 0.92f, "");
            Check.Range("Glazing.GlassDiffuse", "normalReflectance", normalReflectance, 0f, 0.99f, "");
            return Unchecked.Glazing.GlassDiffuse(normalTransmittance, normalReflectance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.GlassDiffuse(float, float)"/>
        public static GlassDiffuse[] GlassDiffuse(Input<float> normalTransmittance, Input<float> normalReflectance)
        {
            Check.Range("Glazing.GlassDiffuse", "normalTransmittance", normalTransmittance, 0f, 0.92f, "");
            Check.Range("Glazing.GlassDiffuse", "normalReflectance", normalReflectance, 0f, 0.99f, "");
            return Unchecked.Glazing.GlassDiffuse(normalTransmittance, normalReflectance);
        }

        /// <summary>Transmittance, absorptance and reflectance of a stack of layers, each reflection counted
        /// once.</summary>
        /// <param name="layerTransmittances">Transmittance of each layer; valid 0 to 1.</param>
        /// <param name="layerReflectances">Reflectance of each layer; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A layer's reflection passes the layers above it once each way; there is no further
        /// inter-reflection.</para>
        /// <para>Where transmittance and reflectance exceed 0.99 together, the reflectance is reduced until they do
        /// not. It turns negative if the transmittance alone is above 0.99.</para>
        /// <para>The last layer is met first. No layers are an empty stack, which transmits everything.</para>
        /// <para>Source: First-order combination of the layers.</para>
        /// <para>The bits of WNCOM2 in quorvel.h.</para>
        /// </remarks>
        public static StackedLayers StackedLayers(float[] layerTransmittances, float[] layerReflectances)
        {
            Check.Range("Glazing.StackedLayers", "layerTransmittances", layerTransmittances, 0f, 1f, "");
            Check.Range("Glazing.StackedLayers", "layerReflectances", layerReflectances, 0f, 1f, "");
            return Unchecked.Glazing.StackedLayers(layerTransmittances, layerReflectances);
        }

        /// <summary>Transmittance, absorptance and reflectance of a stack of layers with the inter-reflections between
        /// all of them.</summary>
        /// <param name="layerTransmittances">Transmittance of each layer, the same from both sides; valid 0 to
        /// 1.</param>
        /// <param name="layerAbsorptances">Absorptance of each layer; valid 0 to 1.</param>
        /// <param name="layerReflectances">Reflectance of each layer, the same from both sides; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>In a pass the flux goes forward through all layers and back by one; nine passes are made. What needs
        /// more than eight steps back is missing from all three results: nothing of one layer; of two, the ninth power
        /// of the product of their reflectances as a share of the transmittance; of ten and eleven layers all that the
        /// last ones reflect.</para>
        /// <para>The last layer is met first. No layers are an empty stack, which transmits everything.</para>
        /// <para>That transmittance, absorptance and reflectance of a layer add up to 1 is left to the caller.</para>
        /// <para>Source: Tracing of one forward and one backward flux, which tends to the adding method.</para>
        /// <para>The bits of WNCOMP in quorvel.h.</para>
        /// </remarks>
        public static TracedLayers TracedLayers(float[] layerTransmittances, float[] layerAbsorptances,
            float[] layerReflectances)
        {
            Check.Length("Glazing.TracedLayers", "layerTransmittances", layerTransmittances, 0, 11);
            Check.Range("Glazing.TracedLayers", "layerTransmittances", layerTransmittances, 0f, 1f, "");
            Check.Range("Glazing.TracedLayers", "layerAbsorptances", layerAbsorptances, 0f, 1f, "");
            Check.Range("Glazing.TracedLayers", "layerReflectances", layerReflectances, 0f, 1f, "");
            return Unchecked.Glazing.TracedLayers(layerTransmittances, layerAbsorptances, layerReflectances);
        }

        /// <summary>Transmittance, absorptance and reflectance of a roller blind, the same at every angle.</summary>
        /// <param name="blindTransmittance">Transmittance of the blind; valid 0 to 1.</param>
        /// <param name="blindReflectance">Reflectance of the blind; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: absorptance = 1 - blindTransmittance - blindReflectance</para>
        /// <para>Nothing is limited: a blind that transmits and reflects more than 1 gives a negative
        /// absorptance.</para>
        /// <para>Source: Conservation of energy.</para>
        /// <para>The bits of WNDRRO in quorvel.h.</para>
        /// </remarks>
        public static RollerBlind RollerBlind(float blindTransmittance, float blindReflectance)
        {
            Check.Range("Glazing.RollerBlind", "blindTransmittance", blindTransmittance, 0f, 1f, "");
            Check.Range("Glazing.RollerBlind", "blindReflectance", blindReflectance, 0f, 1f, "");
            return Unchecked.Glazing.RollerBlind(blindTransmittance, blindReflectance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.RollerBlind(float, float)"/>
        public static RollerBlind[] RollerBlind(Input<float> blindTransmittance, Input<float> blindReflectance)
        {
            Check.Range("Glazing.RollerBlind", "blindTransmittance", blindTransmittance, 0f, 1f, "");
            Check.Range("Glazing.RollerBlind", "blindReflectance", blindReflectance, 0f, 1f, "");
            return Unchecked.Glazing.RollerBlind(blindTransmittance, blindReflectance);
        }

        /// <summary>Transmittance, absorptance and reflectance of a roller blind for diffuse radiation.</summary>
        /// <param name="blindTransmittance">Transmittance of the blind; valid 0 to 1.</param>
        /// <param name="blindReflectance">Reflectance of the blind; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The blind is the same at every angle; the sum of the bands' weights, 0.9999999, remains as a
        /// factor.</para>
        /// <para>Nothing is limited: a blind that transmits and reflects more than 1 gives a negative
        /// absorptance.</para>
        /// <para>Source: <c>Glazing.RollerBlind</c>, integrated as in <c>Glazing.SlatDiffuse</c>.</para>
        /// <para>The bits of WNDFRO in quorvel.h.</para>
        /// </remarks>
        public static DiffuseRollerBlind DiffuseRollerBlind(float blindTransmittance, float blindReflectance)
        {
            Check.Range("Glazing.DiffuseRollerBlind", "blindTransmittance", blindTransmittance, 0f, 1f, "");
            Check.Range("Glazing.DiffuseRollerBlind", "blindReflectance", blindReflectance, 0f, 1f, "");
            return Unchecked.Glazing.DiffuseRollerBlind(blindTransmittance, blindReflectance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.DiffuseRollerBlind(float, float)"/>
        public static DiffuseRollerBlind[] DiffuseRollerBlind(Input<float> blindTransmittance,
            Input<float> blindReflectance)
        {
            Check.Range("Glazing.DiffuseRollerBlind", "blindTransmittance", blindTransmittance, 0f, 1f, "");
            Check.Range("Glazing.DiffuseRollerBlind", "blindReflectance", blindReflectance, 0f, 1f, "");
            return Unchecked.Glazing.DiffuseRollerBlind(blindTransmittance, blindReflectance);
        }

        /// <summary>Angle of a ray inside the glass, by Snell's law.</summary>
        /// <param name="incidence">Angle of incidence [rad]; valid -1.5708 to 1.5708.</param>
        /// <param name="refractiveIndex">Refractive index of the glass; valid 1 to 4.</param>
        /// <returns>Refraction angle [rad].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: asin(sin(incidence) / refractiveIndex)</para>
        /// <para>Where the sine of the incidence is below 0.01 in size the result is incidence / refractiveIndex, the
        /// ratio of the angles in place of that of the sines.</para>
        /// <para>An index so far below 1 that the reflection is total gives no number.</para>
        /// <para>Source: Snell's law.</para>
        /// <para>The bits of WNRANG in quorvel.h.</para>
        /// </remarks>
        public static float RefractionAngle(float incidence, float refractiveIndex)
        {
            Check.Range("Glazing.RefractionAngle", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.RefractionAngle", "refractiveIndex", refractiveIndex, 1f, 4f, "");
            return Unchecked.Glazing.RefractionAngle(incidence, refractiveIndex);
        }

        /// <inheritdoc cref="Quorvel.Glazing.RefractionAngle(float, float)"/>
        public static float[] RefractionAngle(Input<float> incidence, Input<float> refractiveIndex)
        {
            Check.Range("Glazing.RefractionAngle", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.RefractionAngle", "refractiveIndex", refractiveIndex, 1f, 4f, "");
            return Unchecked.Glazing.RefractionAngle(incidence, refractiveIndex);
        }

        /// <summary>Reflectance of one face of the glass for the two polarisations, by Fresnel's equations.</summary>
        /// <param name="incidence">Angle of incidence [rad]; valid -1.5708 to 1.5708.</param>
        /// <param name="refractionAngle">Refraction angle, of the sign of the incidence [rad]; valid -1.5708 to
        /// 1.5708.</param>
        /// <param name="refractiveIndex">Refractive index, used at normal incidence only; valid 1 to 4.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: perpendicular (sin(i - r) / sin(i + r))^2, parallel (tan(i - r) / tan(i + r))^2; i =
        /// incidence, r = RefractionAngle</para>
        /// <para>Up to an angle of 0.01 in size, and for an incidence that is no number, both are the value at normal
        /// incidence, ((1 - n) / (1 + n))^2 with the refractive index n. <c>Glazing.RefractionAngle</c> tests the sine
        /// of the angle instead; the two limits differ deliberately.</para>
        /// <para>Source: Fresnel's equations; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter
        /// 5.</para>
        /// <para>The bits of WNREFL in quorvel.h.</para>
        /// </remarks>
        public static SurfaceReflectance SurfaceReflectance(float incidence, float refractionAngle,
            float refractiveIndex)
        {
            Check.Range("Glazing.SurfaceReflectance", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.SurfaceReflectance", "refractionAngle", refractionAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.SurfaceReflectance", "refractiveIndex", refractiveIndex, 1f, 4f, "");
            return Unchecked.Glazing.SurfaceReflectance(incidence, refractionAngle, refractiveIndex);
        }

        /// <inheritdoc cref="Quorvel.Glazing.SurfaceReflectance(float, float, float)"/>
        public static SurfaceReflectance[] SurfaceReflectance(Input<float> incidence, Input<float> refractionAngle,
            Input<float> refractiveIndex)
        {
            Check.Range("Glazing.SurfaceReflectance", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.SurfaceReflectance", "refractionAngle", refractionAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.SurfaceReflectance", "refractiveIndex", refractiveIndex, 1f, 4f, "");
            return Unchecked.Glazing.SurfaceReflectance(incidence, refractionAngle, refractiveIndex);
        }

        /// <summary>Share of a ray that is absorbed in one pass through the body of a pane.</summary>
        /// <param name="refractionAngle">Refraction angle [rad]; valid -1.5708 to 1.5708.</param>
        /// <param name="absorptionProduct">Absorption coefficient times thickness; valid 0 to 20.</param>
        /// <returns>Absorbed share.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 1 - exp(-AbsorptionProduct / cos(RefractionAngle))</para>
        /// <para>Source: Bouguer's law of absorption.</para>
        /// <para>The bits of WNABEN in quorvel.h.</para>
        /// </remarks>
        public static float SinglePassAbsorption(float refractionAngle, float absorptionProduct)
        {
            Check.Range("Glazing.SinglePassAbsorption", "refractionAngle", refractionAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.SinglePassAbsorption", "absorptionProduct", absorptionProduct, 0f, 20f, "");
            return Unchecked.Glazing.SinglePassAbsorption(refractionAngle, absorptionProduct);
        }

        /// <inheritdoc cref="Quorvel.Glazing.SinglePassAbsorption(float, float)"/>
        public static float[] SinglePassAbsorption(Input<float> refractionAngle, Input<float> absorptionProduct)
        {
            Check.Range("Glazing.SinglePassAbsorption", "refractionAngle", refractionAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.SinglePassAbsorption", "absorptionProduct", absorptionProduct, 0f, 20f, "");
            return Unchecked.Glazing.SinglePassAbsorption(refractionAngle, absorptionProduct);
        }

        /// <summary>Transmittance, absorptance and reflectance of a pane for one polarisation, with all
        /// inter-reflections between its two faces.</summary>
        /// <param name="singlePassAbsorptance">Share absorbed in a single pass; valid 0 to 1.</param>
        /// <param name="faceReflectance">Reflectance of either face; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: transmittance = (1 - r)^2 tau / (1 - r^2 tau^2), reflectance = r + r (1 - r)^2 tau^2 / (1 -
        /// r^2 tau^2), absorptance = 1 - transmittance - reflectance; tau = 1 - singlePassAbsorptance, r =
        /// faceReflectance</para>
        /// <para>Faces that reflect everything around a body that absorbs nothing leave the result undefined
        /// (0/0).</para>
        /// <para>What is no number stays so; the limit at 0 touches only numbers.</para>
        /// <para>Source: Stokes, On the intensity of the light reflected from or transmitted through a pile of plates,
        /// 1862; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.</para>
        /// <para>The bits of WNTAR in quorvel.h.</para>
        /// </remarks>
        public static SlabOptics SlabOptics(float singlePassAbsorptance, float faceReflectance)
        {
            Check.Range("Glazing.SlabOptics", "singlePassAbsorptance", singlePassAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.SlabOptics", "faceReflectance", faceReflectance, 0f, 1f, "");
            return Unchecked.Glazing.SlabOptics(singlePassAbsorptance, faceReflectance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.SlabOptics(float, float)"/>
        public static SlabOptics[] SlabOptics(Input<float> singlePassAbsorptance, Input<float> faceReflectance)
        {
            Check.Range("Glazing.SlabOptics", "singlePassAbsorptance", singlePassAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.SlabOptics", "faceReflectance", faceReflectance, 0f, 1f, "");
            return Unchecked.Glazing.SlabOptics(singlePassAbsorptance, faceReflectance);
        }

        /// <summary>Absorption coefficient times thickness of a pane, from its transmittance at normal
        /// incidence.</summary>
        /// <param name="normalTransmittance">Normal transmittance of the pane; valid 0 to 0.92.</param>
        /// <param name="refractiveIndex">Refractive index; valid 1 to 4.</param>
        /// <returns>Absorption coefficient times thickness.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: -ln((sqrt((1 - r)^4 + 4 r^2 T^2) - (1 - r)^2) / (2 T r^2)); T = NormalTransmittance, r =
        /// ((refractiveIndex - 1) / (refractiveIndex + 1))^2</para>
        /// <para>Evaluated as written in single precision, where a difference of roots cancels for nearly opaque glass:
        /// the relative error of the transmittance T, given back by <c>Glazing.NormalTransmittance</c>, is up to 1.5e-5
        /// / T^2, which is 0.02 % at 0.3, 0.15 % at 0.1 and 0.6 % at 0.05; at 0.002 and less the result is
        /// infinite.</para>
        /// <para>Above the transmittance of glass that absorbs nothing, 0.918 for an index of 1.52, the result is
        /// negative.</para>
        /// <para>A transmittance of 0 and an index of 1 divide by zero and give no finite number.</para>
        /// <para>Source: The slab of <c>Glazing.SlabOptics</c> at normal incidence, solved for the absorption.</para>
        /// <para>The bits of WNKL in quorvel.h.</para>
        /// </remarks>
        public static float AbsorptionProduct(float normalTransmittance, float refractiveIndex)
        {
            Check.Range("Glazing.AbsorptionProduct", "normalTransmittance", normalTransmittance, 0f, 0.92f, "");
            Check.Range("Glazing.AbsorptionProduct", "refractiveIndex", refractiveIndex, 1f, 4f, "");
            return Unchecked.Glazing.AbsorptionProduct(normalTransmittance, refractiveIndex);
        }

        /// <inheritdoc cref="Quorvel.Glazing.AbsorptionProduct(float, float)"/>
        public static float[] AbsorptionProduct(Input<float> normalTransmittance, Input<float> refractiveIndex)
        {
            Check.Range("Glazing.AbsorptionProduct", "normalTransmittance", normalTransmittance, 0f, 0.92f, "");
            Check.Range("Glazing.AbsorptionProduct", "refractiveIndex", refractiveIndex, 1f, 4f, "");
            return Unchecked.Glazing.AbsorptionProduct(normalTransmittance, refractiveIndex);
        }

        /// <summary>Transmittance of a pane at normal incidence: the inverse of
        /// <c>Glazing.AbsorptionProduct</c>.</summary>
        /// <param name="absorptionProduct">Absorption coefficient times thickness; valid 0 to 20.</param>
        /// <param name="normalReflectance">Normal reflectance of one face; valid 0 to 0.99.</param>
        /// <returns>Normal transmittance of the pane.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: (1 - r)^2 tau / (1 - r^2 tau^2); tau = exp(-AbsorptionProduct), r = normalReflectance</para>
        /// <para>The second argument is a reflectance, ((n - 1) / (n + 1))^2, where <c>Glazing.AbsorptionProduct</c>
        /// takes the refractive index.</para>
        /// <para>Source: The slab of <c>Glazing.SlabOptics</c> at normal incidence.</para>
        /// <para>The bits of WNTNOR in quorvel.h.</para>
        /// </remarks>
        public static float NormalTransmittance(float absorptionProduct, float normalReflectance)
        {
            Check.Range("Glazing.NormalTransmittance", "absorptionProduct", absorptionProduct, 0f, 20f, "");
            Check.Range("Glazing.NormalTransmittance", "normalReflectance", normalReflectance, 0f, 0.99f, "");
            return Unchecked.Glazing.NormalTransmittance(absorptionProduct, normalReflectance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.NormalTransmittance(float, float)"/>
        public static float[] NormalTransmittance(Input<float> absorptionProduct, Input<float> normalReflectance)
        {
            Check.Range("Glazing.NormalTransmittance", "absorptionProduct", absorptionProduct, 0f, 20f, "");
            Check.Range("Glazing.NormalTransmittance", "normalReflectance", normalReflectance, 0f, 0.99f, "");
            return Unchecked.Glazing.NormalTransmittance(absorptionProduct, normalReflectance);
        }

        /// <summary>Steady temperatures of the panes of a glazing from the air temperatures on both sides and the solar
        /// radiation that each pane absorbs.</summary>
        /// <param name="insideTemperature">Air temperature in the room [°C]; valid -100 to 200.</param>
        /// <param name="outsideTemperature">Air temperature outdoors [°C]; valid -100 to 200.</param>
        /// <param name="panes">Number of panes; valid 1 to 5.</param>
        /// <param name="absorbed1">Absorbed in pane 1, nearest the room [W/m²]; valid from 0.</param>
        /// <param name="absorbed2">Absorbed in pane 2 [W/m²]; valid from 0.</param>
        /// <param name="absorbed3">Absorbed in pane 3 [W/m²]; valid from 0.</param>
        /// <param name="absorbed4">Absorbed in pane 4 [W/m²]; valid from 0.</param>
        /// <param name="absorbed5">Absorbed in pane 5 [W/m²]; valid from 0.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>What is given as absorbed in panes that are not there has no influence. Four panes are calculated as
        /// five: what the fifth absorbs counts (give 0 for it), and it has a temperature.</para>
        /// <para>Source: Heat balance of the panes with fixed resistances: 0.12 m²K/W at the room side, 0.06 m²K/W
        /// outdoors; coefficients rounded to two decimals.</para>
        /// <para>The bits of WNTEMP in quorvel.h.</para>
        /// </remarks>
        public static PaneTemperatures PaneTemperatures(float insideTemperature, float outsideTemperature, int panes,
            float absorbed1, float absorbed2, float absorbed3, float absorbed4, float absorbed5)
        {
            Check.Range("Glazing.PaneTemperatures", "insideTemperature", insideTemperature, -100f, 200f, " °C");
            Check.Range("Glazing.PaneTemperatures", "outsideTemperature", outsideTemperature, -100f, 200f, " °C");
            Check.Range("Glazing.PaneTemperatures", "panes", panes, 1, 5, "");
            Check.Range("Glazing.PaneTemperatures", "absorbed1", absorbed1, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Glazing.PaneTemperatures", "absorbed2", absorbed2, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Glazing.PaneTemperatures", "absorbed3", absorbed3, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Glazing.PaneTemperatures", "absorbed4", absorbed4, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Glazing.PaneTemperatures", "absorbed5", absorbed5, 0f, float.PositiveInfinity, " W/m²");
            return Unchecked.Glazing.PaneTemperatures(insideTemperature, outsideTemperature, panes, absorbed1,
                absorbed2, absorbed3, absorbed4, absorbed5);
        }

        /// <inheritdoc cref="Quorvel.Glazing.PaneTemperatures(float, float, int, float, float, float, float, float)"/>
        public static PaneTemperatures[] PaneTemperatures(Input<float> insideTemperature,
            Input<float> outsideTemperature, Input<int> panes, Input<float> absorbed1, Input<float> absorbed2,
            Input<float> absorbed3, Input<float> absorbed4, Input<float> absorbed5)
        {
            Check.Range("Glazing.PaneTemperatures", "insideTemperature", insideTemperature, -100f, 200f, " °C");
            Check.Range("Glazing.PaneTemperatures", "outsideTemperature", outsideTemperature, -100f, 200f, " °C");
            Check.Range("Glazing.PaneTemperatures", "panes", panes, 1, 5, "");
            Check.Range("Glazing.PaneTemperatures", "absorbed1", absorbed1, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Glazing.PaneTemperatures", "absorbed2", absorbed2, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Glazing.PaneTemperatures", "absorbed3", absorbed3, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Glazing.PaneTemperatures", "absorbed4", absorbed4, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Glazing.PaneTemperatures", "absorbed5", absorbed5, 0f, float.PositiveInfinity, " W/m²");
            return Unchecked.Glazing.PaneTemperatures(insideTemperature, outsideTemperature, panes, absorbed1,
                absorbed2, absorbed3, absorbed4, absorbed5);
        }

        /// <summary>Transmittance, absorptance and reflectance for direct radiation of a glazing unit known only by its
        /// shading coefficients.</summary>
        /// <param name="shortwaveShadingCoefficient">Short-wave shading coefficient; the total one if the long-wave one
        /// is missing; valid 0 to 1.05.</param>
        /// <param name="longwaveShadingCoefficient">Long-wave shading coefficient, 0 if missing; valid 0 to 1.</param>
        /// <param name="incidence">Angle of incidence [rad]; valid -1.5708 to 1.5708.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A long-wave coefficient below 0.0001 counts as missing: the other is then split into 0.9 short-wave
        /// and 0.1 long-wave.</para>
        /// <para>An uncoated pane of index 1.52 and normal transmittance 0.87 times the short-wave coefficient carries
        /// the angular behaviour.</para>
        /// <para>If the two coefficients add up to at most 1, the absorptance is 2.61 times the long-wave one at normal
        /// incidence and follows the pane over the angle; otherwise it is that of the pane. A total of 1 belongs to the
        /// former, but only as single precision rounds.</para>
        /// <para>The absorptance is at most 0.99 - transmittance. An opaque unit, whose equivalent pane absorbs
        /// nothing, gets just that: coefficients of 0 give an absorptance of 0.99.</para>
        /// <para>An angle beyond pi/2 is not tested, and the results mean nothing there: coefficients of 0.9 and 0.05
        /// give a transmittance of -0.54 at 1.6 rad.</para>
        /// <para>Source: Shading coefficients relative to clear float glass of total transmittance 0.87, of whose
        /// absorbed part a third flows inwards.</para>
        /// <para>The bits of WNDRSC in quorvel.h.</para>
        /// </remarks>
        public static UnitDirect UnitDirect(float shortwaveShadingCoefficient, float longwaveShadingCoefficient,
            float incidence)
        {
            Check.Range("Glazing.UnitDirect", "shortwaveShadingCoefficient", shortwaveShadingCoefficient, 0f, 1.05f,
                "");
            Check.Range("Glazing.UnitDirect", "longwaveShadingCoefficient", longwaveShadingCoefficient, 0f, 1f, "");
            Check.Range("Glazing.UnitDirect", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            return Unchecked.Glazing.UnitDirect(shortwaveShadingCoefficient, longwaveShadingCoefficient, incidence);
        }

        /// <inheritdoc cref="Quorvel.Glazing.UnitDirect(float, float, float)"/>
        public static UnitDirect[] UnitDirect(Input<float> shortwaveShadingCoefficient,
            Input<float> longwaveShadingCoefficient, Input<float> incidence)
        {
            Check.Range("Glazing.UnitDirect", "shortwaveShadingCoefficient", shortwaveShadingCoefficient, 0f, 1.05f,
                "");
            Check.Range("Glazing.UnitDirect", "longwaveShadingCoefficient", longwaveShadingCoefficient, 0f, 1f, "");
            Check.Range("Glazing.UnitDirect", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            return Unchecked.Glazing.UnitDirect(shortwaveShadingCoefficient, longwaveShadingCoefficient, incidence);
        }

        /// <summary>Transmittance, absorptance and reflectance for isotropic diffuse radiation of a glazing unit known
        /// only by its shading coefficients.</summary>
        /// <param name="shortwaveShadingCoefficient">Short-wave shading coefficient; the total one if the long-wave one
        /// is missing; valid 0 to 1.05.</param>
        /// <param name="longwaveShadingCoefficient">Long-wave shading coefficient, 0 if missing; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Coefficients as in <c>Glazing.UnitDirect</c>. If they add up to at most 1 the absorptance is 2.61
        /// times the long-wave one, otherwise that of the equivalent pane.</para>
        /// <para>The absorptance is at most 0.99 - transmittance. Unlike <c>Glazing.UnitDirect</c>, coefficients of 0
        /// give a reflectance of 1.</para>
        /// <para>Source: <c>Glazing.UnitDirect</c>, with the equivalent pane integrated as in
        /// <c>Glazing.GlassDiffuse</c>.</para>
        /// <para>The bits of WNDFSC in quorvel.h.</para>
        /// </remarks>
        public static UnitDiffuse UnitDiffuse(float shortwaveShadingCoefficient, float longwaveShadingCoefficient)
        {
            Check.Range("Glazing.UnitDiffuse", "shortwaveShadingCoefficient", shortwaveShadingCoefficient, 0f, 1.05f,
                "");
            Check.Range("Glazing.UnitDiffuse", "longwaveShadingCoefficient", longwaveShadingCoefficient, 0f, 1f, "");
            return Unchecked.Glazing.UnitDiffuse(shortwaveShadingCoefficient, longwaveShadingCoefficient);
        }

        /// <inheritdoc cref="Quorvel.Glazing.UnitDiffuse(float, float)"/>
        public static UnitDiffuse[] UnitDiffuse(Input<float> shortwaveShadingCoefficient,
            Input<float> longwaveShadingCoefficient)
        {
            Check.Range("Glazing.UnitDiffuse", "shortwaveShadingCoefficient", shortwaveShadingCoefficient, 0f, 1.05f,
                "");
            Check.Range("Glazing.UnitDiffuse", "longwaveShadingCoefficient", longwaveShadingCoefficient, 0f, 1f, "");
            return Unchecked.Glazing.UnitDiffuse(shortwaveShadingCoefficient, longwaveShadingCoefficient);
        }

        /// <summary><c>Glazing.UnitDirect</c>, with the remainder that is neither transmitted nor absorbed split among
        /// the panes of the unit.</summary>
        /// <param name="shortwaveShadingCoefficient">Short-wave shading coefficient; the total one if the long-wave one
        /// is missing; valid 0 to 1.05.</param>
        /// <param name="longwaveShadingCoefficient">Long-wave shading coefficient, 0 if missing; valid 0 to 1.</param>
        /// <param name="incidence">Angle of incidence [rad]; valid -1.5708 to 1.5708.</param>
        /// <param name="panes">Number of panes; valid 1 to 5.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>What is split is the remainder, not the absorptance.</para>
        /// <para>Source: <c>Glazing.UnitDirect</c>; the shares by number of panes are fixed, 0.4 and 0.6 for two, their
        /// origin is not recorded.</para>
        /// <para>The bits of WNDRSM in quorvel.h.</para>
        /// </remarks>
        public static UnitDirectShares UnitDirectShares(float shortwaveShadingCoefficient,
            float longwaveShadingCoefficient, float incidence, int panes)
        {
            Check.Range("Glazing.UnitDirectShares", "panes", panes, 1, 5, "");
            Check.Range("Glazing.UnitDirectShares", "shortwaveShadingCoefficient", shortwaveShadingCoefficient, 0f,
                1.05f, "");
            Check.Range("Glazing.UnitDirectShares", "longwaveShadingCoefficient", longwaveShadingCoefficient, 0f, 1f,
                "");
            Check.Range("Glazing.UnitDirectShares", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            return Unchecked.Glazing.UnitDirectShares(shortwaveShadingCoefficient, longwaveShadingCoefficient,
                incidence, panes);
        }

        /// <summary><c>Glazing.UnitDiffuse</c>, with the remainder that is neither transmitted nor absorbed split among
        /// the panes of the unit.</summary>
        /// <param name="shortwaveShadingCoefficient">Short-wave shading coefficient; the total one if the long-wave one
        /// is missing; valid 0 to 1.05.</param>
        /// <param name="longwaveShadingCoefficient">Long-wave shading coefficient, 0 if missing; valid 0 to 1.</param>
        /// <param name="panes">Number of panes; valid 1 to 5.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The remainder is split as in <c>Glazing.UnitDirectShares</c>.</para>
        /// <para>Source: <c>Glazing.UnitDiffuse</c>, with the shares of <c>Glazing.UnitDirectShares</c>.</para>
        /// <para>The bits of WNDFSM in quorvel.h.</para>
        /// </remarks>
        public static UnitDiffuseShares UnitDiffuseShares(float shortwaveShadingCoefficient,
            float longwaveShadingCoefficient, int panes)
        {
            Check.Range("Glazing.UnitDiffuseShares", "panes", panes, 1, 5, "");
            Check.Range("Glazing.UnitDiffuseShares", "shortwaveShadingCoefficient", shortwaveShadingCoefficient, 0f,
                1.05f, "");
            Check.Range("Glazing.UnitDiffuseShares", "longwaveShadingCoefficient", longwaveShadingCoefficient, 0f, 1f,
                "");
            return Unchecked.Glazing.UnitDiffuseShares(shortwaveShadingCoefficient, longwaveShadingCoefficient, panes);
        }

        /// <summary><c>Glazing.UnitDirectShares</c> or <c>Glazing.UnitDiffuseShares</c>, by a selector.</summary>
        /// <param name="radiation">Kind of radiation.</param>
        /// <param name="shortwaveShadingCoefficient">Short-wave shading coefficient; the total one if the long-wave one
        /// is missing; valid 0 to 1.05.</param>
        /// <param name="longwaveShadingCoefficient">Long-wave shading coefficient, 0 if missing; valid 0 to 1.</param>
        /// <param name="incidence">Angle of incidence, read for direct radiation only [rad]; valid -1.5708 to
        /// 1.5708.</param>
        /// <param name="panes">Number of panes; valid 1 to 5.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The remainder is split as in <c>Glazing.UnitDirectShares</c>.</para>
        /// <para>Source: <c>Glazing.UnitDirectShares</c> and <c>Glazing.UnitDiffuseShares</c>.</para>
        /// <para>The bits of WNDRS0 in quorvel.h.</para>
        /// </remarks>
        public static UnitShares UnitShares(Radiation radiation, float shortwaveShadingCoefficient,
            float longwaveShadingCoefficient, float incidence, int panes)
        {
            Check.Range("Glazing.UnitShares", "panes", panes, 1, 5, "");
            Check.Selector("Glazing.UnitShares", "radiation", radiation, 1, 2);
            Check.Range("Glazing.UnitShares", "shortwaveShadingCoefficient", shortwaveShadingCoefficient, 0f, 1.05f,
                "");
            Check.Range("Glazing.UnitShares", "longwaveShadingCoefficient", longwaveShadingCoefficient, 0f, 1f, "");
            Check.Range("Glazing.UnitShares", "incidence", incidence, -1.5708f, 1.5708f, " rad");
            return Unchecked.Glazing.UnitShares(radiation, shortwaveShadingCoefficient, longwaveShadingCoefficient,
                incidence, panes);
        }

        /// <summary>Transmittance, absorptance and reflectance of a slatted blind for a beam, both faces of the slats
        /// alike.</summary>
        /// <param name="slatSpacing">Spacing of the slats; only its ratio to their width matters, in whatever unit [m];
        /// valid from 0.</param>
        /// <param name="slatWidth">Width of a slat [m]; valid from 0.</param>
        /// <param name="slatAngle">Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°];
        /// valid -90 to 90.</param>
        /// <param name="profileAngle">Profile angle of the beam, positive from above [rad]; valid -1.5708 to
        /// 1.5708.</param>
        /// <param name="slatAbsorptance">Absorptance of the slats; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The slats are flat, thin, opaque and diffusely reflecting. After the first reflection each slat is
        /// taken as evenly lit.</para>
        /// <para>For slat angles up to 90 degrees and an absorptance in 0..1 all three are in 0..1, but for the
        /// rounding of single precision: 1e-4 for slats that are nearly closed, 4e-7 over the cosine of the profile
        /// angle for grazing beams.</para>
        /// <para>A beam within 0.01 rad of the slats' plane passes whole. A beam along the blind (cosine of the profile
        /// angle below 1e-6, or the angle 1.570796 or more in size) meets an opaque sheet with the absorptance of the
        /// slats.</para>
        /// <para>The mirror image, with both angles negative, gives the same bits.</para>
        /// <para>Source: Exchange factors by H. C. Hottel's crossed strings, and the inter-reflection between two
        /// neighbouring slats.</para>
        /// <para>The bits of WNDRSL in quorvel.h.</para>
        /// </remarks>
        public static SlatDirect SlatDirect(float slatSpacing, float slatWidth, float slatAngle, float profileAngle,
            float slatAbsorptance)
        {
            Check.Range("Glazing.SlatDirect", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.SlatDirect", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.SlatDirect", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.SlatDirect", "profileAngle", profileAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.SlatDirect", "slatAbsorptance", slatAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.SlatDirect(slatSpacing, slatWidth, slatAngle, profileAngle, slatAbsorptance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.SlatDirect(float, float, float, float, float)"/>
        public static SlatDirect[] SlatDirect(Input<float> slatSpacing, Input<float> slatWidth, Input<float> slatAngle,
            Input<float> profileAngle, Input<float> slatAbsorptance)
        {
            Check.Range("Glazing.SlatDirect", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.SlatDirect", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.SlatDirect", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.SlatDirect", "profileAngle", profileAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.SlatDirect", "slatAbsorptance", slatAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.SlatDirect(slatSpacing, slatWidth, slatAngle, profileAngle, slatAbsorptance);
        }

        /// <summary>Transmittance, absorptance and reflectance of a blind for a beam, whose slats have two different
        /// faces.</summary>
        /// <param name="slatSpacing">Spacing of the slats; only its ratio to their width matters, in whatever unit [m];
        /// valid from 0.</param>
        /// <param name="slatWidth">Width of a slat [m]; valid from 0.</param>
        /// <param name="slatAngle">Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°];
        /// valid -90 to 90.</param>
        /// <param name="profileAngle">Profile angle of the beam, positive from above [rad]; valid -1.5708 to
        /// 1.5708.</param>
        /// <param name="struckAbsorptance">Absorptance of the face that the beam strikes first; valid 0 to 1.</param>
        /// <param name="oppositeAbsorptance">Absorptance of the opposite face; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Equal faces give the bits of <c>Glazing.SlatDirect</c> and keep the balance.</para>
        /// <para>Unequal faces do not: whatever is absorbed after the first reflection counts with that of the face
        /// struck, as if both faces absorbed like the one struck and reflected like the opposite one. A bright face
        /// opposite a dark one absorbs too little, and the reflectance holds the rest; a dark face opposite a bright
        /// one absorbs too much, in dense blinds many times what arrives, and the reflectance is negative by as much.
        /// Where the face struck absorbs at most what the opposite one does, all three stay in 0..1.</para>
        /// <para>The face struck first is the upper one where profile angle and slat angle have a positive sum and the
        /// lower one else; the absorptances are to be chosen accordingly.</para>
        /// <para>Source: As <c>Glazing.SlatDirect</c>.</para>
        /// <para>The bits of WNDRS2 in quorvel.h.</para>
        /// </remarks>
        public static TwoFacedSlatDirect TwoFacedSlatDirect(float slatSpacing, float slatWidth, float slatAngle,
            float profileAngle, float struckAbsorptance, float oppositeAbsorptance)
        {
            Check.Range("Glazing.TwoFacedSlatDirect", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.TwoFacedSlatDirect", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.TwoFacedSlatDirect", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.TwoFacedSlatDirect", "profileAngle", profileAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.TwoFacedSlatDirect", "struckAbsorptance", struckAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.TwoFacedSlatDirect", "oppositeAbsorptance", oppositeAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.TwoFacedSlatDirect(slatSpacing, slatWidth, slatAngle, profileAngle,
                struckAbsorptance, oppositeAbsorptance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.TwoFacedSlatDirect(float, float, float, float, float, float)"/>
        public static TwoFacedSlatDirect[] TwoFacedSlatDirect(Input<float> slatSpacing, Input<float> slatWidth,
            Input<float> slatAngle, Input<float> profileAngle, Input<float> struckAbsorptance,
            Input<float> oppositeAbsorptance)
        {
            Check.Range("Glazing.TwoFacedSlatDirect", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.TwoFacedSlatDirect", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.TwoFacedSlatDirect", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.TwoFacedSlatDirect", "profileAngle", profileAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.TwoFacedSlatDirect", "struckAbsorptance", struckAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.TwoFacedSlatDirect", "oppositeAbsorptance", oppositeAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.TwoFacedSlatDirect(slatSpacing, slatWidth, slatAngle, profileAngle,
                struckAbsorptance, oppositeAbsorptance);
        }

        /// <summary><c>Glazing.TwoFacedSlatDirect</c> for a blind that leaves a share of the radiation to pass
        /// untouched.</summary>
        /// <param name="slatSpacing">Spacing of the slats; only its ratio to their width matters, in whatever unit [m];
        /// valid from 0.</param>
        /// <param name="slatWidth">Width of a slat [m]; valid from 0.</param>
        /// <param name="slatAngle">Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°];
        /// valid -90 to 90.</param>
        /// <param name="profileAngle">Profile angle of the beam, positive from above [rad]; valid -1.5708 to
        /// 1.5708.</param>
        /// <param name="openShare">Open share of the blind; 0 or less for none; valid 0 to 1.</param>
        /// <param name="struckAbsorptance">Absorptance of the face that the beam strikes first; valid 0 to 1.</param>
        /// <param name="oppositeAbsorptance">Absorptance of the opposite face; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Without an open share these are the bits of <c>Glazing.TwoFacedSlatDirect</c>; a share that is not a
        /// number is none.</para>
        /// <para>A beam along the blind is transmitted by the open share and absorbed as by the face struck: the share
        /// does not reduce the absorptance there, and the reflectance, 1 less both, may be negative: deliberate.</para>
        /// <para>Source: As <c>Glazing.SlatDirect</c>.</para>
        /// <para>The bits of WNDRS3 in quorvel.h.</para>
        /// </remarks>
        public static OpenSlatDirect OpenSlatDirect(float slatSpacing, float slatWidth, float slatAngle,
            float profileAngle, float openShare, float struckAbsorptance, float oppositeAbsorptance)
        {
            Check.Range("Glazing.OpenSlatDirect", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.OpenSlatDirect", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.OpenSlatDirect", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.OpenSlatDirect", "profileAngle", profileAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.OpenSlatDirect", "openShare", openShare, 0f, 1f, "");
            Check.Range("Glazing.OpenSlatDirect", "struckAbsorptance", struckAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.OpenSlatDirect", "oppositeAbsorptance", oppositeAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.OpenSlatDirect(slatSpacing, slatWidth, slatAngle, profileAngle, openShare,
                struckAbsorptance, oppositeAbsorptance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.OpenSlatDirect(float, float, float, float, float, float, float)"/>
        public static OpenSlatDirect[] OpenSlatDirect(Input<float> slatSpacing, Input<float> slatWidth,
            Input<float> slatAngle, Input<float> profileAngle, Input<float> openShare, Input<float> struckAbsorptance,
            Input<float> oppositeAbsorptance)
        {
            Check.Range("Glazing.OpenSlatDirect", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.OpenSlatDirect", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.OpenSlatDirect", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.OpenSlatDirect", "profileAngle", profileAngle, -1.5708f, 1.5708f, " rad");
            Check.Range("Glazing.OpenSlatDirect", "openShare", openShare, 0f, 1f, "");
            Check.Range("Glazing.OpenSlatDirect", "struckAbsorptance", struckAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.OpenSlatDirect", "oppositeAbsorptance", oppositeAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.OpenSlatDirect(slatSpacing, slatWidth, slatAngle, profileAngle, openShare,
                struckAbsorptance, oppositeAbsorptance);
        }

        /// <summary>Transmittance and absorptance of a slatted blind for the diffuse radiation from the sky's and from
        /// the ground's side, both faces of the slats alike.</summary>
        /// <param name="slatSpacing">Spacing of the slats; only its ratio to their width matters, in whatever unit [m];
        /// valid from 0.</param>
        /// <param name="slatWidth">Width of a slat [m]; valid from 0.</param>
        /// <param name="slatAngle">Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°];
        /// valid -90 to 90.</param>
        /// <param name="slatAbsorptance">Absorptance of the slats; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The bits are those of <c>Glazing.SlatDirect</c> summed over the bands.</para>
        /// <para>Slats at an angle of 5, 15, ... 85 degrees have a band within 0.01 rad of their plane, which passes
        /// whole.</para>
        /// <para>The opposite angle swaps sky and ground.</para>
        /// <para>Source: <c>Glazing.SlatDirect</c> at the centres of nine bands of 10 degrees on either side of the
        /// horizon, each weighted with the integral of the cosine over the band: radiance uniform in the profile
        /// angle.</para>
        /// <para>The bits of WNDFSL in quorvel.h.</para>
        /// </remarks>
        public static SlatDiffuse SlatDiffuse(float slatSpacing, float slatWidth, float slatAngle,
            float slatAbsorptance)
        {
            Check.Range("Glazing.SlatDiffuse", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.SlatDiffuse", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.SlatDiffuse", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.SlatDiffuse", "slatAbsorptance", slatAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.SlatDiffuse(slatSpacing, slatWidth, slatAngle, slatAbsorptance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.SlatDiffuse(float, float, float, float)"/>
        public static SlatDiffuse[] SlatDiffuse(Input<float> slatSpacing, Input<float> slatWidth,
            Input<float> slatAngle, Input<float> slatAbsorptance)
        {
            Check.Range("Glazing.SlatDiffuse", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.SlatDiffuse", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.SlatDiffuse", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.SlatDiffuse", "slatAbsorptance", slatAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.SlatDiffuse(slatSpacing, slatWidth, slatAngle, slatAbsorptance);
        }

        /// <summary><c>Glazing.SlatDiffuse</c> for slats with two different faces.</summary>
        /// <param name="slatSpacing">Spacing of the slats; only its ratio to their width matters, in whatever unit [m];
        /// valid from 0.</param>
        /// <param name="slatWidth">Width of a slat [m]; valid from 0.</param>
        /// <param name="slatAngle">Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°];
        /// valid -90 to 90.</param>
        /// <param name="struckAbsorptance">Absorptance of the face that the beam strikes first; valid 0 to 1.</param>
        /// <param name="oppositeAbsorptance">Absorptance of the opposite face; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The absorptances belong to whichever face a beam strikes first. Slats with different upper and lower
        /// faces need two calls: with the upper face struck for the results of the sky, with the lower face for those
        /// of the ground. Beams between the horizon and the plane of the slats strike the other face all the
        /// same.</para>
        /// <para>Unequal faces as in <c>Glazing.TwoFacedSlatDirect</c>.</para>
        /// <para>Source: <c>Glazing.TwoFacedSlatDirect</c>, integrated as in <c>Glazing.SlatDiffuse</c>.</para>
        /// <para>The bits of WNDFS2 in quorvel.h.</para>
        /// </remarks>
        public static TwoFacedSlatDiffuse TwoFacedSlatDiffuse(float slatSpacing, float slatWidth, float slatAngle,
            float struckAbsorptance, float oppositeAbsorptance)
        {
            Check.Range("Glazing.TwoFacedSlatDiffuse", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.TwoFacedSlatDiffuse", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.TwoFacedSlatDiffuse", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.TwoFacedSlatDiffuse", "struckAbsorptance", struckAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.TwoFacedSlatDiffuse", "oppositeAbsorptance", oppositeAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.TwoFacedSlatDiffuse(slatSpacing, slatWidth, slatAngle, struckAbsorptance,
                oppositeAbsorptance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.TwoFacedSlatDiffuse(float, float, float, float, float)"/>
        public static TwoFacedSlatDiffuse[] TwoFacedSlatDiffuse(Input<float> slatSpacing, Input<float> slatWidth,
            Input<float> slatAngle, Input<float> struckAbsorptance, Input<float> oppositeAbsorptance)
        {
            Check.Range("Glazing.TwoFacedSlatDiffuse", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.TwoFacedSlatDiffuse", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.TwoFacedSlatDiffuse", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.TwoFacedSlatDiffuse", "struckAbsorptance", struckAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.TwoFacedSlatDiffuse", "oppositeAbsorptance", oppositeAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.TwoFacedSlatDiffuse(slatSpacing, slatWidth, slatAngle, struckAbsorptance,
                oppositeAbsorptance);
        }

        /// <summary><c>Glazing.TwoFacedSlatDiffuse</c> for a blind that leaves a share of the radiation to pass
        /// untouched.</summary>
        /// <param name="slatSpacing">Spacing of the slats; only its ratio to their width matters, in whatever unit [m];
        /// valid from 0.</param>
        /// <param name="slatWidth">Width of a slat [m]; valid from 0.</param>
        /// <param name="slatAngle">Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°];
        /// valid -90 to 90.</param>
        /// <param name="openShare">Open share of the blind; 0 or less for none; valid 0 to 1.</param>
        /// <param name="struckAbsorptance">Absorptance of the face that the beam strikes first; valid 0 to 1.</param>
        /// <param name="oppositeAbsorptance">Absorptance of the opposite face; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Faces as in <c>Glazing.TwoFacedSlatDiffuse</c>, the open share as in
        /// <c>Glazing.OpenSlatDirect</c>.</para>
        /// <para>Source: <c>Glazing.OpenSlatDirect</c>, integrated as in <c>Glazing.SlatDiffuse</c>.</para>
        /// <para>The bits of WNDFS3 in quorvel.h.</para>
        /// </remarks>
        public static OpenSlatDiffuse OpenSlatDiffuse(float slatSpacing, float slatWidth, float slatAngle,
            float openShare, float struckAbsorptance, float oppositeAbsorptance)
        {
            Check.Range("Glazing.OpenSlatDiffuse", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.OpenSlatDiffuse", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.OpenSlatDiffuse", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.OpenSlatDiffuse", "openShare", openShare, 0f, 1f, "");
            Check.Range("Glazing.OpenSlatDiffuse", "struckAbsorptance", struckAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.OpenSlatDiffuse", "oppositeAbsorptance", oppositeAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.OpenSlatDiffuse(slatSpacing, slatWidth, slatAngle, openShare, struckAbsorptance,
                oppositeAbsorptance);
        }

        /// <inheritdoc cref="Quorvel.Glazing.OpenSlatDiffuse(float, float, float, float, float, float)"/>
        public static OpenSlatDiffuse[] OpenSlatDiffuse(Input<float> slatSpacing, Input<float> slatWidth,
            Input<float> slatAngle, Input<float> openShare, Input<float> struckAbsorptance,
            Input<float> oppositeAbsorptance)
        {
            Check.Range("Glazing.OpenSlatDiffuse", "slatSpacing", slatSpacing, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.OpenSlatDiffuse", "slatWidth", slatWidth, 0f, float.PositiveInfinity, " m");
            Check.Range("Glazing.OpenSlatDiffuse", "slatAngle", slatAngle, -90f, 90f, " °");
            Check.Range("Glazing.OpenSlatDiffuse", "openShare", openShare, 0f, 1f, "");
            Check.Range("Glazing.OpenSlatDiffuse", "struckAbsorptance", struckAbsorptance, 0f, 1f, "");
            Check.Range("Glazing.OpenSlatDiffuse", "oppositeAbsorptance", oppositeAbsorptance, 0f, 1f, "");
            return Unchecked.Glazing.OpenSlatDiffuse(slatSpacing, slatWidth, slatAngle, openShare, struckAbsorptance,
                oppositeAbsorptance);
        }
    }

    public static partial class Unchecked
    {
        /// <summary>Glazing, unchecked.</summary>
        public static class Glazing
        {
            /// <inheritdoc cref="Quorvel.Glazing.GlassDirect(float, float, float)"/>
            public static GlassDirect GlassDirect(float normalTransmittance, float normalReflectance, float incidence)
            {
                var results = new GlassDirect { ParallelTransmittance = float.NaN, ParallelAbsorptance = float.NaN,
                    ParallelReflectance = float.NaN, PerpendicularTransmittance = float.NaN,
                    PerpendicularAbsorptance = float.NaN, PerpendicularReflectance = float.NaN };
                Native.WNDRGL(ref normalTransmittance, ref normalReflectance, ref incidence,
                    ref results.ParallelTransmittance, ref results.ParallelAbsorptance, ref results.ParallelReflectance,
                    ref results.PerpendicularTransmittance, ref results.PerpendicularAbsorptance,
                    ref results.PerpendicularReflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.GlassDirect(float, float, float)"/>
            public static GlassDirect[] GlassDirect(Input<float> normalTransmittance, Input<float> normalReflectance,
                Input<float> incidence)
            {
                int count = Elements.Count("Glazing.GlassDirect", ("normalTransmittance", normalTransmittance.Length),
                    ("normalReflectance", normalReflectance.Length), ("incidence", incidence.Length));
                var results = new GlassDirect[count];
                Elements.Done(Native.quorvel_glass_direct((UIntPtr)count, ref normalTransmittance.First,
                    normalTransmittance.Stride, ref normalReflectance.First, normalReflectance.Stride,
                    ref incidence.First, incidence.Stride, ref Elements.First(results).ParallelTransmittance,
                    Elements<GlassDirect>.Stride, ref Elements.First(results).ParallelAbsorptance,
                    Elements<GlassDirect>.Stride, ref Elements.First(results).ParallelReflectance,
                    Elements<GlassDirect>.Stride, ref Elements.First(results).PerpendicularTransmittance,
                    Elements<GlassDirect>.Stride, ref Elements.First(results).PerpendicularAbsorptance,
                    Elements<GlassDirect>.Stride, ref Elements.First(results).PerpendicularReflectance,
                    Elements<GlassDirect>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.GlassDiffuse(float, float)"/>
            public static GlassDiffuse GlassDiffuse(float normalTransmittance, float normalReflectance)
            {
                var results = new GlassDiffuse { Transmittance = float.NaN, Absorptance = float.NaN };
                Native.WNDFGL(ref normalTransmittance, ref normalReflectance, ref results.Transmittance,
                    ref results.Absorptance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.GlassDiffuse(float, float)"/>
            public static GlassDiffuse[] GlassDiffuse(Input<float> normalTransmittance, Input<float> normalReflectance)
            {
                int count = Elements.Count("Glazing.GlassDiffuse", ("normalTransmittance", normalTransmittance.Length),
                    ("normalReflectance", normalReflectance.Length));
                var results = new GlassDiffuse[count];
                Elements.Done(Native.quorvel_glass_diffuse((UIntPtr)count, ref normalTransmittance.First,
                    normalTransmittance.Stride, ref normalReflectance.First, normalReflectance.Stride,
                    ref Elements.First(results).Transmittance, Elements<GlassDiffuse>.Stride,
                    ref Elements.First(results).Absorptance, Elements<GlassDiffuse>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.StackedLayers(float[], float[])"/>
            public static StackedLayers StackedLayers(float[] layerTransmittances, float[] layerReflectances)
            {
                int layers = Check.Count("Glazing.StackedLayers", "layerTransmittances", layerTransmittances);
                Check.Count("Glazing.StackedLayers", "layerReflectances", layerReflectances, "layerTransmittances",
                    layers);
                var results = new StackedLayers { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNCOM2(ref layers, layerTransmittances, ref Unread.Real, layerReflectances,
                    ref results.Transmittance, ref results.Absorptance, ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.TracedLayers(float[], float[], float[])"/>
            public static TracedLayers TracedLayers(float[] layerTransmittances, float[] layerAbsorptances,
                float[] layerReflectances)
            {
                int layers = Check.Count("Glazing.TracedLayers", "layerTransmittances", layerTransmittances);
                Check.Count("Glazing.TracedLayers", "layerAbsorptances", layerAbsorptances, "layerTransmittances",
                    layers);
                Check.Count("Glazing.TracedLayers", "layerReflectances", layerReflectances, "layerTransmittances",
                    layers);
                var results = new TracedLayers { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNCOMP(ref layers, layerTransmittances, layerAbsorptances, layerReflectances,
                    ref results.Transmittance, ref results.Absorptance, ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.RollerBlind(float, float)"/>
            public static RollerBlind RollerBlind(float blindTransmittance, float blindReflectance)
            {
                var results = new RollerBlind { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNDRRO(ref blindTransmittance, ref blindReflectance, ref Unread.Real, ref results.Transmittance,
                    ref results.Absorptance, ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.RollerBlind(float, float)"/>
            public static RollerBlind[] RollerBlind(Input<float> blindTransmittance, Input<float> blindReflectance)
            {
                int count = Elements.Count("Glazing.RollerBlind", ("blindTransmittance", blindTransmittance.Length),
                    ("blindReflectance", blindReflectance.Length));
                var results = new RollerBlind[count];
                Elements.Done(Native.quorvel_roller_blind((UIntPtr)count, ref blindTransmittance.First,
                    blindTransmittance.Stride, ref blindReflectance.First, blindReflectance.Stride,
                    ref Elements.First(results).Transmittance, Elements<RollerBlind>.Stride,
                    ref Elements.First(results).Absorptance, Elements<RollerBlind>.Stride,
                    ref Elements.First(results).Reflectance, Elements<RollerBlind>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.DiffuseRollerBlind(float, float)"/>
            public static DiffuseRollerBlind DiffuseRollerBlind(float blindTransmittance, float blindReflectance)
            {
                var results = new DiffuseRollerBlind { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNDFRO(ref blindTransmittance, ref blindReflectance, ref results.Transmittance,
                    ref results.Absorptance, ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.DiffuseRollerBlind(float, float)"/>
            public static DiffuseRollerBlind[] DiffuseRollerBlind(Input<float> blindTransmittance,
                Input<float> blindReflectance)
            {
                int count = Elements.Count("Glazing.DiffuseRollerBlind", ("blindTransmittance",
                    blindTransmittance.Length), ("blindReflectance", blindReflectance.Length));
                var results = new DiffuseRollerBlind[count];
                Elements.Done(Native.quorvel_diffuse_roller_blind((UIntPtr)count, ref blindTransmittance.First,
                    blindTransmittance.Stride, ref blindReflectance.First, blindReflectance.Stride,
                    ref Elements.First(results).Transmittance, Elements<DiffuseRollerBlind>.Stride,
                    ref Elements.First(results).Absorptance, Elements<DiffuseRollerBlind>.Stride,
                    ref Elements.First(results).Reflectance, Elements<DiffuseRollerBlind>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.RefractionAngle(float, float)"/>
            public static float RefractionAngle(float incidence, float refractiveIndex)
            {
                return Native.WNRANG(ref incidence, ref refractiveIndex);
            }

            /// <inheritdoc cref="Quorvel.Glazing.RefractionAngle(float, float)"/>
            public static float[] RefractionAngle(Input<float> incidence, Input<float> refractiveIndex)
            {
                int count = Elements.Count("Glazing.RefractionAngle", ("incidence", incidence.Length),
                    ("refractiveIndex", refractiveIndex.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_refraction_angle((UIntPtr)count, ref incidence.First, incidence.Stride,
                    ref refractiveIndex.First, refractiveIndex.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.SurfaceReflectance(float, float, float)"/>
            public static SurfaceReflectance SurfaceReflectance(float incidence, float refractionAngle,
                float refractiveIndex)
            {
                var results = new SurfaceReflectance { ParallelReflectance = float.NaN,
                    PerpendicularReflectance = float.NaN };
                Native.WNREFL(ref incidence, ref refractionAngle, ref refractiveIndex, ref results.ParallelReflectance,
                    ref results.PerpendicularReflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.SurfaceReflectance(float, float, float)"/>
            public static SurfaceReflectance[] SurfaceReflectance(Input<float> incidence, Input<float> refractionAngle,
                Input<float> refractiveIndex)
            {
                int count = Elements.Count("Glazing.SurfaceReflectance", ("incidence", incidence.Length),
                    ("refractionAngle", refractionAngle.Length), ("refractiveIndex", refractiveIndex.Length));
                var results = new SurfaceReflectance[count];
                Elements.Done(Native.quorvel_surface_reflectance((UIntPtr)count, ref incidence.First, incidence.Stride,
                    ref refractionAngle.First, refractionAngle.Stride, ref refractiveIndex.First,
                    refractiveIndex.Stride, ref Elements.First(results).ParallelReflectance,
                    Elements<SurfaceReflectance>.Stride, ref Elements.First(results).PerpendicularReflectance,
                    Elements<SurfaceReflectance>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.SinglePassAbsorption(float, float)"/>
            public static float SinglePassAbsorption(float refractionAngle, float absorptionProduct)
            {
                return Native.WNABEN(ref refractionAngle, ref absorptionProduct, ref Unread.Real);
            }

            /// <inheritdoc cref="Quorvel.Glazing.SinglePassAbsorption(float, float)"/>
            public static float[] SinglePassAbsorption(Input<float> refractionAngle, Input<float> absorptionProduct)
            {
                int count = Elements.Count("Glazing.SinglePassAbsorption", ("refractionAngle", refractionAngle.Length),
                    ("absorptionProduct", absorptionProduct.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_single_pass_absorption((UIntPtr)count, ref refractionAngle.First,
                    refractionAngle.Stride, ref absorptionProduct.First, absorptionProduct.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.SlabOptics(float, float)"/>
            public static SlabOptics SlabOptics(float singlePassAbsorptance, float faceReflectance)
            {
                var results = new SlabOptics { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNTAR(ref singlePassAbsorptance, ref faceReflectance, ref results.Transmittance,
                    ref results.Absorptance, ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.SlabOptics(float, float)"/>
            public static SlabOptics[] SlabOptics(Input<float> singlePassAbsorptance, Input<float> faceReflectance)
            {
                int count = Elements.Count("Glazing.SlabOptics", ("singlePassAbsorptance",
                    singlePassAbsorptance.Length), ("faceReflectance", faceReflectance.Length));
                var results = new SlabOptics[count];
                Elements.Done(Native.quorvel_slab_optics((UIntPtr)count, ref singlePassAbsorptance.First,
                    singlePassAbsorptance.Stride, ref faceReflectance.First, faceReflectance.Stride,
                    ref Elements.First(results).Transmittance, Elements<SlabOptics>.Stride,
                    ref Elements.First(results).Absorptance, Elements<SlabOptics>.Stride,
                    ref Elements.First(results).Reflectance, Elements<SlabOptics>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.AbsorptionProduct(float, float)"/>
            public static float AbsorptionProduct(float normalTransmittance, float refractiveIndex)
            {
                return Native.WNKL(ref normalTransmittance, ref refractiveIndex);
            }

            /// <inheritdoc cref="Quorvel.Glazing.AbsorptionProduct(float, float)"/>
            public static float[] AbsorptionProduct(Input<float> normalTransmittance, Input<float> refractiveIndex)
            {
                int count = Elements.Count("Glazing.AbsorptionProduct", ("normalTransmittance",
                    normalTransmittance.Length), ("refractiveIndex", refractiveIndex.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_absorption_product((UIntPtr)count, ref normalTransmittance.First,
                    normalTransmittance.Stride, ref refractiveIndex.First, refractiveIndex.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.NormalTransmittance(float, float)"/>
            public static float NormalTransmittance(float absorptionProduct, float normalReflectance)
            {
                return Native.WNTNOR(ref absorptionProduct, ref normalReflectance);
            }

            /// <inheritdoc cref="Quorvel.Glazing.NormalTransmittance(float, float)"/>
            public static float[] NormalTransmittance(Input<float> absorptionProduct, Input<float> normalReflectance)
            {
                int count = Elements.Count("Glazing.NormalTransmittance", ("absorptionProduct",
                    absorptionProduct.Length), ("normalReflectance", normalReflectance.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_normal_transmittance((UIntPtr)count, ref absorptionProduct.First,
                    absorptionProduct.Stride, ref normalReflectance.First, normalReflectance.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.PaneTemperatures(float, float, int, float, float, float, float, float)"/>
            public static PaneTemperatures PaneTemperatures(float insideTemperature, float outsideTemperature,
                int panes, float absorbed1, float absorbed2, float absorbed3, float absorbed4, float absorbed5)
            {
                var results = new PaneTemperatures { PaneTemperature1 = float.NaN, PaneTemperature2 = float.NaN,
                    PaneTemperature3 = float.NaN, PaneTemperature4 = float.NaN, PaneTemperature5 = float.NaN };
                Native.WNTEMP(ref insideTemperature, ref outsideTemperature, ref panes, ref absorbed1, ref absorbed2,
                    ref absorbed3, ref absorbed4, ref absorbed5, ref results.PaneTemperature1,
                    ref results.PaneTemperature2, ref results.PaneTemperature3, ref results.PaneTemperature4,
                    ref results.PaneTemperature5);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.PaneTemperatures(float, float, int, float, float, float, float, float)"/>
            public static PaneTemperatures[] PaneTemperatures(Input<float> insideTemperature,
                Input<float> outsideTemperature, Input<int> panes, Input<float> absorbed1, Input<float> absorbed2,
                Input<float> absorbed3, Input<float> absorbed4, Input<float> absorbed5)
            {
                int count = Elements.Count("Glazing.PaneTemperatures", ("insideTemperature", insideTemperature.Length),
                    ("outsideTemperature", outsideTemperature.Length), ("panes", panes.Length), ("absorbed1",
                    absorbed1.Length), ("absorbed2", absorbed2.Length), ("absorbed3", absorbed3.Length), ("absorbed4",
                    absorbed4.Length), ("absorbed5", absorbed5.Length));
                var results = new PaneTemperatures[count];
                Elements.Done(Native.quorvel_pane_temperatures((UIntPtr)count, ref insideTemperature.First,
                    insideTemperature.Stride, ref outsideTemperature.First, outsideTemperature.Stride, ref panes.First,
                    panes.Stride, ref absorbed1.First, absorbed1.Stride, ref absorbed2.First, absorbed2.Stride,
                    ref absorbed3.First, absorbed3.Stride, ref absorbed4.First, absorbed4.Stride, ref absorbed5.First,
                    absorbed5.Stride, ref Elements.First(results).PaneTemperature1, Elements<PaneTemperatures>.Stride,
                    ref Elements.First(results).PaneTemperature2, Elements<PaneTemperatures>.Stride,
                    ref Elements.First(results).PaneTemperature3, Elements<PaneTemperatures>.Stride,
                    ref Elements.First(results).PaneTemperature4, Elements<PaneTemperatures>.Stride,
                    ref Elements.First(results).PaneTemperature5, Elements<PaneTemperatures>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.UnitDirect(float, float, float)"/>
            public static UnitDirect UnitDirect(float shortwaveShadingCoefficient, float longwaveShadingCoefficient,
                float incidence)
            {
                var results = new UnitDirect { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNDRSC(ref shortwaveShadingCoefficient, ref longwaveShadingCoefficient, ref incidence,
                    ref results.Transmittance, ref results.Absorptance, ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.UnitDirect(float, float, float)"/>
            public static UnitDirect[] UnitDirect(Input<float> shortwaveShadingCoefficient,
                Input<float> longwaveShadingCoefficient, Input<float> incidence)
            {
                int count = Elements.Count("Glazing.UnitDirect", ("shortwaveShadingCoefficient",
                    shortwaveShadingCoefficient.Length), ("longwaveShadingCoefficient",
                    longwaveShadingCoefficient.Length), ("incidence", incidence.Length));
                var results = new UnitDirect[count];
                Elements.Done(Native.quorvel_unit_direct((UIntPtr)count, ref shortwaveShadingCoefficient.First,
                    shortwaveShadingCoefficient.Stride, ref longwaveShadingCoefficient.First,
                    longwaveShadingCoefficient.Stride, ref incidence.First, incidence.Stride,
                    ref Elements.First(results).Transmittance, Elements<UnitDirect>.Stride,
                    ref Elements.First(results).Absorptance, Elements<UnitDirect>.Stride,
                    ref Elements.First(results).Reflectance, Elements<UnitDirect>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.UnitDiffuse(float, float)"/>
            public static UnitDiffuse UnitDiffuse(float shortwaveShadingCoefficient, float longwaveShadingCoefficient)
            {
                var results = new UnitDiffuse { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNDFSC(ref shortwaveShadingCoefficient, ref longwaveShadingCoefficient,
                    ref results.Transmittance, ref results.Absorptance, ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.UnitDiffuse(float, float)"/>
            public static UnitDiffuse[] UnitDiffuse(Input<float> shortwaveShadingCoefficient,
                Input<float> longwaveShadingCoefficient)
            {
                int count = Elements.Count("Glazing.UnitDiffuse", ("shortwaveShadingCoefficient",
                    shortwaveShadingCoefficient.Length), ("longwaveShadingCoefficient",
                    longwaveShadingCoefficient.Length));
                var results = new UnitDiffuse[count];
                Elements.Done(Native.quorvel_unit_diffuse((UIntPtr)count, ref shortwaveShadingCoefficient.First,
                    shortwaveShadingCoefficient.Stride, ref longwaveShadingCoefficient.First,
                    longwaveShadingCoefficient.Stride, ref Elements.First(results).Transmittance,
                    Elements<UnitDiffuse>.Stride, ref Elements.First(results).Absorptance, Elements<UnitDiffuse>.Stride,
                    ref Elements.First(results).Reflectance, Elements<UnitDiffuse>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.UnitDirectShares(float, float, float, int)"/>
            public static UnitDirectShares UnitDirectShares(float shortwaveShadingCoefficient,
                float longwaveShadingCoefficient, float incidence, int panes)
            {
                Check.Room("Glazing.UnitDirectShares", "panes", panes);
                var results = new UnitDirectShares { Transmittance = float.NaN,
                    PaneShares = Blank.Of(new float[Math.Max(0, panes)]), Absorptance = float.NaN };
                Native.WNDRSM(ref shortwaveShadingCoefficient, ref longwaveShadingCoefficient, ref incidence, ref panes,
                    ref results.Transmittance, results.PaneShares, ref results.Absorptance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.UnitDiffuseShares(float, float, int)"/>
            public static UnitDiffuseShares UnitDiffuseShares(float shortwaveShadingCoefficient,
                float longwaveShadingCoefficient, int panes)
            {
                Check.Room("Glazing.UnitDiffuseShares", "panes", panes);
                var results = new UnitDiffuseShares { Transmittance = float.NaN,
                    PaneShares = Blank.Of(new float[Math.Max(0, panes)]), Absorptance = float.NaN };
                Native.WNDFSM(ref shortwaveShadingCoefficient, ref longwaveShadingCoefficient, ref panes,
                    ref results.Transmittance, results.PaneShares, ref results.Absorptance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.UnitShares(Radiation, float, float, float, int)"/>
            public static UnitShares UnitShares(Radiation radiation, float shortwaveShadingCoefficient,
                float longwaveShadingCoefficient, float incidence, int panes)
            {
                Check.Room("Glazing.UnitShares", "panes", panes);
                var results = new UnitShares { Transmittance = float.NaN, PaneShares = Blank.Of(new float[Math.Max(0,
                    panes)]), Absorptance = float.NaN };
                Native.WNDRS0(ref radiation, ref shortwaveShadingCoefficient, ref longwaveShadingCoefficient,
                    ref incidence, ref panes, ref results.Transmittance, results.PaneShares, ref results.Absorptance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.SlatDirect(float, float, float, float, float)"/>
            public static SlatDirect SlatDirect(float slatSpacing, float slatWidth, float slatAngle, float profileAngle,
                float slatAbsorptance)
            {
                var results = new SlatDirect { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNDRSL(ref slatSpacing, ref slatWidth, ref slatAngle, ref profileAngle, ref slatAbsorptance,
                    ref results.Transmittance, ref results.Absorptance, ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.SlatDirect(float, float, float, float, float)"/>
            public static SlatDirect[] SlatDirect(Input<float> slatSpacing, Input<float> slatWidth,
                Input<float> slatAngle, Input<float> profileAngle, Input<float> slatAbsorptance)
            {
                int count = Elements.Count("Glazing.SlatDirect", ("slatSpacing", slatSpacing.Length), ("slatWidth",
                    slatWidth.Length), ("slatAngle", slatAngle.Length), ("profileAngle", profileAngle.Length),
                    ("slatAbsorptance", slatAbsorptance.Length));
                var results = new SlatDirect[count];
                Elements.Done(Native.quorvel_slat_direct((UIntPtr)count, ref slatSpacing.First, slatSpacing.Stride,
                    ref slatWidth.First, slatWidth.Stride, ref slatAngle.First, slatAngle.Stride,
                    ref profileAngle.First, profileAngle.Stride, ref slatAbsorptance.First, slatAbsorptance.Stride,
                    ref Elements.First(results).Transmittance, Elements<SlatDirect>.Stride,
                    ref Elements.First(results).Absorptance, Elements<SlatDirect>.Stride,
                    ref Elements.First(results).Reflectance, Elements<SlatDirect>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.TwoFacedSlatDirect(float, float, float, float, float, float)"/>
            public static TwoFacedSlatDirect TwoFacedSlatDirect(float slatSpacing, float slatWidth, float slatAngle,
                float profileAngle, float struckAbsorptance, float oppositeAbsorptance)
            {
                var results = new TwoFacedSlatDirect { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNDRS2(ref slatSpacing, ref slatWidth, ref slatAngle, ref profileAngle, ref struckAbsorptance,
                    ref oppositeAbsorptance, ref results.Transmittance, ref results.Absorptance,
                    ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.TwoFacedSlatDirect(float, float, float, float, float, float)"/>
            public static TwoFacedSlatDirect[] TwoFacedSlatDirect(Input<float> slatSpacing, Input<float> slatWidth,
                Input<float> slatAngle, Input<float> profileAngle, Input<float> struckAbsorptance,
                Input<float> oppositeAbsorptance)
            {
                int count = Elements.Count("Glazing.TwoFacedSlatDirect", ("slatSpacing", slatSpacing.Length),
                    ("slatWidth", slatWidth.Length), ("slatAngle", slatAngle.Length), ("profileAngle",
                    profileAngle.Length), ("struckAbsorptance", struckAbsorptance.Length), ("oppositeAbsorptance",
                    oppositeAbsorptance.Length));
                var results = new TwoFacedSlatDirect[count];
                Elements.Done(Native.quorvel_two_faced_slat_direct((UIntPtr)count, ref slatSpacing.First,
                    slatSpacing.Stride, ref slatWidth.First, slatWidth.Stride, ref slatAngle.First, slatAngle.Stride,
                    ref profileAngle.First, profileAngle.Stride, ref struckAbsorptance.First, struckAbsorptance.Stride,
                    ref oppositeAbsorptance.First, oppositeAbsorptance.Stride,
                    ref Elements.First(results).Transmittance, Elements<TwoFacedSlatDirect>.Stride,
                    ref Elements.First(results).Absorptance, Elements<TwoFacedSlatDirect>.Stride,
                    ref Elements.First(results).Reflectance, Elements<TwoFacedSlatDirect>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.OpenSlatDirect(float, float, float, float, float, float, float)"/>
            public static OpenSlatDirect OpenSlatDirect(float slatSpacing, float slatWidth, float slatAngle,
                float profileAngle, float openShare, float struckAbsorptance, float oppositeAbsorptance)
            {
                var results = new OpenSlatDirect { Transmittance = float.NaN, Absorptance = float.NaN,
                    Reflectance = float.NaN };
                Native.WNDRS3(ref slatSpacing, ref slatWidth, ref slatAngle, ref profileAngle, ref openShare,
                    ref struckAbsorptance, ref oppositeAbsorptance, ref results.Transmittance, ref results.Absorptance,
                    ref results.Reflectance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.OpenSlatDirect(float, float, float, float, float, float, float)"/>
            public static OpenSlatDirect[] OpenSlatDirect(Input<float> slatSpacing, Input<float> slatWidth,
                Input<float> slatAngle, Input<float> profileAngle, Input<float> openShare,
                Input<float> struckAbsorptance, Input<float> oppositeAbsorptance)
            {
                int count = Elements.Count("Glazing.OpenSlatDirect", ("slatSpacing", slatSpacing.Length), ("slatWidth",
                    slatWidth.Length), ("slatAngle", slatAngle.Length), ("profileAngle", profileAngle.Length),
                    ("openShare", openShare.Length), ("struckAbsorptance", struckAbsorptance.Length),
                    ("oppositeAbsorptance", oppositeAbsorptance.Length));
                var results = new OpenSlatDirect[count];
                Elements.Done(Native.quorvel_open_slat_direct((UIntPtr)count, ref slatSpacing.First, slatSpacing.Stride,
                    ref slatWidth.First, slatWidth.Stride, ref slatAngle.First, slatAngle.Stride,
                    ref profileAngle.First, profileAngle.Stride, ref openShare.First, openShare.Stride,
                    ref struckAbsorptance.First, struckAbsorptance.Stride, ref oppositeAbsorptance.First,
                    oppositeAbsorptance.Stride, ref Elements.First(results).Transmittance,
                    Elements<OpenSlatDirect>.Stride, ref Elements.First(results).Absorptance,
                    Elements<OpenSlatDirect>.Stride, ref Elements.First(results).Reflectance,
                    Elements<OpenSlatDirect>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.SlatDiffuse(float, float, float, float)"/>
            public static SlatDiffuse SlatDiffuse(float slatSpacing, float slatWidth, float slatAngle,
                float slatAbsorptance)
            {
                var results = new SlatDiffuse { SkyTransmittance = float.NaN, GroundTransmittance = float.NaN,
                    SkyAbsorptance = float.NaN, GroundAbsorptance = float.NaN };
                Native.WNDFSL(ref slatSpacing, ref slatWidth, ref slatAngle, ref slatAbsorptance,
                    ref results.SkyTransmittance, ref results.GroundTransmittance, ref results.SkyAbsorptance,
                    ref results.GroundAbsorptance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.SlatDiffuse(float, float, float, float)"/>
            public static SlatDiffuse[] SlatDiffuse(Input<float> slatSpacing, Input<float> slatWidth,
                Input<float> slatAngle, Input<float> slatAbsorptance)
            {
                int count = Elements.Count("Glazing.SlatDiffuse", ("slatSpacing", slatSpacing.Length), ("slatWidth",
                    slatWidth.Length), ("slatAngle", slatAngle.Length), ("slatAbsorptance", slatAbsorptance.Length));
                var results = new SlatDiffuse[count];
                Elements.Done(Native.quorvel_slat_diffuse((UIntPtr)count, ref slatSpacing.First, slatSpacing.Stride,
                    ref slatWidth.First, slatWidth.Stride, ref slatAngle.First, slatAngle.Stride,
                    ref slatAbsorptance.First, slatAbsorptance.Stride, ref Elements.First(results).SkyTransmittance,
                    Elements<SlatDiffuse>.Stride, ref Elements.First(results).GroundTransmittance,
                    Elements<SlatDiffuse>.Stride, ref Elements.First(results).SkyAbsorptance,
                    Elements<SlatDiffuse>.Stride, ref Elements.First(results).GroundAbsorptance,
                    Elements<SlatDiffuse>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.TwoFacedSlatDiffuse(float, float, float, float, float)"/>
            public static TwoFacedSlatDiffuse TwoFacedSlatDiffuse(float slatSpacing, float slatWidth, float slatAngle,
                float struckAbsorptance, float oppositeAbsorptance)
            {
                var results = new TwoFacedSlatDiffuse { SkyTransmittance = float.NaN, GroundTransmittance = float.NaN,
                    SkyAbsorptance = float.NaN, GroundAbsorptance = float.NaN };
                Native.WNDFS2(ref slatSpacing, ref slatWidth, ref slatAngle, ref struckAbsorptance,
                    ref oppositeAbsorptance, ref results.SkyTransmittance, ref results.GroundTransmittance,
                    ref results.SkyAbsorptance, ref results.GroundAbsorptance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.TwoFacedSlatDiffuse(float, float, float, float, float)"/>
            public static TwoFacedSlatDiffuse[] TwoFacedSlatDiffuse(Input<float> slatSpacing, Input<float> slatWidth,
                Input<float> slatAngle, Input<float> struckAbsorptance, Input<float> oppositeAbsorptance)
            {
                int count = Elements.Count("Glazing.TwoFacedSlatDiffuse", ("slatSpacing", slatSpacing.Length),
                    ("slatWidth", slatWidth.Length), ("slatAngle", slatAngle.Length), ("struckAbsorptance",
                    struckAbsorptance.Length), ("oppositeAbsorptance", oppositeAbsorptance.Length));
                var results = new TwoFacedSlatDiffuse[count];
                Elements.Done(Native.quorvel_two_faced_slat_diffuse((UIntPtr)count, ref slatSpacing.First,
                    slatSpacing.Stride, ref slatWidth.First, slatWidth.Stride, ref slatAngle.First, slatAngle.Stride,
                    ref struckAbsorptance.First, struckAbsorptance.Stride, ref oppositeAbsorptance.First,
                    oppositeAbsorptance.Stride, ref Elements.First(results).SkyTransmittance,
                    Elements<TwoFacedSlatDiffuse>.Stride, ref Elements.First(results).GroundTransmittance,
                    Elements<TwoFacedSlatDiffuse>.Stride, ref Elements.First(results).SkyAbsorptance,
                    Elements<TwoFacedSlatDiffuse>.Stride, ref Elements.First(results).GroundAbsorptance,
                    Elements<TwoFacedSlatDiffuse>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.OpenSlatDiffuse(float, float, float, float, float, float)"/>
            public static OpenSlatDiffuse OpenSlatDiffuse(float slatSpacing, float slatWidth, float slatAngle,
                float openShare, float struckAbsorptance, float oppositeAbsorptance)
            {
                var results = new OpenSlatDiffuse { SkyTransmittance = float.NaN, GroundTransmittance = float.NaN,
                    SkyAbsorptance = float.NaN, GroundAbsorptance = float.NaN };
                Native.WNDFS3(ref slatSpacing, ref slatWidth, ref slatAngle, ref openShare, ref struckAbsorptance,
                    ref oppositeAbsorptance, ref results.SkyTransmittance, ref results.GroundTransmittance,
                    ref results.SkyAbsorptance, ref results.GroundAbsorptance);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Glazing.OpenSlatDiffuse(float, float, float, float, float, float)"/>
            public static OpenSlatDiffuse[] OpenSlatDiffuse(Input<float> slatSpacing, Input<float> slatWidth,
                Input<float> slatAngle, Input<float> openShare, Input<float> struckAbsorptance,
                Input<float> oppositeAbsorptance)
            {
                int count = Elements.Count("Glazing.OpenSlatDiffuse", ("slatSpacing", slatSpacing.Length), ("slatWidth",
                    slatWidth.Length), ("slatAngle", slatAngle.Length), ("openShare", openShare.Length),
                    ("struckAbsorptance", struckAbsorptance.Length), ("oppositeAbsorptance",
                    oppositeAbsorptance.Length));
                var results = new OpenSlatDiffuse[count];
                Elements.Done(Native.quorvel_open_slat_diffuse((UIntPtr)count, ref slatSpacing.First,
                    slatSpacing.Stride, ref slatWidth.First, slatWidth.Stride, ref slatAngle.First, slatAngle.Stride,
                    ref openShare.First, openShare.Stride, ref struckAbsorptance.First, struckAbsorptance.Stride,
                    ref oppositeAbsorptance.First, oppositeAbsorptance.Stride,
                    ref Elements.First(results).SkyTransmittance, Elements<OpenSlatDiffuse>.Stride,
                    ref Elements.First(results).GroundTransmittance, Elements<OpenSlatDiffuse>.Stride,
                    ref Elements.First(results).SkyAbsorptance, Elements<OpenSlatDiffuse>.Stride,
                    ref Elements.First(results).GroundAbsorptance, Elements<OpenSlatDiffuse>.Stride));
                return results;
            }
        }
    }
}
