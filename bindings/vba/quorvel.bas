Attribute VB_Name = "quorvel"
' Quorvel: building-physics and building-services calculations, for cells and for VBA.
'
' Produced from the catalogue of routines (catalogue/) and bindings/vba/by_hand.bas; do not edit.
'
' Each function takes values, ranges or arrays, and returns a value, a row of values, or a table, which spill. Where an
' argument is one number, a range gives a result for each of its cells. In place of an error that stops: #VALUE! for what
' is no number or not as many as needed, #N/A for what is outside of its valid range or was not written, #NUM! where the
' result is not a number. Angles are in radians unless the comment says degrees.
Option Explicit

Private Declare PtrSafe Function LoadLibraryW Lib "kernel32" (ByVal path As LongPtr) As LongPtr
Private Declare PtrSafe Function PSHDRY Lib "quorvel.dll" (ByRef temperature As Single) As Single
Private Declare PtrSafe Function PSHVAP Lib "quorvel.dll" (ByRef temperature As Single) As Single
Private Declare PtrSafe Function PSCPDR Lib "quorvel.dll" (ByRef temperature As Single) As Single
Private Declare PtrSafe Function PSCPVA Lib "quorvel.dll" (ByRef temperature As Single) As Single
Private Declare PtrSafe Function PSHFG Lib "quorvel.dll" (ByRef temperature As Single) As Single
Private Declare PtrSafe Function quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity _
    Lib "quorvel_arrays.dll" (ByVal count As LongPtr, ByRef vapourPressure As Single, _
    ByVal vapourPressureStride As LongPtr, ByRef relativeHumidity As Single, ByVal relativeHumidityStride As LongPtr, _
    ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation _
    Lib "quorvel_arrays.dll" (ByVal count As LongPtr, ByRef vapourPressure As Single, _
    ByVal vapourPressureStride As LongPtr, ByRef percentageSaturation As Single, _
    ByVal percentageSaturationStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_moisture_content_and_relative_humidity _
    Lib "quorvel_arrays.dll" (ByVal count As LongPtr, ByRef moistureContent As Single, _
    ByVal moistureContentStride As LongPtr, ByRef relativeHumidity As Single, _
    ByVal relativeHumidityStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_moisture_content_and_percentage_saturation _
    Lib "quorvel_arrays.dll" (ByVal count As LongPtr, ByRef moistureContent As Single, _
    ByVal moistureContentStride As LongPtr, ByRef percentageSaturation As Single, _
    ByVal percentageSaturationStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_enthalpy_and_moisture_content Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef enthalpy As Single, ByVal enthalpyStride As LongPtr, _
    ByRef moistureContent As Single, ByVal moistureContentStride As LongPtr, ByRef result As Single, _
    ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_enthalpy_and_vapour_pressure Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef enthalpy As Single, ByVal enthalpyStride As LongPtr, _
    ByRef vapourPressure As Single, ByVal vapourPressureStride As LongPtr, ByRef pressure As Single, _
    ByVal pressureStride As LongPtr, ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_enthalpy_and_relative_humidity Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef enthalpy As Single, ByVal enthalpyStride As LongPtr, _
    ByRef relativeHumidity As Single, ByVal relativeHumidityStride As LongPtr, ByRef pressure As Single, _
    ByVal pressureStride As LongPtr, ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_enthalpy_and_percentage_saturation Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef enthalpy As Single, ByVal enthalpyStride As LongPtr, _
    ByRef percentageSaturation As Single, ByVal percentageSaturationStride As LongPtr, ByRef pressure As Single, _
    ByVal pressureStride As LongPtr, ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef wetBulb As Single, ByVal wetBulbStride As LongPtr, ByRef vapourPressure As Single, _
    ByVal vapourPressureStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef psychrometer As Long, ByVal psychrometerStride As LongPtr, ByRef result As Single, _
    ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_wet_bulb_and_moisture_content Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef wetBulb As Single, ByVal wetBulbStride As LongPtr, ByRef moistureContent As Single, _
    ByVal moistureContentStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef psychrometer As Long, ByVal psychrometerStride As LongPtr, ByRef result As Single, _
    ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_wet_bulb_and_relative_humidity Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef wetBulb As Single, ByVal wetBulbStride As LongPtr, _
    ByRef relativeHumidity As Single, ByVal relativeHumidityStride As LongPtr, ByRef pressure As Single, _
    ByVal pressureStride As LongPtr, ByRef psychrometer As Long, ByVal psychrometerStride As LongPtr, _
    ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef wetBulb As Single, ByVal wetBulbStride As LongPtr, _
    ByRef percentageSaturation As Single, ByVal percentageSaturationStride As LongPtr, ByRef pressure As Single, _
    ByVal pressureStride As LongPtr, ByRef psychrometer As Long, ByVal psychrometerStride As LongPtr, _
    ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_dry_bulb_from_wet_bulb_and_enthalpy Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef wetBulb As Single, ByVal wetBulbStride As LongPtr, ByRef enthalpy As Single, _
    ByVal enthalpyStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef psychrometer As Long, ByVal psychrometerStride As LongPtr, ByRef result As Single, _
    ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_adiabatic_mixing Lib "quorvel_arrays.dll" (ByVal count As LongPtr, _
    ByRef firstAirFlow As Single, ByVal firstAirFlowStride As LongPtr, ByRef firstDryBulb As Single, _
    ByVal firstDryBulbStride As LongPtr, ByRef firstMoistureContent As Single, _
    ByVal firstMoistureContentStride As LongPtr, ByRef secondAirFlow As Single, ByVal secondAirFlowStride As LongPtr, _
    ByRef secondDryBulb As Single, ByVal secondDryBulbStride As LongPtr, ByRef secondMoistureContent As Single, _
    ByVal secondMoistureContentStride As LongPtr, ByRef dryBulb As Single, ByVal dryBulbStride As LongPtr, _
    ByRef moistureContent As Single, ByVal moistureContentStride As LongPtr, ByRef enthalpy As Single, _
    ByVal enthalpyStride As LongPtr) As Long
Private Declare PtrSafe Function PSGS Lib "quorvel.dll" (ByRef dryBulb As Single, ByRef wetBulb As Single, _
    ByRef pressure As Single, ByRef psychrometer As Long) As Single
Private Declare PtrSafe Function quorvel_moisture_content Lib "quorvel_arrays.dll" (ByVal count As LongPtr, _
    ByRef dryBulb As Single, ByVal dryBulbStride As LongPtr, ByRef vapourPressure As Single, _
    ByVal vapourPressureStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_vapour_pressure_from_moisture_content Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef dryBulb As Single, ByVal dryBulbStride As LongPtr, ByRef moistureContent As Single, _
    ByVal moistureContentStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_moisture_content_from_percentage_saturation Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef dryBulb As Single, ByVal dryBulbStride As LongPtr, _
    ByRef percentageSaturation As Single, ByVal percentageSaturationStride As LongPtr, ByRef pressure As Single, _
    ByVal pressureStride As LongPtr, ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_moisture_content_from_enthalpy Lib "quorvel_arrays.dll" ( _
    ByVal count As LongPtr, ByRef dryBulb As Single, ByVal dryBulbStride As LongPtr, ByRef enthalpy As Single, _
    ByVal enthalpyStride As LongPtr, ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function quorvel_moist_air_density Lib "quorvel_arrays.dll" (ByVal count As LongPtr, _
    ByRef dryBulb As Single, ByVal dryBulbStride As LongPtr, ByRef moistureContent As Single, _
    ByVal moistureContentStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function PSPCST Lib "quorvel.dll" (ByRef dryBulb As Single, ByRef moistureContent As Single, _
    ByRef pressure As Single) As Single
Private Declare PtrSafe Function quorvel_specific_enthalpy Lib "quorvel_arrays.dll" (ByVal count As LongPtr, _
    ByRef dryBulb As Single, ByVal dryBulbStride As LongPtr, ByRef moistureContent As Single, _
    ByVal moistureContentStride As LongPtr, ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function PSHWET Lib "quorvel.dll" (ByRef dryBulb As Single, ByRef wetBulb As Single, _
    ByRef pressure As Single, ByRef psychrometer As Long) As Single
Private Declare PtrSafe Function PSSPVL Lib "quorvel.dll" (ByRef dryBulb As Single, ByRef moistureContent As Single, _
    ByRef pressure As Single) As Single
Private Declare PtrSafe Function PSTSAT Lib "quorvel.dll" (ByRef enthalpy As Single, ByRef pressure As Single) As Single
Private Declare PtrSafe Sub TPPOOL Lib "quorvel.dll" (ByRef waterArea As Single, ByRef wettedArea As Single, _
    ByRef waterTemperature As Single, ByRef dryBulb As Single, ByRef moistureContent As Single, _
    ByRef referenceTemperature As Single, ByRef bathers As Long, ByRef referenceCoefficient As Single, _
    ByRef pressure As Single, ByRef evaporationRate As Single, ByRef latentLoad As Single, _
    ByRef convectiveLoad As Single, ByRef referenceLoad As Single)
Private Declare PtrSafe Sub TPPOOL2 Lib "quorvel.dll" (ByRef waterArea As Single, ByRef wettedArea As Single, _
    ByRef waterTemperature As Single, ByRef dryBulb As Single, ByRef wetBulb As Single, _
    ByRef referenceTemperature As Single, ByRef bathers As Long, ByRef referenceCoefficient As Single, _
    ByRef pressure As Single, ByRef evaporationRate As Single, ByRef latentLoad As Single, _
    ByRef convectiveLoad As Single, ByRef referenceLoad As Single)
Private Declare PtrSafe Function PSSVP Lib "quorvel.dll" (ByRef temperature As Single) As Single
Private Declare PtrSafe Function quorvel_dew_point Lib "quorvel_arrays.dll" (ByVal count As LongPtr, _
    ByRef vapourPressure As Single, ByVal vapourPressureStride As LongPtr, ByRef result As Single, _
    ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function PSVP Lib "quorvel.dll" (ByRef dryBulb As Single, _
    ByRef relativeHumidity As Single) As Single
Private Declare PtrSafe Function quorvel_relative_humidity Lib "quorvel_arrays.dll" (ByVal count As LongPtr, _
    ByRef dryBulb As Single, ByVal dryBulbStride As LongPtr, ByRef vapourPressure As Single, _
    ByVal vapourPressureStride As LongPtr, ByRef result As Single, ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Function PSVAP Lib "quorvel.dll" (ByRef dryBulb As Single, ByRef wetBulb As Single, _
    ByRef pressure As Single, ByRef psychrometer As Long) As Single
Private Declare PtrSafe Function PSTEFF Lib "quorvel.dll" (ByRef firstTemperature As Single, _
    ByRef secondTemperature As Single) As Single
Private Declare PtrSafe Function PSTWET Lib "quorvel.dll" (ByRef dryBulb As Single, ByRef relativeHumidity As Single, _
    ByRef pressure As Single, ByRef psychrometer As Long) As Single
Private Declare PtrSafe Function PSTWB Lib "quorvel.dll" (ByRef dryBulb As Single, _
    ByRef percentageSaturation As Single, ByRef pressure As Single, ByRef psychrometer As Long) As Single
Private Declare PtrSafe Function PSWBLB Lib "quorvel.dll" (ByRef dryBulb As Single, ByRef moistureContent As Single, _
    ByRef pressure As Single, ByRef psychrometer As Long) As Single
Private Declare PtrSafe Function quorvel_wet_bulb Lib "quorvel_arrays.dll" (ByVal count As LongPtr, _
    ByRef dryBulb As Single, ByVal dryBulbStride As LongPtr, ByRef vapourPressure As Single, _
    ByVal vapourPressureStride As LongPtr, ByRef pressure As Single, ByVal pressureStride As LongPtr, _
    ByRef psychrometer As Long, ByVal psychrometerStride As LongPtr, ByRef result As Single, _
    ByVal resultStride As LongPtr) As Long
Private Declare PtrSafe Sub TPADMT Lib "quorvel.dll" (ByRef thickness As Single, ByRef conductivity As Single, _
    ByRef density As Single, ByRef specificHeat As Single, ByRef insideResistance As Single, _
    ByRef outsideResistance As Single, ByRef layers As Long, ByRef harmonic As Long, ByRef elementKind As Long, _
    ByRef admittance As Single, ByRef admittanceLead As Single, ByRef decrementFactor As Single, _
    ByRef decrementLag As Single, ByRef surfaceFactor As Single, ByRef surfaceFactorLag As Single, _
    ByRef uValue As Single)
Private Declare PtrSafe Function TPRCAV Lib "quorvel.dll" (ByRef cavityWidth As Single) As Single
Private Declare PtrSafe Function TPRCA2 Lib "quorvel.dll" (ByRef tilt As Single, ByRef cavityWidth As Single, _
    ByRef emissivity1 As Single, ByRef emissivity2 As Single) As Single
Private Declare PtrSafe Function TPRCAX Lib "quorvel.dll" (ByRef tilt As Single, ByRef cavityWidth As Single, _
    ByRef emissivity1 As Single, ByRef emissivity2 As Single, ByRef density As Single, ByRef conductivity As Single, _
    ByRef specificHeat As Single, ByRef viscosity As Single) As Single
Private Declare PtrSafe Sub TPDAMP Lib "quorvel.dll" (ByRef thickness As Single, ByRef vapourResistivity As Single, _
    ByRef layers As Long, ByRef vapourResistance As Single)
Private Declare PtrSafe Sub TPGRAD Lib "quorvel.dll" (ByRef thickness As Single, ByRef conductivity As Single, _
    ByRef vapourResistivity As Single, ByRef insideResistance As Single, ByRef outsideResistance As Single, _
    ByRef layers As Long, ByRef insideTemperature As Single, ByRef outsideTemperature As Single, _
    ByRef insideHumidity As Single, ByRef outsideHumidity As Single, ByRef interfaceTemperature As Single, _
    ByRef interfaceVapourPressure As Single, ByRef interfaceSaturationPressure As Single)
Private Declare PtrSafe Function ITPCON Lib "quorvel.dll" (ByRef warmTemperature As Single, _
    ByRef coldTemperature As Single, ByRef warmVapourPressure As Single, ByRef coldVapourPressure As Single) As Long
Private Declare PtrSafe Function BELDAT Lib "quorvel.dll" (ByRef elementRecords As Single, ByRef recordCount As Long, _
    ByRef recordNumber As Long, ByRef item As Long) As Single
Private Declare PtrSafe Function TPHCON Lib "quorvel.dll" (ByRef temperatureDifference As Single, _
    ByRef characteristicLength As Single, ByRef heatFlowDirection As Long) As Single
Private Declare PtrSafe Sub TPCOLW Lib "quorvel.dll" (ByRef packing As Long, ByRef packedNumber As Single, _
    ByRef fraction1 As Single, ByRef fraction2 As Single)
Private Declare PtrSafe Sub TPCOLT Lib "quorvel.dll" (ByRef packing As Long, ByRef packedNumber As Single, _
    ByRef fraction1 As Single, ByRef fraction2 As Single, ByRef fraction3 As Single)
Private Declare PtrSafe Sub TPCOLW2 Lib "quorvel.dll" (ByRef packing As Long, ByRef packedNumber As Single, _
    ByRef fraction3 As Single, ByRef fraction1 As Single, ByRef fraction2 As Single)
Private Declare PtrSafe Sub TPCOSW Lib "quorvel.dll" (ByRef packing As Long, ByRef packedNumber As Single, _
    ByRef absorptance As Single, ByRef reflectance1 As Single, ByRef reflectance2 As Single)
Private Declare PtrSafe Function TPRSUR Lib "quorvel.dll" (ByRef surface As Long, ByRef tilt As Single, _
    ByRef exposure As Long) As Single
Private Declare PtrSafe Function TPRSU2 Lib "quorvel.dll" (ByRef surface As Long, ByRef tilt As Single, _
    ByRef exposure As Long, ByRef emissivity As Single) As Single
Private Declare PtrSafe Sub TPUVAL Lib "quorvel.dll" (ByRef thickness As Single, ByRef conductivity As Single, _
    ByRef surfaceResistance1 As Single, ByRef surfaceResistance2 As Single, ByRef layers As Long, _
    ByRef uValue As Single)
Private Declare PtrSafe Function TPUMOD Lib "quorvel.dll" (ByRef uValue As Single, ByRef tilt As Single, _
    ByRef exposure As Long) As Single
Private Declare PtrSafe Sub TPWNDO Lib "quorvel.dll" (ByRef panes As Long, ByRef paneKind1 As Long, _
    ByRef emissivity1 As Single, ByRef paneKind2 As Long, ByRef emissivity2 As Single, ByRef paneKind3 As Long, _
    ByRef emissivity3 As Single, ByRef cavityWidth1 As Single, ByRef cavityWidth2 As Single, _
    ByRef outerSurface As Long, ByRef exposure As Long, ByRef tilt As Single, ByRef unused As Single, _
    ByRef admittance As Single, ByRef admittanceLead As Single, ByRef decrementFactor As Single, _
    ByRef decrementLag As Single, ByRef surfaceFactor As Single, ByRef surfaceFactorLag As Single, _
    ByRef uValue As Single)
Private Declare PtrSafe Sub WNDRGL Lib "quorvel.dll" (ByRef normalTransmittance As Single, _
    ByRef normalReflectance As Single, ByRef incidence As Single, ByRef parallelTransmittance As Single, _
    ByRef parallelAbsorptance As Single, ByRef parallelReflectance As Single, _
    ByRef perpendicularTransmittance As Single, ByRef perpendicularAbsorptance As Single, _
    ByRef perpendicularReflectance As Single)
Private Declare PtrSafe Sub WNDFGL Lib "quorvel.dll" (ByRef normalTransmittance As Single, _
    ByRef normalReflectance As Single, ByRef transmittance As Single, ByRef absorptance As Single)
Private Declare PtrSafe Sub WNCOM2 Lib "quorvel.dll" (ByRef layers As Long, ByRef layerTransmittances As Single, _
    ByRef unused As Single, ByRef layerReflectances As Single, ByRef transmittance As Single, _
    ByRef absorptance As Single, ByRef reflectance As Single)
Private Declare PtrSafe Sub WNCOMP Lib "quorvel.dll" (ByRef layers As Long, ByRef layerTransmittances As Single, _
    ByRef layerAbsorptances As Single, ByRef layerReflectances As Single, ByRef transmittance As Single, _
    ByRef absorptance As Single, ByRef reflectance As Single)
Private Declare PtrSafe Sub WNDRRO Lib "quorvel.dll" (ByRef blindTransmittance As Single, _
    ByRef blindReflectance As Single, ByRef incidence As Single, ByRef transmittance As Single, _
    ByRef absorptance As Single, ByRef reflectance As Single)
Private Declare PtrSafe Sub WNDFRO Lib "quorvel.dll" (ByRef blindTransmittance As Single, _
    ByRef blindReflectance As Single, ByRef transmittance As Single, ByRef absorptance As Single, _
    ByRef reflectance As Single)
Private Declare PtrSafe Function WNRANG Lib "quorvel.dll" (ByRef incidence As Single, _
    ByRef refractiveIndex As Single) As Single
Private Declare PtrSafe Sub WNREFL Lib "quorvel.dll" (ByRef incidence As Single, ByRef refractionAngle As Single, _
    ByRef refractiveIndex As Single, ByRef parallelReflectance As Single, ByRef perpendicularReflectance As Single)
Private Declare PtrSafe Function WNABEN Lib "quorvel.dll" (ByRef refractionAngle As Single, _
    ByRef absorptionProduct As Single, ByRef unused As Single) As Single
Private Declare PtrSafe Sub WNTAR Lib "quorvel.dll" (ByRef singlePassAbsorptance As Single, _
    ByRef faceReflectance As Single, ByRef transmittance As Single, ByRef absorptance As Single, _
    ByRef reflectance As Single)
Private Declare PtrSafe Function WNKL Lib "quorvel.dll" (ByRef normalTransmittance As Single, _
    ByRef refractiveIndex As Single) As Single
Private Declare PtrSafe Function WNTNOR Lib "quorvel.dll" (ByRef absorptionProduct As Single, _
    ByRef normalReflectance As Single) As Single
Private Declare PtrSafe Sub WNTEMP Lib "quorvel.dll" (ByRef insideTemperature As Single, _
    ByRef outsideTemperature As Single, ByRef panes As Long, ByRef absorbed1 As Single, ByRef absorbed2 As Single, _
    ByRef absorbed3 As Single, ByRef absorbed4 As Single, ByRef absorbed5 As Single, _
    ByRef paneTemperature1 As Single, ByRef paneTemperature2 As Single, ByRef paneTemperature3 As Single, _
    ByRef paneTemperature4 As Single, ByRef paneTemperature5 As Single)
Private Declare PtrSafe Sub WNDRSC Lib "quorvel.dll" (ByRef shortwaveShadingCoefficient As Single, _
    ByRef longwaveShadingCoefficient As Single, ByRef incidence As Single, ByRef transmittance As Single, _
    ByRef absorptance As Single, ByRef reflectance As Single)
Private Declare PtrSafe Sub WNDFSC Lib "quorvel.dll" (ByRef shortwaveShadingCoefficient As Single, _
    ByRef longwaveShadingCoefficient As Single, ByRef transmittance As Single, ByRef absorptance As Single, _
    ByRef reflectance As Single)
Private Declare PtrSafe Sub WNDRSM Lib "quorvel.dll" (ByRef shortwaveShadingCoefficient As Single, _
    ByRef longwaveShadingCoefficient As Single, ByRef incidence As Single, ByRef panes As Long, _
    ByRef transmittance As Single, ByRef paneShares As Single, ByRef absorptance As Single)
Private Declare PtrSafe Sub WNDFSM Lib "quorvel.dll" (ByRef shortwaveShadingCoefficient As Single, _
    ByRef longwaveShadingCoefficient As Single, ByRef panes As Long, ByRef transmittance As Single, _
    ByRef paneShares As Single, ByRef absorptance As Single)
Private Declare PtrSafe Sub WNDRS0 Lib "quorvel.dll" (ByRef radiation As Long, _
    ByRef shortwaveShadingCoefficient As Single, ByRef longwaveShadingCoefficient As Single, _
    ByRef incidence As Single, ByRef panes As Long, ByRef transmittance As Single, ByRef paneShares As Single, _
    ByRef absorptance As Single)
Private Declare PtrSafe Sub WNDRSL Lib "quorvel.dll" (ByRef slatSpacing As Single, ByRef slatWidth As Single, _
    ByRef slatAngle As Single, ByRef profileAngle As Single, ByRef slatAbsorptance As Single, _
    ByRef transmittance As Single, ByRef absorptance As Single, ByRef reflectance As Single)
Private Declare PtrSafe Sub WNDRS2 Lib "quorvel.dll" (ByRef slatSpacing As Single, ByRef slatWidth As Single, _
    ByRef slatAngle As Single, ByRef profileAngle As Single, ByRef struckAbsorptance As Single, _
    ByRef oppositeAbsorptance As Single, ByRef transmittance As Single, ByRef absorptance As Single, _
    ByRef reflectance As Single)
Private Declare PtrSafe Sub WNDRS3 Lib "quorvel.dll" (ByRef slatSpacing As Single, ByRef slatWidth As Single, _
    ByRef slatAngle As Single, ByRef profileAngle As Single, ByRef openShare As Single, _
    ByRef struckAbsorptance As Single, ByRef oppositeAbsorptance As Single, ByRef transmittance As Single, _
    ByRef absorptance As Single, ByRef reflectance As Single)
Private Declare PtrSafe Sub WNDFSL Lib "quorvel.dll" (ByRef slatSpacing As Single, ByRef slatWidth As Single, _
    ByRef slatAngle As Single, ByRef slatAbsorptance As Single, ByRef skyTransmittance As Single, _
    ByRef groundTransmittance As Single, ByRef skyAbsorptance As Single, ByRef groundAbsorptance As Single)
Private Declare PtrSafe Sub WNDFS2 Lib "quorvel.dll" (ByRef slatSpacing As Single, ByRef slatWidth As Single, _
    ByRef slatAngle As Single, ByRef struckAbsorptance As Single, ByRef oppositeAbsorptance As Single, _
    ByRef skyTransmittance As Single, ByRef groundTransmittance As Single, ByRef skyAbsorptance As Single, _
    ByRef groundAbsorptance As Single)
Private Declare PtrSafe Sub WNDFS3 Lib "quorvel.dll" (ByRef slatSpacing As Single, ByRef slatWidth As Single, _
    ByRef slatAngle As Single, ByRef openShare As Single, ByRef struckAbsorptance As Single, _
    ByRef oppositeAbsorptance As Single, ByRef skyTransmittance As Single, ByRef groundTransmittance As Single, _
    ByRef skyAbsorptance As Single, ByRef groundAbsorptance As Single)
Private Declare PtrSafe Sub CLBAN1 Lib "quorvel.dll" (ByRef fraction As Single, ByRef month As Long, _
    ByRef frequencies As Single, ByRef lowerBand As Long, ByRef upperBand As Long, ByRef bandWeight As Single)
Private Declare PtrSafe Sub CLBAND Lib "quorvel.dll" (ByRef band As Long, ByRef month As Long, ByRef bandSet As Long, _
    ByRef percentage As Single, ByRef q1 As Single, ByRef q2 As Single, ByRef q3 As Single, ByRef q4 As Single, _
    ByRef q5 As Single, ByRef q6 As Single, ByRef timeA As Single, ByRef timeB As Single, ByRef q7 As Single, _
    ByRef q8 As Single)
Private Declare PtrSafe Sub CLBAN2 Lib "quorvel.dll" (ByRef baseRow As Long, ByRef lowerBand As Long, _
    ByRef upperBand As Long, ByRef month As Long, ByRef bandWeight As Single, ByRef value As Single)
Private Declare PtrSafe Sub CLBAN3 Lib "quorvel.dll" (ByRef row As Long, ByRef values As Single)
Private Declare PtrSafe Sub CLDAY Lib "quorvel.dll" (ByRef month As Long, ByRef day As Long)
Private Declare PtrSafe Sub CLDAYEX Lib "quorvel.dll" (ByRef month As Long, ByRef day As Long, ByRef dayKind As Long)
Private Declare PtrSafe Function ICLDAY Lib "quorvel.dll" (ByRef month As Long) As Long
Private Declare PtrSafe Function ICLDAYEX Lib "quorvel.dll" (ByRef month As Long, ByRef dayKind As Long) As Long
Private Declare PtrSafe Function ICLDA2 Lib "quorvel.dll" (ByRef month As Long) As Long
Private Declare PtrSafe Function ICLDA2EX Lib "quorvel.dll" (ByRef month As Long, ByRef dayKind As Long) As Long
Private Declare PtrSafe Sub CLBNF0 Lib "quorvel.dll" (ByRef fileName As Byte, ByRef station As Long, _
    ByRef month As Long, ByRef stationRecords As Single)
Private Declare PtrSafe Sub CLBNFI Lib "quorvel.dll" (ByRef fileUnit As Long, ByRef station As Long, _
    ByRef band As Long, ByRef month As Long, ByRef bandSet As Long, ByRef percentage As Single, ByRef q1 As Single, _
    ByRef q2 As Single, ByRef q3 As Single, ByRef q4 As Single, ByRef q5 As Single, ByRef q6 As Single, _
    ByRef q7 As Single, ByRef timeA As Single, ByRef timeB As Single)
Private Declare PtrSafe Sub CLBNF1 Lib "quorvel.dll" (ByRef fraction As Single, ByRef month As Long, _
    ByRef lowerBand As Long, ByRef upperBand As Long, ByRef bandWeight As Single)
Private Declare PtrSafe Sub CLBNF2 Lib "quorvel.dll" (ByRef baseRow As Long, ByRef lowerBand As Long, _
    ByRef upperBand As Long, ByRef month As Long, ByRef bandWeight As Single, ByRef value As Single)
Private Declare PtrSafe Sub CLBNF3 Lib "quorvel.dll" (ByRef row As Long, ByRef values As Single)
Private Declare PtrSafe Function CLTAO Lib "quorvel.dll" (ByRef hour As Single, ByRef highestTemperature As Single, _
    ByRef lowestTemperature As Single, ByRef hourOfHighest As Single, ByRef hourOfLowest As Single) As Single
Private Declare PtrSafe Function CLTAOX Lib "quorvel.dll" (ByRef hour As Single, ByRef mean As Single, _
    ByRef amplitude As Single, ByRef firstHour As Single, ByRef secondHour As Single, _
    ByRef amplitudeFactor As Single) As Single
Private Declare PtrSafe Sub CLSNNR Lib "quorvel.dll" (ByRef solarAltitude As Single, ByRef solarAzimuth As Single, _
    ByRef siteHeight As Single, ByRef skyKind As Long, ByRef directNormal As Single, _
    ByRef diffuseHorizontal As Single)
Private Declare PtrSafe Function CLHIGH Lib "quorvel.dll" (ByRef siteHeight As Single, _
    ByRef solarAltitude As Single) As Single
Private Declare PtrSafe Function CLETAJ Lib "quorvel.dll" (ByRef day As Long) As Single
Private Declare PtrSafe Function CLMODUL Lib "quorvel.dll" (ByRef day As Long, ByRef solarAltitude As Single, _
    ByRef globalHorizontal As Single) As Single
Private Declare PtrSafe Sub CLMUNRAD Lib "quorvel.dll" (ByRef solarAltitude As Single, ByRef solarAzimuth As Single, _
    ByRef surfaceAzimuth As Single, ByRef tilt As Single, ByRef beamHorizontal As Single, _
    ByRef diffuseHorizontal As Single, ByRef extraterrestrialHorizontal As Single, ByRef groundReflectance As Single, _
    ByRef surfaceBeam As Single, ByRef surfaceDiffuse As Single, ByRef groundReflected As Single, _
    ByRef incidence As Single)
Private Declare PtrSafe Sub CLPERSKY Lib "quorvel.dll" (ByRef solarAltitude As Single, ByRef tilt As Single, _
    ByRef beamHorizontal As Single, ByRef diffuseHorizontal As Single, ByRef surfaceDiffuse As Single, _
    ByRef incidence As Single, ByRef extraterrestrialNormal As Single)
Private Declare PtrSafe Sub CLCONS Lib "quorvel.dll" (ByRef siteClass As Long, ByRef month As Long, _
    ByRef groundReflectance As Single, ByRef beamFactor As Single, ByRef diffuseFactor As Single, _
    ByRef alternativeDiffuseFactor As Single)
Private Declare PtrSafe Function CLDIFRAD Lib "quorvel.dll" (ByRef day As Long, ByRef solarAltitude As Single, _
    ByRef beamHorizontal As Single, ByRef unused As Single, ByRef tilt As Single, ByRef skyModel As Long) As Single
Private Declare PtrSafe Function CLDIFSLO Lib "quorvel.dll" (ByRef day As Long, ByRef solarAltitude As Single, _
    ByRef solarAzimuth As Single, ByRef surfaceAzimuth As Single, ByRef tilt As Single, _
    ByRef beamHorizontal As Single, ByRef diffuseHorizontal As Single, ByRef skyModel As Long) As Single
Private Declare PtrSafe Function CLTEO Lib "quorvel.dll" (ByRef baseTemperature As Single, _
    ByRef surfaceCoefficient As Single, ByRef absorptance As Single, ByRef unused1 As Single, _
    ByRef unused2 As Single, ByRef irradiance As Single, ByRef longWaveLoss As Single) As Single
Private Declare PtrSafe Function CLRERD Lib "quorvel.dll" (ByRef tilt As Single, ByRef cloudCover As Single) As Single
Private Declare PtrSafe Function CLTCOR Lib "quorvel.dll" (ByRef clockOffset As Single, ByRef day As Long, _
    ByRef longitude As Single, ByRef referenceLongitude As Single) As Single
Private Declare PtrSafe Sub CLYALLOP Lib "quorvel.dll" (ByRef timeKind As Long, ByRef year As Long, _
    ByRef month As Long, ByRef dayOfMonth As Long, ByRef clockTime As Single, ByRef latitude As Single, _
    ByRef longitude As Single, ByRef zoneMeridian As Single, ByRef solarAltitude As Single, _
    ByRef solarAzimuth As Single, ByRef declination As Single)
Private Declare PtrSafe Sub CLRISESET Lib "quorvel.dll" (ByRef year As Long, ByRef month As Long, _
    ByRef dayOfMonth As Long, ByRef latitude As Single, ByRef sunrise As Single, ByRef sunset As Single)
Private Declare PtrSafe Sub CLSNGE Lib "quorvel.dll" (ByRef latitude As Single, ByRef day As Long, _
    ByRef solarTime As Single, ByRef declination As Single, ByRef solarAltitude As Single, _
    ByRef solarAzimuth As Single, ByRef sunrise As Single, ByRef sunset As Single)
Private Declare PtrSafe Sub CLSNSR Lib "quorvel.dll" (ByRef solarAltitude As Single, ByRef solarAzimuth As Single, _
    ByRef surfaceAzimuth As Single, ByRef tilt As Single, ByRef incidence As Single, _
    ByRef verticalShadowAngle As Single, ByRef horizontalShadowAngle As Single)
Private Declare PtrSafe Sub CLSORD Lib "quorvel.dll" (ByRef solarAltitude As Single, ByRef solarAzimuth As Single, _
    ByRef surfaceAzimuth As Single, ByRef tilt As Single, ByRef directNormal As Single, _
    ByRef diffuseHorizontal As Single, ByRef groundReflectance As Single, ByRef beamFactor As Single, _
    ByRef diffuseFactor As Single, ByRef surfaceBeam As Single, ByRef surfaceDiffuse As Single, _
    ByRef groundReflected As Single)
Private Declare PtrSafe Sub CLSOR2 Lib "quorvel.dll" (ByRef solarAltitude As Single, ByRef solarAzimuth As Single, _
    ByRef surfaceAzimuth As Single, ByRef tilt As Single, ByRef directNormal As Single, _
    ByRef diffuseHorizontal As Single, ByRef groundReflectance As Single, ByRef beamFactor As Single, _
    ByRef diffuseFactor As Single, ByRef surfaceBeam As Single, ByRef surfaceDiffuse As Single, _
    ByRef groundReflected As Single, ByRef incidence As Single)
Private Declare PtrSafe Sub HOHOLEDP Lib "quorvel.dll" (ByRef x As Double, ByRef y As Double, _
    ByRef verticesA As Long, ByRef positionsA As Long, ByRef verticesB As Long, ByRef positionsB As Long, _
    ByRef pointCapacity As Long, ByRef crossingCapacity As Long, ByRef differenceCapacity As Long, _
    ByRef overlapCapacity As Long, ByRef usedPoints As Long, ByRef differencePieces As Long, _
    ByRef overlapPieces As Long, ByRef status As Long)
Private Declare PtrSafe Sub GEOVER Lib "quorvel.dll" (ByRef x1 As Single, ByRef y1 As Single, _
    ByRef vertices1 As Long, ByRef x2 As Single, ByRef y2 As Single, ByRef vertices2 As Long, ByRef pieceX As Single, _
    ByRef pieceY As Single, ByRef pieceVertices As Long, ByRef area As Single)
Private Declare PtrSafe Sub GEHOLE Lib "quorvel.dll" (ByRef x1 As Single, ByRef y1 As Single, _
    ByRef vertices1 As Long, ByRef x2 As Single, ByRef y2 As Single, ByRef vertices2 As Long, ByRef pieceX As Single, _
    ByRef pieceY As Single, ByRef pieceVertices As Long, ByRef area As Single)
Private Declare PtrSafe Function IGELIN Lib "quorvel.dll" (ByRef x As Single, ByRef y As Single, _
    ByRef points As Long) As Long
Private Declare PtrSafe Sub GECLOS Lib "quorvel.dll" (ByRef x As Single, ByRef y As Single, ByRef vertices As Long, _
    ByRef pointX As Single, ByRef pointY As Single, ByRef points As Long, ByRef enclosed As Long, _
    ByRef enclosedPoints As Long)
Private Declare PtrSafe Sub GESIDE Lib "quorvel.dll" (ByRef segmentStart As Single, ByRef segmentEnd As Single, _
    ByRef x As Single, ByRef y As Single, ByRef vertices As Long, ByRef crossingPoint As Single, _
    ByRef crossingCode As Long)
Private Declare PtrSafe Sub GEINSI Lib "quorvel.dll" (ByRef point As Single, ByRef polygon As Single, _
    ByRef vertices As Long, ByRef inside As Long)
Private Declare PtrSafe Function GEPLEL Lib "quorvel.dll" (ByRef triangle1 As Double, ByRef triangle2 As Double) As Long
Private Declare PtrSafe Function GEPSID Lib "quorvel.dll" (ByRef triangle1 As Double, ByRef triangle2 As Double, _
    ByRef side1 As Long, ByRef side2 As Long) As Long
Private Declare PtrSafe Function GERECT Lib "quorvel.dll" (ByRef quadrilateral As Double) As Long
Private Declare PtrSafe Sub GETILT Lib "quorvel.dll" (ByRef triangle As Double, ByRef azimuth As Double, _
    ByRef tilt As Double)
Private Declare PtrSafe Sub GELCAL Lib "quorvel.dll" (ByRef quadrilateral1 As Double, ByRef quadrilateral2 As Double, _
    ByRef local1 As Double, ByRef local2 As Double)
Private Declare PtrSafe Sub GETRNS Lib "quorvel.dll" (ByRef corners As Double, ByRef xAxis As Double, _
    ByRef yAxis As Double, ByRef zAxis As Double)
Private Declare PtrSafe Sub GEMEET Lib "quorvel.dll" (ByRef line1Start As Single, ByRef line1End As Single, _
    ByRef line2Start As Single, ByRef line2End As Single, ByRef meetingPoint As Single)
Private Declare PtrSafe Sub GECROS Lib "quorvel.dll" (ByRef segment1Start As Single, ByRef segment1End As Single, _
    ByRef segment2Start As Single, ByRef segment2End As Single, ByRef crossingPoint As Single)
Private Declare PtrSafe Function GEINLN Lib "quorvel.dll" (ByRef firstEnd As Single, ByRef secondEnd As Single, _
    ByRef point As Single) As Single
Private Declare PtrSafe Function GEINLN2 Lib "quorvel.dll" (ByRef firstEnd As Single, ByRef secondEnd As Single, _
    ByRef point As Single) As Single
Private Declare PtrSafe Function GECOIN Lib "quorvel.dll" (ByRef x1 As Single, ByRef y1 As Single, _
    ByRef x2 As Single, ByRef y2 As Single) As Long
Private Declare PtrSafe Function IGEPNT Lib "quorvel.dll" (ByRef lineStart As Single, ByRef lineEnd As Single, _
    ByRef point As Single) As Long
Private Declare PtrSafe Function BORI Lib "quorvel.dll" (ByRef angle As Single) As Single
Private Declare PtrSafe Sub GESUNV Lib "quorvel.dll" (ByRef solarAltitude As Single, ByRef solarAzimuth As Single, _
    ByRef direction As Single)
Private Declare PtrSafe Sub GERSET Lib "quorvel.dll" (ByRef surfaceAzimuth As Single, ByRef tilt As Single, _
    ByRef rotationMatrix As Single, ByRef inverseMatrix As Single)
Private Declare PtrSafe Sub GERAXI Lib "quorvel.dll" (ByRef localVector As Single, ByRef rotationMatrix As Single, _
    ByRef globalVector As Single)
Private Declare PtrSafe Sub GERAX2 Lib "quorvel.dll" (ByRef globalVector As Single, ByRef rotationMatrix As Single, _
    ByRef localVector As Single)
Private Declare PtrSafe Function GEAPOL Lib "quorvel.dll" (ByRef x As Single, ByRef y As Single, _
    ByRef vertices As Long) As Single
Private Declare PtrSafe Function GEAPO2 Lib "quorvel.dll" (ByRef x As Single, ByRef y As Single, _
    ByRef vertices As Long) As Single
Private Declare PtrSafe Function GEAPO3 Lib "quorvel.dll" (ByRef x As Single, ByRef y As Single, ByRef z As Single, _
    ByRef vertices As Long) As Single
Private Declare PtrSafe Sub GEASO Lib "quorvel.dll" (ByRef vertices As Long, ByRef polygon As Single, _
    ByRef area As Single, ByRef tilt As Single, ByRef backAzimuth As Single)
Private Declare PtrSafe Sub GEPROJ Lib "quorvel.dll" (ByRef planePoint As Single, ByRef planeNormal As Single, _
    ByRef point As Single, ByRef direction As Single, ByRef projectedPoint As Single)
Private Declare PtrSafe Sub GEPROJ2 Lib "quorvel.dll" (ByRef planePoint As Single, ByRef planeNormal As Single, _
    ByRef point As Single, ByRef direction As Single, ByRef projectedPoint As Single)
Private Declare PtrSafe Sub GEPROJ3 Lib "quorvel.dll" (ByRef planePoint As Single, ByRef planeNormal As Single, _
    ByRef point As Single, ByRef direction As Single, ByRef projectedPoint As Single)
Private Declare PtrSafe Function GEDOTP Lib "quorvel.dll" (ByRef vectorA As Single, ByRef vectorB As Single) As Single
Private Declare PtrSafe Function GEDTDP Lib "quorvel.dll" (ByRef vectorA As Double, ByRef vectorB As Double) As Double
Private Declare PtrSafe Sub GEXPRO Lib "quorvel.dll" (ByRef vectorA As Single, ByRef vectorB As Single, _
    ByRef crossProduct As Single)
Private Declare PtrSafe Sub GEXPDP Lib "quorvel.dll" (ByRef vectorA As Double, ByRef vectorB As Double, _
    ByRef crossProduct As Double)
Private Declare PtrSafe Function GEVMOD Lib "quorvel.dll" (ByRef vector As Single) As Single
Private Declare PtrSafe Function GEVMDP Lib "quorvel.dll" (ByRef vector As Double) As Double

Enum Psychrometer
    PsychrometerSling = 1
    PsychrometerScreen = 2
End Enum

Enum ElementKind
    ElementKindBetween = 1
    ElementKindPartition = 2
End Enum

Enum HeatFlowDirection
    HeatFlowDirectionUpward = 1
    HeatFlowDirectionHorizontal = 2
    HeatFlowDirectionDownward = 3
End Enum

Enum Packing
    PackingPack = 1
    PackingUnpack = 2
End Enum

Enum Surface
    SurfaceOutside = 1
    SurfaceInside = 2
End Enum

Enum Exposure
    ExposureSheltered = 1
    ExposureNormal = 2
    ExposureSevere = 3
End Enum

Enum PaneKind
    PaneKindClosing = 1
    PaneKindVented = 2
End Enum

Enum Radiation
    RadiationDirect = 1
    RadiationDiffuse = 2
End Enum

Enum BandSet
    BandSetFirst = 1
    BandSetSecond = 2
End Enum

Enum DayKind
    DayKindOfMonth = 1
    DayKindOfYear = 2
End Enum

Enum FileUnit
    FileUnitOpenedLast = 31
End Enum

Enum SkyKind
    SkyKindClear = 0
    SkyKindCloudy = 1
End Enum

Enum SkyModel
    SkyModelRadianceIndex = 0
    SkyModelNorthernEurope = 1
    SkyModelSouthernEurope = 2
End Enum

Enum TimeKind
    TimeKindSolar = 1
    TimeKindZone = 2
    TimeKindDatedSolar = 3
End Enum

Enum Enclosed
    EnclosedOutside = 0
    EnclosedInside = 1
End Enum

Private Const errorValue As Long = 2015 ' xlErrValue: the names are Excel's alone, the numbers are known to all hosts
Private Const errorNumber As Long = 2036
Private Const errorNA As Long = 2042
Private Const largest As Single = 3.402823E+38
Private Const unwritten As Single = -3E+38 ' stands in a result until a call writes it
Private Const firstRoom As Long = 64
Private Const mostRoom As Long = 1048576

' True: values outside of the valid ranges are passed on and get what the notes say, to the bit as in C.
Public QuorvelUnchecked As Boolean


' Loads the libraries from a folder, where Windows does not find them by itself. False: they are not there.
Public Function QuorvelLoad(ByVal folder As String) As Boolean
    QuorvelLoad = LoadLibraryW(StrPtr(folder & "\quorvel.dll")) <> 0 And _
        LoadLibraryW(StrPtr(folder & "\quorvel_arrays.dll")) <> 0
End Function

' What is wrong with values is kept in `fault`: the error that the cell shows, the first one found.
Private Sub Reject(ByRef fault As Long, ByVal reason As Long)
    If fault = 0 Then fault = reason
End Sub

Private Sub Limit(ByVal number As Double, ByVal low As Double, ByVal high As Double, ByRef fault As Long)
    If Not QuorvelUnchecked And (number < low Or number > high) Then Reject fault, errorNA
End Sub

' Of a range, what is in it.
Private Function HeldBy(ByVal given As Variant) As Variant
    If IsObject(given) Then
        HeldBy = InRange(given)
    Else
        HeldBy = given
    End If
End Function

Private Function InRange(ByVal area As Object) As Variant
    InRange = area.Value
End Function

' No text, no truth value, not an empty cell. Numbers beyond `most` are no numbers of the routine.
Private Function NumberOf(ByVal held As Variant, ByVal most As Double, ByRef fault As Long) As Double
    Select Case VarType(held)
        Case 2, 3, 4, 5, 6, 14, 17, 20
            If Abs(CDbl(held)) > most Then Reject fault, errorNA
            If fault = 0 Then NumberOf = CDbl(held)
        Case Else
            Reject fault, errorValue
    End Select
End Function

Private Function WholeOf(ByVal held As Variant, ByRef fault As Long) As Long
    Dim number As Double
    number = NumberOf(held, 2147483647, fault)
    If number <> Int(number) Then Reject fault, errorValue
    WholeOf = CLng(Int(number))
End Function

Private Function SingleOf(ByVal given As Variant, ByVal low As Single, ByVal high As Single, _
    ByRef fault As Long) As Single
    SingleOf = CSng(NumberOf(HeldBy(given), largest, fault))
    Limit SingleOf, low, high, fault
End Function

Private Function DoubleOf(ByVal given As Variant, ByVal low As Double, ByVal high As Double, _
    ByRef fault As Long) As Double
    DoubleOf = NumberOf(HeldBy(given), 1E+300, fault)
    Limit DoubleOf, low, high, fault
End Function

Private Function LongOf(ByVal given As Variant, ByVal low As Long, ByVal high As Long, ByRef fault As Long) As Long
    LongOf = WholeOf(HeldBy(given), fault)
    Limit LongOf, low, high, fault
End Function

' A number or one of the names, which stand for numbers from `low` on.
Private Function SelectorOf(ByVal given As Variant, ByVal low As Long, ByVal names As String, _
    ByRef fault As Long) As Long
    Dim held As Variant, known() As String, k As Long
    held = HeldBy(given)
    known = Split(names, " ")
    If VarType(held) <> 8 Then
        SelectorOf = LongOf(held, low, low + UBound(known), fault)
        Exit Function
    End If
    For k = 0 To UBound(known)
        If LCase(held) = known(k) Then
            SelectorOf = low + k
            Exit Function
        End If
    Next k
    Reject fault, errorNA
End Function

' UTF-8, with a NUL at the end.
Private Function BytesOf(ByVal given As Variant, ByRef fault As Long) As Variant
    Dim text As String, bytes() As Byte, n As Long, k As Long, code As Long
    If VarType(HeldBy(given)) <> 8 Then
        Reject fault, errorValue
        Exit Function
    End If
    text = HeldBy(given)
    ReDim bytes(0 To 4 * Len(text))
    k = 1
    Do While k <= Len(text)
        code = UnitAt(text, k)
        If code >= &HD800& And code < &HDC00& And k < Len(text) Then
            k = k + 1
            code = &H10000 + (code - &HD800&) * 1024 + UnitAt(text, k) - &HDC00&
        End If
        If code = 0 Then Reject fault, errorValue
        Encode code, bytes, n
        k = k + 1
    Loop
    BytesOf = bytes
End Function

' UTF-16, which AscW gives with a sign.
Private Function UnitAt(ByVal text As String, ByVal place As Long) As Long
    UnitAt = AscW(Mid(text, place, 1))
    If UnitAt < 0 Then UnitAt = UnitAt + 65536
End Function

Private Sub Encode(ByVal code As Long, ByRef bytes() As Byte, ByRef n As Long)
    Dim following As Long, place As Long
    If code < 128 Then
        bytes(n) = code
        n = n + 1
        Exit Sub
    End If
    following = 1
    If code >= 2048 Then following = 2
    If code >= 65536 Then following = 3
    For place = following To 1 Step -1
        bytes(n + place) = 128 + code Mod 64
        code = code \ 64
    Next place
    bytes(n) = (256 - 2 ^ (7 - following)) + code
    n = n + following + 1
End Sub

' The numbers of a list, row by row, in rows of so many columns; the number of rows. Of none, one that is not read.
Private Function RowsOf(ByVal given As Variant, ByVal columns As Long, ByRef numbers As Variant, _
    ByRef fault As Long) As Long
    Dim held As Variant, row As Long, column As Long, n As Long
    held = HeldBy(given)
    If Not IsArray(held) Then held = Array(held)
    If IsTable(held) Then
        If columns > 1 And UBound(held, 2) - LBound(held, 2) + 1 <> columns Then Reject fault, errorValue
        ReDim numbers(0 To (UBound(held, 1) - LBound(held, 1) + 1) * (UBound(held, 2) - LBound(held, 2) + 1) - 1)
        For row = LBound(held, 1) To UBound(held, 1)
            For column = LBound(held, 2) To UBound(held, 2)
                numbers(n) = held(row, column)
                n = n + 1
            Next column
        Next row
    ElseIf UBound(held) < LBound(held) Then
        ReDim numbers(0 To 0)
    Else
        ReDim numbers(0 To UBound(held) - LBound(held))
        For row = LBound(held) To UBound(held)
            numbers(n) = held(row)
            n = n + 1
        Next row
    End If
    If n Mod columns <> 0 Then Reject fault, errorValue
    RowsOf = n \ columns
End Function

Private Function IsTable(ByRef held As Variant) As Boolean
    Dim last As Long
    On Error GoTo One
    last = UBound(held, 2)
    IsTable = True
One:
End Function

' A list as the routine takes it; the number of rows. The array has what was given up to the first fault.
Private Function SinglesOf(ByVal given As Variant, ByVal columns As Long, ByVal low As Single, ByVal high As Single, _
    ByRef numbers() As Single, ByRef fault As Long) As Long
    Dim held As Variant, k As Long
    SinglesOf = RowsOf(given, columns, held, fault)
    ReDim numbers(0 To UBound(held))
    For k = 0 To SinglesOf * columns - 1
        numbers(k) = SingleOf(held(k), low, high, fault)
    Next k
End Function

Private Function DoublesOf(ByVal given As Variant, ByVal columns As Long, ByVal low As Double, ByVal high As Double, _
    ByRef numbers() As Double, ByRef fault As Long) As Long
    Dim held As Variant, k As Long
    DoublesOf = RowsOf(given, columns, held, fault)
    ReDim numbers(0 To UBound(held))
    For k = 0 To DoublesOf * columns - 1
        numbers(k) = DoubleOf(held(k), low, high, fault)
    Next k
End Function

Private Function LongsOf(ByVal given As Variant, ByVal columns As Long, ByVal low As Long, ByVal high As Long, _
    ByRef numbers() As Long, ByRef fault As Long) As Long
    Dim held As Variant, k As Long
    LongsOf = RowsOf(given, columns, held, fault)
    ReDim numbers(0 To UBound(held))
    For k = 0 To LongsOf * columns - 1
        numbers(k) = LongOf(held(k), low, high, fault)
    Next k
End Function

' Whether one of several arguments is of more than one cell, and how many rows and columns there are then.
Private Function Spans(ByRef held As Variant, ByRef rows As Long, ByRef columns As Long) As Boolean
    Dim k As Long
    rows = 1
    columns = 1
    For k = 0 To UBound(held)
        If IsArray(held(k)) Then
            If RowCountOf(held(k)) > rows Then rows = RowCountOf(held(k))
            If ColumnCountOf(held(k)) > columns Then columns = ColumnCountOf(held(k))
            Spans = True
        End If
    Next k
End Function

' An array that is no table is a row.
Private Function RowCountOf(ByRef table As Variant) As Long
    RowCountOf = 1
    If IsTable(table) Then RowCountOf = UBound(table, 1) - LBound(table, 1) + 1
End Function

Private Function ColumnCountOf(ByRef table As Variant) As Long
    If IsTable(table) Then
        ColumnCountOf = UBound(table, 2) - LBound(table, 2) + 1
    Else
        ColumnCountOf = UBound(table) - LBound(table) + 1
    End If
End Function

' A single cell, row or column goes with all others; beyond the end of others there is nothing.
Private Function CellAt(ByRef held As Variant, ByVal row As Long, ByVal column As Long) As Variant
    If Not IsArray(held) Then
        CellAt = held
        Exit Function
    End If
    If RowCountOf(held) = 1 Then row = 1
    If ColumnCountOf(held) = 1 Then column = 1
    If row > RowCountOf(held) Or column > ColumnCountOf(held) Then
        CellAt = ""
    ElseIf IsTable(held) Then
        CellAt = held(LBound(held, 1) + row - 1, LBound(held, 2) + column - 1)
    Else
        CellAt = held(LBound(held) + column - 1)
    End If
End Function

' Several results, or one error for all of them.
Private Sub PutRow(ByRef cells As Variant, ByVal row As Long, ByVal results As Variant)
    Dim k As Long
    For k = 1 To UBound(cells, 2)
        If IsArray(results) Then
            cells(row, k) = results(k - 1)
        Else
            cells(row, k) = results
        End If
    Next k
End Sub

' As many as there must be.
Private Sub Equal(ByVal count As Long, ByVal wanted As Long, ByRef fault As Long)
    If count <> wanted Then Reject fault, errorValue
End Sub

' ---- What comes out

' A result in a cell: #N/A for what was not written, #NUM! for what is no number.
Private Function CellOf(ByVal result As Variant) As Variant
    Dim number As Double
    number = result
    If Not (number >= -1.7E+308 And number <= 1.7E+308) Then
        CellOf = CVErr(errorNumber)
    ElseIf number < -2.9E+38 Then
        CellOf = CVErr(errorNA)
    Else
        CellOf = result
    End If
End Function

' An array of the routine as rows of so many columns.
Private Function TableOf(ByVal results As Variant, ByVal columns As Long) As Variant
    Dim cells As Variant, k As Long
    ReDim cells(1 To (UBound(results) + 1) \ columns, 1 To columns)
    For k = 0 To UBound(results)
        cells(k \ columns + 1, k Mod columns + 1) = CellOf(results(k))
    Next k
    TableOf = cells
End Function

' Cells and tables side by side; what is shorter is filled up with empty texts.
Private Function Beside(ByVal parts As Variant) As Variant
    Dim cells As Variant, table As Variant, rows As Long, columns As Long, row As Long, column As Long
    Dim k As Long, first As Long
    rows = 1
    For k = 0 To UBound(parts)
        If IsArray(parts(k)) Then
            If UBound(parts(k), 1) > rows Then rows = UBound(parts(k), 1)
            columns = columns + UBound(parts(k), 2)
        Else
            columns = columns + 1
        End If
    Next k
    ReDim cells(1 To rows, 1 To columns)
    For k = 0 To UBound(parts)
        table = parts(k)
        If Not IsArray(table) Then
            ReDim table(1 To 1, 1 To 1)
            table(1, 1) = parts(k)
        End If
        For column = 1 To UBound(table, 2)
            For row = 1 To rows
                cells(row, first + column) = ""
                If row <= UBound(table, 1) Then cells(row, first + column) = table(row, column)
            Next row
        Next column
        first = first + UBound(table, 2)
    Next k
    Beside = cells
End Function

Private Sub BlankSingles(ByRef results() As Single)
    Dim k As Long
    For k = 0 To UBound(results)
        results(k) = unwritten
    Next k
End Sub

' ---- Polygons in plan: ranges of two columns, x and y in m, a row for each vertex, either way round

' The pieces of a without b, and of what a and b have in common: rows of 1 (difference) or 2 (overlap), the number of
' the piece, x and y.
Public Function GeometryClip(ByVal a As Variant, ByVal b As Variant) As Variant
    Dim x() As Double, y() As Double, difference() As Long, overlap() As Long, fault As Long
    Dim cells As Variant, n As Long
    Clip a, b, x, y, difference, overlap, fault
    If fault <> 0 Then
        GeometryClip = CVErr(fault)
        Exit Function
    End If
    ReDim cells(1 To Listed(difference) + Listed(overlap), 1 To 4)
    Unfold 1, difference, x, y, cells, n
    Unfold 2, overlap, x, y, cells, n
    GeometryClip = cells
End Function

' Area that two polygons have in common [m2].
Public Function GeometryOverlapArea(ByVal a As Variant, ByVal b As Variant) As Variant
    Dim x() As Double, y() As Double, difference() As Long, overlap() As Long, fault As Long
    Dim at As Long, k As Long, o As Long, p As Long, q As Long, twice As Double, area As Double
    Clip a, b, x, y, difference, overlap, fault
    If fault <> 0 Then
        GeometryOverlapArea = CVErr(fault)
        Exit Function
    End If
    Do While overlap(at) <> 0
        twice = 0
        o = Abs(overlap(at + 1)) - 1
        For k = at + 2 To at + overlap(at) - 1
            p = Abs(overlap(k)) - 1
            q = Abs(overlap(k + 1)) - 1
            twice = twice + (x(q) - x(o)) * (y(p) - y(o)) - (x(p) - x(o)) * (y(q) - y(o))
        Next k
        area = area + Abs(twice) / 2
        at = at + overlap(at) + 1
    Loop
    GeometryOverlapArea = area
End Function

' #VALUE! for what is no polygon or cannot be clipped. Room is doubled as long as the pieces need more.
Private Sub Clip(ByVal a As Variant, ByVal b As Variant, ByRef x() As Double, ByRef y() As Double, _
    ByRef difference() As Long, ByRef overlap() As Long, ByRef fault As Long)
    Dim pointsA() As Double, pointsB() As Double, positionsA() As Long, positionsB() As Long
    Dim room As Long, capacity As Long
    Dim verticesA As Long, verticesB As Long, used As Long, crossings As Long, status As Long
    verticesA = DoublesOf(a, 2, -1E+300, 1E+300, pointsA, fault)
    verticesB = DoublesOf(b, 2, -1E+300, 1E+300, pointsB, fault)
    If verticesA < 3 Or verticesB < 3 Then Reject fault, errorValue
    room = firstRoom
    crossings = 1024
    status = 7
    Do While fault = 0 And IsShortOfRoom(status) And room <= mostRoom
        used = verticesA + verticesB
        capacity = used + room
        ReDim x(0 To capacity - 1), y(0 To capacity - 1), difference(0 To capacity - 1), overlap(0 To capacity - 1)
        Place pointsA, 0, x, y, positionsA
        Place pointsB, verticesA, x, y, positionsB
        HOHOLEDP x(0), y(0), verticesA, positionsA(0), verticesB, positionsB(0), capacity, crossings, capacity, _
            capacity, used, difference(0), overlap(0), status
        room = 2 * room
    Loop
    If status <> 0 Then Reject fault, errorValue
End Sub

Private Sub Place(ByRef points() As Double, ByVal first As Long, ByRef x() As Double, ByRef y() As Double, _
    ByRef positions() As Long)
    Dim k As Long
    ReDim positions(0 To UBound(points) \ 2)
    For k = 0 To UBound(positions)
        x(first + k) = points(2 * k)
        y(first + k) = points(2 * k + 1)
        positions(k) = first + k + 1
    Next k
End Sub

' A list has the number of vertices of each piece, their positions from 1, negative where a bridge begins, and a 0.
Private Function Listed(ByRef list() As Long) As Long
    Dim at As Long
    Do While list(at) <> 0
        Listed = Listed + list(at)
        at = at + list(at) + 1
    Loop
End Function

Private Sub Unfold(ByVal which As Long, ByRef list() As Long, ByRef x() As Double, ByRef y() As Double, _
    ByRef cells As Variant, ByRef n As Long)
    Dim at As Long, piece As Long, k As Long
    Do While list(at) <> 0
        piece = piece + 1
        For k = at + 1 To at + list(at)
            n = n + 1
            cells(n, 1) = which
            cells(n, 2) = piece
            cells(n, 3) = x(Abs(list(k)) - 1)
            cells(n, 4) = y(Abs(list(k)) - 1)
        Next k
        at = at + list(at) + 1
    Loop
End Sub

Private Function IsShortOfRoom(ByVal status As Long) As Boolean
    IsShortOfRoom = status = 7 Or status = 10 Or status = 11
End Function

' Specific enthalpy of dry air.
'   temperature: temperature [degC]; valid -50 to 100
'   -> specific enthalpy, 0 at 0 degC [kJ/kg]
'   Formula: 0.00071035 + 1.0058 t + 1.7139e-5 t^2 - 7.7976e-7 t^3 + 2.2256e-8 t^4 - 1.691e-10 t^5, t = temperature
'   Within 0.02 kJ/kg of the ASHRAE tables from -20 to 50 degC, but 0.3 above them at -50 degC.
'   At 0 degC it is 0.0007 kJ/kg: the constant of the fit is deliberate.
'   Source: Polynomial fit to tables of dry air; its author is not known.
Public Function PsychroDryAirEnthalpy(ByVal temperature As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(temperature))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryAirEnthalpy(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryAirEnthalpy = spread
        Exit Function
    End If
    Dim fault As Long
    Dim temperatureGiven As Single
    temperatureGiven = SingleOf(temperature, -50, 100, fault)
    If fault <> 0 Then
        PsychroDryAirEnthalpy = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSHDRY(temperatureGiven)
    PsychroDryAirEnthalpy = CellOf(valueResult)
End Function

' Specific enthalpy of water vapour.
'   temperature: temperature [degC]; valid -50 to 100
'   -> specific enthalpy, from liquid water at 0 degC [kJ/kg]
'   Formula: 2500.9 + 1.8439 t + 2.5285e-5 t^2 - 1.6297e-5 t^3 + 5.8962e-9 t^4 + 1.248e-9 t^5, t = temperature
'   Within 0.5 kJ/kg of saturated steam from 0 to 60 degC (IAPWS 1995), within 7 at 100 degC.
'   Source: Polynomial fit to tables of water vapour; its author is not known.
Public Function PsychroWaterVapourEnthalpy(ByVal temperature As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(temperature))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroWaterVapourEnthalpy(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroWaterVapourEnthalpy = spread
        Exit Function
    End If
    Dim fault As Long
    Dim temperatureGiven As Single
    temperatureGiven = SingleOf(temperature, -50, 100, fault)
    If fault <> 0 Then
        PsychroWaterVapourEnthalpy = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSHVAP(temperatureGiven)
    PsychroWaterVapourEnthalpy = CellOf(valueResult)
End Function

' Specific heat of dry air at constant pressure.
'   temperature: temperature [degC]; valid -50 to 100
'   -> specific heat [kJ/kgK]
'   The pieces meet, but for steps of 0.00004 kJ/kgK up at 40 degC and down at 50 degC, which are deliberate.
'   Source: Straight lines between tabulated values for each 10 K; the author of the table is not known.
Public Function PsychroDryAirSpecificHeat(ByVal temperature As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(temperature))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryAirSpecificHeat(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryAirSpecificHeat = spread
        Exit Function
    End If
    Dim fault As Long
    Dim temperatureGiven As Single
    temperatureGiven = SingleOf(temperature, -50, 100, fault)
    If fault <> 0 Then
        PsychroDryAirSpecificHeat = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSCPDR(temperatureGiven)
    PsychroDryAirSpecificHeat = CellOf(valueResult)
End Function

' Specific heat of water vapour at constant pressure.
'   temperature: temperature [degC]; valid -50 to 100
'   -> specific heat [kJ/kgK]
'   Formula: 1.7 + 0.01 temperature, at most 1.9
'   Constant from 20 degC up.
'   Source: Rounded engineering values; their author is not known.
Public Function PsychroWaterVapourSpecificHeat(ByVal temperature As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(temperature))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroWaterVapourSpecificHeat(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroWaterVapourSpecificHeat = spread
        Exit Function
    End If
    Dim fault As Long
    Dim temperatureGiven As Single
    temperatureGiven = SingleOf(temperature, -50, 100, fault)
    If fault <> 0 Then
        PsychroWaterVapourSpecificHeat = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSCPVA(temperatureGiven)
    PsychroWaterVapourSpecificHeat = CellOf(valueResult)
End Function

' Latent heat of evaporation of water, of sublimation of ice below 0 degC.
'   temperature: temperature [degC]; valid -50 to 100
'   -> latent heat [kJ/kg]
'   At exactly 60 degC the result is 0: the table's row for it is empty, which is deliberate. Just below and above, it
'   is 2357.9.
'   Within 0.5 kJ/kg of the international values (IAPWS 1995) from 0 to 60 degC.
'   Source: Straight lines between tabulated values for each 10 K; the author of the table is not known.
Public Function PsychroLatentHeat(ByVal temperature As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(temperature))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroLatentHeat(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroLatentHeat = spread
        Exit Function
    End If
    Dim fault As Long
    Dim temperatureGiven As Single
    temperatureGiven = SingleOf(temperature, -50, 100, fault)
    If fault <> 0 Then
        PsychroLatentHeat = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSHFG(temperatureGiven)
    PsychroLatentHeat = CellOf(valueResult)
End Function

' Dry bulb of air with a vapour pressure and relative humidity.
'   vapourPressure: vapour pressure [Pa]; valid from 0
'   relativeHumidity: relative humidity [%]; valid 0 to 100
'   -> dry-bulb temperature [degC]
'   Formula: rh / 100 ps(t) = pv
'   Found from -200 to 400 degC; where there is none, as for arguments out of range, the result is not a number.
'   Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
'   Source: The dew point of saturated air of that temperature, by dew_point.
Public Function PsychroDryBulbFromVapourPressureAndRelativeHumidity(ByVal vapourPressure As Variant, _
    ByVal relativeHumidity As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(vapourPressure), HeldBy(relativeHumidity))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromVapourPressureAndRelativeHumidity(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromVapourPressureAndRelativeHumidity = spread
        Exit Function
    End If
    Dim fault As Long
    Dim vapourPressureGiven As Single
    Dim relativeHumidityGiven As Single
    vapourPressureGiven = SingleOf(vapourPressure, 0, largest, fault)
    relativeHumidityGiven = SingleOf(relativeHumidity, 0, 100, fault)
    If fault <> 0 Then
        PsychroDryBulbFromVapourPressureAndRelativeHumidity = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity 1, vapourPressureGiven, 0, relativeHumidityGiven, 0, _
        valueResult, 0
    PsychroDryBulbFromVapourPressureAndRelativeHumidity = CellOf(valueResult)
End Function

' Dry bulb of air with a vapour pressure and percentage saturation.
'   vapourPressure: vapour pressure [Pa]; valid from 0
'   percentageSaturation: percentage saturation [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> dry-bulb temperature [degC]
'   Formula: percentage / 100 gs(t, p) = moisture_content(t, pv, p)
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   Up to where water boils at the atmospheric pressure. The percentage is not limited.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromVapourPressureAndPercentageSaturation(ByVal vapourPressure As Variant, _
    ByVal percentageSaturation As Variant, ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(vapourPressure), HeldBy(percentageSaturation), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromVapourPressureAndPercentageSaturation(CellAt(held(0), _
                    rowAt, columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromVapourPressureAndPercentageSaturation = spread
        Exit Function
    End If
    Dim fault As Long
    Dim vapourPressureGiven As Single
    Dim percentageSaturationGiven As Single
    Dim pressureGiven As Single
    vapourPressureGiven = SingleOf(vapourPressure, 0, largest, fault)
    percentageSaturationGiven = SingleOf(percentageSaturation, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroDryBulbFromVapourPressureAndPercentageSaturation = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation 1, vapourPressureGiven, 0, _
        percentageSaturationGiven, 0, pressureGiven, 0, valueResult, 0
    PsychroDryBulbFromVapourPressureAndPercentageSaturation = CellOf(valueResult)
End Function

' Dry bulb of air with a moisture content and relative humidity.
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   relativeHumidity: relative humidity [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> dry-bulb temperature [degC]
'   Formula: rh / 100 ps(t) = vapour_pressure_from_moisture_content(t, g, p)
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromMoistureContentAndRelativeHumidity(ByVal moistureContent As Variant, _
    ByVal relativeHumidity As Variant, ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(moistureContent), HeldBy(relativeHumidity), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromMoistureContentAndRelativeHumidity(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromMoistureContentAndRelativeHumidity = spread
        Exit Function
    End If
    Dim fault As Long
    Dim moistureContentGiven As Single
    Dim relativeHumidityGiven As Single
    Dim pressureGiven As Single
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    relativeHumidityGiven = SingleOf(relativeHumidity, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroDryBulbFromMoistureContentAndRelativeHumidity = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_moisture_content_and_relative_humidity 1, moistureContentGiven, 0, relativeHumidityGiven, _
        0, pressureGiven, 0, valueResult, 0
    PsychroDryBulbFromMoistureContentAndRelativeHumidity = CellOf(valueResult)
End Function

' Dry bulb of air with a moisture content and percentage saturation.
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   percentageSaturation: percentage saturation [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> dry-bulb temperature [degC]
'   Formula: percentage / 100 gs(t, p) = g
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   Up to where water boils at the atmospheric pressure. The percentage is not limited.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromMoistureContentAndPercentageSaturation(ByVal moistureContent As Variant, _
    ByVal percentageSaturation As Variant, ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(moistureContent), HeldBy(percentageSaturation), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromMoistureContentAndPercentageSaturation(CellAt(held(0), _
                    rowAt, columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromMoistureContentAndPercentageSaturation = spread
        Exit Function
    End If
    Dim fault As Long
    Dim moistureContentGiven As Single
    Dim percentageSaturationGiven As Single
    Dim pressureGiven As Single
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    percentageSaturationGiven = SingleOf(percentageSaturation, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroDryBulbFromMoistureContentAndPercentageSaturation = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_moisture_content_and_percentage_saturation 1, moistureContentGiven, 0, _
        percentageSaturationGiven, 0, pressureGiven, 0, valueResult, 0
    PsychroDryBulbFromMoistureContentAndPercentageSaturation = CellOf(valueResult)
End Function

' Dry bulb of air with a specific enthalpy and moisture content.
'   enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   -> dry-bulb temperature [degC]
'   Formula: ha(t) + g hv(t) = h
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   The enthalpies hold from -50 to 100 degC.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromEnthalpyAndMoistureContent(ByVal enthalpy As Variant, _
    ByVal moistureContent As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(enthalpy), HeldBy(moistureContent))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromEnthalpyAndMoistureContent(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromEnthalpyAndMoistureContent = spread
        Exit Function
    End If
    Dim fault As Long
    Dim enthalpyGiven As Single
    Dim moistureContentGiven As Single
    enthalpyGiven = SingleOf(enthalpy, -10, 460, fault)
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    If fault <> 0 Then
        PsychroDryBulbFromEnthalpyAndMoistureContent = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_enthalpy_and_moisture_content 1, enthalpyGiven, 0, moistureContentGiven, 0, valueResult, 0
    PsychroDryBulbFromEnthalpyAndMoistureContent = CellOf(valueResult)
End Function

' Dry bulb of air with a specific enthalpy and vapour pressure.
'   enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
'   vapourPressure: vapour pressure [Pa]; valid from 0
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> dry-bulb temperature [degC]
'   Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, pv, p)
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   The enthalpies hold from -50 to 100 degC.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromEnthalpyAndVapourPressure(ByVal enthalpy As Variant, _
    ByVal vapourPressure As Variant, ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(enthalpy), HeldBy(vapourPressure), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromEnthalpyAndVapourPressure(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromEnthalpyAndVapourPressure = spread
        Exit Function
    End If
    Dim fault As Long
    Dim enthalpyGiven As Single
    Dim vapourPressureGiven As Single
    Dim pressureGiven As Single
    enthalpyGiven = SingleOf(enthalpy, -10, 460, fault)
    vapourPressureGiven = SingleOf(vapourPressure, 0, largest, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroDryBulbFromEnthalpyAndVapourPressure = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_enthalpy_and_vapour_pressure 1, enthalpyGiven, 0, vapourPressureGiven, 0, pressureGiven, 0, _
        valueResult, 0
    PsychroDryBulbFromEnthalpyAndVapourPressure = CellOf(valueResult)
End Function

' Dry bulb of air with a specific enthalpy and relative humidity.
'   enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
'   relativeHumidity: relative humidity [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> dry-bulb temperature [degC]
'   Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, rh / 100 ps(t), p)
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   The enthalpies hold from -50 to 100 degC.
'   Relative humidity is limited to 0 to 100 %, not rejected.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromEnthalpyAndRelativeHumidity(ByVal enthalpy As Variant, _
    ByVal relativeHumidity As Variant, ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(enthalpy), HeldBy(relativeHumidity), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromEnthalpyAndRelativeHumidity(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromEnthalpyAndRelativeHumidity = spread
        Exit Function
    End If
    Dim fault As Long
    Dim enthalpyGiven As Single
    Dim relativeHumidityGiven As Single
    Dim pressureGiven As Single
    enthalpyGiven = SingleOf(enthalpy, -10, 460, fault)
    relativeHumidityGiven = SingleOf(relativeHumidity, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroDryBulbFromEnthalpyAndRelativeHumidity = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_enthalpy_and_relative_humidity 1, enthalpyGiven, 0, relativeHumidityGiven, 0, _
        pressureGiven, 0, valueResult, 0
    PsychroDryBulbFromEnthalpyAndRelativeHumidity = CellOf(valueResult)
End Function

' Dry bulb of air with a specific enthalpy and percentage saturation.
'   enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
'   percentageSaturation: percentage saturation [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> dry-bulb temperature [degC]
'   Formula: moisture_content_from_enthalpy(t, h) = percentage / 100 gs(t, p)
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   The enthalpies hold from -50 to 100 degC.
'   Up to where water boils at the atmospheric pressure. The percentage is not limited.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromEnthalpyAndPercentageSaturation(ByVal enthalpy As Variant, _
    ByVal percentageSaturation As Variant, ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(enthalpy), HeldBy(percentageSaturation), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromEnthalpyAndPercentageSaturation(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromEnthalpyAndPercentageSaturation = spread
        Exit Function
    End If
    Dim fault As Long
    Dim enthalpyGiven As Single
    Dim percentageSaturationGiven As Single
    Dim pressureGiven As Single
    enthalpyGiven = SingleOf(enthalpy, -10, 460, fault)
    percentageSaturationGiven = SingleOf(percentageSaturation, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroDryBulbFromEnthalpyAndPercentageSaturation = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_enthalpy_and_percentage_saturation 1, enthalpyGiven, 0, percentageSaturationGiven, 0, _
        pressureGiven, 0, valueResult, 0
    PsychroDryBulbFromEnthalpyAndPercentageSaturation = CellOf(valueResult)
End Function

' Dry bulb of air with a wet bulb and vapour pressure.
'   wetBulb: wet-bulb temperature [degC]; valid -100 to 200
'   vapourPressure: vapour pressure [Pa]; valid from 0
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> dry-bulb temperature [degC]
'   Formula: t = twb + (ps(twb) - pv) / (A p)
'   A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Psychrometer equation of vapour_pressure_from_psychrometer, solved for the dry bulb.
Public Function PsychroDryBulbFromWetBulbAndVapourPressure(ByVal wetBulb As Variant, ByVal vapourPressure As Variant, _
    ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(wetBulb), HeldBy(vapourPressure), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromWetBulbAndVapourPressure(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromWetBulbAndVapourPressure = spread
        Exit Function
    End If
    Dim fault As Long
    Dim wetBulbGiven As Single
    Dim vapourPressureGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    wetBulbGiven = SingleOf(wetBulb, -100, 200, fault)
    vapourPressureGiven = SingleOf(vapourPressure, 0, largest, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroDryBulbFromWetBulbAndVapourPressure = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure 1, wetBulbGiven, 0, vapourPressureGiven, 0, pressureGiven, 0, _
        psychrometerGiven, 0, valueResult, 0
    PsychroDryBulbFromWetBulbAndVapourPressure = CellOf(valueResult)
End Function

' Dry bulb of air with a wet bulb and moisture content.
'   wetBulb: wet-bulb temperature [degC]; valid -100 to 200
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> dry-bulb temperature [degC]
'   Formula: vapour_pressure_from_psychrometer(t, twb, p) = vapour_pressure_from_moisture_content(t, g, p)
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromWetBulbAndMoistureContent(ByVal wetBulb As Variant, _
    ByVal moistureContent As Variant, ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(wetBulb), HeldBy(moistureContent), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromWetBulbAndMoistureContent(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromWetBulbAndMoistureContent = spread
        Exit Function
    End If
    Dim fault As Long
    Dim wetBulbGiven As Single
    Dim moistureContentGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    wetBulbGiven = SingleOf(wetBulb, -100, 200, fault)
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroDryBulbFromWetBulbAndMoistureContent = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_wet_bulb_and_moisture_content 1, wetBulbGiven, 0, moistureContentGiven, 0, pressureGiven, _
        0, psychrometerGiven, 0, valueResult, 0
    PsychroDryBulbFromWetBulbAndMoistureContent = CellOf(valueResult)
End Function

' Dry bulb of air with a wet bulb and relative humidity.
'   wetBulb: wet-bulb temperature [degC]; valid -100 to 200
'   relativeHumidity: relative humidity [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> dry-bulb temperature [degC]
'   Formula: vapour_pressure_from_psychrometer(t, twb, p) = rh / 100 ps(t)
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   Relative humidity is limited to 0 to 100 %, not rejected.
'   A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromWetBulbAndRelativeHumidity(ByVal wetBulb As Variant, _
    ByVal relativeHumidity As Variant, ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(wetBulb), HeldBy(relativeHumidity), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromWetBulbAndRelativeHumidity(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromWetBulbAndRelativeHumidity = spread
        Exit Function
    End If
    Dim fault As Long
    Dim wetBulbGiven As Single
    Dim relativeHumidityGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    wetBulbGiven = SingleOf(wetBulb, -100, 200, fault)
    relativeHumidityGiven = SingleOf(relativeHumidity, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroDryBulbFromWetBulbAndRelativeHumidity = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_wet_bulb_and_relative_humidity 1, wetBulbGiven, 0, relativeHumidityGiven, 0, pressureGiven, _
        0, psychrometerGiven, 0, valueResult, 0
    PsychroDryBulbFromWetBulbAndRelativeHumidity = CellOf(valueResult)
End Function

' Dry bulb of air with a wet bulb and percentage saturation.
'   wetBulb: wet-bulb temperature [degC]; valid -100 to 200
'   percentageSaturation: percentage saturation [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> dry-bulb temperature [degC]
'   Formula: moisture_content_from_psychrometer(t, twb, p) = percentage / 100 gs(t, p)
'   Found from -100 to 200 degC; where there is none, as for arguments out of range, the result is not a number.
'   Up to where water boils at the atmospheric pressure. The percentage is not limited.
'   A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromWetBulbAndPercentageSaturation(ByVal wetBulb As Variant, _
    ByVal percentageSaturation As Variant, ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(wetBulb), HeldBy(percentageSaturation), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromWetBulbAndPercentageSaturation(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromWetBulbAndPercentageSaturation = spread
        Exit Function
    End If
    Dim fault As Long
    Dim wetBulbGiven As Single
    Dim percentageSaturationGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    wetBulbGiven = SingleOf(wetBulb, -100, 200, fault)
    percentageSaturationGiven = SingleOf(percentageSaturation, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroDryBulbFromWetBulbAndPercentageSaturation = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation 1, wetBulbGiven, 0, percentageSaturationGiven, 0, _
        pressureGiven, 0, psychrometerGiven, 0, valueResult, 0
    PsychroDryBulbFromWetBulbAndPercentageSaturation = CellOf(valueResult)
End Function

' Dry bulb of air with a wet bulb and specific enthalpy.
'   wetBulb: wet-bulb temperature [degC]; valid -100 to 200
'   enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> dry-bulb temperature [degC]
'   Formula: specific_enthalpy_from_psychrometer(t, twb, p) = h
'   Badly conditioned, since the enthalpy hardly changes along a wet bulb: 0.01 kJ/kg of enthalpy can be 0.25 K of dry
'   bulb. For wet bulbs from -50 to 55 degC, above which the enthalpy turns.
'   An enthalpy that no air of that wet bulb has, between saturated and dry, gives not a number; 1 K beyond saturation
'   is allowed for, and gives the wet bulb.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Newton's method in double precision on the equations of the routines named.
Public Function PsychroDryBulbFromWetBulbAndEnthalpy(ByVal wetBulb As Variant, ByVal enthalpy As Variant, _
    ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(wetBulb), HeldBy(enthalpy), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDryBulbFromWetBulbAndEnthalpy(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        PsychroDryBulbFromWetBulbAndEnthalpy = spread
        Exit Function
    End If
    Dim fault As Long
    Dim wetBulbGiven As Single
    Dim enthalpyGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    wetBulbGiven = SingleOf(wetBulb, -100, 200, fault)
    enthalpyGiven = SingleOf(enthalpy, -10, 460, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroDryBulbFromWetBulbAndEnthalpy = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dry_bulb_from_wet_bulb_and_enthalpy 1, wetBulbGiven, 0, enthalpyGiven, 0, pressureGiven, 0, _
        psychrometerGiven, 0, valueResult, 0
    PsychroDryBulbFromWetBulbAndEnthalpy = CellOf(valueResult)
End Function

' Two streams of moist air that become one, without heat from outside.
'   firstAirFlow: mass flow of dry air in the first stream, or its share in any unit [kg/s]; valid from 0
'   firstDryBulb: dry-bulb temperature of the first stream [degC]; valid -100 to 200
'   firstMoistureContent: moisture content of the first stream [kg/kg]; valid 0 to 0.1
'   secondAirFlow: mass flow of dry air in the second stream, in the same unit [kg/s]; valid from 0
'   secondDryBulb: dry-bulb temperature of the second stream [degC]; valid -100 to 200
'   secondMoistureContent: moisture content of the second stream [kg/kg]; valid 0 to 0.1
'   -> dryBulb: dry-bulb temperature of the mixture [degC]
'   -> moistureContent: moisture content of the mixture [kg/kg]
'   -> enthalpy: specific enthalpy of the mixture, by mass of dry air [kJ/kg]
'   Formula: g = (m1 g1 + m2 g2) / (m1 + m2), h likewise; t from h and g
'   All moisture counts as vapour: percentage_saturation says whether the mixture is above saturation and would form
'   fog.
'   The enthalpies hold from -50 to 100 degC. Where no dry bulb from -100 to 200 degC belongs to the mixture, it is not
'   a number; nor is anything without flow.
'   Source: Balances of enthalpy, water and dry air: ASHRAE Handbook Fundamentals 2017, chapter 1, adiabatic mixing of
'   two moist airstreams.
Public Function PsychroAdiabaticMixing(ByVal firstAirFlow As Variant, ByVal firstDryBulb As Variant, _
    ByVal firstMoistureContent As Variant, ByVal secondAirFlow As Variant, ByVal secondDryBulb As Variant, _
    ByVal secondMoistureContent As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(firstAirFlow), HeldBy(firstDryBulb), HeldBy(firstMoistureContent), HeldBy(secondAirFlow), _
        HeldBy(secondDryBulb), HeldBy(secondMoistureContent))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, PsychroAdiabaticMixing(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroAdiabaticMixing = spread
        Exit Function
    End If
    Dim fault As Long
    Dim firstAirFlowGiven As Single
    Dim firstDryBulbGiven As Single
    Dim firstMoistureContentGiven As Single
    Dim secondAirFlowGiven As Single
    Dim secondDryBulbGiven As Single
    Dim secondMoistureContentGiven As Single
    firstAirFlowGiven = SingleOf(firstAirFlow, 0, largest, fault)
    firstDryBulbGiven = SingleOf(firstDryBulb, -100, 200, fault)
    firstMoistureContentGiven = SingleOf(firstMoistureContent, 0, 0.1, fault)
    secondAirFlowGiven = SingleOf(secondAirFlow, 0, largest, fault)
    secondDryBulbGiven = SingleOf(secondDryBulb, -100, 200, fault)
    secondMoistureContentGiven = SingleOf(secondMoistureContent, 0, 0.1, fault)
    If fault <> 0 Then
        PsychroAdiabaticMixing = CVErr(fault)
        Exit Function
    End If
    Dim dryBulbResult As Single
    dryBulbResult = unwritten
    Dim moistureContentResult As Single
    moistureContentResult = unwritten
    Dim enthalpyResult As Single
    enthalpyResult = unwritten
    quorvel_adiabatic_mixing 1, firstAirFlowGiven, 0, firstDryBulbGiven, 0, firstMoistureContentGiven, 0, _
        secondAirFlowGiven, 0, secondDryBulbGiven, 0, secondMoistureContentGiven, 0, dryBulbResult, 0, _
        moistureContentResult, 0, enthalpyResult, 0
    PsychroAdiabaticMixing = Array(CellOf(dryBulbResult), CellOf(moistureContentResult), CellOf(enthalpyResult))
End Function

' Moisture content of air from the reading of a wet-and-dry-bulb psychrometer.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   wetBulb: wet-bulb temperature [degC]; valid -100 to 200
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> moisture content, water vapour per dry air [kg/kg]
'   Formula: g = 0.62197 f pv / (p - f pv)
'   A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken when the wet bulb
'   is below 0 degC.
'   The enhancement factor takes its ice coefficients at 0 degC and below, where the saturation pressure counts exactly
'   0 degC as water; the difference is deliberate.
'   Not limited: a reading drier than any air gives a negative content, a vapour pressure above the atmospheric too.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Vapour pressure of PsychroVapourPressureFromPsychrometer; the enhancement factor f is a quadratic in
'   absolute temperature whose coefficients are linear in pressure.
Public Function PsychroMoistureContentFromPsychrometer(ByVal dryBulb As Variant, ByVal wetBulb As Variant, _
    ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(wetBulb), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroMoistureContentFromPsychrometer(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        PsychroMoistureContentFromPsychrometer = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim wetBulbGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    wetBulbGiven = SingleOf(wetBulb, -100, 200, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroMoistureContentFromPsychrometer = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSGS(dryBulbGiven, wetBulbGiven, pressureGiven, psychrometerGiven)
    PsychroMoistureContentFromPsychrometer = CellOf(valueResult)
End Function

' Moisture content of air with a vapour pressure.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   vapourPressure: vapour pressure [Pa]; valid from 0
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> moisture content, water vapour per dry air [kg/kg]
'   Formula: g = 0.62197 f pv / (p - f pv)
'   Enhancement factor f of moisture_content_from_psychrometer, at the dry bulb.
'   Not limited: neither to saturation, nor to vapour pressures below the atmospheric.
'   Source: Definition for a mixture of ideal gases, ASHRAE Handbook Fundamentals 2017, chapter 1, with the enhancement
'   factor of moisture_content_from_psychrometer.
Public Function PsychroMoistureContent(ByVal dryBulb As Variant, ByVal vapourPressure As Variant, _
    ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(vapourPressure), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroMoistureContent(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroMoistureContent = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim vapourPressureGiven As Single
    Dim pressureGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    vapourPressureGiven = SingleOf(vapourPressure, 0, largest, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroMoistureContent = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_moisture_content 1, dryBulbGiven, 0, vapourPressureGiven, 0, pressureGiven, 0, valueResult, 0
    PsychroMoistureContent = CellOf(valueResult)
End Function

' Vapour pressure of air with a moisture content, the inverse of moisture_content.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> vapour pressure [Pa]
'   Formula: pv = p g / (f (0.62197 + g))
'   Not limited to saturation.
'   Source: As moisture_content.
Public Function PsychroVapourPressureFromMoistureContent(ByVal dryBulb As Variant, ByVal moistureContent As Variant, _
    ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(moistureContent), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroVapourPressureFromMoistureContent(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroVapourPressureFromMoistureContent = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim moistureContentGiven As Single
    Dim pressureGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroVapourPressureFromMoistureContent = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_vapour_pressure_from_moisture_content 1, dryBulbGiven, 0, moistureContentGiven, 0, pressureGiven, 0, _
        valueResult, 0
    PsychroVapourPressureFromMoistureContent = CellOf(valueResult)
End Function

' Moisture content of air with a percentage saturation, the inverse of percentage_saturation.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   percentageSaturation: percentage saturation [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> moisture content, water vapour per dry air [kg/kg]
'   Formula: g = percentage / 100 gs(t, p)
'   Not limited. From boiling on, where the saturation pressure is above the atmospheric, it means nothing.
'   Source: Definition, with the saturation moisture content of moisture_content_from_psychrometer.
Public Function PsychroMoistureContentFromPercentageSaturation(ByVal dryBulb As Variant, _
    ByVal percentageSaturation As Variant, ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(percentageSaturation), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroMoistureContentFromPercentageSaturation(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroMoistureContentFromPercentageSaturation = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim percentageSaturationGiven As Single
    Dim pressureGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    percentageSaturationGiven = SingleOf(percentageSaturation, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroMoistureContentFromPercentageSaturation = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_moisture_content_from_percentage_saturation 1, dryBulbGiven, 0, percentageSaturationGiven, 0, _
        pressureGiven, 0, valueResult, 0
    PsychroMoistureContentFromPercentageSaturation = CellOf(valueResult)
End Function

' Moisture content of air with a specific enthalpy, the inverse of specific_enthalpy.
'   dryBulb: dry-bulb temperature [degC]; valid -50 to 100
'   enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
'   -> moisture content, water vapour per dry air [kg/kg]
'   Formula: g = (h - ha(t)) / hv(t)
'   Not limited: negative where dry air alone has more, and neither to saturation.
'   Source: As specific_enthalpy.
Public Function PsychroMoistureContentFromEnthalpy(ByVal dryBulb As Variant, ByVal enthalpy As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(enthalpy))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroMoistureContentFromEnthalpy(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroMoistureContentFromEnthalpy = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim enthalpyGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -50, 100, fault)
    enthalpyGiven = SingleOf(enthalpy, -10, 460, fault)
    If fault <> 0 Then
        PsychroMoistureContentFromEnthalpy = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_moisture_content_from_enthalpy 1, dryBulbGiven, 0, enthalpyGiven, 0, valueResult, 0
    PsychroMoistureContentFromEnthalpy = CellOf(valueResult)
End Function

' Density of moist air.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> density of the moist air [kg/m3]
'   Formula: (1 + g) / v, by specific_volume
'   A moisture content above saturation counts as saturation.
'   Source: Definition: ASHRAE Handbook Fundamentals 2017, chapter 1.
Public Function PsychroMoistAirDensity(ByVal dryBulb As Variant, ByVal moistureContent As Variant, _
    ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(moistureContent), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroMoistAirDensity(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroMoistAirDensity = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim moistureContentGiven As Single
    Dim pressureGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroMoistAirDensity = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_moist_air_density 1, dryBulbGiven, 0, moistureContentGiven, 0, pressureGiven, 0, valueResult, 0
    PsychroMoistAirDensity = CellOf(valueResult)
End Function

' Percentage saturation: moisture content by that of saturated air at the same temperature and pressure.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> percentage saturation [%]
'   Formula: 100 g / gs(t, p)
'   Not limited: supersaturated air gives more than 100.
'   Percentage saturation is not relative humidity, the ratio of vapour pressures, and is the lower of the two.
'   Source: Definition, with the saturation moisture content of PsychroMoistureContentFromPsychrometer.
Public Function PsychroPercentageSaturation(ByVal dryBulb As Variant, ByVal moistureContent As Variant, _
    ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(moistureContent), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroPercentageSaturation(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroPercentageSaturation = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim moistureContentGiven As Single
    Dim pressureGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroPercentageSaturation = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSPCST(dryBulbGiven, moistureContentGiven, pressureGiven)
    PsychroPercentageSaturation = CellOf(valueResult)
End Function

' Specific enthalpy of moist air.
'   dryBulb: dry-bulb temperature [degC]; valid -50 to 100
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   -> specific enthalpy, by mass of dry air [kJ/kg]
'   Formula: h = ha(t) + g hv(t), by dry_air_enthalpy and water_vapour_enthalpy
'   Per kilogram of dry air, from dry air and liquid water at 0 degC.
'   All moisture counts as vapour: the moisture content is not limited to that of saturated air.
'   Source: Sum over dry air and vapour, as for mixtures of ideal gases: ASHRAE Handbook Fundamentals 2017, chapter 1.
Public Function PsychroSpecificEnthalpy(ByVal dryBulb As Variant, ByVal moistureContent As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(moistureContent))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroSpecificEnthalpy(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroSpecificEnthalpy = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim moistureContentGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -50, 100, fault)
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    If fault <> 0 Then
        PsychroSpecificEnthalpy = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_specific_enthalpy 1, dryBulbGiven, 0, moistureContentGiven, 0, valueResult, 0
    PsychroSpecificEnthalpy = CellOf(valueResult)
End Function

' Specific enthalpy of moist air from the reading of a wet-and-dry-bulb psychrometer.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   wetBulb: wet-bulb temperature [degC]; valid -100 to 200
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> specific enthalpy, by mass of dry air [kJ/kg]
'   Formula: h = PsychroDryAirEnthalpy(t) + g PsychroWaterVapourEnthalpy(t), g =
'   PsychroMoistureContentFromPsychrometer(t, twb, p)
'   A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken when the wet bulb
'   is below 0 degC.
'   Per kilogram of dry air, from dry air and liquid water at 0 degC.
'   Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 degC, within 0.2 % up to 50
'   degC.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Enthalpies of PsychroDryAirEnthalpy and PsychroWaterVapourEnthalpy, moisture content of
'   PsychroMoistureContentFromPsychrometer.
Public Function PsychroSpecificEnthalpyFromPsychrometer(ByVal dryBulb As Variant, ByVal wetBulb As Variant, _
    ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(wetBulb), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroSpecificEnthalpyFromPsychrometer(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        PsychroSpecificEnthalpyFromPsychrometer = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim wetBulbGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    wetBulbGiven = SingleOf(wetBulb, -100, 200, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroSpecificEnthalpyFromPsychrometer = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSHWET(dryBulbGiven, wetBulbGiven, pressureGiven, psychrometerGiven)
    PsychroSpecificEnthalpyFromPsychrometer = CellOf(valueResult)
End Function

' Specific volume of moist air.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> specific volume, by mass of dry air [m3/kg]
'   Formula: v = 287.04 (t + 273.15) / pa - xa^2 B - 2 xa xv C - xv^2 D; xa = 0.62197 / (0.62197 + g), xv = 1 - xa, pa =
'   p - p g / (1.0045 (0.62197 + g))
'   A moisture content above saturation counts as saturation.
'   Per kilogram of dry air: the reciprocal is not the density of the moist air.
'   Virial coefficients of air, B = (4.542 - 0.082785 t + 0.0004353 t^2 - 2.1418e-6 t^3) / 10000, and of air with
'   vapour, C = (1.45 - 0.0097 t + 0.32 (t / 100)^2) / 1000; that of vapour, D, follows straight lines, one below 0 degC
'   and one for each 10 K up to 50 degC and beyond.
'   Source: Virial equation of the mixture, written for 101325 Pa (1.0045 is the enhancement factor there); its author
'   is not known.
Public Function PsychroSpecificVolume(ByVal dryBulb As Variant, ByVal moistureContent As Variant, _
    ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(moistureContent), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroSpecificVolume(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroSpecificVolume = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim moistureContentGiven As Single
    Dim pressureGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroSpecificVolume = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSSPVL(dryBulbGiven, moistureContentGiven, pressureGiven)
    PsychroSpecificVolume = CellOf(valueResult)
End Function

' Temperature at which saturated air has a specific enthalpy.
'   enthalpy: specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> saturation temperature [degC]
'   An enthalpy below -10 gives -13.4, above 460 it gives 60, whatever the pressure; at 101325 Pa the search itself
'   gives -12.98 and 59.98 there.
'   A stepping search with steps down to 0.01 K: the result is below the exact temperature by less than that, or above
'   it by 0.001 K at most.
'   Where the search would never end (a pressure so low that the water boils, an argument that is not a number), the
'   value it has reached is returned: some ten thousand degrees.
'   Source: Enthalpy of PsychroSpecificEnthalpyFromPsychrometer, solved by a step-and-refine search.
Public Function PsychroSaturationTemperatureFromEnthalpy(ByVal enthalpy As Variant, _
    ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(enthalpy), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroSaturationTemperatureFromEnthalpy(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroSaturationTemperatureFromEnthalpy = spread
        Exit Function
    End If
    Dim fault As Long
    Dim enthalpyGiven As Single
    Dim pressureGiven As Single
    enthalpyGiven = SingleOf(enthalpy, -10, 460, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroSaturationTemperatureFromEnthalpy = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSTSAT(enthalpyGiven, pressureGiven)
    PsychroSaturationTemperatureFromEnthalpy = CellOf(valueResult)
End Function

' Evaporation from an indoor pool and its heat flows, for room air given by its moisture content.
'   waterArea: area of the water surface [m2]; valid from 0
'   wettedArea: further wetted area, which adds to the latent load only [m2]; valid from 0
'   waterTemperature: water temperature [degC]; valid -100 to 200
'   dryBulb: dry-bulb temperature of the room air [degC]; valid -100 to 200
'   moistureContent: moisture content of the room air [kg/kg]; valid 0 to 0.1
'   referenceTemperature: second reference temperature [degC]; valid -100 to 200
'   bathers: number of bathers, below 1 unoccupied; valid from 0
'   referenceCoefficient: coefficient of the exchange with the second reference temperature [W/m2K]; valid from 0
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> evaporationRate: evaporation rate [kg/(m2s)]
'   -> latentLoad: latent load, 2.45 MJ per kg evaporated [W]
'   -> convectiveLoad: convection from the water to the room air at 10 W/m2K [W]
'   -> referenceLoad: exchange of the water with the second reference temperature [W]
'   Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without bathers, 4.17e-8 dp
'   bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6 evaporation_rate (water_area + wetted_area)
'   The vapour pressure is that of a sling psychrometer at the wet bulb of PsychroWetBulbFromMoistureContent, and good
'   to the step of that search.
'   Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
'   With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
'   Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in kg/(m2h)),
'   turned to kg/(m2s); fixed latent heat and convective coefficient.
Public Function PsychroPoolEvaporation(ByVal waterArea As Variant, ByVal wettedArea As Variant, _
    ByVal waterTemperature As Variant, ByVal dryBulb As Variant, ByVal moistureContent As Variant, _
    ByVal referenceTemperature As Variant, ByVal bathers As Variant, ByVal referenceCoefficient As Variant, _
    ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(waterArea), HeldBy(wettedArea), HeldBy(waterTemperature), HeldBy(dryBulb), _
        HeldBy(moistureContent), HeldBy(referenceTemperature), HeldBy(bathers), HeldBy(referenceCoefficient), _
        HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, PsychroPoolEvaporation(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt), _
                    CellAt(held(6), rowAt, columnAt), CellAt(held(7), rowAt, columnAt), CellAt(held(8), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        PsychroPoolEvaporation = spread
        Exit Function
    End If
    Dim fault As Long
    Dim waterAreaGiven As Single
    Dim wettedAreaGiven As Single
    Dim waterTemperatureGiven As Single
    Dim dryBulbGiven As Single
    Dim moistureContentGiven As Single
    Dim referenceTemperatureGiven As Single
    Dim bathersGiven As Long
    Dim referenceCoefficientGiven As Single
    Dim pressureGiven As Single
    waterAreaGiven = SingleOf(waterArea, 0, largest, fault)
    wettedAreaGiven = SingleOf(wettedArea, 0, largest, fault)
    waterTemperatureGiven = SingleOf(waterTemperature, -100, 200, fault)
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    referenceTemperatureGiven = SingleOf(referenceTemperature, -100, 200, fault)
    bathersGiven = LongOf(bathers, 0, 2147483647, fault)
    referenceCoefficientGiven = SingleOf(referenceCoefficient, 0, largest, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroPoolEvaporation = CVErr(fault)
        Exit Function
    End If
    Dim evaporationRateResult As Single
    evaporationRateResult = unwritten
    Dim latentLoadResult As Single
    latentLoadResult = unwritten
    Dim convectiveLoadResult As Single
    convectiveLoadResult = unwritten
    Dim referenceLoadResult As Single
    referenceLoadResult = unwritten
    TPPOOL waterAreaGiven, wettedAreaGiven, waterTemperatureGiven, dryBulbGiven, moistureContentGiven, _
        referenceTemperatureGiven, bathersGiven, referenceCoefficientGiven, pressureGiven, evaporationRateResult, _
        latentLoadResult, convectiveLoadResult, referenceLoadResult
    PsychroPoolEvaporation = Array(CellOf(evaporationRateResult), CellOf(latentLoadResult), _
        CellOf(convectiveLoadResult), CellOf(referenceLoadResult))
End Function

' Evaporation from an indoor pool and its heat flows, for room air given by its wet bulb.
'   waterArea: area of the water surface [m2]; valid from 0
'   wettedArea: further wetted area, which adds to the latent load only [m2]; valid from 0
'   waterTemperature: water temperature [degC]; valid -100 to 200
'   dryBulb: dry-bulb temperature of the room air [degC]; valid -100 to 200
'   wetBulb: wet-bulb temperature of the room air, sling psychrometer [degC]; valid -100 to 200
'   referenceTemperature: second reference temperature [degC]; valid -100 to 200
'   bathers: number of bathers, below 1 unoccupied; valid from 0
'   referenceCoefficient: coefficient of the exchange with the second reference temperature [W/m2K]; valid from 0
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   -> evaporationRate: evaporation rate [kg/(m2s)]
'   -> latentLoad: latent load, 2.45 MJ per kg evaporated [W]
'   -> convectiveLoad: convection from the water to the room air at 10 W/m2K [W]
'   -> referenceLoad: exchange of the water with the second reference temperature [W]
'   Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without bathers, 4.17e-8 dp
'   bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6 evaporation_rate (water_area + wetted_area)
'   A wet bulb at or above the dry bulb counts as saturated air.
'   Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
'   With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
'   Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in kg/(m2h)),
'   turned to kg/(m2s); fixed latent heat and convective coefficient.
Public Function PsychroPoolEvaporationFromWetBulb(ByVal waterArea As Variant, ByVal wettedArea As Variant, _
    ByVal waterTemperature As Variant, ByVal dryBulb As Variant, ByVal wetBulb As Variant, _
    ByVal referenceTemperature As Variant, ByVal bathers As Variant, ByVal referenceCoefficient As Variant, _
    ByVal pressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(waterArea), HeldBy(wettedArea), HeldBy(waterTemperature), HeldBy(dryBulb), HeldBy(wetBulb), _
        HeldBy(referenceTemperature), HeldBy(bathers), HeldBy(referenceCoefficient), HeldBy(pressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, _
                    PsychroPoolEvaporationFromWetBulb(CellAt(held(0), rowAt, columnAt), CellAt(held(1), rowAt, _
                    columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), CellAt(held(4), _
                    rowAt, columnAt), CellAt(held(5), rowAt, columnAt), CellAt(held(6), rowAt, columnAt), _
                    CellAt(held(7), rowAt, columnAt), CellAt(held(8), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroPoolEvaporationFromWetBulb = spread
        Exit Function
    End If
    Dim fault As Long
    Dim waterAreaGiven As Single
    Dim wettedAreaGiven As Single
    Dim waterTemperatureGiven As Single
    Dim dryBulbGiven As Single
    Dim wetBulbGiven As Single
    Dim referenceTemperatureGiven As Single
    Dim bathersGiven As Long
    Dim referenceCoefficientGiven As Single
    Dim pressureGiven As Single
    waterAreaGiven = SingleOf(waterArea, 0, largest, fault)
    wettedAreaGiven = SingleOf(wettedArea, 0, largest, fault)
    waterTemperatureGiven = SingleOf(waterTemperature, -100, 200, fault)
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    wetBulbGiven = SingleOf(wetBulb, -100, 200, fault)
    referenceTemperatureGiven = SingleOf(referenceTemperature, -100, 200, fault)
    bathersGiven = LongOf(bathers, 0, 2147483647, fault)
    referenceCoefficientGiven = SingleOf(referenceCoefficient, 0, largest, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    If fault <> 0 Then
        PsychroPoolEvaporationFromWetBulb = CVErr(fault)
        Exit Function
    End If
    Dim evaporationRateResult As Single
    evaporationRateResult = unwritten
    Dim latentLoadResult As Single
    latentLoadResult = unwritten
    Dim convectiveLoadResult As Single
    convectiveLoadResult = unwritten
    Dim referenceLoadResult As Single
    referenceLoadResult = unwritten
    TPPOOL2 waterAreaGiven, wettedAreaGiven, waterTemperatureGiven, dryBulbGiven, wetBulbGiven, _
        referenceTemperatureGiven, bathersGiven, referenceCoefficientGiven, pressureGiven, evaporationRateResult, _
        latentLoadResult, convectiveLoadResult, referenceLoadResult
    PsychroPoolEvaporationFromWetBulb = Array(CellOf(evaporationRateResult), CellOf(latentLoadResult), _
        CellOf(convectiveLoadResult), CellOf(referenceLoadResult))
End Function

' Saturation vapour pressure over a plane surface of water, or of ice below 0 degC.
'   temperature: temperature [degC]; valid -100 to 200
'   -> saturation vapour pressure [Pa]
'   Formula: log10(ps) = 33.59051 - 3142.31 / T - 8.2 log10(T) + 0.0024804 T over water, 12.538099 - 2663.91 / T over
'   ice; T = temperature + 273.15
'   Exactly 0 degC counts as water. The two branches meet there only to 0.04 Pa (610.34 over water, 610.30 over ice);
'   the step is deliberate.
'   Within 0.4 % of the international formulation from -20 to 150 degC, within 1 % down to -40 degC.
'   Source: National Engineering Laboratory, Steam Tables 1964, in the reduced form that building services guides print.
Public Function PsychroSaturationPressure(ByVal temperature As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(temperature))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroSaturationPressure(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroSaturationPressure = spread
        Exit Function
    End If
    Dim fault As Long
    Dim temperatureGiven As Single
    temperatureGiven = SingleOf(temperature, -100, 200, fault)
    If fault <> 0 Then
        PsychroSaturationPressure = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSSVP(temperatureGiven)
    PsychroSaturationPressure = CellOf(valueResult)
End Function

' Dew point of air with a vapour pressure, the inverse of the saturation pressure; below 0 degC the frost point.
'   vapourPressure: vapour pressure [Pa]; valid from 0
'   -> dew-point temperature, of frost below 0 degC [degC]
'   Formula: ps(dew_point) = pv
'   Solved in double precision; saturation_pressure, in single precision, returns the vapour pressure to 0.002 %, and
'   dew_point the temperature that was given to it to 0.001 K up to 100 degC.
'   The vapour pressures between ice and water at 0 degC, 610.30 to 610.34 Pa, give 0 degC to 0.0001 K.
'   Found from -200 to 400 degC. A pressure of 0 or less, or beyond those of this range, gives not a number.
'   Source: Saturation pressure of saturation_pressure (National Engineering Laboratory, Steam Tables 1964), solved by
'   Newton's method.
Public Function PsychroDewPoint(ByVal vapourPressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(vapourPressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroDewPoint(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroDewPoint = spread
        Exit Function
    End If
    Dim fault As Long
    Dim vapourPressureGiven As Single
    vapourPressureGiven = SingleOf(vapourPressure, 0, largest, fault)
    If fault <> 0 Then
        PsychroDewPoint = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_dew_point 1, vapourPressureGiven, 0, valueResult, 0
    PsychroDewPoint = CellOf(valueResult)
End Function

' Vapour pressure of air at a dry-bulb temperature and relative humidity.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   relativeHumidity: relative humidity [%]; valid 0 to 100
'   -> vapour pressure [Pa]
'   Formula: pv = rh / 100 ps(t)
'   Relative humidity is limited to 0 to 100 %, not rejected.
'   Source: Definition of relative humidity, with the saturation pressure of PsychroSaturationPressure.
Public Function PsychroVapourPressure(ByVal dryBulb As Variant, ByVal relativeHumidity As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(relativeHumidity))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroVapourPressure(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroVapourPressure = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim relativeHumidityGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    relativeHumidityGiven = SingleOf(relativeHumidity, 0, 100, fault)
    If fault <> 0 Then
        PsychroVapourPressure = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSVP(dryBulbGiven, relativeHumidityGiven)
    PsychroVapourPressure = CellOf(valueResult)
End Function

' Relative humidity of air with a vapour pressure.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   vapourPressure: vapour pressure [Pa]; valid from 0
'   -> relative humidity [%]
'   Formula: rh = 100 pv / ps(t)
'   Not limited: supersaturated air gives more than 100.
'   Source: Definition of relative humidity, the ratio of vapour pressures, with saturation_pressure.
Public Function PsychroRelativeHumidity(ByVal dryBulb As Variant, ByVal vapourPressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(vapourPressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroRelativeHumidity(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroRelativeHumidity = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim vapourPressureGiven As Single
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    vapourPressureGiven = SingleOf(vapourPressure, 0, largest, fault)
    If fault <> 0 Then
        PsychroRelativeHumidity = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_relative_humidity 1, dryBulbGiven, 0, vapourPressureGiven, 0, valueResult, 0
    PsychroRelativeHumidity = CellOf(valueResult)
End Function

' Vapour pressure from the reading of a wet-and-dry-bulb psychrometer.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   wetBulb: wet-bulb temperature [degC]; valid -100 to 200
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> vapour pressure [Pa]
'   Formula: pv = ps(twb) - A p (t - twb)
'   The coefficient of an iced bulb is taken when the wet bulb is below 0 degC.
'   A wet bulb at or above the dry bulb gives the saturation pressure at the dry-bulb temperature.
'   The result is not limited: a reading drier than any air gives a negative pressure.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   A is 0.000666 1/K for a sling psychrometer and 0.000799 for a screen one, 0.000594 and 0.00072 with an iced bulb.
'   Source: Psychrometer equation with the customary coefficients A.
Public Function PsychroVapourPressureFromPsychrometer(ByVal dryBulb As Variant, ByVal wetBulb As Variant, _
    ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(wetBulb), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroVapourPressureFromPsychrometer(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        PsychroVapourPressureFromPsychrometer = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim wetBulbGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    wetBulbGiven = SingleOf(wetBulb, -100, 200, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroVapourPressureFromPsychrometer = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSVAP(dryBulbGiven, wetBulbGiven, pressureGiven, psychrometerGiven)
    PsychroVapourPressureFromPsychrometer = CellOf(valueResult)
End Function

' Weighted temperature of two air temperatures.
'   firstTemperature: temperature with the greater weight [degC]; valid -100 to 200
'   secondTemperature: temperature with the lesser, negative weight [degC]; valid -100 to 200
'   -> weighted temperature [degC]
'   Formula: (41.94 t1 - 7.33 t2) / (34.61 + t1 - t2)
'   Two equal temperatures give that temperature. Infinite where the second is above the first by 34.61 K.
'   Source: The derivation is not known, so the second temperature has no other meaning than the formula's.
Public Function PsychroWeightedTemperature(ByVal firstTemperature As Variant, _
    ByVal secondTemperature As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(firstTemperature), HeldBy(secondTemperature))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroWeightedTemperature(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroWeightedTemperature = spread
        Exit Function
    End If
    Dim fault As Long
    Dim firstTemperatureGiven As Single
    Dim secondTemperatureGiven As Single
    firstTemperatureGiven = SingleOf(firstTemperature, -100, 200, fault)
    secondTemperatureGiven = SingleOf(secondTemperature, -100, 200, fault)
    If fault <> 0 Then
        PsychroWeightedTemperature = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSTEFF(firstTemperatureGiven, secondTemperatureGiven)
    PsychroWeightedTemperature = CellOf(valueResult)
End Function

' Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and relative humidity.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   relativeHumidity: relative humidity [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> wet-bulb temperature, never above the dry bulb [degC]
'   The coefficient of an iced bulb is taken when the dry bulb is below 0 degC, where
'   PsychroVapourPressureFromPsychrometer looks at the wet bulb; the asymmetry is deliberate.
'   A stepping search that ends within 0.1 K: the result moves in small jumps with its arguments.
'   Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure of zero or below, say), the
'   value it has reached is returned.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Psychrometer equation of PsychroVapourPressureFromPsychrometer, solved by a step-and-refine search.
Public Function PsychroPsychrometerWetBulb(ByVal dryBulb As Variant, ByVal relativeHumidity As Variant, _
    ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(relativeHumidity), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroPsychrometerWetBulb(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        PsychroPsychrometerWetBulb = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim relativeHumidityGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    relativeHumidityGiven = SingleOf(relativeHumidity, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroPsychrometerWetBulb = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSTWET(dryBulbGiven, relativeHumidityGiven, pressureGiven, psychrometerGiven)
    PsychroPsychrometerWetBulb = CellOf(valueResult)
End Function

' Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and percentage saturation.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   percentageSaturation: percentage saturation [%]; valid 0 to 100
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> wet-bulb temperature [degC]
'   A stepping search with steps down to 0.01 K: the result is above the exact wet bulb by less than that and moves in
'   small jumps with its arguments.
'   The percentage is not limited: 100 and more give the dry bulb.
'   About 0 degC, where the coefficient changes to that of an iced bulb, two wet bulbs can belong to one percentage;
'   which of them is found depends on the steps.
'   Where the search would never end (below absolute zero, say), the value it has reached is returned.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Psychrometer equation of PsychroVapourPressureFromPsychrometer with the moisture content of
'   PsychroMoistureContentFromPsychrometer, solved by a step-and-refine search.
Public Function PsychroWetBulbFromPercentageSaturation(ByVal dryBulb As Variant, _
    ByVal percentageSaturation As Variant, ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(percentageSaturation), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroWetBulbFromPercentageSaturation(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        PsychroWetBulbFromPercentageSaturation = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim percentageSaturationGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    percentageSaturationGiven = SingleOf(percentageSaturation, 0, 100, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroWetBulbFromPercentageSaturation = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSTWB(dryBulbGiven, percentageSaturationGiven, pressureGiven, psychrometerGiven)
    PsychroWetBulbFromPercentageSaturation = CellOf(valueResult)
End Function

' Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and moisture content.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   moistureContent: moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> wet-bulb temperature [degC]
'   A stepping search with steps of 5 K down to 0.005 K and a last one of 0.0005 K: the result is within 0.005 K of the
'   exact wet bulb.
'   At saturation or above the result is the dry bulb, whatever that is. Otherwise a dry bulb above 10000 degC gives
'   -100, one that is not a number -200.
'   Where the search would never end (a moisture content that is not a number, or far below 0), the value it has reached
'   is returned.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Psychrometer equation of PsychroVapourPressureFromPsychrometer with the moisture content of
'   PsychroMoistureContentFromPsychrometer, solved by a step-and-refine search.
Public Function PsychroWetBulbFromMoistureContent(ByVal dryBulb As Variant, ByVal moistureContent As Variant, _
    ByVal pressure As Variant, ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(moistureContent), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroWetBulbFromMoistureContent(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        PsychroWetBulbFromMoistureContent = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim moistureContentGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    moistureContentGiven = SingleOf(moistureContent, 0, 0.1, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroWetBulbFromMoistureContent = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = PSWBLB(dryBulbGiven, moistureContentGiven, pressureGiven, psychrometerGiven)
    PsychroWetBulbFromMoistureContent = CellOf(valueResult)
End Function

' Wet-bulb temperature that a psychrometer reads in air with a vapour pressure.
'   dryBulb: dry-bulb temperature [degC]; valid -100 to 200
'   vapourPressure: vapour pressure [Pa]; valid from 0
'   pressure: atmospheric pressure [Pa]; valid 50000 to 110000
'   psychrometer: psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
'   -> wet-bulb temperature [degC]
'   Formula: ps(twb) - A p (t - twb) = pv
'   The exact solution, in double precision; vapour_pressure_from_psychrometer gives the vapour pressure back to 0.002 %
'   of saturation.
'   About 0 degC an iced wet bulb and one that is not can belong to the same air: that which is not iced is found.
'   At saturation or above the result is the dry bulb. A vapour pressure too far below 0 gives not a number.
'   A psychrometer type below 1 counts as 1, above 2 as 2.
'   Source: Psychrometer equation of vapour_pressure_from_psychrometer, solved by Newton's method.
Public Function PsychroWetBulb(ByVal dryBulb As Variant, ByVal vapourPressure As Variant, ByVal pressure As Variant, _
    ByVal psychrometer As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(dryBulb), HeldBy(vapourPressure), HeldBy(pressure), HeldBy(psychrometer))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = PsychroWetBulb(CellAt(held(0), rowAt, columnAt), CellAt(held(1), rowAt, _
                    columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt))
            Next columnAt
        Next rowAt
        PsychroWetBulb = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dryBulbGiven As Single
    Dim vapourPressureGiven As Single
    Dim pressureGiven As Single
    Dim psychrometerGiven As Long
    dryBulbGiven = SingleOf(dryBulb, -100, 200, fault)
    vapourPressureGiven = SingleOf(vapourPressure, 0, largest, fault)
    pressureGiven = SingleOf(pressure, 50000, 110000, fault)
    psychrometerGiven = SelectorOf(psychrometer, 1, "sling screen", fault)
    If fault <> 0 Then
        PsychroWetBulb = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    quorvel_wet_bulb 1, dryBulbGiven, 0, vapourPressureGiven, 0, pressureGiven, 0, psychrometerGiven, 0, valueResult, 0
    PsychroWetBulb = CellOf(valueResult)
End Function

' Admittance, decrement factor and surface factor of a construction with their time shifts, and its U-value.
'   thickness: thickness of each layer, from the room outwards; below 0: a layer of given resistance, 0: no layer [m]
'   conductivity: conductivity of each layer; its resistance in m2K/W where the thickness is below 0 [W/mK]; valid from
'     0
'   density: density of each layer [kg/m3]; valid from 0
'   specificHeat: specific heat of each layer [J/kgK]; valid from 0
'   insideResistance: resistance of the surface at the room [m2K/W]; valid from 0
'   outsideResistance: resistance of the far surface [m2K/W]; valid from 0
'   harmonic: cycles in 24 hours; valid from 0
'   elementKind: kind of element: 1 element between two environments, 2 internal partition, the same swing on both sides
'   -> admittance: admittance Y [W/m2K]
'   -> admittanceLead: time lead of the admittance, 0 to 24 / harmonic [h]
'   -> decrementFactor: decrement factor f, 0 for a partition
'   -> decrementLag: time lag of the decrement factor, 0 to 24 / harmonic, 0 for a partition [h]
'   -> surfaceFactor: surface factor F
'   -> surfaceFactorLag: time lag of the surface factor, 0 to 24 / harmonic [h]
'   -> uValue: U-value, as FabricUValue gives it [W/m2K]
'   Formula: M = Msi M1 ... Mn Mso; Y = m22 / m12, of a partition (m22 - 1) / m12; f = 1 / (u_value m12); F = 1 -
'   inside_resistance Y
'   Without layers the two surfaces are left.
'   Any kind but 2 counts as 1. A harmonic of 0 is a steady temperature: the admittance is U, the time shifts are not
'   numbers. One below 0 gives no numbers.
'   A layer without heat capacity acts as its resistance. One with very little is the less accurate the smaller x is,
'   its thickness over the depth at which the swing has sunk to 1/e (0.1 to 0.2 m in masonry): the relative error of its
'   resistance is about 1e-7 / x, since sinh is formed as a difference in single precision.
'   Shifts near 0 can come out near a whole cycle: rounding decides on which side of 0 an angle falls. One that is
'   exactly 0 may be -0, as both lags of layers without heat capacity are.
'   The moduli of all three factors are formed so that no square under- or overflows: a decrement factor of 2.8e-24
'   (four layers of 0.6 m of concrete under harmonic 12) is one.
'   Where the x of all layers add up to about 87 the elements of the matrix overflow: the admittance is infinite or not
'   a number, and from 89 on nothing but U is a number. That is 12.3 m of concrete of 1.75 W/mK, 2400 kg/m3 and 1000
'   J/kgK under the daily cycle; of 2 W/mK, 2000 kg/m3 and 880 J/kgK 15 m still have numbers.
'   Density and specific heat enter as their product only.
'   The formula's M is the product of the transmission matrices of the surfaces and the layers. Its complex Y, f and F
'   are the admittance, the decrement factor and the surface factor with their time shifts.
'   Source: Pipes, Matrix analysis of heat transfer problems, Journal of the Franklin Institute 263, 1957; Milbank and
'   Harrington-Lynn, Thermal response and the admittance procedure, Building Research Establishment CP 61/74, 1974; ISO
'   13786.
Public Function FabricCyclicResponse(ByVal thickness As Variant, ByVal conductivity As Variant, _
    ByVal density As Variant, ByVal specificHeat As Variant, ByVal insideResistance As Variant, _
    ByVal outsideResistance As Variant, ByVal harmonic As Variant, ByVal elementKind As Variant) As Variant
    Dim fault As Long
    Dim thicknessGiven() As Single
    Dim conductivityGiven() As Single
    Dim densityGiven() As Single
    Dim specificHeatGiven() As Single
    Dim insideResistanceGiven As Single
    Dim outsideResistanceGiven As Single
    Dim harmonicGiven As Long
    Dim elementKindGiven As Long
    Dim layers As Long
    layers = SinglesOf(thickness, 1, -largest, largest, thicknessGiven, fault)
    Equal SinglesOf(conductivity, 1, 0, largest, conductivityGiven, fault), layers, fault
    Equal SinglesOf(density, 1, 0, largest, densityGiven, fault), layers, fault
    Equal SinglesOf(specificHeat, 1, 0, largest, specificHeatGiven, fault), layers, fault
    insideResistanceGiven = SingleOf(insideResistance, 0, largest, fault)
    outsideResistanceGiven = SingleOf(outsideResistance, 0, largest, fault)
    harmonicGiven = LongOf(harmonic, 0, 2147483647, fault)
    elementKindGiven = SelectorOf(elementKind, 1, "between partition", fault)
    Limit layers, 0, 20, fault
    If fault <> 0 Then
        FabricCyclicResponse = CVErr(fault)
        Exit Function
    End If
    Dim admittanceResult As Single
    admittanceResult = unwritten
    Dim admittanceLeadResult As Single
    admittanceLeadResult = unwritten
    Dim decrementFactorResult As Single
    decrementFactorResult = unwritten
    Dim decrementLagResult As Single
    decrementLagResult = unwritten
    Dim surfaceFactorResult As Single
    surfaceFactorResult = unwritten
    Dim surfaceFactorLagResult As Single
    surfaceFactorLagResult = unwritten
    Dim uValueResult As Single
    uValueResult = unwritten
    TPADMT thicknessGiven(0), conductivityGiven(0), densityGiven(0), specificHeatGiven(0), insideResistanceGiven, _
        outsideResistanceGiven, layers, harmonicGiven, elementKindGiven, admittanceResult, admittanceLeadResult, _
        decrementFactorResult, decrementLagResult, surfaceFactorResult, surfaceFactorLagResult, uValueResult
    FabricCyclicResponse = Array(CellOf(admittanceResult), CellOf(admittanceLeadResult), _
        CellOf(decrementFactorResult), CellOf(decrementLagResult), CellOf(surfaceFactorResult), _
        CellOf(surfaceFactorLagResult), CellOf(uValueResult))
End Function

' Thermal resistance of a sealed vertical air cavity between ordinary building surfaces.
'   cavityWidth: width [m]; valid from 0.001
'   -> cavity resistance, not below 0.1 [m2K/W]
'   Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width), at least 0.1; Nu = 0.035 Ra^0.38, at least 1; Ra =
'   793.00165 width^3 / 4.4e-7
'   A width below 0.001 gives 0.1, where FabricAirCavityResistance and FabricGasCavityResistance give 0: deliberate. Not
'   a number stays so.
'   The emissivities e1 and e2 of the faces are 0.85 and 0.86.
'   Source: As FabricAirCavityResistance.
Public Function FabricVerticalCavityResistance(ByVal cavityWidth As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(cavityWidth))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = FabricVerticalCavityResistance(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricVerticalCavityResistance = spread
        Exit Function
    End If
    Dim fault As Long
    Dim cavityWidthGiven As Single
    cavityWidthGiven = SingleOf(cavityWidth, 0.001, largest, fault)
    If fault <> 0 Then
        FabricVerticalCavityResistance = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = TPRCAV(cavityWidthGiven)
    FabricVerticalCavityResistance = CellOf(valueResult)
End Function

' Thermal resistance of a sealed air cavity by convection and long-wave radiation.
'   tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
'   cavityWidth: width [m]; valid from 0.001
'   emissivity1: long-wave emissivity of one face; valid 0 to 1
'   emissivity2: long-wave emissivity of the other face; valid 0 to 1
'   -> cavity resistance [m2K/W]
'   Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width); Nu = C Ra^n, at least 1; Ra = 793.00165 width^3 /
'   4.4e-7
'   A tilt outside 0..3.1416 and a width below 0.001 give 0.
'   C and n of the Nusselt number C Ra^n, which is at least 1, are interpolated over the tilt between 0, 0.785 and 1.57,
'   and carried on as far as 1.59. From there the air rests and only conducts: the resistance jumps.
'   Two faces of emissivity 0 leave the exchange undefined (0/0).
'   Source: EN 673, Glass in building - Determination of thermal transmittance: C and n for vertical, inclined and
'   horizontal cavities, and air at 10 degC with 15 K between the faces.
Public Function FabricAirCavityResistance(ByVal tilt As Variant, ByVal cavityWidth As Variant, _
    ByVal emissivity1 As Variant, ByVal emissivity2 As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(tilt), HeldBy(cavityWidth), HeldBy(emissivity1), HeldBy(emissivity2))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = FabricAirCavityResistance(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricAirCavityResistance = spread
        Exit Function
    End If
    Dim fault As Long
    Dim tiltGiven As Single
    Dim cavityWidthGiven As Single
    Dim emissivity1Given As Single
    Dim emissivity2Given As Single
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    cavityWidthGiven = SingleOf(cavityWidth, 0.001, largest, fault)
    emissivity1Given = SingleOf(emissivity1, 0, 1, fault)
    emissivity2Given = SingleOf(emissivity2, 0, 1, fault)
    If fault <> 0 Then
        FabricAirCavityResistance = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = TPRCA2(tiltGiven, cavityWidthGiven, emissivity1Given, emissivity2Given)
    FabricAirCavityResistance = CellOf(valueResult)
End Function

' Thermal resistance of a sealed cavity filled with any gas.
'   tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
'   cavityWidth: width [m]; valid from 0.001
'   emissivity1: long-wave emissivity of one face; valid 0 to 1
'   emissivity2: long-wave emissivity of the other face; valid 0 to 1
'   density: density of the gas [kg/m3]; valid from 0
'   conductivity: thermal conductivity of the gas [W/mK]; valid from 0
'   specificHeat: specific heat of the gas at constant pressure [J/kgK]; valid from 0
'   viscosity: dynamic viscosity of the gas [Pa s]; valid from 0
'   -> cavity resistance [m2K/W]
'   Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + conductivity Nu / width); Nu = C Ra^n, at least 1; Ra = 0.52
'   specific_heat density^2 width^3 / (viscosity conductivity)
'   Guards and correlation as in FabricAirCavityResistance.
'   The Rayleigh number has a factor of 0.52 m/s2 for gravity times expansion times temperature difference, whatever the
'   gas and its temperature.
'   A negative Rayleigh number has no power: not a number.
'   Source: As FabricAirCavityResistance.
Public Function FabricGasCavityResistance(ByVal tilt As Variant, ByVal cavityWidth As Variant, _
    ByVal emissivity1 As Variant, ByVal emissivity2 As Variant, ByVal density As Variant, _
    ByVal conductivity As Variant, ByVal specificHeat As Variant, ByVal viscosity As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(tilt), HeldBy(cavityWidth), HeldBy(emissivity1), HeldBy(emissivity2), HeldBy(density), _
        HeldBy(conductivity), HeldBy(specificHeat), HeldBy(viscosity))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = FabricGasCavityResistance(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), _
                    CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt), CellAt(held(6), rowAt, _
                    columnAt), CellAt(held(7), rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricGasCavityResistance = spread
        Exit Function
    End If
    Dim fault As Long
    Dim tiltGiven As Single
    Dim cavityWidthGiven As Single
    Dim emissivity1Given As Single
    Dim emissivity2Given As Single
    Dim densityGiven As Single
    Dim conductivityGiven As Single
    Dim specificHeatGiven As Single
    Dim viscosityGiven As Single
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    cavityWidthGiven = SingleOf(cavityWidth, 0.001, largest, fault)
    emissivity1Given = SingleOf(emissivity1, 0, 1, fault)
    emissivity2Given = SingleOf(emissivity2, 0, 1, fault)
    densityGiven = SingleOf(density, 0, largest, fault)
    conductivityGiven = SingleOf(conductivity, 0, largest, fault)
    specificHeatGiven = SingleOf(specificHeat, 0, largest, fault)
    viscosityGiven = SingleOf(viscosity, 0, largest, fault)
    If fault <> 0 Then
        FabricGasCavityResistance = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = TPRCAX(tiltGiven, cavityWidthGiven, emissivity1Given, emissivity2Given, densityGiven, _
        conductivityGiven, specificHeatGiven, viscosityGiven)
    FabricGasCavityResistance = CellOf(valueResult)
End Function

' Vapour resistance of a construction.
'   thickness: thickness of each layer; below 0: a layer of given thermal resistance, 0: a membrane [m]
'   vapourResistivity: vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg [GN s/(kg m)];
'     valid from 0
'   -> total vapour resistance [N s/kg]
'   Formula: sum of 1e9 thickness vapour_resistivity
'   A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, whatever its
'   resistivity: an air gap 0.05 m wide is entered as -0.05, not as -1.
'   Without layers it is 0.
'   Results are in N s/kg, resistivities in GN s/(kg m).
'   Source: Vapour resistances in series; 5 GN s/(kg m) is the customary resistivity of still air.
Public Function FabricTotalVapourResistance(ByVal thickness As Variant, ByVal vapourResistivity As Variant) As Variant
    Dim fault As Long
    Dim thicknessGiven() As Single
    Dim vapourResistivityGiven() As Single
    Dim layers As Long
    layers = SinglesOf(thickness, 1, -largest, largest, thicknessGiven, fault)
    Equal SinglesOf(vapourResistivity, 1, 0, largest, vapourResistivityGiven, fault), layers, fault
    Limit layers, 0, 20, fault
    If fault <> 0 Then
        FabricTotalVapourResistance = CVErr(fault)
        Exit Function
    End If
    Dim vapourResistanceResult As Single
    vapourResistanceResult = unwritten
    TPDAMP thicknessGiven(0), vapourResistivityGiven(0), layers, vapourResistanceResult
    FabricTotalVapourResistance = CellOf(vapourResistanceResult)
End Function

' Steady temperature, vapour pressure and saturation pressure at the interfaces of a construction; the vapour pressure
' is held down to saturation where it would exceed it.
'   thickness: thickness of each layer from the inside; below 0: a layer of given thermal resistance, 0: a membrane [m]
'   conductivity: conductivity of each layer; its resistance in m2K/W where the thickness is below 0 [W/mK]; valid from
'     0
'   vapourResistivity: vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg [GN s/(kg m)];
'     valid from 0
'   insideResistance: resistance of the inside surface [m2K/W]; valid from 0
'   outsideResistance: resistance of the outside surface [m2K/W]; valid from 0
'   insideTemperature: inside air temperature [degC]; valid -100 to 200
'   outsideTemperature: outside air temperature [degC]; valid -100 to 200
'   insideHumidity: inside relative humidity [%]; valid 0 to 100
'   outsideHumidity: outside relative humidity [%]; valid 0 to 100
'   -> interfaceTemperature: temperature at the interfaces, from the inside surface to the outside one [degC]; #N/A
'     beyond element layers + 1
'   -> interfaceVapourPressure: vapour pressure at them [Pa]; #N/A beyond element layers + 1
'   -> interfaceSaturationPressure: saturation pressure at them [Pa]; #N/A beyond element layers + 1
'   The first and the last interface are the surfaces. Without layers there is one surface, with the temperature and the
'   vapour pressure of its inside.
'   Vapour condenses at an interface where the vapour pressure equals the saturation pressure.
'   Relative humidities are limited to 0 to 100 %, the vapour pressures at the two surfaces to saturation there. Between
'   two surfaces without any vapour resistance the vapour pressure is no number.
'   A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, as in
'   FabricTotalVapourResistance.
'   Saturation inside a layer, between its interfaces, is not looked for: see FabricCondensesWithinLayer.
'   Source: Glaser's method in the stepwise form of ISO 13788: the vapour line is straight over the vapour resistance
'   between the interfaces at which it is held to saturation.
Public Function FabricCondensationProfile(ByVal thickness As Variant, ByVal conductivity As Variant, _
    ByVal vapourResistivity As Variant, ByVal insideResistance As Variant, ByVal outsideResistance As Variant, _
    ByVal insideTemperature As Variant, ByVal outsideTemperature As Variant, ByVal insideHumidity As Variant, _
    ByVal outsideHumidity As Variant) As Variant
    Dim fault As Long
    Dim thicknessGiven() As Single
    Dim conductivityGiven() As Single
    Dim vapourResistivityGiven() As Single
    Dim insideResistanceGiven As Single
    Dim outsideResistanceGiven As Single
    Dim insideTemperatureGiven As Single
    Dim outsideTemperatureGiven As Single
    Dim insideHumidityGiven As Single
    Dim outsideHumidityGiven As Single
    Dim layers As Long
    layers = SinglesOf(thickness, 1, -largest, largest, thicknessGiven, fault)
    Equal SinglesOf(conductivity, 1, 0, largest, conductivityGiven, fault), layers, fault
    Equal SinglesOf(vapourResistivity, 1, 0, largest, vapourResistivityGiven, fault), layers, fault
    insideResistanceGiven = SingleOf(insideResistance, 0, largest, fault)
    outsideResistanceGiven = SingleOf(outsideResistance, 0, largest, fault)
    insideTemperatureGiven = SingleOf(insideTemperature, -100, 200, fault)
    outsideTemperatureGiven = SingleOf(outsideTemperature, -100, 200, fault)
    insideHumidityGiven = SingleOf(insideHumidity, 0, 100, fault)
    outsideHumidityGiven = SingleOf(outsideHumidity, 0, 100, fault)
    Limit layers, 0, 20, fault
    If fault <> 0 Then
        FabricCondensationProfile = CVErr(fault)
        Exit Function
    End If
    Dim interfaceTemperatureResult() As Single
    ReDim interfaceTemperatureResult(0 To 20)
    BlankSingles interfaceTemperatureResult
    Dim interfaceVapourPressureResult() As Single
    ReDim interfaceVapourPressureResult(0 To 20)
    BlankSingles interfaceVapourPressureResult
    Dim interfaceSaturationPressureResult() As Single
    ReDim interfaceSaturationPressureResult(0 To 20)
    BlankSingles interfaceSaturationPressureResult
    TPGRAD thicknessGiven(0), conductivityGiven(0), vapourResistivityGiven(0), insideResistanceGiven, _
        outsideResistanceGiven, layers, insideTemperatureGiven, outsideTemperatureGiven, insideHumidityGiven, _
        outsideHumidityGiven, interfaceTemperatureResult(0), interfaceVapourPressureResult(0), _
        interfaceSaturationPressureResult(0)
    FabricCondensationProfile = Beside(Array(TableOf(interfaceTemperatureResult, 1), _
        TableOf(interfaceVapourPressureResult, 1), TableOf(interfaceSaturationPressureResult, 1)))
End Function

' Whether vapour condenses inside a layer, from the temperatures and vapour pressures of its two faces.
'   warmTemperature: temperature of the warm face [degC]; valid -100 to 200
'   coldTemperature: temperature of the cold face [degC]; valid -100 to 200
'   warmVapourPressure: vapour pressure at the warm face [Pa]; valid from 0
'   coldVapourPressure: vapour pressure at the cold face [Pa]; valid from 0
'   -> 1 if vapour condenses, 0 if not
'   The layer is looked at in steps of 0.5 K from the warm face: the warm face itself is not, the cold face only if a
'   step falls on it. Faces less than 0.5 K apart give 0.
'   A cold face that is not below the warm one, or a temperature that is no number, gives 0.
'   Where the temperature is so large that a step of 0.5 K is lost in its rounding (8.4 million degC), the search ends
'   there with 0.
'   Source: Straight lines of temperature and vapour pressure through a homogeneous layer, against the saturation
'   pressure of PsychroSaturationPressure.
Public Function FabricCondensesWithinLayer(ByVal warmTemperature As Variant, ByVal coldTemperature As Variant, _
    ByVal warmVapourPressure As Variant, ByVal coldVapourPressure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(warmTemperature), HeldBy(coldTemperature), HeldBy(warmVapourPressure), _
        HeldBy(coldVapourPressure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = FabricCondensesWithinLayer(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        FabricCondensesWithinLayer = spread
        Exit Function
    End If
    Dim fault As Long
    Dim warmTemperatureGiven As Single
    Dim coldTemperatureGiven As Single
    Dim warmVapourPressureGiven As Single
    Dim coldVapourPressureGiven As Single
    warmTemperatureGiven = SingleOf(warmTemperature, -100, 200, fault)
    coldTemperatureGiven = SingleOf(coldTemperature, -100, 200, fault)
    warmVapourPressureGiven = SingleOf(warmVapourPressure, 0, largest, fault)
    coldVapourPressureGiven = SingleOf(coldVapourPressure, 0, largest, fault)
    If fault <> 0 Then
        FabricCondensesWithinLayer = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = ITPCON(warmTemperatureGiven, coldTemperatureGiven, warmVapourPressureGiven, coldVapourPressureGiven)
    FabricCondensesWithinLayer = CellOf(valueResult)
End Function

' One property of one record of a construction, a list of elements from face to face.
'   elementRecords: ten fields of each record, counted from 1; the first is its type code [by field]
'   recordNumber: record asked about, counted from 1; valid from 1
'   item: property asked for; valid 1 to 72
'   -> the property [by item]; 1e20 where there is none
'   The type code, 50 to 999, is 100 times the class plus the subtype: class 1 solid layer, 2 another layer, 3 gap (300
'   of given resistance, 302 filled with gas), 4 translucent layer, 5 boundary, 6 end marker; other classes have no
'   meaning. It is rounded after the limits are tested: 149.6 is class 1, subtype 50; 49.6 and what is no number are no
'   codes.
'   Items of every class: 1 type code.
'   Items of classes 1, 3 and 4: 2 thickness in mm; 4 and 5 fields 4 and 5, of a layer the two factors of its volumetric
'   heat capacity, of a gas specific heat and density. Of 1 and 4: 3 conductivity in W/mK. Of 1 and 3: 6 field 6.
'   Items of class 3: 7 viscosity of the gas; 11 resistance in m2K/W, or conductivity of the gas; 61 and 62 field 8,
'   with subtype 1 and 2.
'   Items of classes 2, 4 and 5: 12 field 6. Of class 5 with subtype 1 or 2: 21 to 23 fields 2 to 4.
'   Items of packed fields (FabricPackThreeFractions), all classes but 3 and 6: 31 solar transmittance, 32 front and 33
'   back reflectance, 34 and 35 front and back absorptance, from field 9; 41 to 45 the same from field 7; 54 and 55 the
'   long-wave fractions of the two faces, 52 and 53 one less these, from field 8.
'   Items of every class: 71 and 72 are 1 if the list ends with a record of code 601 and 602, whichever valid record is
'   asked about.
'   The complements of an undefined packed field, items 34, 35, 44, 45, 52 and 53, are -1e20 or -2e20, not 1e20:
'   deliberate.
'   Source: Layout of the element records.
Public Function FabricElementProperty(ByVal elementRecords As Variant, ByVal recordNumber As Variant, _
    ByVal item As Variant) As Variant
    Dim fault As Long
    Dim elementRecordsGiven() As Single
    Dim recordNumberGiven As Long
    Dim itemGiven As Long
    Dim recordCount As Long
    recordCount = SinglesOf(elementRecords, 10, -largest, largest, elementRecordsGiven, fault)
    recordNumberGiven = LongOf(recordNumber, 1, 2147483647, fault)
    itemGiven = LongOf(item, 1, 72, fault)
    Limit recordCount, 1, 2147483647, fault
    If fault <> 0 Then
        FabricElementProperty = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = BELDAT(elementRecordsGiven(0), recordCount, recordNumberGiven, itemGiven)
    FabricElementProperty = CellOf(valueResult)
End Function

' Coefficient of natural convection at a surface of a room.
'   temperatureDifference: difference between surface and air temperature; its sign makes no difference [K]
'   characteristicLength: characteristic length: height of a vertical surface, four times the area over the perimeter of
'     a horizontal one [m]; valid from 0
'   heatFlowDirection: direction of the heat flow: 1 heat flow upwards, 2 vertical surface, 3 heat flow downwards
'   -> convective coefficient [W/m2K]
'   Formula: ((1.63 dT^(1/3))^6 + (1.40 (dT / L)^(1/4))^6)^(1/6) upwards, 1.23 and 1.50 for 1.63 and 1.40 at a vertical
'   surface, 0.6 (dT / L^2)^(1/5) downwards; dT = |temperature_difference|, L = characteristic_length
'   Any other direction gives 0.
'   The coefficients 1.23 and 1.50 of a vertical surface have the laminar term larger than the turbulent one, with an
'   upward flow it is the other way round; both are as published.
'   A length of 0 gives an infinite coefficient, one below 0 no number but for a downward flow.
'   Source: Alamdari and Hammond, Improved data correlations for buoyancy-driven convection in rooms, Building Services
'   Engineering Research and Technology 4, 1983.
Public Function FabricNaturalConvectionCoefficient(ByVal temperatureDifference As Variant, _
    ByVal characteristicLength As Variant, ByVal heatFlowDirection As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(temperatureDifference), HeldBy(characteristicLength), HeldBy(heatFlowDirection))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = FabricNaturalConvectionCoefficient(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricNaturalConvectionCoefficient = spread
        Exit Function
    End If
    Dim fault As Long
    Dim temperatureDifferenceGiven As Single
    Dim characteristicLengthGiven As Single
    Dim heatFlowDirectionGiven As Long
    temperatureDifferenceGiven = SingleOf(temperatureDifference, -largest, largest, fault)
    characteristicLengthGiven = SingleOf(characteristicLength, 0, largest, fault)
    heatFlowDirectionGiven = SelectorOf(heatFlowDirection, 1, "upward horizontal downward", fault)
    If fault <> 0 Then
        FabricNaturalConvectionCoefficient = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = TPHCON(temperatureDifferenceGiven, characteristicLengthGiven, heatFlowDirectionGiven)
    FabricNaturalConvectionCoefficient = CellOf(valueResult)
End Function

' Packs two fractions of two decimals into one real, or unpacks them.
'   packing: direction: 1 pack, 2 unpack, as any other value
'   packedNumber: packed number; valid 0 to 9999.99
'   fraction1: fraction behind the point; valid 0 to 0.99
'   fraction2: fraction held as units and tens; valid 0 to 0.99
'   -> packedNumber: packed number; 1e20 where there is none; as given when unpacking
'   -> fraction1: fraction behind the point; 1e20 where there is none; as given when packing
'   -> fraction2: fraction held as units and tens; 1e20 where there is none; as given when packing
'   As FabricPackThreeFractions with a third fraction of 0, which is not returned: what stands above 100 is ignored.
'   Source: As FabricPackThreeFractions.
Public Function FabricPackTwoFractions(ByVal packing As Variant, ByVal packedNumber As Variant, _
    ByVal fraction1 As Variant, ByVal fraction2 As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(packing), HeldBy(packedNumber), HeldBy(fraction1), HeldBy(fraction2))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, FabricPackTwoFractions(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricPackTwoFractions = spread
        Exit Function
    End If
    Dim fault As Long
    Dim packingGiven As Long
    Dim packedNumberGiven As Single
    Dim fraction1Given As Single
    Dim fraction2Given As Single
    packingGiven = SelectorOf(packing, 1, "pack unpack", fault)
    packedNumberGiven = SingleOf(packedNumber, 0, 9999.99, fault)
    fraction1Given = SingleOf(fraction1, 0, 0.99, fault)
    fraction2Given = SingleOf(fraction2, 0, 0.99, fault)
    If fault <> 0 Then
        FabricPackTwoFractions = CVErr(fault)
        Exit Function
    End If
    TPCOLW packingGiven, packedNumberGiven, fraction1Given, fraction2Given
    FabricPackTwoFractions = Array(CellOf(packedNumberGiven), CellOf(fraction1Given), CellOf(fraction2Given))
End Function

' Packs three fractions of two decimals into one real, or unpacks them.
'   packing: direction: 1 pack, 2 unpack, as any other value
'   packedNumber: packed number; valid 0 to 9999.99
'   fraction1: fraction behind the point; valid 0 to 0.99
'   fraction2: fraction held as units and tens; valid 0 to 0.99
'   fraction3: fraction held as hundreds and thousands; valid 0 to 0.99
'   -> packedNumber: packed number; 1e20 where there is none; as given when unpacking
'   -> fraction1: fraction behind the point; 1e20 where there is none; as given when packing
'   -> fraction2: fraction held as units and tens; 1e20 where there is none; as given when packing
'   -> fraction3: fraction held as hundreds and thousands; 1e20 where there is none; as given when packing
'   0.25, 0.40, 0.07 are packed as 740.25.
'   Fractions that add up to more than 1e10, and a packed number above 1e10, are undefined and give 1e20.
'   Fractions 2 and 3 are cut to two decimals, with a tenth of a hundredth to spare; fraction 1 is added as it stands
'   and cut when unpacked.
'   All triples from 0.00 to 0.99 come back, as hundredths times the float 0.01: for 29 of the hundred fractions, 0.40
'   among them, that is the float next to the nearest.
'   A fraction of 1.00 is carried into the next one, 1 into 2 and 2 into 3.
'   Source: Format of the packed property numbers of element records (FabricElementProperty).
Public Function FabricPackThreeFractions(ByVal packing As Variant, ByVal packedNumber As Variant, _
    ByVal fraction1 As Variant, ByVal fraction2 As Variant, ByVal fraction3 As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(packing), HeldBy(packedNumber), HeldBy(fraction1), HeldBy(fraction2), HeldBy(fraction3))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, FabricPackThreeFractions(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricPackThreeFractions = spread
        Exit Function
    End If
    Dim fault As Long
    Dim packingGiven As Long
    Dim packedNumberGiven As Single
    Dim fraction1Given As Single
    Dim fraction2Given As Single
    Dim fraction3Given As Single
    packingGiven = SelectorOf(packing, 1, "pack unpack", fault)
    packedNumberGiven = SingleOf(packedNumber, 0, 9999.99, fault)
    fraction1Given = SingleOf(fraction1, 0, 0.99, fault)
    fraction2Given = SingleOf(fraction2, 0, 0.99, fault)
    fraction3Given = SingleOf(fraction3, 0, 0.99, fault)
    If fault <> 0 Then
        FabricPackThreeFractions = CVErr(fault)
        Exit Function
    End If
    TPCOLT packingGiven, packedNumberGiven, fraction1Given, fraction2Given, fraction3Given
    FabricPackThreeFractions = Array(CellOf(packedNumberGiven), CellOf(fraction1Given), CellOf(fraction2Given), _
        CellOf(fraction3Given))
End Function

' FabricPackThreeFractions with its arguments in another order.
'   packing: direction: 1 pack, 2 unpack, as any other value
'   packedNumber: packed number; valid 0 to 9999.99
'   fraction3: fraction held as hundreds and thousands; valid 0 to 0.99
'   fraction1: fraction behind the point; valid 0 to 0.99
'   fraction2: fraction held as units and tens; valid 0 to 0.99
'   -> packedNumber: packed number; 1e20 where there is none; as given when unpacking
'   -> fraction3: fraction held as hundreds and thousands; 1e20 where there is none; as given when packing
'   -> fraction1: fraction behind the point; 1e20 where there is none; as given when packing
'   -> fraction2: fraction held as units and tens; 1e20 where there is none; as given when packing
'   Source: As FabricPackThreeFractions.
Public Function FabricPackThreeFractionsThirdFirst(ByVal packing As Variant, ByVal packedNumber As Variant, _
    ByVal fraction3 As Variant, ByVal fraction1 As Variant, ByVal fraction2 As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(packing), HeldBy(packedNumber), HeldBy(fraction3), HeldBy(fraction1), HeldBy(fraction2))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, _
                    FabricPackThreeFractionsThirdFirst(CellAt(held(0), rowAt, columnAt), CellAt(held(1), rowAt, _
                    columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), CellAt(held(4), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricPackThreeFractionsThirdFirst = spread
        Exit Function
    End If
    Dim fault As Long
    Dim packingGiven As Long
    Dim packedNumberGiven As Single
    Dim fraction3Given As Single
    Dim fraction1Given As Single
    Dim fraction2Given As Single
    packingGiven = SelectorOf(packing, 1, "pack unpack", fault)
    packedNumberGiven = SingleOf(packedNumber, 0, 9999.99, fault)
    fraction3Given = SingleOf(fraction3, 0, 0.99, fault)
    fraction1Given = SingleOf(fraction1, 0, 0.99, fault)
    fraction2Given = SingleOf(fraction2, 0, 0.99, fault)
    If fault <> 0 Then
        FabricPackThreeFractionsThirdFirst = CVErr(fault)
        Exit Function
    End If
    TPCOLW2 packingGiven, packedNumberGiven, fraction3Given, fraction1Given, fraction2Given
    FabricPackThreeFractionsThirdFirst = Array(CellOf(packedNumberGiven), CellOf(fraction3Given), _
        CellOf(fraction1Given), CellOf(fraction2Given))
End Function

' Packs the solar absorptance of a pane and the reflectances of its faces into one real, as absorptance and
' transmittances, or unpacks them.
'   packing: direction: 1 pack, 2 unpack, as any other value
'   packedNumber: packed number; valid 0 to 9999.99
'   absorptance: absorptance; valid 0 to 1
'   reflectance1: reflectance of the first face; valid 0 to 1
'   reflectance2: reflectance of the second face; valid 0 to 1
'   -> packedNumber: packed number; 1e20 where there is none; as given when unpacking
'   -> absorptance: absorptance; 1e20 where there is none; as given when packing
'   -> reflectance1: reflectance of the first face; 1e20 where there is none; as given when packing
'   -> reflectance2: reflectance of the second face; 1e20 where there is none; as given when packing
'   Packed as FabricPackThreeFractions packs the absorptance and the transmittances 1 - absorptance - reflectance of the
'   two faces. Undefined values as there.
'   A face that neither absorbs nor reflects transmits 1.00, which is carried into the next position.
'   Absorptance and reflectance of a face that exceed 1 together do not come back.
'   Source: As FabricPackThreeFractions.
Public Function FabricPackPane(ByVal packing As Variant, ByVal packedNumber As Variant, ByVal absorptance As Variant, _
    ByVal reflectance1 As Variant, ByVal reflectance2 As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(packing), HeldBy(packedNumber), HeldBy(absorptance), HeldBy(reflectance1), HeldBy(reflectance2))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, FabricPackPane(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt), CellAt(held(4), rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricPackPane = spread
        Exit Function
    End If
    Dim fault As Long
    Dim packingGiven As Long
    Dim packedNumberGiven As Single
    Dim absorptanceGiven As Single
    Dim reflectance1Given As Single
    Dim reflectance2Given As Single
    packingGiven = SelectorOf(packing, 1, "pack unpack", fault)
    packedNumberGiven = SingleOf(packedNumber, 0, 9999.99, fault)
    absorptanceGiven = SingleOf(absorptance, 0, 1, fault)
    reflectance1Given = SingleOf(reflectance1, 0, 1, fault)
    reflectance2Given = SingleOf(reflectance2, 0, 1, fault)
    If fault <> 0 Then
        FabricPackPane = CVErr(fault)
        Exit Function
    End If
    TPCOSW packingGiven, packedNumberGiven, absorptanceGiven, reflectance1Given, reflectance2Given
    FabricPackPane = Array(CellOf(packedNumberGiven), CellOf(absorptanceGiven), CellOf(reflectance1Given), _
        CellOf(reflectance2Given))
End Function

' Thermal resistance of the inside or outside surface of an element, for an emissivity of 0.9.
'   surface: surface: 1 outside, 2 inside
'   tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
'   exposure: exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe
'   -> surface resistance [m2K/W]
'   Formula: inside 1 / (9.53 - 2.6 tilt / pi), outside 1 / (4.59 + a + 4 b (1 - tilt / pi)^2)
'   Another surface type gives 0. Another exposure counts as the nearest one.
'   An inside vertical surface has 1 / 8.23 = 0.12 m2K/W.
'   The tilt is not tested.
'   a is 4.3, 9.1 and 20.7 W/m2K by exposure, b is 1.3, 2.8 and 6.1.
'   Source: Radiation and convection side by side. The customary values of inside surfaces (0.10 up, 0.12 horizontal,
'   0.14 down) and of outside ones in normal and severe exposure (walls 0.06 and 0.03, roofs 0.04 and 0.02) are met to
'   two decimals; the origin of the convective coefficients is not recorded.
Public Function FabricSurfaceResistance(ByVal surface As Variant, ByVal tilt As Variant, _
    ByVal exposure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(surface), HeldBy(tilt), HeldBy(exposure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = FabricSurfaceResistance(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricSurfaceResistance = spread
        Exit Function
    End If
    Dim fault As Long
    Dim surfaceGiven As Long
    Dim tiltGiven As Single
    Dim exposureGiven As Long
    surfaceGiven = SelectorOf(surface, 1, "outside inside", fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    exposureGiven = SelectorOf(exposure, 1, "sheltered normal severe", fault)
    If fault <> 0 Then
        FabricSurfaceResistance = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = TPRSUR(surfaceGiven, tiltGiven, exposureGiven)
    FabricSurfaceResistance = CellOf(valueResult)
End Function

' Thermal resistance of the inside or outside surface of an element of any emissivity.
'   surface: surface: 1 outside, 2 inside
'   tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
'   exposure: exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe
'   emissivity: long-wave emissivity of the surface; valid 0 to 1
'   -> surface resistance [m2K/W]
'   Formula: inside 1 / (4.4 - 2.6 tilt / pi + 5.7 emissivity), outside 1 / (5.1 emissivity + a + 4 b (1 - tilt / pi)^2)
'   Another surface type gives 0. Another exposure counts as the nearest one.
'   At an emissivity of 0.9 it is FabricSurfaceResistance to rounding.
'   Tilt and emissivity are not tested.
'   a and b are those of FabricSurfaceResistance.
'   Source: As FabricSurfaceResistance, with black-body coefficients of 5.1 W/m2K outside and 5.7 W/m2K inside.
Public Function FabricSurfaceResistanceAtEmissivity(ByVal surface As Variant, ByVal tilt As Variant, _
    ByVal exposure As Variant, ByVal emissivity As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(surface), HeldBy(tilt), HeldBy(exposure), HeldBy(emissivity))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = FabricSurfaceResistanceAtEmissivity(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        FabricSurfaceResistanceAtEmissivity = spread
        Exit Function
    End If
    Dim fault As Long
    Dim surfaceGiven As Long
    Dim tiltGiven As Single
    Dim exposureGiven As Long
    Dim emissivityGiven As Single
    surfaceGiven = SelectorOf(surface, 1, "outside inside", fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    exposureGiven = SelectorOf(exposure, 1, "sheltered normal severe", fault)
    emissivityGiven = SingleOf(emissivity, 0, 1, fault)
    If fault <> 0 Then
        FabricSurfaceResistanceAtEmissivity = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = TPRSU2(surfaceGiven, tiltGiven, exposureGiven, emissivityGiven)
    FabricSurfaceResistanceAtEmissivity = CellOf(valueResult)
End Function

' U-value of a construction of plane layers between two surface resistances.
'   thickness: thickness of each layer; below 0: a layer of given resistance, 0: no layer [m]
'   conductivity: conductivity of each layer; its resistance in m2K/W where the thickness is below 0 [W/mK]; valid from
'     0
'   surfaceResistance1: resistance of one surface [m2K/W]; valid from 0
'   surfaceResistance2: resistance of the other [m2K/W]; valid from 0
'   -> U-value [W/m2K]
'   Formula: 1 / (surface_resistance_1 + surface_resistance_2 + sum of thickness / conductivity)
'   Without layers the two surfaces are left.
'   How far below 0 a thickness is makes no difference here; it does in FabricTotalVapourResistance and
'   FabricCondensationProfile.
'   A thickness that is no number gives no number.
'   Source: Resistances in series; ISO 6946.
Public Function FabricUValue(ByVal thickness As Variant, ByVal conductivity As Variant, _
    ByVal surfaceResistance1 As Variant, ByVal surfaceResistance2 As Variant) As Variant
    Dim fault As Long
    Dim thicknessGiven() As Single
    Dim conductivityGiven() As Single
    Dim surfaceResistance1Given As Single
    Dim surfaceResistance2Given As Single
    Dim layers As Long
    layers = SinglesOf(thickness, 1, -largest, largest, thicknessGiven, fault)
    Equal SinglesOf(conductivity, 1, 0, largest, conductivityGiven, fault), layers, fault
    surfaceResistance1Given = SingleOf(surfaceResistance1, 0, largest, fault)
    surfaceResistance2Given = SingleOf(surfaceResistance2, 0, largest, fault)
    Limit layers, 0, 20, fault
    If fault <> 0 Then
        FabricUValue = CVErr(fault)
        Exit Function
    End If
    Dim uValueResult As Single
    uValueResult = unwritten
    TPUVAL thicknessGiven(0), conductivityGiven(0), surfaceResistance1Given, surfaceResistance2Given, layers, _
        uValueResult
    FabricUValue = CellOf(uValueResult)
End Function

' U-value of a construction at another tilt and exposure, from its U-value as a vertical wall in normal exposure.
'   uValue: U-value with the surface resistances of a vertical wall at exposure 2 [W/m2K]; valid from 0
'   tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
'   exposure: wind exposure of the outside surface: 1 sheltered, 2 normal, 3 severe
'   -> U-value at that tilt and exposure [W/m2K]
'   Formula: 1 / (1 / u_value - Rso - Rsi + Rso(tilt, exposure) + Rsi(tilt)), Rso and Rsi of a vertical surface in
'   normal exposure where nothing else is said
'   A U-value that is not above 0, or no number, comes back as it is.
'   Above 5.49 W/m2K, what the two surfaces of the wall let through by themselves, the layers would have a negative
'   resistance; the result is formed with it all the same.
'   An exposure below 1 counts as 1, above 3 as 3. The tilt is not limited.
'   Source: Surface resistances of FabricSurfaceResistance, exchanged.
Public Function FabricUValueAtTiltAndExposure(ByVal uValue As Variant, ByVal tilt As Variant, _
    ByVal exposure As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(uValue), HeldBy(tilt), HeldBy(exposure))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = FabricUValueAtTiltAndExposure(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricUValueAtTiltAndExposure = spread
        Exit Function
    End If
    Dim fault As Long
    Dim uValueGiven As Single
    Dim tiltGiven As Single
    Dim exposureGiven As Long
    uValueGiven = SingleOf(uValue, 0, largest, fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    exposureGiven = SelectorOf(exposure, 1, "sheltered normal severe", fault)
    If fault <> 0 Then
        FabricUValueAtTiltAndExposure = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = TPUMOD(uValueGiven, tiltGiven, exposureGiven)
    FabricUValueAtTiltAndExposure = CellOf(valueResult)
End Function

' U-value, admittance, decrement factor and surface factor of a glazing of one to three panes.
'   panes: number of panes, pane 1 nearest the room; valid 1 to 3
'   paneKind1: kind of pane 1: 1 closes the cavities on both sides, 2 closes none
'   emissivity1: long-wave emissivity of pane 1; valid 0 to 1
'   paneKind2: kind of pane 2: 1 closes the cavities on both sides, 2 closes none
'   emissivity2: long-wave emissivity of pane 2; valid 0 to 1
'   paneKind3: kind of pane 3: 1 closes the cavities on both sides, 2 closes none
'   emissivity3: long-wave emissivity of pane 3; valid 0 to 1
'   cavityWidth1: width of the cavity between panes 1 and 2 [m]; valid from 0.001
'   cavityWidth2: width of the cavity between panes 2 and 3 [m]; valid from 0.001
'   outerSurface: surface type of the outer face, normally 1: 1 outside, 2 inside
'   exposure: exposure of the outer face to the wind: 1 sheltered, 2 normal, 3 severe
'   tilt: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
'   -> admittance: admittance, the U-value [W/m2K]
'   -> admittanceLead: time lead of the admittance, 0 [h]
'   -> decrementFactor: decrement factor, 1
'   -> decrementLag: time lag of the decrement factor, 0 [h]
'   -> surfaceFactor: surface factor, 1 - Rsi U
'   -> surfaceFactorLag: time lag of the surface factor, 0 [h]
'   -> uValue: U-value [W/m2K]
'   Formula: u_value = 1 / (Rso + Rsi + the resistances of the cavities), surface_factor = 1 - Rsi u_value
'   The resistance of the glass is neglected and nothing is stored in it.
'   Of three panes one may be open: the middle one leaves a single cavity as wide as both. With two open panes, and with
'   one open pane of two, there is no cavity.
'   The kinds of the panes are told by their sum: 0, 1, 2 count as three closed panes.
'   Another number of panes counts as one pane, with the emissivity of pane 3 outside.
'   Cavities as FabricAirCavityResistance: one that it rejects has no resistance.
'   Rsi and Rso are the resistances of the inner and the outer surface.
'   Source: Surface resistances of FabricSurfaceResistanceAtEmissivity and cavities of FabricAirCavityResistance in
'   series.
Public Function FabricWindowParameters(ByVal panes As Variant, ByVal paneKind1 As Variant, _
    ByVal emissivity1 As Variant, ByVal paneKind2 As Variant, ByVal emissivity2 As Variant, _
    ByVal paneKind3 As Variant, ByVal emissivity3 As Variant, ByVal cavityWidth1 As Variant, _
    ByVal cavityWidth2 As Variant, ByVal outerSurface As Variant, ByVal exposure As Variant, _
    ByVal tilt As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(panes), HeldBy(paneKind1), HeldBy(emissivity1), HeldBy(paneKind2), HeldBy(emissivity2), _
        HeldBy(paneKind3), HeldBy(emissivity3), HeldBy(cavityWidth1), HeldBy(cavityWidth2), HeldBy(outerSurface), _
        HeldBy(exposure), HeldBy(tilt))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 7)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, FabricWindowParameters(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt), _
                    CellAt(held(6), rowAt, columnAt), CellAt(held(7), rowAt, columnAt), CellAt(held(8), rowAt, _
                    columnAt), CellAt(held(9), rowAt, columnAt), CellAt(held(10), rowAt, columnAt), CellAt(held(11), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        FabricWindowParameters = spread
        Exit Function
    End If
    Dim fault As Long
    Dim panesGiven As Long
    Dim paneKind1Given As Long
    Dim emissivity1Given As Single
    Dim paneKind2Given As Long
    Dim emissivity2Given As Single
    Dim paneKind3Given As Long
    Dim emissivity3Given As Single
    Dim cavityWidth1Given As Single
    Dim cavityWidth2Given As Single
    Dim outerSurfaceGiven As Long
    Dim exposureGiven As Long
    Dim tiltGiven As Single
    panesGiven = LongOf(panes, 1, 3, fault)
    paneKind1Given = SelectorOf(paneKind1, 1, "closing vented", fault)
    emissivity1Given = SingleOf(emissivity1, 0, 1, fault)
    paneKind2Given = SelectorOf(paneKind2, 1, "closing vented", fault)
    emissivity2Given = SingleOf(emissivity2, 0, 1, fault)
    paneKind3Given = SelectorOf(paneKind3, 1, "closing vented", fault)
    emissivity3Given = SingleOf(emissivity3, 0, 1, fault)
    cavityWidth1Given = SingleOf(cavityWidth1, 0.001, largest, fault)
    cavityWidth2Given = SingleOf(cavityWidth2, 0.001, largest, fault)
    outerSurfaceGiven = SelectorOf(outerSurface, 1, "outside inside", fault)
    exposureGiven = SelectorOf(exposure, 1, "sheltered normal severe", fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    If fault <> 0 Then
        FabricWindowParameters = CVErr(fault)
        Exit Function
    End If
    Dim admittanceResult As Single
    admittanceResult = unwritten
    Dim admittanceLeadResult As Single
    admittanceLeadResult = unwritten
    Dim decrementFactorResult As Single
    decrementFactorResult = unwritten
    Dim decrementLagResult As Single
    decrementLagResult = unwritten
    Dim surfaceFactorResult As Single
    surfaceFactorResult = unwritten
    Dim surfaceFactorLagResult As Single
    surfaceFactorLagResult = unwritten
    Dim uValueResult As Single
    uValueResult = unwritten
    Dim unreadSingle As Single
    TPWNDO panesGiven, paneKind1Given, emissivity1Given, paneKind2Given, emissivity2Given, paneKind3Given, _
        emissivity3Given, cavityWidth1Given, cavityWidth2Given, outerSurfaceGiven, exposureGiven, tiltGiven, _
        unreadSingle, admittanceResult, admittanceLeadResult, decrementFactorResult, decrementLagResult, _
        surfaceFactorResult, surfaceFactorLagResult, uValueResult
    FabricWindowParameters = Array(CellOf(admittanceResult), CellOf(admittanceLeadResult), _
        CellOf(decrementFactorResult), CellOf(decrementLagResult), CellOf(surfaceFactorResult), _
        CellOf(surfaceFactorLagResult), CellOf(uValueResult))
End Function

' Transmittance, absorptance and reflectance of a pane for direct radiation, both polarisations.
'   normalTransmittance: normal transmittance; valid 0 to 0.92
'   normalReflectance: normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99
'   incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
'   -> parallelTransmittance: transmittance, parallel polarisation
'   -> parallelAbsorptance: absorptance, parallel
'   -> parallelReflectance: reflectance, parallel
'   -> perpendicularTransmittance: transmittance, perpendicular polarisation
'   -> perpendicularAbsorptance: absorptance, perpendicular
'   -> perpendicularReflectance: reflectance, perpendicular
'   The unpolarised values are the means of the two polarisations.
'   A normal reflectance in 0.01..0.99 means coated: factors on the normal transmittance and on 1 - normal_reflectance
'   are interpolated from a table every 5 degrees, the same for both polarisations; beyond 1.57 rad everything is
'   reflected. Any other means uncoated and is not used.
'   Uncoated glass has the refractive index 1.52. Below a transmittance of 0.001 it is opaque and reflects everything.
'   No uncoated glass has a normal transmittance above 0.9184: from there on its absorption would be below 0 and is held
'   at 0, so that the three add up to more than 1. At 0.92 their unpolarised sum is 1.0018 at normal incidence, 1.0024
'   at 1.5 rad and 1.011 at 1.57 rad.
'   For nearly opaque uncoated glass the difference in GlazingAbsorptionProduct cancels: at normal incidence the
'   transmittance comes back to within 4 % from 0.02 on and 34 % from 0.005 on; below that 0.002 gives 0 and 0.0025
'   gives 0.006.
'   Uncoated, an angle beyond pi/2 is not tested, and the results mean nothing there.
'   The transmittance of coated glass is not tested: where it exceeds 1 with the reflectance the three do not add up to
'   1.
'   Source: Uncoated glass: GlazingAbsorptionProduct, GlazingRefractionAngle, GlazingSurfaceReflectance,
'   GlazingSinglePassAbsorption, GlazingSlabOptics in turn. Coated glass: tabulated angular factors whose origin is not
'   recorded.
Public Function GlazingGlassDirect(ByVal normalTransmittance As Variant, ByVal normalReflectance As Variant, _
    ByVal incidence As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(normalTransmittance), HeldBy(normalReflectance), HeldBy(incidence))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 6)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingGlassDirect(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingGlassDirect = spread
        Exit Function
    End If
    Dim fault As Long
    Dim normalTransmittanceGiven As Single
    Dim normalReflectanceGiven As Single
    Dim incidenceGiven As Single
    normalTransmittanceGiven = SingleOf(normalTransmittance, 0, 0.92, fault)
    normalReflectanceGiven = SingleOf(normalReflectance, 0, 0.99, fault)
    incidenceGiven = SingleOf(incidence, -1.5708, 1.5708, fault)
    If fault <> 0 Then
        GlazingGlassDirect = CVErr(fault)
        Exit Function
    End If
    Dim parallelTransmittanceResult As Single
    parallelTransmittanceResult = unwritten
    Dim parallelAbsorptanceResult As Single
    parallelAbsorptanceResult = unwritten
    Dim parallelReflectanceResult As Single
    parallelReflectanceResult = unwritten
    Dim perpendicularTransmittanceResult As Single
    perpendicularTransmittanceResult = unwritten
    Dim perpendicularAbsorptanceResult As Single
    perpendicularAbsorptanceResult = unwritten
    Dim perpendicularReflectanceResult As Single
    perpendicularReflectanceResult = unwritten
    WNDRGL normalTransmittanceGiven, normalReflectanceGiven, incidenceGiven, parallelTransmittanceResult, _
        parallelAbsorptanceResult, parallelReflectanceResult, perpendicularTransmittanceResult, _
        perpendicularAbsorptanceResult, perpendicularReflectanceResult
    GlazingGlassDirect = Array(CellOf(parallelTransmittanceResult), CellOf(parallelAbsorptanceResult), _
        CellOf(parallelReflectanceResult), CellOf(perpendicularTransmittanceResult), _
        CellOf(perpendicularAbsorptanceResult), CellOf(perpendicularReflectanceResult))
End Function

' Transmittance and absorptance of a pane for isotropic diffuse radiation.
'   normalTransmittance: normal transmittance; valid 0 to 0.92
'   normalReflectance: normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99
'   -> transmittance: diffuse transmittance
'   -> absorptance: diffuse absorptance
'   The pane is taken exactly as by GlazingGlassDirect, coated and opaque glass included.
'   The bits are those of GlazingGlassDirect summed over the bands.
'   Source: GlazingGlassDirect at the centres of 18 bands of 5 degrees, each weighted with the integral of 2 sin cos
'   over the band.
Public Function GlazingGlassDiffuse(ByVal normalTransmittance As Variant, ByVal normalReflectance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(normalTransmittance), HeldBy(normalReflectance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 2)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingGlassDiffuse(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingGlassDiffuse = spread
        Exit Function
    End If
    Dim fault As Long
    Dim normalTransmittanceGiven As Single
    Dim normalReflectanceGiven As Single
    normalTransmittanceGiven = SingleOf(normalTransmittance, 0, 0.92, fault)
    normalReflectanceGiven = SingleOf(normalReflectance, 0, 0.99, fault)
    If fault <> 0 Then
        GlazingGlassDiffuse = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    WNDFGL normalTransmittanceGiven, normalReflectanceGiven, transmittanceResult, absorptanceResult
    GlazingGlassDiffuse = Array(CellOf(transmittanceResult), CellOf(absorptanceResult))
End Function

' Transmittance, absorptance and reflectance of a stack of layers, each reflection counted once.
'   layerTransmittances: transmittance of each layer; valid 0 to 1
'   layerReflectances: reflectance of each layer; valid 0 to 1
'   -> transmittance: transmittance of the stack
'   -> absorptance: absorptance, 1 - transmittance - reflectance
'   -> reflectance: reflectance of the stack
'   A layer's reflection passes the layers above it once each way; there is no further inter-reflection.
'   Where transmittance and reflectance exceed 0.99 together, the reflectance is reduced until they do not. It turns
'   negative if the transmittance alone is above 0.99.
'   The last layer is met first. No layers are an empty stack, which transmits everything.
'   Source: First-order combination of the layers.
Public Function GlazingStackedLayers(ByVal layerTransmittances As Variant, _
    ByVal layerReflectances As Variant) As Variant
    Dim fault As Long
    Dim layerTransmittancesGiven() As Single
    Dim layerReflectancesGiven() As Single
    Dim layers As Long
    layers = SinglesOf(layerTransmittances, 1, 0, 1, layerTransmittancesGiven, fault)
    Equal SinglesOf(layerReflectances, 1, 0, 1, layerReflectancesGiven, fault), layers, fault
    If fault <> 0 Then
        GlazingStackedLayers = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    Dim unreadSingle As Single
    WNCOM2 layers, layerTransmittancesGiven(0), unreadSingle, layerReflectancesGiven(0), transmittanceResult, _
        absorptanceResult, reflectanceResult
    GlazingStackedLayers = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' Transmittance, absorptance and reflectance of a stack of layers with the inter-reflections between all of them.
'   layerTransmittances: transmittance of each layer, the same from both sides; valid 0 to 1
'   layerAbsorptances: absorptance of each layer; valid 0 to 1
'   layerReflectances: reflectance of each layer, the same from both sides; valid 0 to 1
'   -> transmittance: transmittance of the stack
'   -> absorptance: absorptance of the stack
'   -> reflectance: reflectance of the stack
'   In a pass the flux goes forward through all layers and back by one; nine passes are made. What needs more than eight
'   steps back is missing from all three results: nothing of one layer; of two, the ninth power of the product of their
'   reflectances as a share of the transmittance; of ten and eleven layers all that the last ones reflect.
'   The last layer is met first. No layers are an empty stack, which transmits everything.
'   That transmittance, absorptance and reflectance of a layer add up to 1 is left to the caller.
'   Source: Tracing of one forward and one backward flux, which tends to the adding method.
Public Function GlazingTracedLayers(ByVal layerTransmittances As Variant, ByVal layerAbsorptances As Variant, _
    ByVal layerReflectances As Variant) As Variant
    Dim fault As Long
    Dim layerTransmittancesGiven() As Single
    Dim layerAbsorptancesGiven() As Single
    Dim layerReflectancesGiven() As Single
    Dim layers As Long
    layers = SinglesOf(layerTransmittances, 1, 0, 1, layerTransmittancesGiven, fault)
    Equal SinglesOf(layerAbsorptances, 1, 0, 1, layerAbsorptancesGiven, fault), layers, fault
    Equal SinglesOf(layerReflectances, 1, 0, 1, layerReflectancesGiven, fault), layers, fault
    Limit layers, 0, 11, fault
    If fault <> 0 Then
        GlazingTracedLayers = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    WNCOMP layers, layerTransmittancesGiven(0), layerAbsorptancesGiven(0), layerReflectancesGiven(0), _
        transmittanceResult, absorptanceResult, reflectanceResult
    GlazingTracedLayers = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' Transmittance, absorptance and reflectance of a roller blind, the same at every angle.
'   blindTransmittance: transmittance of the blind; valid 0 to 1
'   blindReflectance: reflectance of the blind; valid 0 to 1
'   -> transmittance: transmittance, that of the blind
'   -> absorptance: absorptance, the rest
'   -> reflectance: reflectance, that of the blind
'   Formula: absorptance = 1 - blind_transmittance - blind_reflectance
'   Nothing is limited: a blind that transmits and reflects more than 1 gives a negative absorptance.
'   Source: Conservation of energy.
Public Function GlazingRollerBlind(ByVal blindTransmittance As Variant, ByVal blindReflectance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(blindTransmittance), HeldBy(blindReflectance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingRollerBlind(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingRollerBlind = spread
        Exit Function
    End If
    Dim fault As Long
    Dim blindTransmittanceGiven As Single
    Dim blindReflectanceGiven As Single
    blindTransmittanceGiven = SingleOf(blindTransmittance, 0, 1, fault)
    blindReflectanceGiven = SingleOf(blindReflectance, 0, 1, fault)
    If fault <> 0 Then
        GlazingRollerBlind = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    Dim unreadSingle As Single
    WNDRRO blindTransmittanceGiven, blindReflectanceGiven, unreadSingle, transmittanceResult, absorptanceResult, _
        reflectanceResult
    GlazingRollerBlind = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' Transmittance, absorptance and reflectance of a roller blind for diffuse radiation.
'   blindTransmittance: transmittance of the blind; valid 0 to 1
'   blindReflectance: reflectance of the blind; valid 0 to 1
'   -> transmittance: transmittance, that of the blind to rounding
'   -> absorptance: absorptance, the rest to rounding
'   -> reflectance: reflectance, 1 - transmittance - absorptance
'   The blind is the same at every angle; the sum of the bands' weights, 0.9999999, remains as a factor.
'   Nothing is limited: a blind that transmits and reflects more than 1 gives a negative absorptance.
'   Source: GlazingRollerBlind, integrated as in GlazingSlatDiffuse.
Public Function GlazingDiffuseRollerBlind(ByVal blindTransmittance As Variant, _
    ByVal blindReflectance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(blindTransmittance), HeldBy(blindReflectance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingDiffuseRollerBlind(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingDiffuseRollerBlind = spread
        Exit Function
    End If
    Dim fault As Long
    Dim blindTransmittanceGiven As Single
    Dim blindReflectanceGiven As Single
    blindTransmittanceGiven = SingleOf(blindTransmittance, 0, 1, fault)
    blindReflectanceGiven = SingleOf(blindReflectance, 0, 1, fault)
    If fault <> 0 Then
        GlazingDiffuseRollerBlind = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    WNDFRO blindTransmittanceGiven, blindReflectanceGiven, transmittanceResult, absorptanceResult, reflectanceResult
    GlazingDiffuseRollerBlind = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' Angle of a ray inside the glass, by Snell's law.
'   incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
'   refractiveIndex: refractive index of the glass; valid 1 to 4
'   -> refraction angle [rad]
'   Formula: asin(sin(incidence) / refractive_index)
'   Where the sine of the incidence is below 0.01 in size the result is incidence / refractive_index, the ratio of the
'   angles in place of that of the sines.
'   An index so far below 1 that the reflection is total gives no number.
'   Source: Snell's law.
Public Function GlazingRefractionAngle(ByVal incidence As Variant, ByVal refractiveIndex As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(incidence), HeldBy(refractiveIndex))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = GlazingRefractionAngle(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingRefractionAngle = spread
        Exit Function
    End If
    Dim fault As Long
    Dim incidenceGiven As Single
    Dim refractiveIndexGiven As Single
    incidenceGiven = SingleOf(incidence, -1.5708, 1.5708, fault)
    refractiveIndexGiven = SingleOf(refractiveIndex, 1, 4, fault)
    If fault <> 0 Then
        GlazingRefractionAngle = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = WNRANG(incidenceGiven, refractiveIndexGiven)
    GlazingRefractionAngle = CellOf(valueResult)
End Function

' Reflectance of one face of the glass for the two polarisations, by Fresnel's equations.
'   incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
'   refractionAngle: refraction angle, of the sign of the incidence [rad]; valid -1.5708 to 1.5708
'   refractiveIndex: refractive index, used at normal incidence only; valid 1 to 4
'   -> parallelReflectance: reflectance, polarised parallel to the plane of incidence
'   -> perpendicularReflectance: reflectance, polarised perpendicular to it
'   Formula: perpendicular (sin(i - r) / sin(i + r))^2, parallel (tan(i - r) / tan(i + r))^2; i = incidence, r =
'   refraction_angle
'   Up to an angle of 0.01 in size, and for an incidence that is no number, both are the value at normal incidence, ((1
'   - n) / (1 + n))^2 with the refractive index n. GlazingRefractionAngle tests the sine of the angle instead; the two
'   limits differ deliberately.
'   Source: Fresnel's equations; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.
Public Function GlazingSurfaceReflectance(ByVal incidence As Variant, ByVal refractionAngle As Variant, _
    ByVal refractiveIndex As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(incidence), HeldBy(refractionAngle), HeldBy(refractiveIndex))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 2)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingSurfaceReflectance(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingSurfaceReflectance = spread
        Exit Function
    End If
    Dim fault As Long
    Dim incidenceGiven As Single
    Dim refractionAngleGiven As Single
    Dim refractiveIndexGiven As Single
    incidenceGiven = SingleOf(incidence, -1.5708, 1.5708, fault)
    refractionAngleGiven = SingleOf(refractionAngle, -1.5708, 1.5708, fault)
    refractiveIndexGiven = SingleOf(refractiveIndex, 1, 4, fault)
    If fault <> 0 Then
        GlazingSurfaceReflectance = CVErr(fault)
        Exit Function
    End If
    Dim parallelReflectanceResult As Single
    parallelReflectanceResult = unwritten
    Dim perpendicularReflectanceResult As Single
    perpendicularReflectanceResult = unwritten
    WNREFL incidenceGiven, refractionAngleGiven, refractiveIndexGiven, parallelReflectanceResult, _
        perpendicularReflectanceResult
    GlazingSurfaceReflectance = Array(CellOf(parallelReflectanceResult), CellOf(perpendicularReflectanceResult))
End Function

' Share of a ray that is absorbed in one pass through the body of a pane.
'   refractionAngle: refraction angle [rad]; valid -1.5708 to 1.5708
'   absorptionProduct: absorption coefficient times thickness; valid 0 to 20
'   -> absorbed share
'   Formula: 1 - exp(-absorption_product / cos(refraction_angle))
'   Source: Bouguer's law of absorption.
Public Function GlazingSinglePassAbsorption(ByVal refractionAngle As Variant, _
    ByVal absorptionProduct As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(refractionAngle), HeldBy(absorptionProduct))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = GlazingSinglePassAbsorption(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingSinglePassAbsorption = spread
        Exit Function
    End If
    Dim fault As Long
    Dim refractionAngleGiven As Single
    Dim absorptionProductGiven As Single
    refractionAngleGiven = SingleOf(refractionAngle, -1.5708, 1.5708, fault)
    absorptionProductGiven = SingleOf(absorptionProduct, 0, 20, fault)
    If fault <> 0 Then
        GlazingSinglePassAbsorption = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    Dim unreadSingle As Single
    valueResult = WNABEN(refractionAngleGiven, absorptionProductGiven, unreadSingle)
    GlazingSinglePassAbsorption = CellOf(valueResult)
End Function

' Transmittance, absorptance and reflectance of a pane for one polarisation, with all inter-reflections between its two
' faces.
'   singlePassAbsorptance: share absorbed in a single pass; valid 0 to 1
'   faceReflectance: reflectance of either face; valid 0 to 1
'   -> transmittance: transmittance
'   -> absorptance: absorptance, not below 0
'   -> reflectance: reflectance
'   Formula: transmittance = (1 - r)^2 tau / (1 - r^2 tau^2), reflectance = r + r (1 - r)^2 tau^2 / (1 - r^2 tau^2),
'   absorptance = 1 - transmittance - reflectance; tau = 1 - single_pass_absorptance, r = face_reflectance
'   Faces that reflect everything around a body that absorbs nothing leave the result undefined (0/0).
'   What is no number stays so; the limit at 0 touches only numbers.
'   Source: Stokes, On the intensity of the light reflected from or transmitted through a pile of plates, 1862; Duffie
'   and Beckman, Solar Engineering of Thermal Processes, chapter 5.
Public Function GlazingSlabOptics(ByVal singlePassAbsorptance As Variant, ByVal faceReflectance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(singlePassAbsorptance), HeldBy(faceReflectance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingSlabOptics(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingSlabOptics = spread
        Exit Function
    End If
    Dim fault As Long
    Dim singlePassAbsorptanceGiven As Single
    Dim faceReflectanceGiven As Single
    singlePassAbsorptanceGiven = SingleOf(singlePassAbsorptance, 0, 1, fault)
    faceReflectanceGiven = SingleOf(faceReflectance, 0, 1, fault)
    If fault <> 0 Then
        GlazingSlabOptics = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    WNTAR singlePassAbsorptanceGiven, faceReflectanceGiven, transmittanceResult, absorptanceResult, reflectanceResult
    GlazingSlabOptics = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' Absorption coefficient times thickness of a pane, from its transmittance at normal incidence.
'   normalTransmittance: normal transmittance of the pane; valid 0 to 0.92
'   refractiveIndex: refractive index; valid 1 to 4
'   -> absorption coefficient times thickness
'   Formula: -ln((sqrt((1 - r)^4 + 4 r^2 T^2) - (1 - r)^2) / (2 T r^2)); T = normal_transmittance, r =
'   ((refractive_index - 1) / (refractive_index + 1))^2
'   Evaluated as written in single precision, where a difference of roots cancels for nearly opaque glass: the relative
'   error of the transmittance T, given back by GlazingNormalTransmittance, is up to 1.5e-5 / T^2, which is 0.02 % at
'   0.3, 0.15 % at 0.1 and 0.6 % at 0.05; at 0.002 and less the result is infinite.
'   Above the transmittance of glass that absorbs nothing, 0.918 for an index of 1.52, the result is negative.
'   A transmittance of 0 and an index of 1 divide by zero and give no finite number.
'   Source: The slab of GlazingSlabOptics at normal incidence, solved for the absorption.
Public Function GlazingAbsorptionProduct(ByVal normalTransmittance As Variant, _
    ByVal refractiveIndex As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(normalTransmittance), HeldBy(refractiveIndex))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = GlazingAbsorptionProduct(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingAbsorptionProduct = spread
        Exit Function
    End If
    Dim fault As Long
    Dim normalTransmittanceGiven As Single
    Dim refractiveIndexGiven As Single
    normalTransmittanceGiven = SingleOf(normalTransmittance, 0, 0.92, fault)
    refractiveIndexGiven = SingleOf(refractiveIndex, 1, 4, fault)
    If fault <> 0 Then
        GlazingAbsorptionProduct = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = WNKL(normalTransmittanceGiven, refractiveIndexGiven)
    GlazingAbsorptionProduct = CellOf(valueResult)
End Function

' Transmittance of a pane at normal incidence: the inverse of GlazingAbsorptionProduct.
'   absorptionProduct: absorption coefficient times thickness; valid 0 to 20
'   normalReflectance: normal reflectance of one face; valid 0 to 0.99
'   -> normal transmittance of the pane
'   Formula: (1 - r)^2 tau / (1 - r^2 tau^2); tau = exp(-absorption_product), r = normal_reflectance
'   The second argument is a reflectance, ((n - 1) / (n + 1))^2, where GlazingAbsorptionProduct takes the refractive
'   index.
'   Source: The slab of GlazingSlabOptics at normal incidence.
Public Function GlazingNormalTransmittance(ByVal absorptionProduct As Variant, _
    ByVal normalReflectance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(absorptionProduct), HeldBy(normalReflectance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = GlazingNormalTransmittance(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingNormalTransmittance = spread
        Exit Function
    End If
    Dim fault As Long
    Dim absorptionProductGiven As Single
    Dim normalReflectanceGiven As Single
    absorptionProductGiven = SingleOf(absorptionProduct, 0, 20, fault)
    normalReflectanceGiven = SingleOf(normalReflectance, 0, 0.99, fault)
    If fault <> 0 Then
        GlazingNormalTransmittance = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = WNTNOR(absorptionProductGiven, normalReflectanceGiven)
    GlazingNormalTransmittance = CellOf(valueResult)
End Function

' Steady temperatures of the panes of a glazing from the air temperatures on both sides and the solar radiation that
' each pane absorbs.
'   insideTemperature: air temperature in the room [degC]; valid -100 to 200
'   outsideTemperature: air temperature outdoors [degC]; valid -100 to 200
'   panes: number of panes; valid 1 to 5
'   absorbed1: absorbed in pane 1, nearest the room [W/m2]; valid from 0
'   absorbed2: absorbed in pane 2 [W/m2]; valid from 0
'   absorbed3: absorbed in pane 3 [W/m2]; valid from 0
'   absorbed4: absorbed in pane 4 [W/m2]; valid from 0
'   absorbed5: absorbed in pane 5 [W/m2]; valid from 0
'   -> paneTemperature1: temperature of pane 1, nearest the room [degC]; #N/A with panes outside 1 to 5
'   -> paneTemperature2: temperature of pane 2 [degC]; #N/A with panes outside 2 to 5
'   -> paneTemperature3: temperature of pane 3 [degC]; #N/A with panes outside 3 to 5
'   -> paneTemperature4: temperature of pane 4 [degC]; #N/A with panes outside 4 to 5
'   -> paneTemperature5: temperature of pane 5 [degC]; #N/A with panes outside 4 to 5
'   What is given as absorbed in panes that are not there has no influence. Four panes are calculated as five: what the
'   fifth absorbs counts (give 0 for it), and it has a temperature.
'   Source: Heat balance of the panes with fixed resistances: 0.12 m2K/W at the room side, 0.06 m2K/W outdoors;
'   coefficients rounded to two decimals.
Public Function GlazingPaneTemperatures(ByVal insideTemperature As Variant, ByVal outsideTemperature As Variant, _
    ByVal panes As Variant, ByVal absorbed1 As Variant, ByVal absorbed2 As Variant, ByVal absorbed3 As Variant, _
    ByVal absorbed4 As Variant, ByVal absorbed5 As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(insideTemperature), HeldBy(outsideTemperature), HeldBy(panes), HeldBy(absorbed1), _
        HeldBy(absorbed2), HeldBy(absorbed3), HeldBy(absorbed4), HeldBy(absorbed5))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 5)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingPaneTemperatures(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt), _
                    CellAt(held(6), rowAt, columnAt), CellAt(held(7), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingPaneTemperatures = spread
        Exit Function
    End If
    Dim fault As Long
    Dim insideTemperatureGiven As Single
    Dim outsideTemperatureGiven As Single
    Dim panesGiven As Long
    Dim absorbed1Given As Single
    Dim absorbed2Given As Single
    Dim absorbed3Given As Single
    Dim absorbed4Given As Single
    Dim absorbed5Given As Single
    insideTemperatureGiven = SingleOf(insideTemperature, -100, 200, fault)
    outsideTemperatureGiven = SingleOf(outsideTemperature, -100, 200, fault)
    panesGiven = LongOf(panes, 1, 5, fault)
    absorbed1Given = SingleOf(absorbed1, 0, largest, fault)
    absorbed2Given = SingleOf(absorbed2, 0, largest, fault)
    absorbed3Given = SingleOf(absorbed3, 0, largest, fault)
    absorbed4Given = SingleOf(absorbed4, 0, largest, fault)
    absorbed5Given = SingleOf(absorbed5, 0, largest, fault)
    If fault <> 0 Then
        GlazingPaneTemperatures = CVErr(fault)
        Exit Function
    End If
    Dim paneTemperature1Result As Single
    paneTemperature1Result = unwritten
    Dim paneTemperature2Result As Single
    paneTemperature2Result = unwritten
    Dim paneTemperature3Result As Single
    paneTemperature3Result = unwritten
    Dim paneTemperature4Result As Single
    paneTemperature4Result = unwritten
    Dim paneTemperature5Result As Single
    paneTemperature5Result = unwritten
    WNTEMP insideTemperatureGiven, outsideTemperatureGiven, panesGiven, absorbed1Given, absorbed2Given, _
        absorbed3Given, absorbed4Given, absorbed5Given, paneTemperature1Result, paneTemperature2Result, _
        paneTemperature3Result, paneTemperature4Result, paneTemperature5Result
    GlazingPaneTemperatures = Array(CellOf(paneTemperature1Result), CellOf(paneTemperature2Result), _
        CellOf(paneTemperature3Result), CellOf(paneTemperature4Result), CellOf(paneTemperature5Result))
End Function

' Transmittance, absorptance and reflectance for direct radiation of a glazing unit known only by its shading
' coefficients.
'   shortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
'     to 1.05
'   longwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
'   incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
'   -> transmittance: transmittance
'   -> absorptance: absorptance
'   -> reflectance: reflectance, 1 - transmittance - absorptance, at least 0.01 to rounding
'   A long-wave coefficient below 0.0001 counts as missing: the other is then split into 0.9 short-wave and 0.1
'   long-wave.
'   An uncoated pane of index 1.52 and normal transmittance 0.87 times the short-wave coefficient carries the angular
'   behaviour.
'   If the two coefficients add up to at most 1, the absorptance is 2.61 times the long-wave one at normal incidence and
'   follows the pane over the angle; otherwise it is that of the pane. A total of 1 belongs to the former, but only as
'   single precision rounds.
'   The absorptance is at most 0.99 - transmittance. An opaque unit, whose equivalent pane absorbs nothing, gets just
'   that: coefficients of 0 give an absorptance of 0.99.
'   An angle beyond pi/2 is not tested, and the results mean nothing there: coefficients of 0.9 and 0.05 give a
'   transmittance of -0.54 at 1.6 rad.
'   Source: Shading coefficients relative to clear float glass of total transmittance 0.87, of whose absorbed part a
'   third flows inwards.
Public Function GlazingUnitDirect(ByVal shortwaveShadingCoefficient As Variant, _
    ByVal longwaveShadingCoefficient As Variant, ByVal incidence As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(shortwaveShadingCoefficient), HeldBy(longwaveShadingCoefficient), HeldBy(incidence))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingUnitDirect(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingUnitDirect = spread
        Exit Function
    End If
    Dim fault As Long
    Dim shortwaveShadingCoefficientGiven As Single
    Dim longwaveShadingCoefficientGiven As Single
    Dim incidenceGiven As Single
    shortwaveShadingCoefficientGiven = SingleOf(shortwaveShadingCoefficient, 0, 1.05, fault)
    longwaveShadingCoefficientGiven = SingleOf(longwaveShadingCoefficient, 0, 1, fault)
    incidenceGiven = SingleOf(incidence, -1.5708, 1.5708, fault)
    If fault <> 0 Then
        GlazingUnitDirect = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    WNDRSC shortwaveShadingCoefficientGiven, longwaveShadingCoefficientGiven, incidenceGiven, transmittanceResult, _
        absorptanceResult, reflectanceResult
    GlazingUnitDirect = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' Transmittance, absorptance and reflectance for isotropic diffuse radiation of a glazing unit known only by its shading
' coefficients.
'   shortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
'     to 1.05
'   longwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
'   -> transmittance: diffuse transmittance
'   -> absorptance: diffuse absorptance
'   -> reflectance: diffuse reflectance, 1 - transmittance - absorptance
'   Coefficients as in GlazingUnitDirect. If they add up to at most 1 the absorptance is 2.61 times the long-wave one,
'   otherwise that of the equivalent pane.
'   The absorptance is at most 0.99 - transmittance. Unlike GlazingUnitDirect, coefficients of 0 give a reflectance of
'   1.
'   Source: GlazingUnitDirect, with the equivalent pane integrated as in GlazingGlassDiffuse.
Public Function GlazingUnitDiffuse(ByVal shortwaveShadingCoefficient As Variant, _
    ByVal longwaveShadingCoefficient As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(shortwaveShadingCoefficient), HeldBy(longwaveShadingCoefficient))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingUnitDiffuse(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingUnitDiffuse = spread
        Exit Function
    End If
    Dim fault As Long
    Dim shortwaveShadingCoefficientGiven As Single
    Dim longwaveShadingCoefficientGiven As Single
    shortwaveShadingCoefficientGiven = SingleOf(shortwaveShadingCoefficient, 0, 1.05, fault)
    longwaveShadingCoefficientGiven = SingleOf(longwaveShadingCoefficient, 0, 1, fault)
    If fault <> 0 Then
        GlazingUnitDiffuse = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    WNDFSC shortwaveShadingCoefficientGiven, longwaveShadingCoefficientGiven, transmittanceResult, absorptanceResult, _
        reflectanceResult
    GlazingUnitDiffuse = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' GlazingUnitDirect, with the remainder that is neither transmitted nor absorbed split among the panes of the unit.
'   shortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
'     to 1.05
'   longwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
'   incidence: angle of incidence [rad]; valid -1.5708 to 1.5708
'   panes: number of panes; valid 1 to 5
'   -> transmittance: transmittance
'   -> paneShares: share of each pane in 1 - transmittance - absorptance
'   -> absorptance: absorptance
'   What is split is the remainder, not the absorptance.
'   Source: GlazingUnitDirect; the shares by number of panes are fixed, 0.4 and 0.6 for two, their origin is not
'   recorded.
Public Function GlazingUnitDirectShares(ByVal shortwaveShadingCoefficient As Variant, _
    ByVal longwaveShadingCoefficient As Variant, ByVal incidence As Variant, ByVal panes As Variant) As Variant
    Dim fault As Long
    Dim shortwaveShadingCoefficientGiven As Single
    Dim longwaveShadingCoefficientGiven As Single
    Dim incidenceGiven As Single
    Dim panesGiven As Long
    shortwaveShadingCoefficientGiven = SingleOf(shortwaveShadingCoefficient, 0, 1.05, fault)
    longwaveShadingCoefficientGiven = SingleOf(longwaveShadingCoefficient, 0, 1, fault)
    incidenceGiven = SingleOf(incidence, -1.5708, 1.5708, fault)
    panesGiven = LongOf(panes, 1, 5, fault)
    If fault <> 0 Then
        GlazingUnitDirectShares = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim paneSharesResult() As Single
    ReDim paneSharesResult(0 To panesGiven - 1)
    BlankSingles paneSharesResult
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    WNDRSM shortwaveShadingCoefficientGiven, longwaveShadingCoefficientGiven, incidenceGiven, panesGiven, _
        transmittanceResult, paneSharesResult(0), absorptanceResult
    GlazingUnitDirectShares = Beside(Array(CellOf(transmittanceResult), TableOf(paneSharesResult, 1), _
        CellOf(absorptanceResult)))
End Function

' GlazingUnitDiffuse, with the remainder that is neither transmitted nor absorbed split among the panes of the unit.
'   shortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
'     to 1.05
'   longwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
'   panes: number of panes; valid 1 to 5
'   -> transmittance: diffuse transmittance
'   -> paneShares: share of each pane in 1 - transmittance - absorptance
'   -> absorptance: diffuse absorptance
'   The remainder is split as in GlazingUnitDirectShares.
'   Source: GlazingUnitDiffuse, with the shares of GlazingUnitDirectShares.
Public Function GlazingUnitDiffuseShares(ByVal shortwaveShadingCoefficient As Variant, _
    ByVal longwaveShadingCoefficient As Variant, ByVal panes As Variant) As Variant
    Dim fault As Long
    Dim shortwaveShadingCoefficientGiven As Single
    Dim longwaveShadingCoefficientGiven As Single
    Dim panesGiven As Long
    shortwaveShadingCoefficientGiven = SingleOf(shortwaveShadingCoefficient, 0, 1.05, fault)
    longwaveShadingCoefficientGiven = SingleOf(longwaveShadingCoefficient, 0, 1, fault)
    panesGiven = LongOf(panes, 1, 5, fault)
    If fault <> 0 Then
        GlazingUnitDiffuseShares = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim paneSharesResult() As Single
    ReDim paneSharesResult(0 To panesGiven - 1)
    BlankSingles paneSharesResult
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    WNDFSM shortwaveShadingCoefficientGiven, longwaveShadingCoefficientGiven, panesGiven, transmittanceResult, _
        paneSharesResult(0), absorptanceResult
    GlazingUnitDiffuseShares = Beside(Array(CellOf(transmittanceResult), TableOf(paneSharesResult, 1), _
        CellOf(absorptanceResult)))
End Function

' GlazingUnitDirectShares or GlazingUnitDiffuseShares, by a selector.
'   radiation: kind of radiation: 1 direct radiation (GlazingUnitDirectShares), 2 diffuse radiation
'     (GlazingUnitDiffuseShares), as any other value
'   shortwaveShadingCoefficient: short-wave shading coefficient; the total one if the long-wave one is missing; valid 0
'     to 1.05
'   longwaveShadingCoefficient: long-wave shading coefficient, 0 if missing; valid 0 to 1
'   incidence: angle of incidence, read for direct radiation only [rad]; valid -1.5708 to 1.5708
'   panes: number of panes; valid 1 to 5
'   -> transmittance: transmittance
'   -> paneShares: share of each pane in 1 - transmittance - absorptance
'   -> absorptance: absorptance
'   The remainder is split as in GlazingUnitDirectShares.
'   Source: GlazingUnitDirectShares and GlazingUnitDiffuseShares.
Public Function GlazingUnitShares(ByVal radiation As Variant, ByVal shortwaveShadingCoefficient As Variant, _
    ByVal longwaveShadingCoefficient As Variant, ByVal incidence As Variant, ByVal panes As Variant) As Variant
    Dim fault As Long
    Dim radiationGiven As Long
    Dim shortwaveShadingCoefficientGiven As Single
    Dim longwaveShadingCoefficientGiven As Single
    Dim incidenceGiven As Single
    Dim panesGiven As Long
    radiationGiven = SelectorOf(radiation, 1, "direct diffuse", fault)
    shortwaveShadingCoefficientGiven = SingleOf(shortwaveShadingCoefficient, 0, 1.05, fault)
    longwaveShadingCoefficientGiven = SingleOf(longwaveShadingCoefficient, 0, 1, fault)
    incidenceGiven = SingleOf(incidence, -1.5708, 1.5708, fault)
    panesGiven = LongOf(panes, 1, 5, fault)
    If fault <> 0 Then
        GlazingUnitShares = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim paneSharesResult() As Single
    ReDim paneSharesResult(0 To panesGiven - 1)
    BlankSingles paneSharesResult
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    WNDRS0 radiationGiven, shortwaveShadingCoefficientGiven, longwaveShadingCoefficientGiven, incidenceGiven, _
        panesGiven, transmittanceResult, paneSharesResult(0), absorptanceResult
    GlazingUnitShares = Beside(Array(CellOf(transmittanceResult), TableOf(paneSharesResult, 1), _
        CellOf(absorptanceResult)))
End Function

' Transmittance, absorptance and reflectance of a slatted blind for a beam, both faces of the slats alike.
'   slatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
'   slatWidth: width of a slat [m]; valid from 0
'   slatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
'   profileAngle: profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708
'   slatAbsorptance: absorptance of the slats; valid 0 to 1
'   -> transmittance: transmittance
'   -> absorptance: absorptance
'   -> reflectance: reflectance, 1 - transmittance - absorptance
'   The slats are flat, thin, opaque and diffusely reflecting. After the first reflection each slat is taken as evenly
'   lit.
'   For slat angles up to 90 degrees and an absorptance in 0..1 all three are in 0..1, but for the rounding of single
'   precision: 1e-4 for slats that are nearly closed, 4e-7 over the cosine of the profile angle for grazing beams.
'   A beam within 0.01 rad of the slats' plane passes whole. A beam along the blind (cosine of the profile angle below
'   1e-6, or the angle 1.570796 or more in size) meets an opaque sheet with the absorptance of the slats.
'   The mirror image, with both angles negative, gives the same bits.
'   Source: Exchange factors by H. C. Hottel's crossed strings, and the inter-reflection between two neighbouring slats.
Public Function GlazingSlatDirect(ByVal slatSpacing As Variant, ByVal slatWidth As Variant, _
    ByVal slatAngle As Variant, ByVal profileAngle As Variant, ByVal slatAbsorptance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(slatSpacing), HeldBy(slatWidth), HeldBy(slatAngle), HeldBy(profileAngle), _
        HeldBy(slatAbsorptance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingSlatDirect(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingSlatDirect = spread
        Exit Function
    End If
    Dim fault As Long
    Dim slatSpacingGiven As Single
    Dim slatWidthGiven As Single
    Dim slatAngleGiven As Single
    Dim profileAngleGiven As Single
    Dim slatAbsorptanceGiven As Single
    slatSpacingGiven = SingleOf(slatSpacing, 0, largest, fault)
    slatWidthGiven = SingleOf(slatWidth, 0, largest, fault)
    slatAngleGiven = SingleOf(slatAngle, -90, 90, fault)
    profileAngleGiven = SingleOf(profileAngle, -1.5708, 1.5708, fault)
    slatAbsorptanceGiven = SingleOf(slatAbsorptance, 0, 1, fault)
    If fault <> 0 Then
        GlazingSlatDirect = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    WNDRSL slatSpacingGiven, slatWidthGiven, slatAngleGiven, profileAngleGiven, slatAbsorptanceGiven, _
        transmittanceResult, absorptanceResult, reflectanceResult
    GlazingSlatDirect = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' Transmittance, absorptance and reflectance of a blind for a beam, whose slats have two different faces.
'   slatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
'   slatWidth: width of a slat [m]; valid from 0
'   slatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
'   profileAngle: profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708
'   struckAbsorptance: absorptance of the face that the beam strikes first; valid 0 to 1
'   oppositeAbsorptance: absorptance of the opposite face; valid 0 to 1
'   -> transmittance: transmittance
'   -> absorptance: absorptance
'   -> reflectance: reflectance, 1 - transmittance - absorptance, not limited
'   Equal faces give the bits of GlazingSlatDirect and keep the balance.
'   Unequal faces do not: whatever is absorbed after the first reflection counts with that of the face struck, as if
'   both faces absorbed like the one struck and reflected like the opposite one. A bright face opposite a dark one
'   absorbs too little, and the reflectance holds the rest; a dark face opposite a bright one absorbs too much, in dense
'   blinds many times what arrives, and the reflectance is negative by as much. Where the face struck absorbs at most
'   what the opposite one does, all three stay in 0..1.
'   The face struck first is the upper one where profile angle and slat angle have a positive sum and the lower one
'   else; the absorptances are to be chosen accordingly.
'   Source: As GlazingSlatDirect.
Public Function GlazingTwoFacedSlatDirect(ByVal slatSpacing As Variant, ByVal slatWidth As Variant, _
    ByVal slatAngle As Variant, ByVal profileAngle As Variant, ByVal struckAbsorptance As Variant, _
    ByVal oppositeAbsorptance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(slatSpacing), HeldBy(slatWidth), HeldBy(slatAngle), HeldBy(profileAngle), _
        HeldBy(struckAbsorptance), HeldBy(oppositeAbsorptance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingTwoFacedSlatDirect(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingTwoFacedSlatDirect = spread
        Exit Function
    End If
    Dim fault As Long
    Dim slatSpacingGiven As Single
    Dim slatWidthGiven As Single
    Dim slatAngleGiven As Single
    Dim profileAngleGiven As Single
    Dim struckAbsorptanceGiven As Single
    Dim oppositeAbsorptanceGiven As Single
    slatSpacingGiven = SingleOf(slatSpacing, 0, largest, fault)
    slatWidthGiven = SingleOf(slatWidth, 0, largest, fault)
    slatAngleGiven = SingleOf(slatAngle, -90, 90, fault)
    profileAngleGiven = SingleOf(profileAngle, -1.5708, 1.5708, fault)
    struckAbsorptanceGiven = SingleOf(struckAbsorptance, 0, 1, fault)
    oppositeAbsorptanceGiven = SingleOf(oppositeAbsorptance, 0, 1, fault)
    If fault <> 0 Then
        GlazingTwoFacedSlatDirect = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    WNDRS2 slatSpacingGiven, slatWidthGiven, slatAngleGiven, profileAngleGiven, struckAbsorptanceGiven, _
        oppositeAbsorptanceGiven, transmittanceResult, absorptanceResult, reflectanceResult
    GlazingTwoFacedSlatDirect = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' GlazingTwoFacedSlatDirect for a blind that leaves a share of the radiation to pass untouched.
'   slatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
'   slatWidth: width of a slat [m]; valid from 0
'   slatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
'   profileAngle: profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708
'   openShare: open share of the blind; 0 or less for none; valid 0 to 1
'   struckAbsorptance: absorptance of the face that the beam strikes first; valid 0 to 1
'   oppositeAbsorptance: absorptance of the opposite face; valid 0 to 1
'   -> transmittance: transmittance, the open share included
'   -> absorptance: absorptance
'   -> reflectance: reflectance
'   Without an open share these are the bits of GlazingTwoFacedSlatDirect; a share that is not a number is none.
'   A beam along the blind is transmitted by the open share and absorbed as by the face struck: the share does not
'   reduce the absorptance there, and the reflectance, 1 less both, may be negative: deliberate.
'   Source: As GlazingSlatDirect.
Public Function GlazingOpenSlatDirect(ByVal slatSpacing As Variant, ByVal slatWidth As Variant, _
    ByVal slatAngle As Variant, ByVal profileAngle As Variant, ByVal openShare As Variant, _
    ByVal struckAbsorptance As Variant, ByVal oppositeAbsorptance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(slatSpacing), HeldBy(slatWidth), HeldBy(slatAngle), HeldBy(profileAngle), HeldBy(openShare), _
        HeldBy(struckAbsorptance), HeldBy(oppositeAbsorptance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingOpenSlatDirect(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt), _
                    CellAt(held(6), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingOpenSlatDirect = spread
        Exit Function
    End If
    Dim fault As Long
    Dim slatSpacingGiven As Single
    Dim slatWidthGiven As Single
    Dim slatAngleGiven As Single
    Dim profileAngleGiven As Single
    Dim openShareGiven As Single
    Dim struckAbsorptanceGiven As Single
    Dim oppositeAbsorptanceGiven As Single
    slatSpacingGiven = SingleOf(slatSpacing, 0, largest, fault)
    slatWidthGiven = SingleOf(slatWidth, 0, largest, fault)
    slatAngleGiven = SingleOf(slatAngle, -90, 90, fault)
    profileAngleGiven = SingleOf(profileAngle, -1.5708, 1.5708, fault)
    openShareGiven = SingleOf(openShare, 0, 1, fault)
    struckAbsorptanceGiven = SingleOf(struckAbsorptance, 0, 1, fault)
    oppositeAbsorptanceGiven = SingleOf(oppositeAbsorptance, 0, 1, fault)
    If fault <> 0 Then
        GlazingOpenSlatDirect = CVErr(fault)
        Exit Function
    End If
    Dim transmittanceResult As Single
    transmittanceResult = unwritten
    Dim absorptanceResult As Single
    absorptanceResult = unwritten
    Dim reflectanceResult As Single
    reflectanceResult = unwritten
    WNDRS3 slatSpacingGiven, slatWidthGiven, slatAngleGiven, profileAngleGiven, openShareGiven, _
        struckAbsorptanceGiven, oppositeAbsorptanceGiven, transmittanceResult, absorptanceResult, reflectanceResult
    GlazingOpenSlatDirect = Array(CellOf(transmittanceResult), CellOf(absorptanceResult), CellOf(reflectanceResult))
End Function

' Transmittance and absorptance of a slatted blind for the diffuse radiation from the sky's and from the ground's side,
' both faces of the slats alike.
'   slatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
'   slatWidth: width of a slat [m]; valid from 0
'   slatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
'   slatAbsorptance: absorptance of the slats; valid 0 to 1
'   -> skyTransmittance: transmittance for radiation from above the horizon
'   -> groundTransmittance: transmittance for radiation from below it
'   -> skyAbsorptance: absorptance for radiation from above the horizon
'   -> groundAbsorptance: absorptance for radiation from below it
'   The bits are those of GlazingSlatDirect summed over the bands.
'   Slats at an angle of 5, 15, ... 85 degrees have a band within 0.01 rad of their plane, which passes whole.
'   The opposite angle swaps sky and ground.
'   Source: GlazingSlatDirect at the centres of nine bands of 10 degrees on either side of the horizon, each weighted
'   with the integral of the cosine over the band: radiance uniform in the profile angle.
Public Function GlazingSlatDiffuse(ByVal slatSpacing As Variant, ByVal slatWidth As Variant, _
    ByVal slatAngle As Variant, ByVal slatAbsorptance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(slatSpacing), HeldBy(slatWidth), HeldBy(slatAngle), HeldBy(slatAbsorptance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingSlatDiffuse(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingSlatDiffuse = spread
        Exit Function
    End If
    Dim fault As Long
    Dim slatSpacingGiven As Single
    Dim slatWidthGiven As Single
    Dim slatAngleGiven As Single
    Dim slatAbsorptanceGiven As Single
    slatSpacingGiven = SingleOf(slatSpacing, 0, largest, fault)
    slatWidthGiven = SingleOf(slatWidth, 0, largest, fault)
    slatAngleGiven = SingleOf(slatAngle, -90, 90, fault)
    slatAbsorptanceGiven = SingleOf(slatAbsorptance, 0, 1, fault)
    If fault <> 0 Then
        GlazingSlatDiffuse = CVErr(fault)
        Exit Function
    End If
    Dim skyTransmittanceResult As Single
    skyTransmittanceResult = unwritten
    Dim groundTransmittanceResult As Single
    groundTransmittanceResult = unwritten
    Dim skyAbsorptanceResult As Single
    skyAbsorptanceResult = unwritten
    Dim groundAbsorptanceResult As Single
    groundAbsorptanceResult = unwritten
    WNDFSL slatSpacingGiven, slatWidthGiven, slatAngleGiven, slatAbsorptanceGiven, skyTransmittanceResult, _
        groundTransmittanceResult, skyAbsorptanceResult, groundAbsorptanceResult
    GlazingSlatDiffuse = Array(CellOf(skyTransmittanceResult), CellOf(groundTransmittanceResult), _
        CellOf(skyAbsorptanceResult), CellOf(groundAbsorptanceResult))
End Function

' GlazingSlatDiffuse for slats with two different faces.
'   slatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
'   slatWidth: width of a slat [m]; valid from 0
'   slatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
'   struckAbsorptance: absorptance of the face that the beam strikes first; valid 0 to 1
'   oppositeAbsorptance: absorptance of the opposite face; valid 0 to 1
'   -> skyTransmittance: transmittance for radiation from above the horizon
'   -> groundTransmittance: transmittance for radiation from below it
'   -> skyAbsorptance: absorptance for radiation from above the horizon
'   -> groundAbsorptance: absorptance for radiation from below it
'   The absorptances belong to whichever face a beam strikes first. Slats with different upper and lower faces need two
'   calls: with the upper face struck for the results of the sky, with the lower face for those of the ground. Beams
'   between the horizon and the plane of the slats strike the other face all the same.
'   Unequal faces as in GlazingTwoFacedSlatDirect.
'   Source: GlazingTwoFacedSlatDirect, integrated as in GlazingSlatDiffuse.
Public Function GlazingTwoFacedSlatDiffuse(ByVal slatSpacing As Variant, ByVal slatWidth As Variant, _
    ByVal slatAngle As Variant, ByVal struckAbsorptance As Variant, ByVal oppositeAbsorptance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(slatSpacing), HeldBy(slatWidth), HeldBy(slatAngle), HeldBy(struckAbsorptance), _
        HeldBy(oppositeAbsorptance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingTwoFacedSlatDiffuse(CellAt(held(0), _
                    rowAt, columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), _
                    CellAt(held(3), rowAt, columnAt), CellAt(held(4), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingTwoFacedSlatDiffuse = spread
        Exit Function
    End If
    Dim fault As Long
    Dim slatSpacingGiven As Single
    Dim slatWidthGiven As Single
    Dim slatAngleGiven As Single
    Dim struckAbsorptanceGiven As Single
    Dim oppositeAbsorptanceGiven As Single
    slatSpacingGiven = SingleOf(slatSpacing, 0, largest, fault)
    slatWidthGiven = SingleOf(slatWidth, 0, largest, fault)
    slatAngleGiven = SingleOf(slatAngle, -90, 90, fault)
    struckAbsorptanceGiven = SingleOf(struckAbsorptance, 0, 1, fault)
    oppositeAbsorptanceGiven = SingleOf(oppositeAbsorptance, 0, 1, fault)
    If fault <> 0 Then
        GlazingTwoFacedSlatDiffuse = CVErr(fault)
        Exit Function
    End If
    Dim skyTransmittanceResult As Single
    skyTransmittanceResult = unwritten
    Dim groundTransmittanceResult As Single
    groundTransmittanceResult = unwritten
    Dim skyAbsorptanceResult As Single
    skyAbsorptanceResult = unwritten
    Dim groundAbsorptanceResult As Single
    groundAbsorptanceResult = unwritten
    WNDFS2 slatSpacingGiven, slatWidthGiven, slatAngleGiven, struckAbsorptanceGiven, oppositeAbsorptanceGiven, _
        skyTransmittanceResult, groundTransmittanceResult, skyAbsorptanceResult, groundAbsorptanceResult
    GlazingTwoFacedSlatDiffuse = Array(CellOf(skyTransmittanceResult), CellOf(groundTransmittanceResult), _
        CellOf(skyAbsorptanceResult), CellOf(groundAbsorptanceResult))
End Function

' GlazingTwoFacedSlatDiffuse for a blind that leaves a share of the radiation to pass untouched.
'   slatSpacing: spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from 0
'   slatWidth: width of a slat [m]; valid from 0
'   slatAngle: slat angle in degrees, 0 for level slats, positive with the outer edge lowered [deg]; valid -90 to 90
'   openShare: open share of the blind; 0 or less for none; valid 0 to 1
'   struckAbsorptance: absorptance of the face that the beam strikes first; valid 0 to 1
'   oppositeAbsorptance: absorptance of the opposite face; valid 0 to 1
'   -> skyTransmittance: transmittance for radiation from above the horizon
'   -> groundTransmittance: transmittance for radiation from below it
'   -> skyAbsorptance: absorptance for radiation from above the horizon
'   -> groundAbsorptance: absorptance for radiation from below it
'   Faces as in GlazingTwoFacedSlatDiffuse, the open share as in GlazingOpenSlatDirect.
'   Source: GlazingOpenSlatDirect, integrated as in GlazingSlatDiffuse.
Public Function GlazingOpenSlatDiffuse(ByVal slatSpacing As Variant, ByVal slatWidth As Variant, _
    ByVal slatAngle As Variant, ByVal openShare As Variant, ByVal struckAbsorptance As Variant, _
    ByVal oppositeAbsorptance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(slatSpacing), HeldBy(slatWidth), HeldBy(slatAngle), HeldBy(openShare), _
        HeldBy(struckAbsorptance), HeldBy(oppositeAbsorptance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, GlazingOpenSlatDiffuse(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GlazingOpenSlatDiffuse = spread
        Exit Function
    End If
    Dim fault As Long
    Dim slatSpacingGiven As Single
    Dim slatWidthGiven As Single
    Dim slatAngleGiven As Single
    Dim openShareGiven As Single
    Dim struckAbsorptanceGiven As Single
    Dim oppositeAbsorptanceGiven As Single
    slatSpacingGiven = SingleOf(slatSpacing, 0, largest, fault)
    slatWidthGiven = SingleOf(slatWidth, 0, largest, fault)
    slatAngleGiven = SingleOf(slatAngle, -90, 90, fault)
    openShareGiven = SingleOf(openShare, 0, 1, fault)
    struckAbsorptanceGiven = SingleOf(struckAbsorptance, 0, 1, fault)
    oppositeAbsorptanceGiven = SingleOf(oppositeAbsorptance, 0, 1, fault)
    If fault <> 0 Then
        GlazingOpenSlatDiffuse = CVErr(fault)
        Exit Function
    End If
    Dim skyTransmittanceResult As Single
    skyTransmittanceResult = unwritten
    Dim groundTransmittanceResult As Single
    groundTransmittanceResult = unwritten
    Dim skyAbsorptanceResult As Single
    skyAbsorptanceResult = unwritten
    Dim groundAbsorptanceResult As Single
    groundAbsorptanceResult = unwritten
    WNDFS3 slatSpacingGiven, slatWidthGiven, slatAngleGiven, openShareGiven, struckAbsorptanceGiven, _
        oppositeAbsorptanceGiven, skyTransmittanceResult, groundTransmittanceResult, skyAbsorptanceResult, _
        groundAbsorptanceResult
    GlazingOpenSlatDiffuse = Array(CellOf(skyTransmittanceResult), CellOf(groundTransmittanceResult), _
        CellOf(skyAbsorptanceResult), CellOf(groundAbsorptanceResult))
End Function

' Where a cumulative fraction of days lies among the ten bands of a month, in frequencies of the caller.
'   fraction: cumulative fraction of days; valid 0 to 1
'   month: month; valid 1 to 12
'   frequencies: cumulative frequencies of each band in each month, not falling with the band; valid 0 to 1
'   -> lowerBand: lower band, 1 to 9
'   -> upperBand: upper band, 2 to 10
'   -> bandWeight: (fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1
'   Fractions, where ClimateBandClimate takes a percentage.
'   At or below the first band's frequency the weight is 0 or negative. Bands of equal frequency are skipped upwards, to
'   band 10 at most; for a fraction equal to the frequencies of all the rest the weight is not a number.
'   A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands 9 and 10 and a weight
'   that is not a number.
'   Source: Search for linear interpolation.
Public Function ClimateLocateBand(ByVal fraction As Variant, ByVal month As Variant, _
    ByVal frequencies As Variant) As Variant
    Dim fault As Long
    Dim fractionGiven As Single
    Dim monthGiven As Long
    Dim frequenciesGiven() As Single
    fractionGiven = SingleOf(fraction, 0, 1, fault)
    monthGiven = LongOf(month, 1, 12, fault)
    Equal SinglesOf(frequencies, 12, 0, 1, frequenciesGiven, fault), 10, fault
    If fault <> 0 Then
        ClimateLocateBand = CVErr(fault)
        Exit Function
    End If
    Dim lowerBandResult As Long
    Dim upperBandResult As Long
    Dim bandWeightResult As Single
    bandWeightResult = unwritten
    CLBAN1 fractionGiven, monthGiven, frequenciesGiven(0), lowerBandResult, upperBandResult, bandWeightResult
    ClimateLocateBand = Array(CellOf(lowerBandResult), CellOf(upperBandResult), CellOf(bandWeightResult))
End Function

' Monthly climate of one of ten bands of days, or interpolated at a cumulative percentage of days.
'   band: band, or 0 to interpolate at the percentage; valid 0 to 10
'   month: month; valid 1 to 12
'   bandSet: set of bands: 1 bands from the warmest to the coldest days, 2 bands from the highest to the lowest Q1
'   percentage: cumulative percentage of days: given with band 0, otherwise returned [%]; valid 0 to 100
'   -> percentage: cumulative percentage of days: given with band 0, otherwise returned [%]; as given with band 0
'   -> q1: quantity Q1: beam factor
'   -> q2: quantity Q2: diffuse factor
'   -> q3: quantity Q3: air temperature at time A [degC]
'   -> q4: quantity Q4: air temperature at time B [degC]
'   -> q5: quantity Q5: wet-bulb temperature at time A [degC]
'   -> q6: quantity Q6: wet-bulb temperature at time B [degC]
'   -> timeA: time A, in the afternoon [h]
'   -> timeB: time B, about sunrise [h]
'   -> q7: quantity Q7: cloud-free share of the sky [%]
'   -> q8: quantity Q8: wind speed [m/s]
'   A percentage below band 1 extrapolates backwards from it, by the step to band 2 at most; one above 100 gives band
'   10.
'   A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a set other than 2 as 1. A
'   percentage that is not a number makes Q1 to Q8 not numbers.
'   The table built in is representative and not measured; data/bands tells how it was made and how to build with data
'   of your own. Q1 to Q8 mean what the table's maker says; the meanings here are those of the table built in.
'   Source: Linear interpolation in the band table.
Public Function ClimateBandClimate(ByVal band As Variant, ByVal month As Variant, ByVal bandSet As Variant, _
    ByVal percentage As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(band), HeldBy(month), HeldBy(bandSet), HeldBy(percentage))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 11)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, ClimateBandClimate(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateBandClimate = spread
        Exit Function
    End If
    Dim fault As Long
    Dim bandGiven As Long
    Dim monthGiven As Long
    Dim bandSetGiven As Long
    Dim percentageGiven As Single
    bandGiven = LongOf(band, 0, 10, fault)
    monthGiven = LongOf(month, 1, 12, fault)
    bandSetGiven = SelectorOf(bandSet, 1, "first second", fault)
    percentageGiven = SingleOf(percentage, 0, 100, fault)
    If fault <> 0 Then
        ClimateBandClimate = CVErr(fault)
        Exit Function
    End If
    Dim q1Result As Single
    q1Result = unwritten
    Dim q2Result As Single
    q2Result = unwritten
    Dim q3Result As Single
    q3Result = unwritten
    Dim q4Result As Single
    q4Result = unwritten
    Dim q5Result As Single
    q5Result = unwritten
    Dim q6Result As Single
    q6Result = unwritten
    Dim timeAResult As Single
    timeAResult = unwritten
    Dim timeBResult As Single
    timeBResult = unwritten
    Dim q7Result As Single
    q7Result = unwritten
    Dim q8Result As Single
    q8Result = unwritten
    CLBAND bandGiven, monthGiven, bandSetGiven, percentageGiven, q1Result, q2Result, q3Result, q4Result, q5Result, _
        q6Result, timeAResult, timeBResult, q7Result, q8Result
    ClimateBandClimate = Array(CellOf(percentageGiven), CellOf(q1Result), CellOf(q2Result), CellOf(q3Result), _
        CellOf(q4Result), CellOf(q5Result), CellOf(q6Result), CellOf(timeAResult), CellOf(timeBResult), _
        CellOf(q7Result), CellOf(q8Result))
End Function

' Value between two rows of the band table.
'   baseRow: row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and so on in set 1; 92 more in set 2; valid
'     0 to 174
'   lowerBand: lower band; valid 1 to 10
'   upperBand: upper band; valid 1 to 10
'   month: month; valid 1 to 12
'   bandWeight: share of the step from the lower to the upper row; valid -1 to 1
'   -> value, in the quantity's unit
'   Rows base_row + lower_band and base_row + upper_band outside 1 to 184 count as the nearest row, a month outside 1 to
'   12 as the nearest month.
'   Source: Linear interpolation in the band table.
Public Function ClimateInterpolateBandRows(ByVal baseRow As Variant, ByVal lowerBand As Variant, _
    ByVal upperBand As Variant, ByVal month As Variant, ByVal bandWeight As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(baseRow), HeldBy(lowerBand), HeldBy(upperBand), HeldBy(month), HeldBy(bandWeight))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateInterpolateBandRows(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt), CellAt(held(4), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateInterpolateBandRows = spread
        Exit Function
    End If
    Dim fault As Long
    Dim baseRowGiven As Long
    Dim lowerBandGiven As Long
    Dim upperBandGiven As Long
    Dim monthGiven As Long
    Dim bandWeightGiven As Single
    baseRowGiven = LongOf(baseRow, 0, 174, fault)
    lowerBandGiven = LongOf(lowerBand, 1, 10, fault)
    upperBandGiven = LongOf(upperBand, 1, 10, fault)
    monthGiven = LongOf(month, 1, 12, fault)
    bandWeightGiven = SingleOf(bandWeight, -1, 1, fault)
    If fault <> 0 Then
        ClimateInterpolateBandRows = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = unwritten
    CLBAN2 baseRowGiven, lowerBandGiven, upperBandGiven, monthGiven, bandWeightGiven, valueResult
    ClimateInterpolateBandRows = CellOf(valueResult)
End Function

' One row of the band table, a value per month.
'   row: row: 1 to 92 in set 1, 93 to 184 in set 2; valid 1 to 184
'   -> values from January to December, in the row's unit
'   Rows of a set: 1 time A, 2 time B, 3 to 12 cumulative frequency F of bands 1 to 10, 13 to 22 Q1, 23 to 32 Q2 and so
'   on to Q8.
'   A row below 1 counts as 1, above 184 as 184.
'   Source: The band table; see data/bands.
Public Function ClimateBandRow(ByVal row As Variant) As Variant
    Dim fault As Long
    Dim rowGiven As Long
    rowGiven = LongOf(row, 1, 184, fault)
    If fault <> 0 Then
        ClimateBandRow = CVErr(fault)
        Exit Function
    End If
    Dim valuesResult() As Single
    ReDim valuesResult(0 To 11)
    CLBAN3 rowGiven, valuesResult(0)
    ClimateBandRow = TableOf(valuesResult, 1)
End Function

' Design day of a month as a day of the year, as ClimateDesignDay gives it.
'   month: month; valid 1 to 12
'   -> design day of the year
'   A month outside 1 to 12 gives 0.
'   The year has 365 days.
'   Source: Table of customary design days, close to the 21st of each month.
Public Function ClimateStoreDesignDay(ByVal month As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(month))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateStoreDesignDay(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateStoreDesignDay = spread
        Exit Function
    End If
    Dim fault As Long
    Dim monthGiven As Long
    monthGiven = LongOf(month, 1, 12, fault)
    If fault <> 0 Then
        ClimateStoreDesignDay = CVErr(fault)
        Exit Function
    End If
    Dim dayResult As Long
    CLDAY monthGiven, dayResult
    ClimateStoreDesignDay = CellOf(dayResult)
End Function

' Design day of a month as a day of the year or of the month, as ClimateDesignDayByOption gives it.
'   month: month; valid 1 to 12
'   dayKind: how the day is counted: 1 day of the month, 2 day of the year
'   -> design day
'   The two counts are separate sets and not the same date: in February day 52 of the year (the 21st) stands beside the
'   20th.
'   A month outside 1 to 12 gives 0; another way of counting counts as 2.
'   Source: Table of customary design days, close to the 21st of each month.
Public Function ClimateStoreDesignDayByOption(ByVal month As Variant, ByVal dayKind As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(month), HeldBy(dayKind))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateStoreDesignDayByOption(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateStoreDesignDayByOption = spread
        Exit Function
    End If
    Dim fault As Long
    Dim monthGiven As Long
    Dim dayKindGiven As Long
    monthGiven = LongOf(month, 1, 12, fault)
    dayKindGiven = SelectorOf(dayKind, 1, "of_month of_year", fault)
    If fault <> 0 Then
        ClimateStoreDesignDayByOption = CVErr(fault)
        Exit Function
    End If
    Dim dayResult As Long
    CLDAYEX monthGiven, dayResult, dayKindGiven
    ClimateStoreDesignDayByOption = CellOf(dayResult)
End Function

' Design day of a month as a day of the year.
'   month: month; valid 1 to 12
'   -> design day of the year
'   A month outside 1 to 12 gives 0.
'   The year has 365 days.
'   Source: Table of customary design days, close to the 21st of each month.
Public Function ClimateDesignDay(ByVal month As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(month))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateDesignDay(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateDesignDay = spread
        Exit Function
    End If
    Dim fault As Long
    Dim monthGiven As Long
    monthGiven = LongOf(month, 1, 12, fault)
    If fault <> 0 Then
        ClimateDesignDay = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = ICLDAY(monthGiven)
    ClimateDesignDay = CellOf(valueResult)
End Function

' Design day of a month as a day of the year or of the month.
'   month: month; valid 1 to 12
'   dayKind: how the day is counted: 1 day of the month, 2 day of the year
'   -> design day
'   The two counts are separate sets and not the same date: in February day 52 of the year (the 21st) stands beside the
'   20th.
'   A month outside 1 to 12 gives 0; another way of counting counts as 2.
'   Source: Table of customary design days, close to the 21st of each month.
Public Function ClimateDesignDayByOption(ByVal month As Variant, ByVal dayKind As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(month), HeldBy(dayKind))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateDesignDayByOption(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateDesignDayByOption = spread
        Exit Function
    End If
    Dim fault As Long
    Dim monthGiven As Long
    Dim dayKindGiven As Long
    monthGiven = LongOf(month, 1, 12, fault)
    dayKindGiven = SelectorOf(dayKind, 1, "of_month of_year", fault)
    If fault <> 0 Then
        ClimateDesignDayByOption = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = ICLDAYEX(monthGiven, dayKindGiven)
    ClimateDesignDayByOption = CellOf(valueResult)
End Function

' Second design day of a month as a day of the year.
'   month: month; valid 1 to 12
'   -> second design day of the year
'   A month outside 1 to 12 gives 0.
'   The year has 365 days.
'   Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
Public Function ClimateSecondDesignDay(ByVal month As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(month))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateSecondDesignDay(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateSecondDesignDay = spread
        Exit Function
    End If
    Dim fault As Long
    Dim monthGiven As Long
    monthGiven = LongOf(month, 1, 12, fault)
    If fault <> 0 Then
        ClimateSecondDesignDay = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = ICLDA2(monthGiven)
    ClimateSecondDesignDay = CellOf(valueResult)
End Function

' Second design day of a month as a day of the year or of the month.
'   month: month; valid 1 to 12
'   dayKind: how the day is counted: 1 day of the month, 2 day of the year
'   -> second design day
'   Both counts are the same date here.
'   A month outside 1 to 12 gives 0; another way of counting counts as 2.
'   Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
Public Function ClimateSecondDesignDayByOption(ByVal month As Variant, ByVal dayKind As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(month), HeldBy(dayKind))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateSecondDesignDayByOption(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateSecondDesignDayByOption = spread
        Exit Function
    End If
    Dim fault As Long
    Dim monthGiven As Long
    Dim dayKindGiven As Long
    monthGiven = LongOf(month, 1, 12, fault)
    dayKindGiven = SelectorOf(dayKind, 1, "of_month of_year", fault)
    If fault <> 0 Then
        ClimateSecondDesignDayByOption = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = ICLDA2EX(monthGiven, dayKindGiven)
    ClimateSecondDesignDayByOption = CellOf(valueResult)
End Function

' Monthly records of a station, from a climate data file at given percentages of days.
'   fileName: name of the climate data file, in UTF-8; trailing blanks do not count
'   station: station of the file; valid from 1
'   month: month whose record is filled, 0 for all twelve; valid 0 to 12
'   stationRecords: a record of 11 reals per month, see the notes
'   -> a record of 11 reals per month, see the notes; as given from the first month on that cannot be read
'   Given in a record: 10 set of bands, rounded to the nearest integer (2 is set 2, any other set 1); 11 percentage of
'   days. Returned, in the units of the file: 1 Q4, 2 Q6, 3 time B, 4 Q3, 5 Q5, 6 time A, 7 Q1 and 8 Q2 (not below 0), 9
'   Q7 (0 to 1). The times are copied as they are.
'   A percentage at or below band 1's frequency gives band 1, one at or above band 10's gives band 10: nothing is
'   extrapolated, unlike ClimateBandClimate. One that is not a number makes the quantities not numbers.
'   A file that is missing, not a regular file, too short or unreadable ends the call.
'   A month outside 0 to 12 counts as 1 or 12.
'   The library keeps the word of the header that places the stations for as long as it is loaded: files read by one
'   process must agree in it. It also keeps the record read last, whatever becomes of the file.
'   The five routines of the climate data file share one state behind a lock. The file is open only during a call.
'   A relative name counts from the folder that is current in this call; later calls find the file wherever the process
'   has gone.
'   The name is in UTF-8, on Windows too, where one that is not UTF-8 names no file; elsewhere its bytes are taken as
'   they are. VBA's ByVal String passes the characters of ASCII so, and no others.
'   The name ends with a NUL, which Fortran does not write after characters: pass trim(name)//char(0). In VBA declare
'   the argument as ByVal String, in Pascal as PAnsiChar and pass PAnsiChar(UTF8String(name)): both add the NUL. At most
'   4096 characters are read, so that a text of that length which is filled up with blanks needs none; a shorter one is
'   read beyond its end.
'   Source: Linear interpolation in the bands of the climate data file.
Public Function ClimateStationRecords(ByVal fileName As Variant, ByVal station As Variant, ByVal month As Variant, _
    ByVal stationRecords As Variant) As Variant
    Dim fault As Long
    Dim fileNameGiven As Variant, fileNameGivenBytes() As Byte
    Dim stationGiven As Long
    Dim monthGiven As Long
    Dim stationRecordsGiven() As Single
    fileNameGiven = BytesOf(fileName, fault)
    stationGiven = LongOf(station, 1, 2147483647, fault)
    monthGiven = LongOf(month, 0, 12, fault)
    Equal SinglesOf(stationRecords, 11, -largest, largest, stationRecordsGiven, fault), 12, fault
    If fault <> 0 Then
        ClimateStationRecords = CVErr(fault)
        Exit Function
    End If
    fileNameGivenBytes = fileNameGiven
    CLBNF0 fileNameGivenBytes(0), stationGiven, monthGiven, stationRecordsGiven(0)
    ClimateStationRecords = TableOf(stationRecordsGiven, 11)
End Function

' Monthly climate of one of ten bands of days of a station, or interpolated at a cumulative percentage of days.
'   fileUnit: unit: 31 the file that ClimateStationRecords opened last
'   station: station of the file; valid from 1
'   band: band, or 0 to interpolate at the percentage; valid 0 to 10
'   month: month; valid 1 to 12
'   bandSet: set of bands: 1 set 1, 2 set 2
'   percentage: cumulative percentage of days, used with band 0 [%]; valid 0 to 100
'   -> q1: quantity Q1, not below 0; #N/A when the file cannot be read, or with another unit
'   -> q2: quantity Q2, not below 0; #N/A when the file cannot be read, or with another unit
'   -> q3: quantity Q3, in the unit of the file; #N/A when the file cannot be read, or with another unit
'   -> q4: quantity Q4, in the unit of the file; #N/A when the file cannot be read, or with another unit
'   -> q5: quantity Q5, in the unit of the file; #N/A when the file cannot be read, or with another unit
'   -> q6: quantity Q6, in the unit of the file; #N/A when the file cannot be read, or with another unit
'   -> q7: quantity Q7, a fraction, 0 to 1; #N/A when the file cannot be read, or with another unit
'   -> timeA: time A [h]; #N/A when the file cannot be read, or with another unit
'   -> timeB: time B [h]; #N/A when the file cannot be read, or with another unit
'   Percentages as in ClimateStationRecords; unlike ClimateBandClimate, a band's own percentage is not returned.
'   ClimateInterpolateStationRows and ClimateStationRow go on with the unit and station given here even if nothing could
'   be read.
'   A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a set other than 2 as 1.
'   Source: As ClimateStationRecords.
Public Function ClimateStationClimate(ByVal fileUnit As Variant, ByVal station As Variant, ByVal band As Variant, _
    ByVal month As Variant, ByVal bandSet As Variant, ByVal percentage As Variant) As Variant
    Dim fault As Long
    Dim fileUnitGiven As Long
    Dim stationGiven As Long
    Dim bandGiven As Long
    Dim monthGiven As Long
    Dim bandSetGiven As Long
    Dim percentageGiven As Single
    fileUnitGiven = SelectorOf(fileUnit, 31, "opened_last", fault)
    stationGiven = LongOf(station, 1, 2147483647, fault)
    bandGiven = LongOf(band, 0, 10, fault)
    monthGiven = LongOf(month, 1, 12, fault)
    bandSetGiven = SelectorOf(bandSet, 1, "first second", fault)
    percentageGiven = SingleOf(percentage, 0, 100, fault)
    If fault <> 0 Then
        ClimateStationClimate = CVErr(fault)
        Exit Function
    End If
    Dim q1Result As Single
    q1Result = unwritten
    Dim q2Result As Single
    q2Result = unwritten
    Dim q3Result As Single
    q3Result = unwritten
    Dim q4Result As Single
    q4Result = unwritten
    Dim q5Result As Single
    q5Result = unwritten
    Dim q6Result As Single
    q6Result = unwritten
    Dim q7Result As Single
    q7Result = unwritten
    Dim timeAResult As Single
    timeAResult = unwritten
    Dim timeBResult As Single
    timeBResult = unwritten
    CLBNFI fileUnitGiven, stationGiven, bandGiven, monthGiven, bandSetGiven, percentageGiven, q1Result, q2Result, _
        q3Result, q4Result, q5Result, q6Result, q7Result, timeAResult, timeBResult
    ClimateStationClimate = Array(CellOf(q1Result), CellOf(q2Result), CellOf(q3Result), CellOf(q4Result), _
        CellOf(q5Result), CellOf(q6Result), CellOf(q7Result), CellOf(timeAResult), CellOf(timeBResult))
End Function

' Where a cumulative fraction of days lies among the ten bands of a month, in the frequencies that ClimateStationRecords
' or ClimateStationClimate read last.
'   fraction: cumulative fraction of days; valid 0 to 1
'   month: month; valid 1 to 12
'   -> lowerBand: lower band, 1 to 10
'   -> upperBand: upper band, 1 to 10
'   -> bandWeight: size of (fraction - F(lower)) / (F(upper) - F(lower)), at most 1
'   At or below band 1's frequency both bands are 1, at or above band 10's both are 10, and the weight is 0. Bands of
'   equal frequency are skipped.
'   Before anything was read all frequencies are 0.
'   A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands 9 and 10 and a weight
'   that is not a number.
'   Source: Search for linear interpolation.
Public Function ClimateLocateStationBand(ByVal fraction As Variant, ByVal month As Variant) As Variant
    Dim fault As Long
    Dim fractionGiven As Single
    Dim monthGiven As Long
    fractionGiven = SingleOf(fraction, 0, 1, fault)
    monthGiven = LongOf(month, 1, 12, fault)
    If fault <> 0 Then
        ClimateLocateStationBand = CVErr(fault)
        Exit Function
    End If
    Dim lowerBandResult As Long
    Dim upperBandResult As Long
    Dim bandWeightResult As Single
    bandWeightResult = unwritten
    CLBNF1 fractionGiven, monthGiven, lowerBandResult, upperBandResult, bandWeightResult
    ClimateLocateStationBand = Array(CellOf(lowerBandResult), CellOf(upperBandResult), CellOf(bandWeightResult))
End Function

' Value between two rows of the station given to ClimateStationRecords or ClimateStationClimate last.
'   baseRow: row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and so on in set 1; 82 more in set 2; valid
'     2 to 154
'   lowerBand: lower band; valid 1 to 10
'   upperBand: upper band; valid 1 to 10
'   month: month; valid 1 to 12
'   bandWeight: share of the step from the lower to the upper row; valid -1 to 1
'   -> value, in the quantity's unit; #N/A when the file cannot be read
'   Rows base_row + lower_band and base_row + upper_band outside 1 to 171 count as the nearest row of the station, a
'   month outside 1 to 12 as the nearest month.
'   Source: Linear interpolation in the bands of the climate data file.
Public Function ClimateInterpolateStationRows(ByVal baseRow As Variant, ByVal lowerBand As Variant, _
    ByVal upperBand As Variant, ByVal month As Variant, ByVal bandWeight As Variant) As Variant
    Dim fault As Long
    Dim baseRowGiven As Long
    Dim lowerBandGiven As Long
    Dim upperBandGiven As Long
    Dim monthGiven As Long
    Dim bandWeightGiven As Single
    baseRowGiven = LongOf(baseRow, 2, 154, fault)
    lowerBandGiven = LongOf(lowerBand, 1, 10, fault)
    upperBandGiven = LongOf(upperBand, 1, 10, fault)
    monthGiven = LongOf(month, 1, 12, fault)
    bandWeightGiven = SingleOf(bandWeight, -1, 1, fault)
    If fault <> 0 Then
        ClimateInterpolateStationRows = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = unwritten
    CLBNF2 baseRowGiven, lowerBandGiven, upperBandGiven, monthGiven, bandWeightGiven, valueResult
    ClimateInterpolateStationRows = CellOf(valueResult)
End Function

' One row of the station given to ClimateStationRecords or ClimateStationClimate last.
'   row: row: 1 time A, 2 time B, 3 to 12 F, 13 to 82 Q1 to Q7, ten each; 82 more in set 2; valid 1 to 171
'   -> value of each month; #N/A when the file cannot be read
'   A station has 171 rows; numbers outside count as the first or the last.
'   Source: Climate data file.
Public Function ClimateStationRow(ByVal row As Variant) As Variant
    Dim fault As Long
    Dim rowGiven As Long
    rowGiven = LongOf(row, 1, 171, fault)
    If fault <> 0 Then
        ClimateStationRow = CVErr(fault)
        Exit Function
    End If
    Dim valuesResult() As Single
    ReDim valuesResult(0 To 11)
    BlankSingles valuesResult
    CLBNF3 rowGiven, valuesResult(0)
    ClimateStationRow = TableOf(valuesResult, 1)
End Function

' Temperature at an hour of a day, by half cosine waves between its highest and its lowest.
'   hour: hour [h]; valid 0 to 24
'   highestTemperature: highest temperature of the day [degC]; valid -100 to 200
'   lowestTemperature: lowest temperature of the day [degC]; valid -100 to 200
'   hourOfHighest: hour of the highest [h]; valid 0 to 24
'   hourOfLowest: hour of the lowest [h]; valid 0 to 24
'   -> temperature [degC]
'   Formula: m + a cos(pi h / L) after the highest, m - a cos(pi h / L) after the lowest; m = mean of both, a = half
'   their difference, h = hours since the one passed last, L = hours from it to the other
'   The same before and after midnight if the next day is like this one.
'   Hours of the extremes that coincide give the mean at every hour. With one at 0 and the other at 24 the wave through
'   midnight has no length: at the later of the two the result is no number.
'   Pi is 3.141593 here, a step above the float nearest to it, so the extremes are met to rounding.
'   Source: Two half cosine waves.
Public Function ClimateDailyTemperature(ByVal hour As Variant, ByVal highestTemperature As Variant, _
    ByVal lowestTemperature As Variant, ByVal hourOfHighest As Variant, ByVal hourOfLowest As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(hour), HeldBy(highestTemperature), HeldBy(lowestTemperature), HeldBy(hourOfHighest), _
        HeldBy(hourOfLowest))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateDailyTemperature(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), _
                    CellAt(held(4), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateDailyTemperature = spread
        Exit Function
    End If
    Dim fault As Long
    Dim hourGiven As Single
    Dim highestTemperatureGiven As Single
    Dim lowestTemperatureGiven As Single
    Dim hourOfHighestGiven As Single
    Dim hourOfLowestGiven As Single
    hourGiven = SingleOf(hour, 0, 24, fault)
    highestTemperatureGiven = SingleOf(highestTemperature, -100, 200, fault)
    lowestTemperatureGiven = SingleOf(lowestTemperature, -100, 200, fault)
    hourOfHighestGiven = SingleOf(hourOfHighest, 0, 24, fault)
    hourOfLowestGiven = SingleOf(hourOfLowest, 0, 24, fault)
    If fault <> 0 Then
        ClimateDailyTemperature = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = CLTAO(hourGiven, highestTemperatureGiven, lowestTemperatureGiven, hourOfHighestGiven, _
        hourOfLowestGiven)
    ClimateDailyTemperature = CellOf(valueResult)
End Function

' Value at an hour of a day that swings about its mean by half cosine waves between two hours.
'   hour: hour [h]; valid 0 to 24
'   mean: mean, in the unit of the result
'   amplitude: half the difference of the extremes, in the same unit
'   firstHour: hour of the first extreme, the highest if amplitude times amplitude_factor is positive [h]; valid 0 to 24
'   secondHour: hour of the second extreme, after the first [h]; valid 0 to 24
'   amplitudeFactor: factor on the amplitude
'   -> value
'   Formula: mean + a cos(pi (hour - first_hour) / (second_hour - first_hour)) between the two hours, mean - a cos(pi h
'   / (first_hour + 24 - second_hour)) h hours after the second; a = amplitude_factor amplitude
'   The order of the hours is not checked: with the second before the first, the wave that should go through midnight
'   runs beyond its extreme.
'   Pi as in ClimateDailyTemperature.
'   Source: Two half cosine waves.
Public Function ClimateDailyValue(ByVal hour As Variant, ByVal mean As Variant, ByVal amplitude As Variant, _
    ByVal firstHour As Variant, ByVal secondHour As Variant, ByVal amplitudeFactor As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(hour), HeldBy(mean), HeldBy(amplitude), HeldBy(firstHour), HeldBy(secondHour), _
        HeldBy(amplitudeFactor))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateDailyValue(CellAt(held(0), rowAt, columnAt), CellAt(held(1), rowAt, _
                    columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), CellAt(held(4), _
                    rowAt, columnAt), CellAt(held(5), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateDailyValue = spread
        Exit Function
    End If
    Dim fault As Long
    Dim hourGiven As Single
    Dim meanGiven As Single
    Dim amplitudeGiven As Single
    Dim firstHourGiven As Single
    Dim secondHourGiven As Single
    Dim amplitudeFactorGiven As Single
    hourGiven = SingleOf(hour, 0, 24, fault)
    meanGiven = SingleOf(mean, -largest, largest, fault)
    amplitudeGiven = SingleOf(amplitude, -largest, largest, fault)
    firstHourGiven = SingleOf(firstHour, 0, 24, fault)
    secondHourGiven = SingleOf(secondHour, 0, 24, fault)
    amplitudeFactorGiven = SingleOf(amplitudeFactor, -largest, largest, fault)
    If fault <> 0 Then
        ClimateDailyValue = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = CLTAOX(hourGiven, meanGiven, amplitudeGiven, firstHourGiven, secondHourGiven, amplitudeFactorGiven)
    ClimateDailyValue = CellOf(valueResult)
End Function

' Design irradiance by solar altitude: direct normal and diffuse horizontal.
'   solarAltitude: solar altitude [rad]; valid 0 to 1.5707964
'   siteHeight: height of the site above sea level [m]; valid 0 to 4000
'   skyKind: kind of sky: 0 clear, 1 cloudy: the larger diffuse irradiance
'   -> directNormal: direct normal irradiance, the same for both skies [W/m2]
'   -> diffuseHorizontal: diffuse irradiance on the horizontal [W/m2]
'   Formula: direct_normal = 1035.49 - 156.13 / a - 1.91863 / a^2 + 2.51353 / a^3 - 0.148842 / a^4; diffuse_horizontal =
'   1.52269 + 280.358 a - 375.111 a^2 + 253.716 a^3 - 63.3311 a^4 of the clear sky, 0.331322 + 283.1 a + 4.42111 a^2 of
'   the cloudy one; a = solar_altitude above 0.087
'   Both grow with the height by the factor of ClimateHeightFactor.
'   Up to 0.087 rad both are proportional to the altitude, also below 0, where they are negative. The direct irradiance
'   falls by 2 W/m2 where the polynomial takes over.
'   An altitude beyond 1.5707964 in size gives two zeros. A sky kind below 0 counts as 0, above 1 as 1.
'   Source: Polynomials through the design irradiances of a clear and a cloudy sky that building services guides print.
Public Function ClimateDesignIrradiance(ByVal solarAltitude As Variant, ByVal siteHeight As Variant, _
    ByVal skyKind As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(solarAltitude), HeldBy(siteHeight), HeldBy(skyKind))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 2)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, ClimateDesignIrradiance(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateDesignIrradiance = spread
        Exit Function
    End If
    Dim fault As Long
    Dim solarAltitudeGiven As Single
    Dim siteHeightGiven As Single
    Dim skyKindGiven As Long
    solarAltitudeGiven = SingleOf(solarAltitude, 0, 1.5707964, fault)
    siteHeightGiven = SingleOf(siteHeight, 0, 4000, fault)
    skyKindGiven = SelectorOf(skyKind, 0, "clear cloudy", fault)
    If fault <> 0 Then
        ClimateDesignIrradiance = CVErr(fault)
        Exit Function
    End If
    Dim directNormalResult As Single
    directNormalResult = unwritten
    Dim diffuseHorizontalResult As Single
    diffuseHorizontalResult = unwritten
    Dim unreadSingle As Single
    CLSNNR solarAltitudeGiven, unreadSingle, siteHeightGiven, skyKindGiven, directNormalResult, diffuseHorizontalResult
    ClimateDesignIrradiance = Array(CellOf(directNormalResult), CellOf(diffuseHorizontalResult))
End Function

' Factor by which irradiance grows with the height of the site.
'   siteHeight: height of the site above sea level [m]; valid 0 to 4000
'   solarAltitude: solar altitude [rad]; valid 0 to 1.5707964
'   -> factor
'   Formula: 1.02 + site_height (0.00002 + 0.00005 / sin(solar_altitude))
'   1 below 300 m, and for suns whose sine of altitude is below 0.08; the factor jumps from 1 to 1.041 or more at 300 m.
'   Source: Linear fit to height corrections of design irradiance.
Public Function ClimateHeightFactor(ByVal siteHeight As Variant, ByVal solarAltitude As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(siteHeight), HeldBy(solarAltitude))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateHeightFactor(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateHeightFactor = spread
        Exit Function
    End If
    Dim fault As Long
    Dim siteHeightGiven As Single
    Dim solarAltitudeGiven As Single
    siteHeightGiven = SingleOf(siteHeight, 0, 4000, fault)
    solarAltitudeGiven = SingleOf(solarAltitude, 0, 1.5707964, fault)
    If fault <> 0 Then
        ClimateHeightFactor = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = CLHIGH(siteHeightGiven, solarAltitudeGiven)
    ClimateHeightFactor = CellOf(valueResult)
End Function

' Irradiance outside the atmosphere on a day, by that at the mean distance of the sun.
'   day: day of the year; valid 1 to 366
'   -> factor
'   Formula: 1 + 0.03344 cos((360 day / 365.25 - 2.8) pi / 180)
'   0.967 to 1.033; greatest in the first days of January.
'   Source: Correction of the European Solar Radiation Atlas, 1 + 0.03344 cos(day angle - 2.8 degrees).
Public Function ClimateEccentricityFactor(ByVal day As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(day))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateEccentricityFactor(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateEccentricityFactor = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dayGiven As Long
    dayGiven = LongOf(day, 1, 366, fault)
    If fault <> 0 Then
        ClimateEccentricityFactor = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = CLETAJ(dayGiven)
    ClimateEccentricityFactor = CellOf(valueResult)
End Function

' Global horizontal irradiance by that outside the atmosphere.
'   day: day of the year; valid 1 to 366
'   solarAltitude: solar altitude [rad]; valid 0 to 1.5707964
'   globalHorizontal: global horizontal irradiance [W/m2]; valid from 0
'   -> clearness index
'   Formula: global_horizontal / (1367 ClimateEccentricityFactor(day) sin(solar_altitude))
'   An altitude of 0 divides by zero: infinite, or not a number for an irradiance of 0.
'   Source: B. Y. H. Liu and R. C. Jordan, Solar Energy 4 (1960), with a solar constant of 1367 W/m2 and the
'   eccentricity of ClimateEccentricityFactor.
Public Function ClimateClearnessIndex(ByVal day As Variant, ByVal solarAltitude As Variant, _
    ByVal globalHorizontal As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(day), HeldBy(solarAltitude), HeldBy(globalHorizontal))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateClearnessIndex(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateClearnessIndex = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dayGiven As Long
    Dim solarAltitudeGiven As Single
    Dim globalHorizontalGiven As Single
    dayGiven = LongOf(day, 1, 366, fault)
    solarAltitudeGiven = SingleOf(solarAltitude, 0, 1.5707964, fault)
    globalHorizontalGiven = SingleOf(globalHorizontal, 0, largest, fault)
    If fault <> 0 Then
        ClimateClearnessIndex = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = CLMODUL(dayGiven, solarAltitudeGiven, globalHorizontalGiven)
    ClimateClearnessIndex = CellOf(valueResult)
End Function

' Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and ground-reflected.
'   solarAltitude: solar altitude [rad]; valid 0 to 1.5707964
'   solarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
'   surfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
'   tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
'   beamHorizontal: beam irradiance on the horizontal [W/m2]; valid from 0
'   diffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
'   extraterrestrialHorizontal: irradiance on the horizontal outside the atmosphere [W/m2]; valid 0 to 1415
'   groundReflectance: reflectance of the ground; valid 0 to 1
'   -> surfaceBeam: beam irradiance on the surface, 0 with the sun behind it [W/m2]
'   -> surfaceDiffuse: diffuse irradiance of the sky on the surface [W/m2]
'   -> groundReflected: ground-reflected irradiance on the surface [W/m2]
'   -> incidence: angle of incidence, 1.5707964 with the sun behind the surface [rad]
'   Formula: surface_beam = beam_horizontal cos(i) / sin(h); surface_diffuse = diffuse_horizontal (f (1 - K) + K cos(i)
'   / sin(h)); ground_reflected = ground_reflectance (beam_horizontal + diffuse_horizontal) sin(b / 2)^2; f = cos(b /
'   2)^2 + 2 r / (pi (2 r + 3)) (sin(b) - b cos(b) - pi sin(b / 2)^2), K = beam_horizontal /
'   extraterrestrial_horizontal, h = solar_altitude, b = tilt, i = angle of incidence
'   Radiance index r = 5.73 with the sun behind the surface; else 1.68 for a beam below 5 W/m2 and -0.62 from there on.
'   The circumsolar part starts above 5: exactly 5 takes -0.62 without it: deliberate.
'   With the sun behind the surface cos(i) counts as 0; there, and up to a beam of 5 W/m2, K does too.
'   A sun up to 0.1 rad above the horizon has a form of its own: the diffuse irradiance times the cosine of the angle of
'   incidence, brightened with the tilt. The result jumps there and at the thresholds of the beam.
'   That form does not become the diffuse irradiance on the horizontal, as it does above 0.1 rad: there it is the
'   diffuse irradiance times the sine of the altitude, 10 of 100 W/m2 at 0.0999 rad and 1 at 0.01 rad, and on a wall
'   that faces the sun 135.
'   Computed in double precision: 0.1 as a single-precision altitude lies above the limit.
'   The beam is divided by the sine of the altitude: an altitude of 0 gives an infinite beam on the surface, or no
'   number.
'   Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and Technology 11
'   (1990); radiance of the sky after P. Moon and D. E. Spencer (1942).
Public Function ClimateMuneerSlope(ByVal solarAltitude As Variant, ByVal solarAzimuth As Variant, _
    ByVal surfaceAzimuth As Variant, ByVal tilt As Variant, ByVal beamHorizontal As Variant, _
    ByVal diffuseHorizontal As Variant, ByVal extraterrestrialHorizontal As Variant, _
    ByVal groundReflectance As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(solarAltitude), HeldBy(solarAzimuth), HeldBy(surfaceAzimuth), HeldBy(tilt), _
        HeldBy(beamHorizontal), HeldBy(diffuseHorizontal), HeldBy(extraterrestrialHorizontal), _
        HeldBy(groundReflectance))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, ClimateMuneerSlope(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt), _
                    CellAt(held(6), rowAt, columnAt), CellAt(held(7), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateMuneerSlope = spread
        Exit Function
    End If
    Dim fault As Long
    Dim solarAltitudeGiven As Single
    Dim solarAzimuthGiven As Single
    Dim surfaceAzimuthGiven As Single
    Dim tiltGiven As Single
    Dim beamHorizontalGiven As Single
    Dim diffuseHorizontalGiven As Single
    Dim extraterrestrialHorizontalGiven As Single
    Dim groundReflectanceGiven As Single
    solarAltitudeGiven = SingleOf(solarAltitude, 0, 1.5707964, fault)
    solarAzimuthGiven = SingleOf(solarAzimuth, 0, 6.2832, fault)
    surfaceAzimuthGiven = SingleOf(surfaceAzimuth, 0, 6.2832, fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    beamHorizontalGiven = SingleOf(beamHorizontal, 0, largest, fault)
    diffuseHorizontalGiven = SingleOf(diffuseHorizontal, 0, largest, fault)
    extraterrestrialHorizontalGiven = SingleOf(extraterrestrialHorizontal, 0, 1415, fault)
    groundReflectanceGiven = SingleOf(groundReflectance, 0, 1, fault)
    If fault <> 0 Then
        ClimateMuneerSlope = CVErr(fault)
        Exit Function
    End If
    Dim surfaceBeamResult As Single
    surfaceBeamResult = unwritten
    Dim surfaceDiffuseResult As Single
    surfaceDiffuseResult = unwritten
    Dim groundReflectedResult As Single
    groundReflectedResult = unwritten
    Dim incidenceResult As Single
    incidenceResult = unwritten
    CLMUNRAD solarAltitudeGiven, solarAzimuthGiven, surfaceAzimuthGiven, tiltGiven, beamHorizontalGiven, _
        diffuseHorizontalGiven, extraterrestrialHorizontalGiven, groundReflectanceGiven, surfaceBeamResult, _
        surfaceDiffuseResult, groundReflectedResult, incidenceResult
    ClimateMuneerSlope = Array(CellOf(surfaceBeamResult), CellOf(surfaceDiffuseResult), _
        CellOf(groundReflectedResult), CellOf(incidenceResult))
End Function

' Diffuse irradiance of the sky on a tilted surface by the anisotropic sky of Perez.
'   solarAltitude: solar altitude [rad]; valid 0 to 1.5707964
'   tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
'   beamHorizontal: beam irradiance on the horizontal [W/m2]; valid from 0
'   diffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
'   incidence: angle of incidence of the sun on the surface [rad]; valid 0 to 3.1416
'   extraterrestrialNormal: normal irradiance outside the atmosphere [W/m2]; valid 1320 to 1415
'   -> diffuse irradiance of the sky on the surface [W/m2]
'   Formula: diffuse_horizontal ((1 - F1) cos(tilt / 2)^2 + F1 a / b + F2 sin(tilt)); a = cos(incidence), at least 0, b
'   = sin(solar_altitude), at least 0.0871557; F1 = f11 + f12 D + f13 Z, at least 0, F2 = f21 + f22 D + f23 Z
'   The air mass is that of Kasten and Young with the altitude in radians in place of degrees: 16 % too small for the
'   sun at 2.5 degrees, 4 % at 30 and 2 % in the zenith: deliberate.
'   The circumsolar part is not below 0, the horizon's part may be; the sum is not limited.
'   Computed in double precision, coefficients and limits included; a clearness on the limit of two rows of coefficients
'   belongs to the lower. The result jumps between rows, as the published model does.
'   Altitude, diffuse and extraterrestrial irradiance of 0 divide by zero.
'   The formula's Z is the sun's angle from the zenith, D the brightness: the air mass times diffuse_horizontal /
'   extraterrestrial_normal. The coefficients f are those of the row of the clearness.
'   Source: R. Perez, P. Ineichen, R. Seals, J. Michalsky and R. Stewart, Modeling daylight availability and irradiance
'   components from direct and global irradiance, Solar Energy 44 (1990): composite of all sites, coefficients with all
'   their places. Air mass: F. Kasten and A. T. Young, Applied Optics 28 (1989).
Public Function ClimatePerezDiffuse(ByVal solarAltitude As Variant, ByVal tilt As Variant, _
    ByVal beamHorizontal As Variant, ByVal diffuseHorizontal As Variant, ByVal incidence As Variant, _
    ByVal extraterrestrialNormal As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(solarAltitude), HeldBy(tilt), HeldBy(beamHorizontal), HeldBy(diffuseHorizontal), _
        HeldBy(incidence), HeldBy(extraterrestrialNormal))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimatePerezDiffuse(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), _
                    CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimatePerezDiffuse = spread
        Exit Function
    End If
    Dim fault As Long
    Dim solarAltitudeGiven As Single
    Dim tiltGiven As Single
    Dim beamHorizontalGiven As Single
    Dim diffuseHorizontalGiven As Single
    Dim incidenceGiven As Single
    Dim extraterrestrialNormalGiven As Single
    solarAltitudeGiven = SingleOf(solarAltitude, 0, 1.5707964, fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    beamHorizontalGiven = SingleOf(beamHorizontal, 0, largest, fault)
    diffuseHorizontalGiven = SingleOf(diffuseHorizontal, 0, largest, fault)
    incidenceGiven = SingleOf(incidence, 0, 3.1416, fault)
    extraterrestrialNormalGiven = SingleOf(extraterrestrialNormal, 1320, 1415, fault)
    If fault <> 0 Then
        ClimatePerezDiffuse = CVErr(fault)
        Exit Function
    End If
    Dim surfaceDiffuseResult As Single
    surfaceDiffuseResult = unwritten
    CLPERSKY solarAltitudeGiven, tiltGiven, beamHorizontalGiven, diffuseHorizontalGiven, surfaceDiffuseResult, _
        incidenceGiven, extraterrestrialNormalGiven
    ClimatePerezDiffuse = CellOf(surfaceDiffuseResult)
End Function

' Radiation constants of a site class in a month.
'   siteClass: site class; valid 1 to 6
'   month: month; valid 1 to 12
'   -> groundReflectance: reflectance of the ground
'   -> beamFactor: factor on the direct normal irradiance
'   -> diffuseFactor: factor on the diffuse horizontal irradiance
'   -> alternativeDiffuseFactor: factor that takes its place where it is 0
'   Only class 1 varies over the year. Classes 4 and 6 have a diffuse factor of 0 and the alternative one in its place;
'   the caller chooses.
'   A site class outside 1 to 6 or a month outside 1 to 12 gives four zeros.
'   Source: Table of design constants of the library.
Public Function ClimateSiteConstants(ByVal siteClass As Variant, ByVal month As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(siteClass), HeldBy(month))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, ClimateSiteConstants(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateSiteConstants = spread
        Exit Function
    End If
    Dim fault As Long
    Dim siteClassGiven As Long
    Dim monthGiven As Long
    siteClassGiven = LongOf(siteClass, 1, 6, fault)
    monthGiven = LongOf(month, 1, 12, fault)
    If fault <> 0 Then
        ClimateSiteConstants = CVErr(fault)
        Exit Function
    End If
    Dim groundReflectanceResult As Single
    groundReflectanceResult = unwritten
    Dim beamFactorResult As Single
    beamFactorResult = unwritten
    Dim diffuseFactorResult As Single
    diffuseFactorResult = unwritten
    Dim alternativeDiffuseFactorResult As Single
    alternativeDiffuseFactorResult = unwritten
    CLCONS siteClassGiven, monthGiven, groundReflectanceResult, beamFactorResult, diffuseFactorResult, _
        alternativeDiffuseFactorResult
    ClimateSiteConstants = Array(CellOf(groundReflectanceResult), CellOf(beamFactorResult), _
        CellOf(diffuseFactorResult), CellOf(alternativeDiffuseFactorResult))
End Function

' Diffuse irradiance of the sky on a tilted surface without circumsolar part, by that on the horizontal.
'   day: day of the year; valid 1 to 366
'   solarAltitude: solar altitude [rad]; valid 0 to 1.5707964
'   beamHorizontal: beam irradiance on the horizontal [W/m2]; valid from 0
'   tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
'   skyModel: model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern Europe, 2 clearness, southern
'     Europe, as any other value
'   -> factor, 1 for a horizontal surface
'   Formula: cos(b / 2)^2 + a (sin(b) - b cos(b) - pi sin(b / 2)^2), b = tilt; model 0: a = 2 r / (pi (2 r + 3)), model
'   1: 0.00333 - 0.415 K - 0.6987 K^2, model 2: 0.00263 - 0.712 K - 0.6883 K^2; K = beam_horizontal / (1367
'   ClimateEccentricityFactor(day) sin(solar_altitude))
'   Model 0 takes the radiance index r = 5.73 up to an altitude of 0, 1.68 for a beam below 5 W/m2 and -0.62 otherwise;
'   the side of the surface does not matter here.
'   Models 1 and 2 divide by the sine of the altitude: at 0 the factor is infinite or no number.
'   Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and Technology 11
'   (1990), with a solar constant of 1367 W/m2 and the eccentricity of ClimateEccentricityFactor.
Public Function ClimateDiffuseTiltFactor(ByVal day As Variant, ByVal solarAltitude As Variant, _
    ByVal beamHorizontal As Variant, ByVal tilt As Variant, ByVal skyModel As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(day), HeldBy(solarAltitude), HeldBy(beamHorizontal), HeldBy(tilt), HeldBy(skyModel))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateDiffuseTiltFactor(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), _
                    CellAt(held(4), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateDiffuseTiltFactor = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dayGiven As Long
    Dim solarAltitudeGiven As Single
    Dim beamHorizontalGiven As Single
    Dim tiltGiven As Single
    Dim skyModelGiven As Long
    dayGiven = LongOf(day, 1, 366, fault)
    solarAltitudeGiven = SingleOf(solarAltitude, 0, 1.5707964, fault)
    beamHorizontalGiven = SingleOf(beamHorizontal, 0, largest, fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    skyModelGiven = SelectorOf(skyModel, 0, "radiance_index northern_europe southern_europe", fault)
    If fault <> 0 Then
        ClimateDiffuseTiltFactor = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    Dim unreadSingle As Single
    valueResult = CLDIFRAD(dayGiven, solarAltitudeGiven, beamHorizontalGiven, unreadSingle, tiltGiven, skyModelGiven)
    ClimateDiffuseTiltFactor = CellOf(valueResult)
End Function

' Diffuse irradiance of the sky on a tilted surface by day of the year and model of the sky.
'   day: day of the year; valid 1 to 366
'   solarAltitude: solar altitude [rad]; valid 0 to 1.5707964
'   solarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
'   surfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
'   tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
'   beamHorizontal: beam irradiance on the horizontal [W/m2]; valid from 0
'   diffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
'   skyModel: model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern Europe, 2 clearness, southern
'     Europe, as any other value
'   -> diffuse irradiance of the sky on the surface [W/m2]
'   Formula: diffuse_horizontal (f (1 - K) + K cos(i) / sin(solar_altitude)); f = ClimateDiffuseTiltFactor, i = angle of
'   incidence
'   The factor of ClimateDiffuseTiltFactor and a circumsolar part, weighted by the clearness of the beam. A sun behind
'   the surface has no circumsolar part, as one whose direction is not a number.
'   From a beam of 5 W/m2 on, a sun below 0.1 rad has a form of its own, which follows the clearness but not the model.
'   The result jumps there.
'   On the horizontal the result is the diffuse irradiance, but for that form, which brightens it around the sun: at
'   0.0999 rad by 0.4 % for a beam of 50 W/m2 and by 4.5 % for 600.
'   Divides by the sine of the altitude: at 0 the result is infinite or no number.
'   K is that of ClimateDiffuseTiltFactor.
'   Source: As ClimateDiffuseTiltFactor. Low sun: the clear sky of R. C. Temps and K. L. Coulson (Solar Energy 19, 1977)
'   with the modulation by T. M. Klucher (Solar Energy 23, 1979), the beam clearness in place of his factor.
Public Function ClimateSlopeDiffuse(ByVal day As Variant, ByVal solarAltitude As Variant, _
    ByVal solarAzimuth As Variant, ByVal surfaceAzimuth As Variant, ByVal tilt As Variant, _
    ByVal beamHorizontal As Variant, ByVal diffuseHorizontal As Variant, ByVal skyModel As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(day), HeldBy(solarAltitude), HeldBy(solarAzimuth), HeldBy(surfaceAzimuth), HeldBy(tilt), _
        HeldBy(beamHorizontal), HeldBy(diffuseHorizontal), HeldBy(skyModel))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateSlopeDiffuse(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), _
                    CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt), CellAt(held(6), rowAt, _
                    columnAt), CellAt(held(7), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateSlopeDiffuse = spread
        Exit Function
    End If
    Dim fault As Long
    Dim dayGiven As Long
    Dim solarAltitudeGiven As Single
    Dim solarAzimuthGiven As Single
    Dim surfaceAzimuthGiven As Single
    Dim tiltGiven As Single
    Dim beamHorizontalGiven As Single
    Dim diffuseHorizontalGiven As Single
    Dim skyModelGiven As Long
    dayGiven = LongOf(day, 1, 366, fault)
    solarAltitudeGiven = SingleOf(solarAltitude, 0, 1.5707964, fault)
    solarAzimuthGiven = SingleOf(solarAzimuth, 0, 6.2832, fault)
    surfaceAzimuthGiven = SingleOf(surfaceAzimuth, 0, 6.2832, fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    beamHorizontalGiven = SingleOf(beamHorizontal, 0, largest, fault)
    diffuseHorizontalGiven = SingleOf(diffuseHorizontal, 0, largest, fault)
    skyModelGiven = SelectorOf(skyModel, 0, "radiance_index northern_europe southern_europe", fault)
    If fault <> 0 Then
        ClimateSlopeDiffuse = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = CLDIFSLO(dayGiven, solarAltitudeGiven, solarAzimuthGiven, surfaceAzimuthGiven, tiltGiven, _
        beamHorizontalGiven, diffuseHorizontalGiven, skyModelGiven)
    ClimateSlopeDiffuse = CellOf(valueResult)
End Function

' Temperature of the sol-air kind: a base temperature raised by a net gain of heat.
'   baseTemperature: base temperature, as of the air outdoors [degC]; valid -100 to 200
'   surfaceCoefficient: heat transfer coefficient of the surface [W/m2K]; valid from 0
'   absorptance: absorptance; valid 0 to 1
'   irradiance: solar irradiance on the surface [W/m2]; valid from 0
'   longWaveLoss: net loss [W/m2]; valid from 0
'   -> sol-air temperature [degC]
'   Formula: base_temperature + absorptance (irradiance - long_wave_loss) / surface_coefficient
'   The absorptance weighs the long-wave loss as it does the irradiance.
'   A coefficient of 0 divides by zero.
'   Source: Heat balance of an outer surface.
Public Function ClimateSolAirTemperature(ByVal baseTemperature As Variant, ByVal surfaceCoefficient As Variant, _
    ByVal absorptance As Variant, ByVal irradiance As Variant, ByVal longWaveLoss As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(baseTemperature), HeldBy(surfaceCoefficient), HeldBy(absorptance), HeldBy(irradiance), _
        HeldBy(longWaveLoss))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateSolAirTemperature(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), _
                    CellAt(held(4), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateSolAirTemperature = spread
        Exit Function
    End If
    Dim fault As Long
    Dim baseTemperatureGiven As Single
    Dim surfaceCoefficientGiven As Single
    Dim absorptanceGiven As Single
    Dim irradianceGiven As Single
    Dim longWaveLossGiven As Single
    baseTemperatureGiven = SingleOf(baseTemperature, -100, 200, fault)
    surfaceCoefficientGiven = SingleOf(surfaceCoefficient, 0, largest, fault)
    absorptanceGiven = SingleOf(absorptance, 0, 1, fault)
    irradianceGiven = SingleOf(irradiance, 0, largest, fault)
    longWaveLossGiven = SingleOf(longWaveLoss, 0, largest, fault)
    If fault <> 0 Then
        ClimateSolAirTemperature = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    Dim unreadSingle As Single
    valueResult = CLTEO(baseTemperatureGiven, surfaceCoefficientGiven, absorptanceGiven, unreadSingle, unreadSingle, _
        irradianceGiven, longWaveLossGiven)
    ClimateSolAirTemperature = CellOf(valueResult)
End Function

' Net long-wave radiation that a surface loses to its surroundings, never negative.
'   tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
'   cloudCover: share of the sky that is covered by cloud; valid 0 to 1
'   -> net loss [W/m2]
'   Formula: 72 cos(tilt) + 21 - (62 cos(tilt) + 17) cloud_cover, at least 0
'   Horizontal 93 - 79 cloud_cover, vertical 21 - 17 cloud_cover, between them by the cosine of the tilt. Less than
'   nothing is 0; not a number stays so.
'   Source: Net long-wave losses of horizontal and vertical surfaces by cloud cover, as building services guides print
'   them; meaning of the arguments inferred from these values.
Public Function ClimateLongWaveLoss(ByVal tilt As Variant, ByVal cloudCover As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(tilt), HeldBy(cloudCover))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateLongWaveLoss(CellAt(held(0), rowAt, columnAt), CellAt(held(1), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateLongWaveLoss = spread
        Exit Function
    End If
    Dim fault As Long
    Dim tiltGiven As Single
    Dim cloudCoverGiven As Single
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    cloudCoverGiven = SingleOf(cloudCover, 0, 1, fault)
    If fault <> 0 Then
        ClimateLongWaveLoss = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = CLRERD(tiltGiven, cloudCoverGiven)
    ClimateLongWaveLoss = CellOf(valueResult)
End Function

' What is to be added to clock time to get solar time.
'   clockOffset: hours by which the clock is put forward, as in summer time [h]
'   day: day of the year; valid 1 to 366
'   longitude: longitude of the site, positive west [rad]; valid -3.1416 to 3.1416
'   referenceLongitude: longitude of the clock's meridian, positive west [rad]; valid -3.1416 to 3.1416
'   -> correction [h]
'   Formula: equation of time - clock_offset - (longitude - reference_longitude) / 0.2618
'   Only the difference of the longitudes counts. Given positive east instead, it enters with the wrong sign.
'   The equation of time stays within 0.7 min of the true one.
'   The hour is rounded to 0.2618 rad here and not in ClimateSolarGeometry: deliberate.
'   Source: Fourier series of the equation of time to the third harmonic, of the kind given by J. W. Spencer, Search 2
'   (1971); coefficients refitted.
Public Function ClimateSolarTimeCorrection(ByVal clockOffset As Variant, ByVal day As Variant, _
    ByVal longitude As Variant, ByVal referenceLongitude As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(clockOffset), HeldBy(day), HeldBy(longitude), HeldBy(referenceLongitude))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = ClimateSolarTimeCorrection(CellAt(held(0), rowAt, columnAt), _
                    CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        ClimateSolarTimeCorrection = spread
        Exit Function
    End If
    Dim fault As Long
    Dim clockOffsetGiven As Single
    Dim dayGiven As Long
    Dim longitudeGiven As Single
    Dim referenceLongitudeGiven As Single
    clockOffsetGiven = SingleOf(clockOffset, -largest, largest, fault)
    dayGiven = LongOf(day, 1, 366, fault)
    longitudeGiven = SingleOf(longitude, -3.1416, 3.1416, fault)
    referenceLongitudeGiven = SingleOf(referenceLongitude, -3.1416, 3.1416, fault)
    If fault <> 0 Then
        ClimateSolarTimeCorrection = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = CLTCOR(clockOffsetGiven, dayGiven, longitudeGiven, referenceLongitudeGiven)
    ClimateSolarTimeCorrection = CellOf(valueResult)
End Function

' Altitude, azimuth and declination of the sun by calendar date and clock.
'   timeKind: what the time is: 1 solar time; longitude and zone meridian are set to 0, 2 clock of the zone, at the
'     longitude, 3 solar time; the zone meridian only dates the declination
'   year: year; valid 1976 to 2099
'   month: month; valid 1 to 12
'   dayOfMonth: day of the month; valid 1 to 31
'   clockTime: clock hour [h]; valid 0 to 24
'   latitude: latitude, positive north [rad]; valid -1.5707964 to 1.5707964
'   longitude: longitude, positive west [rad]; valid -3.1416 to 3.1416
'   zoneMeridian: longitude of the clock's meridian, positive west [rad]; valid -3.1416 to 3.1416
'   -> longitude: longitude, positive west [rad]; as given except with solar time
'   -> zoneMeridian: longitude of the clock's meridian, positive west [rad]; as given except with solar time
'   -> solarAltitude: altitude, negative below the horizon; no refraction [rad]
'   -> solarAzimuth: azimuth [rad]
'   -> declination: declination [rad]
'   Within 0.03 degrees, and of the azimuth 0.1 degrees where the sun is near due south or north, since a cosine of
'   azimuth beyond 0.999999 in size counts as 1. Of this 0.02 degrees come from a misplaced degree factor in the
'   equation of the centre: deliberate.
'   The hour angle is not brought into -180 to 180 degrees. Its sign decides between morning and afternoon, so within an
'   hour of midnight the azimuth may be the mirror image.
'   A kind of time other than 1 and 2 counts as 3. Date and hour are not checked: a day beyond the month's end counts on
'   into the next month. Before March 1976 three years of four are a day late; 2100 is given a leap day.
'   Source: Low-precision formulas of B. D. Yallop for the sun, as printed in T. Muneer, Solar Radiation and Daylight
'   Models for the Energy Efficient Design of Buildings, 1997.
Public Function ClimateAlmanacPosition(ByVal timeKind As Variant, ByVal year As Variant, ByVal month As Variant, _
    ByVal dayOfMonth As Variant, ByVal clockTime As Variant, ByVal latitude As Variant, ByVal longitude As Variant, _
    ByVal zoneMeridian As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(timeKind), HeldBy(year), HeldBy(month), HeldBy(dayOfMonth), HeldBy(clockTime), _
        HeldBy(latitude), HeldBy(longitude), HeldBy(zoneMeridian))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 5)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, ClimateAlmanacPosition(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt), _
                    CellAt(held(6), rowAt, columnAt), CellAt(held(7), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateAlmanacPosition = spread
        Exit Function
    End If
    Dim fault As Long
    Dim timeKindGiven As Long
    Dim yearGiven As Long
    Dim monthGiven As Long
    Dim dayOfMonthGiven As Long
    Dim clockTimeGiven As Single
    Dim latitudeGiven As Single
    Dim longitudeGiven As Single
    Dim zoneMeridianGiven As Single
    timeKindGiven = SelectorOf(timeKind, 1, "solar zone dated_solar", fault)
    yearGiven = LongOf(year, 1976, 2099, fault)
    monthGiven = LongOf(month, 1, 12, fault)
    dayOfMonthGiven = LongOf(dayOfMonth, 1, 31, fault)
    clockTimeGiven = SingleOf(clockTime, 0, 24, fault)
    latitudeGiven = SingleOf(latitude, -1.5707964, 1.5707964, fault)
    longitudeGiven = SingleOf(longitude, -3.1416, 3.1416, fault)
    zoneMeridianGiven = SingleOf(zoneMeridian, -3.1416, 3.1416, fault)
    If fault <> 0 Then
        ClimateAlmanacPosition = CVErr(fault)
        Exit Function
    End If
    Dim solarAltitudeResult As Single
    solarAltitudeResult = unwritten
    Dim solarAzimuthResult As Single
    solarAzimuthResult = unwritten
    Dim declinationResult As Single
    declinationResult = unwritten
    CLYALLOP timeKindGiven, yearGiven, monthGiven, dayOfMonthGiven, clockTimeGiven, latitudeGiven, longitudeGiven, _
        zoneMeridianGiven, solarAltitudeResult, solarAzimuthResult, declinationResult
    ClimateAlmanacPosition = Array(CellOf(longitudeGiven), CellOf(zoneMeridianGiven), CellOf(solarAltitudeResult), _
        CellOf(solarAzimuthResult), CellOf(declinationResult))
End Function

' Sunrise and sunset in solar time by calendar date.
'   year: year; valid 1976 to 2099
'   month: month; valid 1 to 12
'   dayOfMonth: day of the month; valid 1 to 31
'   latitude: latitude, positive north [rad]; valid -1.5707964 to 1.5707964
'   -> sunrise: sunrise; 25 when the sun does not rise, 0 when it does not set [h]
'   -> sunset: sunset; 25 when the sun does not set, 0 when it does not rise [h]
'   The centre of the sun on a level horizon without refraction, with the declination of noon at Greenwich.
'   Dates as in ClimateAlmanacPosition. A latitude of 1.5707964, or its negative, is by rounding just beyond the pole:
'   midnight sun and polar night change places there.
'   Source: Declination as ClimateAlmanacPosition; sunrise equation.
Public Function ClimateAlmanacSunHours(ByVal year As Variant, ByVal month As Variant, ByVal dayOfMonth As Variant, _
    ByVal latitude As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(year), HeldBy(month), HeldBy(dayOfMonth), HeldBy(latitude))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 2)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, ClimateAlmanacSunHours(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateAlmanacSunHours = spread
        Exit Function
    End If
    Dim fault As Long
    Dim yearGiven As Long
    Dim monthGiven As Long
    Dim dayOfMonthGiven As Long
    Dim latitudeGiven As Single
    yearGiven = LongOf(year, 1976, 2099, fault)
    monthGiven = LongOf(month, 1, 12, fault)
    dayOfMonthGiven = LongOf(dayOfMonth, 1, 31, fault)
    latitudeGiven = SingleOf(latitude, -1.5707964, 1.5707964, fault)
    If fault <> 0 Then
        ClimateAlmanacSunHours = CVErr(fault)
        Exit Function
    End If
    Dim sunriseResult As Single
    sunriseResult = unwritten
    Dim sunsetResult As Single
    sunsetResult = unwritten
    CLRISESET yearGiven, monthGiven, dayOfMonthGiven, latitudeGiven, sunriseResult, sunsetResult
    ClimateAlmanacSunHours = Array(CellOf(sunriseResult), CellOf(sunsetResult))
End Function

' Declination, altitude and azimuth of the sun, sunrise and sunset, by latitude, day of the year and solar hour.
'   latitude: latitude, positive north [rad]; valid -1.5707964 to 1.5707964
'   day: day of the year; valid 1 to 365
'   solarTime: solar time, noon at 12 [h]; valid 0 to 24
'   -> declination: declination [rad]
'   -> solarAltitude: altitude, 0 when the sun is below the horizon [rad]
'   -> solarAzimuth: azimuth, 0 when the sun is below the horizon [rad]
'   -> sunrise: sunrise; 25 when the sun does not rise, 0 when it does not set [h]; #N/A with latitude, day or hour
'     outside its range
'   -> sunset: sunset; 25 when the sun does not set, 0 when it does not rise [h]; #N/A with latitude, day or hour
'     outside its range
'   Formula: sin(declination) = 0.398 sin(d - 1.4096 + 0.03347 sin(d)), d = 0.01721 day; sin(altitude) =
'   sin(declination) sin(latitude) + cos(declination) cos(latitude) cos(H), H = 0.261799395 (12 - solar_time); sunrise =
'   12 / pi acos(tan(latitude) tan(declination)), sunset = 24 - sunrise
'   Latitude, day or hour outside its range (day 366 too) gives a declination, altitude and azimuth of 0.
'   Within 0.5 degrees of the true position; no leap years, no refraction, the sun a point.
'   Noon counts as morning. With the sun in the zenith the azimuth is arbitrary.
'   A latitude of 1.5707964, or its negative, is by rounding just beyond the pole: midnight sun and polar night change
'   places there.
'   Not a number for the latitude or the hour makes what depends on it not a number.
'   Source: Spherical astronomy; sine of the declination as 0.398 times the sine of the sun's ecliptic longitude, with
'   the first-order equation of the centre.
Public Function ClimateSolarGeometry(ByVal latitude As Variant, ByVal day As Variant, _
    ByVal solarTime As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(latitude), HeldBy(day), HeldBy(solarTime))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 5)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, ClimateSolarGeometry(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateSolarGeometry = spread
        Exit Function
    End If
    Dim fault As Long
    Dim latitudeGiven As Single
    Dim dayGiven As Long
    Dim solarTimeGiven As Single
    latitudeGiven = SingleOf(latitude, -1.5707964, 1.5707964, fault)
    dayGiven = LongOf(day, 1, 365, fault)
    solarTimeGiven = SingleOf(solarTime, 0, 24, fault)
    If fault <> 0 Then
        ClimateSolarGeometry = CVErr(fault)
        Exit Function
    End If
    Dim declinationResult As Single
    declinationResult = unwritten
    Dim solarAltitudeResult As Single
    solarAltitudeResult = unwritten
    Dim solarAzimuthResult As Single
    solarAzimuthResult = unwritten
    Dim sunriseResult As Single
    sunriseResult = unwritten
    Dim sunsetResult As Single
    sunsetResult = unwritten
    CLSNGE latitudeGiven, dayGiven, solarTimeGiven, declinationResult, solarAltitudeResult, solarAzimuthResult, _
        sunriseResult, sunsetResult
    ClimateSolarGeometry = Array(CellOf(declinationResult), CellOf(solarAltitudeResult), CellOf(solarAzimuthResult), _
        CellOf(sunriseResult), CellOf(sunsetResult))
End Function

' Angle of incidence of the sun on a surface, and its angles in the vertical and the horizontal sense.
'   solarAltitude: solar altitude [rad]; valid -1.5707964 to 1.5707964
'   solarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
'   surfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
'   tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
'   -> incidence: angle of incidence, 0 to pi; above pi/2 the sun is behind the surface [rad]
'   -> verticalShadowAngle: angle off the normal in the plane of normal and slope, positive up the slope; the profile
'     angle of a vertical surface [rad]
'   -> horizontalShadowAngle: angle off the normal in the plane of normal and level line, positive clockwise seen from
'     above [rad]
'   Formula: cos(incidence) = cos(solar_altitude) sin(tilt) cos(solar_azimuth - surface_azimuth) + sin(solar_altitude)
'   cos(tilt)
'   With the sun behind the surface the two angles exceed pi/2 in size.
'   With the sun along the level line the vertical angle is pi/2, with the sun along the slope line the horizontal angle
'   is -pi/2: exactly so only where the components vanish, anything by rounding otherwise.
'   The components are rounded, so angles below 0.0005 rad are not resolved.
'   Source: Vector algebra: the sun's direction in the frame of level line, slope line and outward normal.
Public Function ClimateSurfaceAngles(ByVal solarAltitude As Variant, ByVal solarAzimuth As Variant, _
    ByVal surfaceAzimuth As Variant, ByVal tilt As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(solarAltitude), HeldBy(solarAzimuth), HeldBy(surfaceAzimuth), HeldBy(tilt))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, ClimateSurfaceAngles(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateSurfaceAngles = spread
        Exit Function
    End If
    Dim fault As Long
    Dim solarAltitudeGiven As Single
    Dim solarAzimuthGiven As Single
    Dim surfaceAzimuthGiven As Single
    Dim tiltGiven As Single
    solarAltitudeGiven = SingleOf(solarAltitude, -1.5707964, 1.5707964, fault)
    solarAzimuthGiven = SingleOf(solarAzimuth, 0, 6.2832, fault)
    surfaceAzimuthGiven = SingleOf(surfaceAzimuth, 0, 6.2832, fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    If fault <> 0 Then
        ClimateSurfaceAngles = CVErr(fault)
        Exit Function
    End If
    Dim incidenceResult As Single
    incidenceResult = unwritten
    Dim verticalShadowAngleResult As Single
    verticalShadowAngleResult = unwritten
    Dim horizontalShadowAngleResult As Single
    horizontalShadowAngleResult = unwritten
    CLSNSR solarAltitudeGiven, solarAzimuthGiven, surfaceAzimuthGiven, tiltGiven, incidenceResult, _
        verticalShadowAngleResult, horizontalShadowAngleResult
    ClimateSurfaceAngles = Array(CellOf(incidenceResult), CellOf(verticalShadowAngleResult), _
        CellOf(horizontalShadowAngleResult))
End Function

' Irradiance on the plane of a surface: direct from the sun, diffuse from the sky, reflected from the ground.
'   solarAltitude: solar altitude [rad]; valid 0 to 1.5707964
'   solarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
'   surfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
'   tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
'   directNormal: direct normal irradiance [W/m2]; valid from 0
'   diffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
'   groundReflectance: reflectance of the ground; valid 0 to 1
'   beamFactor: factor on the direct normal irradiance; valid from 0
'   diffuseFactor: factor on the diffuse horizontal irradiance; valid from 0
'   -> surfaceBeam: beam irradiance on the surface, 0 with the sun behind it [W/m2]
'   -> surfaceDiffuse: diffuse irradiance of the sky on the surface [W/m2]
'   -> groundReflected: ground-reflected irradiance on the surface [W/m2]
'   Formula: surface_beam = direct_normal beam_factor cos(i); surface_diffuse = d (1 + cos(tilt)) / 2 (1 - 0.1 sin(tilt)
'   (1 + cos(surface_azimuth))); ground_reflected = ground_reflectance (1 - cos(tilt)) / 2 (d + direct_normal
'   beam_factor sin(solar_altitude)); d = diffuse_horizontal diffuse_factor, i = angle of incidence, the beam 0 behind
'   the surface
'   A vertical surface gets up to 20 % less diffuse irradiance the more it faces north, whatever the hemisphere.
'   Nothing is limited: a negative altitude or irradiance gives negative parts. An angle that is not a number gives a
'   direct irradiance of 0.
'   Source: Cosine law; isotropic sky and ground by view factors (B. Y. H. Liu and R. C. Jordan, Solar Energy 4, 1960),
'   with an empirical darkening to the north.
Public Function ClimateSurfaceIrradiance(ByVal solarAltitude As Variant, ByVal solarAzimuth As Variant, _
    ByVal surfaceAzimuth As Variant, ByVal tilt As Variant, ByVal directNormal As Variant, _
    ByVal diffuseHorizontal As Variant, ByVal groundReflectance As Variant, ByVal beamFactor As Variant, _
    ByVal diffuseFactor As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(solarAltitude), HeldBy(solarAzimuth), HeldBy(surfaceAzimuth), HeldBy(tilt), _
        HeldBy(directNormal), HeldBy(diffuseHorizontal), HeldBy(groundReflectance), HeldBy(beamFactor), _
        HeldBy(diffuseFactor))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 3)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, ClimateSurfaceIrradiance(CellAt(held(0), rowAt, _
                    columnAt), CellAt(held(1), rowAt, columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), _
                    rowAt, columnAt), CellAt(held(4), rowAt, columnAt), CellAt(held(5), rowAt, columnAt), _
                    CellAt(held(6), rowAt, columnAt), CellAt(held(7), rowAt, columnAt), CellAt(held(8), rowAt, _
                    columnAt))
            Next columnAt
        Next rowAt
        ClimateSurfaceIrradiance = spread
        Exit Function
    End If
    Dim fault As Long
    Dim solarAltitudeGiven As Single
    Dim solarAzimuthGiven As Single
    Dim surfaceAzimuthGiven As Single
    Dim tiltGiven As Single
    Dim directNormalGiven As Single
    Dim diffuseHorizontalGiven As Single
    Dim groundReflectanceGiven As Single
    Dim beamFactorGiven As Single
    Dim diffuseFactorGiven As Single
    solarAltitudeGiven = SingleOf(solarAltitude, 0, 1.5707964, fault)
    solarAzimuthGiven = SingleOf(solarAzimuth, 0, 6.2832, fault)
    surfaceAzimuthGiven = SingleOf(surfaceAzimuth, 0, 6.2832, fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    directNormalGiven = SingleOf(directNormal, 0, largest, fault)
    diffuseHorizontalGiven = SingleOf(diffuseHorizontal, 0, largest, fault)
    groundReflectanceGiven = SingleOf(groundReflectance, 0, 1, fault)
    beamFactorGiven = SingleOf(beamFactor, 0, largest, fault)
    diffuseFactorGiven = SingleOf(diffuseFactor, 0, largest, fault)
    If fault <> 0 Then
        ClimateSurfaceIrradiance = CVErr(fault)
        Exit Function
    End If
    Dim surfaceBeamResult As Single
    surfaceBeamResult = unwritten
    Dim surfaceDiffuseResult As Single
    surfaceDiffuseResult = unwritten
    Dim groundReflectedResult As Single
    groundReflectedResult = unwritten
    CLSORD solarAltitudeGiven, solarAzimuthGiven, surfaceAzimuthGiven, tiltGiven, directNormalGiven, _
        diffuseHorizontalGiven, groundReflectanceGiven, beamFactorGiven, diffuseFactorGiven, surfaceBeamResult, _
        surfaceDiffuseResult, groundReflectedResult
    ClimateSurfaceIrradiance = Array(CellOf(surfaceBeamResult), CellOf(surfaceDiffuseResult), _
        CellOf(groundReflectedResult))
End Function

' Irradiance on the plane of a surface as ClimateSurfaceIrradiance, and the angle of incidence.
'   solarAltitude: solar altitude [rad]; valid 0 to 1.5707964
'   solarAzimuth: solar azimuth [rad]; valid 0 to 6.2832
'   surfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
'   tilt: tilt from the horizontal [rad]; valid 0 to 3.1416
'   directNormal: direct normal irradiance [W/m2]; valid from 0
'   diffuseHorizontal: diffuse irradiance on the horizontal [W/m2]; valid from 0
'   groundReflectance: reflectance of the ground; valid 0 to 1
'   beamFactor: factor on the direct normal irradiance; valid from 0
'   diffuseFactor: factor on the diffuse horizontal irradiance; valid from 0
'   -> surfaceBeam: beam irradiance on the surface, 0 with the sun behind it [W/m2]
'   -> surfaceDiffuse: diffuse irradiance of the sky on the surface [W/m2]
'   -> groundReflected: ground-reflected irradiance on the surface [W/m2]
'   -> incidence: angle of incidence, 1.5707964 with the sun behind the surface [rad]
'   The irradiances are those of ClimateSurfaceIrradiance, bit for bit; see there.
'   ClimateSurfaceAngles gives the angle of incidence behind the surface too.
'   Source: As ClimateSurfaceIrradiance.
Public Function ClimateSurfaceIrradianceAndIncidence(ByVal solarAltitude As Variant, ByVal solarAzimuth As Variant, _
    ByVal surfaceAzimuth As Variant, ByVal tilt As Variant, ByVal directNormal As Variant, _
    ByVal diffuseHorizontal As Variant, ByVal groundReflectance As Variant, ByVal beamFactor As Variant, _
    ByVal diffuseFactor As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(solarAltitude), HeldBy(solarAzimuth), HeldBy(surfaceAzimuth), HeldBy(tilt), _
        HeldBy(directNormal), HeldBy(diffuseHorizontal), HeldBy(groundReflectance), HeldBy(beamFactor), _
        HeldBy(diffuseFactor))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount * columnCount, 1 To 4)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                PutRow spread, (rowAt - 1) * columnCount + columnAt, _
                    ClimateSurfaceIrradianceAndIncidence(CellAt(held(0), rowAt, columnAt), CellAt(held(1), rowAt, _
                    columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt), CellAt(held(4), _
                    rowAt, columnAt), CellAt(held(5), rowAt, columnAt), CellAt(held(6), rowAt, columnAt), _
                    CellAt(held(7), rowAt, columnAt), CellAt(held(8), rowAt, columnAt))
            Next columnAt
        Next rowAt
        ClimateSurfaceIrradianceAndIncidence = spread
        Exit Function
    End If
    Dim fault As Long
    Dim solarAltitudeGiven As Single
    Dim solarAzimuthGiven As Single
    Dim surfaceAzimuthGiven As Single
    Dim tiltGiven As Single
    Dim directNormalGiven As Single
    Dim diffuseHorizontalGiven As Single
    Dim groundReflectanceGiven As Single
    Dim beamFactorGiven As Single
    Dim diffuseFactorGiven As Single
    solarAltitudeGiven = SingleOf(solarAltitude, 0, 1.5707964, fault)
    solarAzimuthGiven = SingleOf(solarAzimuth, 0, 6.2832, fault)
    surfaceAzimuthGiven = SingleOf(surfaceAzimuth, 0, 6.2832, fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    directNormalGiven = SingleOf(directNormal, 0, largest, fault)
    diffuseHorizontalGiven = SingleOf(diffuseHorizontal, 0, largest, fault)
    groundReflectanceGiven = SingleOf(groundReflectance, 0, 1, fault)
    beamFactorGiven = SingleOf(beamFactor, 0, largest, fault)
    diffuseFactorGiven = SingleOf(diffuseFactor, 0, largest, fault)
    If fault <> 0 Then
        ClimateSurfaceIrradianceAndIncidence = CVErr(fault)
        Exit Function
    End If
    Dim surfaceBeamResult As Single
    surfaceBeamResult = unwritten
    Dim surfaceDiffuseResult As Single
    surfaceDiffuseResult = unwritten
    Dim groundReflectedResult As Single
    groundReflectedResult = unwritten
    Dim incidenceResult As Single
    incidenceResult = unwritten
    CLSOR2 solarAltitudeGiven, solarAzimuthGiven, surfaceAzimuthGiven, tiltGiven, directNormalGiven, _
        diffuseHorizontalGiven, groundReflectanceGiven, beamFactorGiven, diffuseFactorGiven, surfaceBeamResult, _
        surfaceDiffuseResult, groundReflectedResult, incidenceResult
    ClimateSurfaceIrradianceAndIncidence = Array(CellOf(surfaceBeamResult), CellOf(surfaceDiffuseResult), _
        CellOf(groundReflectedResult), CellOf(incidenceResult))
End Function

' Pieces and area of the overlap of two simple polygons in plan.
'   x1: x of polygon 1 [m]
'   y1: y of polygon 1 [m]
'   x2: x of polygon 2 [m]
'   y2: y of polygon 2 [m]
'   -> pieceX: x of the vertices of the pieces, a column each; 0 beyond them [m]
'   -> pieceY: y of the vertices of the pieces [m]
'   -> pieceVertices: number of vertices of each piece, 0 beyond the last
'   -> area: area of the overlap [m2]
'   The overlap of GeometryClip with polygon 2 as A and polygon 1 as B, and with its accuracy. The pieces run in the
'   sense of polygon 2.
'   A coordinate nearer to 0 than 1e-4 is taken as 0.
'   The outputs are all 0 where the polygons do not overlap, and where GeometryClip fails: a polygon that crosses
'   itself, more than 10 crossings, more than 50 vertices and crossings in all. Likewise for more than 5 pieces, or more
'   than 24 vertices in one. Of pairs of real polygons 0.75 % exceed one of these capacities.
'   The outputs are also 0 where polygon 1 lies in polygon 2 and the two have 42 vertices or more together: what is left
'   of polygon 2 around it does not fit. Where polygon 2 lies in polygon 1 they may have 50, as anywhere else.
'   Source: As GeometryClip.
Public Function GeometryOverlap(ByVal x1 As Variant, ByVal y1 As Variant, ByVal x2 As Variant, _
    ByVal y2 As Variant) As Variant
    Dim fault As Long
    Dim x1Given() As Single
    Dim y1Given() As Single
    Dim x2Given() As Single
    Dim y2Given() As Single
    Dim vertices1 As Long
    vertices1 = SinglesOf(x1, 1, -largest, largest, x1Given, fault)
    Equal SinglesOf(y1, 1, -largest, largest, y1Given, fault), vertices1, fault
    Dim vertices2 As Long
    vertices2 = SinglesOf(x2, 1, -largest, largest, x2Given, fault)
    Equal SinglesOf(y2, 1, -largest, largest, y2Given, fault), vertices2, fault
    Limit vertices1, 3, 2147483647, fault
    Limit vertices2, 3, 2147483647, fault
    If fault <> 0 Then
        GeometryOverlap = CVErr(fault)
        Exit Function
    End If
    Dim pieceXResult() As Single
    ReDim pieceXResult(0 To 124)
    Dim pieceYResult() As Single
    ReDim pieceYResult(0 To 124)
    Dim pieceVerticesResult() As Long
    ReDim pieceVerticesResult(0 To 4)
    Dim areaResult As Single
    areaResult = unwritten
    GEOVER x1Given(0), y1Given(0), vertices1, x2Given(0), y2Given(0), vertices2, pieceXResult(0), pieceYResult(0), _
        pieceVerticesResult(0), areaResult
    GeometryOverlap = Beside(Array(TableOf(pieceXResult, 25), TableOf(pieceYResult, 25), TableOf(pieceVerticesResult, _
        1), CellOf(areaResult)))
End Function

' The same as GeometryOverlap.
'   x1: x of polygon 1 [m]
'   y1: y of polygon 1 [m]
'   x2: x of polygon 2 [m]
'   y2: y of polygon 2 [m]
'   -> pieceX: x of the vertices of the pieces, a column each; 0 beyond them [m]
'   -> pieceY: y of the vertices of the pieces [m]
'   -> pieceVertices: number of vertices of each piece, 0 beyond the last
'   -> area: area of the overlap [m2]
'   As GeometryOverlap, in all.
'   Source: As GeometryClip.
Public Function GeometryOverlapAlias(ByVal x1 As Variant, ByVal y1 As Variant, ByVal x2 As Variant, _
    ByVal y2 As Variant) As Variant
    Dim fault As Long
    Dim x1Given() As Single
    Dim y1Given() As Single
    Dim x2Given() As Single
    Dim y2Given() As Single
    Dim vertices1 As Long
    vertices1 = SinglesOf(x1, 1, -largest, largest, x1Given, fault)
    Equal SinglesOf(y1, 1, -largest, largest, y1Given, fault), vertices1, fault
    Dim vertices2 As Long
    vertices2 = SinglesOf(x2, 1, -largest, largest, x2Given, fault)
    Equal SinglesOf(y2, 1, -largest, largest, y2Given, fault), vertices2, fault
    Limit vertices1, 3, 2147483647, fault
    Limit vertices2, 3, 2147483647, fault
    If fault <> 0 Then
        GeometryOverlapAlias = CVErr(fault)
        Exit Function
    End If
    Dim pieceXResult() As Single
    ReDim pieceXResult(0 To 124)
    Dim pieceYResult() As Single
    ReDim pieceYResult(0 To 124)
    Dim pieceVerticesResult() As Long
    ReDim pieceVerticesResult(0 To 4)
    Dim areaResult As Single
    areaResult = unwritten
    GEHOLE x1Given(0), y1Given(0), vertices1, x2Given(0), y2Given(0), vertices2, pieceXResult(0), pieceYResult(0), _
        pieceVerticesResult(0), areaResult
    GeometryOverlapAlias = Beside(Array(TableOf(pieceXResult, 25), TableOf(pieceYResult, 25), _
        TableOf(pieceVerticesResult, 1), CellOf(areaResult)))
End Function

' Whether points in plan lie on one straight line.
'   x: x of the vertices [m]
'   y: y of the vertices [m]
'   -> 1 on one line; otherwise the number, counted from 1, of the first point whose y differs from that of the first of
'     all
'   The points are held against the line through the first two that differ by 1e-5 or more in both coordinates. A point
'   is off it when the ratios of its offsets to theirs, in x and in y, differ by more than 1e-5: what is tolerated grows
'   with the distance between the two.
'   Points that all have the x or the y of the first, to within 1e-5, are on one line. Not a number counts as equal to
'   anything.
'   Coordinates near one another within 1e-5 can leave no two points to draw the line through; then the points are not
'   on one line, and finding that out takes n2/2 comparisons.
'   Source: Intercept theorem.
Public Function GeometryCollinearity(ByVal x As Variant, ByVal y As Variant) As Variant
    Dim fault As Long
    Dim xGiven() As Single
    Dim yGiven() As Single
    Dim points As Long
    points = SinglesOf(x, 1, -largest, largest, xGiven, fault)
    Equal SinglesOf(y, 1, -largest, largest, yGiven, fault), points, fault
    Limit points, 1, 2147483647, fault
    If fault <> 0 Then
        GeometryCollinearity = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = IGELIN(xGiven(0), yGiven(0), points)
    GeometryCollinearity = CellOf(valueResult)
End Function

' How many points lie in a convex polygon with clockwise vertices or on its boundary, and which.
'   x: x of the vertices [m]
'   y: y of the vertices [m]
'   pointX: x of the points [m]
'   pointY: y of the points [m]
'   enclosed: 1 for points that are enclosed: 0 not enclosed, 1 enclosed
'   -> enclosed: 1 for points that are enclosed; as given for points that are not enclosed
'   -> enclosedPoints: number of enclosed points
'   A point is enclosed when it is left of no edge, as GeometrySideOfLine sees it, or is at a vertex (to less than 1e-5
'   in each coordinate) that comes before any such edge.
'   Points that are not numbers are left of no edge, and so enclosed.
'   Source: A convex polygon is the intersection of half-planes.
Public Function GeometryCountEnclosed(ByVal x As Variant, ByVal y As Variant, ByVal pointX As Variant, _
    ByVal pointY As Variant, ByVal enclosed As Variant) As Variant
    Dim fault As Long
    Dim xGiven() As Single
    Dim yGiven() As Single
    Dim pointXGiven() As Single
    Dim pointYGiven() As Single
    Dim enclosedGiven() As Long
    Dim vertices As Long
    vertices = SinglesOf(x, 1, -largest, largest, xGiven, fault)
    Equal SinglesOf(y, 1, -largest, largest, yGiven, fault), vertices, fault
    Dim points As Long
    points = SinglesOf(pointX, 1, -largest, largest, pointXGiven, fault)
    Equal SinglesOf(pointY, 1, -largest, largest, pointYGiven, fault), points, fault
    Equal LongsOf(enclosed, 1, 0, 1, enclosedGiven, fault), points, fault
    Limit vertices, 3, 2147483647, fault
    Limit points, 1, 2147483647, fault
    If fault <> 0 Then
        GeometryCountEnclosed = CVErr(fault)
        Exit Function
    End If
    Dim enclosedPointsResult As Long
    GECLOS xGiven(0), yGiven(0), vertices, pointXGiven(0), pointYGiven(0), points, enclosedGiven(0), _
        enclosedPointsResult
    GeometryCountEnclosed = Beside(Array(TableOf(enclosedGiven, 1), CellOf(enclosedPointsResult)))
End Function

' Where a segment crosses the boundary of a polygon in plan.
'   segmentStart: start of the segment [m]
'   segmentEnd: end of the segment [m]
'   x: x of the vertices [m]
'   y: y of the vertices [m]
'   -> crossingPoint: crossing point, or what the notes say [m]; 1e20 where there is none
'   -> crossingCode: number, counted from 1, of the vertex that ends the crossed edge, or what the notes say
'   The edges are tried in turn, from that between the first two vertices on, as GeometryCrossingPoint does; the first
'   one that is crossed away from the start ends the search. A crossing beyond 100000 is none.
'   No such edge, but the start at a vertex (to less than 1e-5): the code is its number with a minus, and the point is
'   the last outcome of the search, the start or 1e20.
'   Otherwise, the start on edges: the code is 999 + the number of the vertex that ends the last of them, and the point
'   that vertex. (The sum is taken modulo 2^32. Of a polygon with 1000 vertices or more, small codes of this kind cannot
'   be told from edges by the code alone.)
'   Otherwise the code is 0, and the point 1e20.
'   Source: As GeometryCrossingPoint.
Public Function GeometryBoundaryCrossing(ByVal segmentStart As Variant, ByVal segmentEnd As Variant, _
    ByVal x As Variant, ByVal y As Variant) As Variant
    Dim fault As Long
    Dim segmentStartGiven() As Single
    Dim segmentEndGiven() As Single
    Dim xGiven() As Single
    Dim yGiven() As Single
    Equal SinglesOf(segmentStart, 1, -largest, largest, segmentStartGiven, fault), 2, fault
    Equal SinglesOf(segmentEnd, 1, -largest, largest, segmentEndGiven, fault), 2, fault
    Dim vertices As Long
    vertices = SinglesOf(x, 1, -largest, largest, xGiven, fault)
    Equal SinglesOf(y, 1, -largest, largest, yGiven, fault), vertices, fault
    Limit vertices, 3, 2147483647, fault
    If fault <> 0 Then
        GeometryBoundaryCrossing = CVErr(fault)
        Exit Function
    End If
    Dim crossingPointResult() As Single
    ReDim crossingPointResult(0 To 1)
    Dim crossingCodeResult As Long
    GESIDE segmentStartGiven(0), segmentEndGiven(0), xGiven(0), yGiven(0), vertices, crossingPointResult(0), _
        crossingCodeResult
    GeometryBoundaryCrossing = Beside(Array(TableOf(crossingPointResult, 1), CellOf(crossingCodeResult)))
End Function

' Whether a point in the plane of a polygon in space lies inside or on its boundary.
'   point: point [m]
'   polygon: vertices, the last of which repeats the first [m]
'   -> 1 inside, 0 outside
'   The first edge with whose line the point is in line (twice the area of the triangle between them at most 1e-6)
'   decides alone: 1 if the point is in the span of the edge, as GeometryInSpan sees it, else 0. So a point may be found
'   outside a polygon that is not convex because it is in line with an edge.
'   That the point is in the plane is not tested: over the middle of a square it is inside up to half the length of a
'   side.
'   Not a number gives 0.
'   Source: Sum of the angles under which the point sees the edges.
Public Function GeometryInside(ByVal point As Variant, ByVal polygon As Variant) As Variant
    Dim fault As Long
    Dim pointGiven() As Single
    Dim polygonGiven() As Single
    Equal SinglesOf(point, 1, -largest, largest, pointGiven, fault), 3, fault
    Dim vertices As Long
    vertices = SinglesOf(polygon, 3, -largest, largest, polygonGiven, fault)
    Limit vertices, 4, 2147483647, fault
    If fault <> 0 Then
        GeometryInside = CVErr(fault)
        Exit Function
    End If
    Dim insideResult As Long
    GEINSI pointGiven(0), polygonGiven(0), vertices, insideResult
    GeometryInside = CellOf(insideResult)
End Function

' Whether the planes of two triangles are parallel.
'   triangle1: corners of one triangle [m]
'   triangle2: corners of the other [m]
'   -> whether they are parallel
'   So they are when the cross product of their normals, each as long as twice the triangle's area, is shorter than
'   0.001: small triangles are parallel to any.
'   Source: Definition.
Public Function GeometryParallelPlanes(ByVal triangle1 As Variant, ByVal triangle2 As Variant) As Variant
    Dim fault As Long
    Dim triangle1Given() As Double
    Dim triangle2Given() As Double
    Equal DoublesOf(triangle1, 3, -1E+300, 1E+300, triangle1Given, fault), 3, fault
    Equal DoublesOf(triangle2, 3, -1E+300, 1E+300, triangle2Given, fault), 3, fault
    If fault <> 0 Then
        GeometryParallelPlanes = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = GEPLEL(triangle1Given(0), triangle2Given(0))
    GeometryParallelPlanes = (valueResult <> 0)
End Function

' Whether two triangles have parallel sides, and which.
'   triangle1: corners of one triangle [m]
'   triangle2: corners of the other [m]
'   -> truth: whether there are any
'   -> side1: side of one triangle: 1 between its first two corners, 2 between its last two; 3 none
'   -> side2: side of the other, likewise
'   Sides are parallel when their cross product is shorter than 0.001, so that short sides are parallel to any.
'   The sides between last and first corner are not tested.
'   Source: Definition.
Public Function GeometryParallelSides(ByVal triangle1 As Variant, ByVal triangle2 As Variant) As Variant
    Dim fault As Long
    Dim triangle1Given() As Double
    Dim triangle2Given() As Double
    Equal DoublesOf(triangle1, 3, -1E+300, 1E+300, triangle1Given, fault), 3, fault
    Equal DoublesOf(triangle2, 3, -1E+300, 1E+300, triangle2Given, fault), 3, fault
    If fault <> 0 Then
        GeometryParallelSides = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    Dim side1Result As Long
    Dim side2Result As Long
    valueResult = GEPSID(triangle1Given(0), triangle2Given(0), side1Result, side2Result)
    GeometryParallelSides = Array((valueResult <> 0), CellOf(side1Result), CellOf(side2Result))
End Function

' Whether a quadrilateral is rectangular.
'   quadrilateral: corners in turn [m]
'   -> whether it is rectangular
'   So it is when at all corners but the first the dot product of the two sides is at most 1e-6 in magnitude.
'   Source: Definition.
Public Function GeometryRectangular(ByVal quadrilateral As Variant) As Variant
    Dim fault As Long
    Dim quadrilateralGiven() As Double
    Equal DoublesOf(quadrilateral, 3, -1E+300, 1E+300, quadrilateralGiven, fault), 4, fault
    If fault <> 0 Then
        GeometryRectangular = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = GERECT(quadrilateralGiven(0))
    GeometryRectangular = (valueResult <> 0)
End Function

' Azimuth and tilt of the plane of a triangle.
'   triangle: corners, clockwise seen from outside [m]
'   azimuth: azimuth of the outward normal; given, what a level triangle gets, in radians [deg]; valid 0 to 6.2832
'   -> azimuth: azimuth of the outward normal; given, what a level triangle gets, in radians [deg]
'   -> tilt: tilt: 0 horizontal facing up, 90 vertical, 180 facing down [deg]
'   A level triangle, the level part of whose normal (as long as twice its area) is shorter than 1e-10, gets the given
'   azimuth times 180/pi.
'   Azimuths of 360 or more are reduced by 360 once; from 359.99 on they become 0.
'   A triangle without area gives a tilt that is not a number.
'   Source: Definition.
Public Function GeometryFacing(ByVal triangle As Variant, ByVal azimuth As Variant) As Variant
    Dim fault As Long
    Dim triangleGiven() As Double
    Dim azimuthGiven As Double
    Equal DoublesOf(triangle, 3, -1E+300, 1E+300, triangleGiven, fault), 3, fault
    azimuthGiven = DoubleOf(azimuth, 0, 6.2832, fault)
    If fault <> 0 Then
        GeometryFacing = CVErr(fault)
        Exit Function
    End If
    Dim tiltResult As Double
    tiltResult = unwritten
    GETILT triangleGiven(0), azimuthGiven, tiltResult
    GeometryFacing = Array(CellOf(azimuthGiven), CellOf(tiltResult))
End Function

' Two quadrilaterals in local coordinates of the first.
'   quadrilateral1: corners of the first [m]
'   quadrilateral2: corners of the second [m]
'   -> local1: the first in local coordinates [m]
'   -> local2: the second in local coordinates [m]
'   The origin is the first corner of the first; from there x points to the second corner, y to the fourth, z along the
'   cross product of the ways to the second and the third.
'   Coordinates are dot products with the axes, so that lengths are kept only where that has a right angle at its first
'   corner.
'   Coincident corners give what is not a number.
'   Source: Definition.
Public Function GeometryLocalCoordinates(ByVal quadrilateral1 As Variant, ByVal quadrilateral2 As Variant) As Variant
    Dim fault As Long
    Dim quadrilateral1Given() As Double
    Dim quadrilateral2Given() As Double
    Equal DoublesOf(quadrilateral1, 3, -1E+300, 1E+300, quadrilateral1Given, fault), 4, fault
    Equal DoublesOf(quadrilateral2, 3, -1E+300, 1E+300, quadrilateral2Given, fault), 4, fault
    If fault <> 0 Then
        GeometryLocalCoordinates = CVErr(fault)
        Exit Function
    End If
    Dim local1Result() As Double
    ReDim local1Result(0 To 11)
    Dim local2Result() As Double
    ReDim local2Result(0 To 11)
    GELCAL quadrilateral1Given(0), quadrilateral2Given(0), local1Result(0), local2Result(0)
    GeometryLocalCoordinates = Beside(Array(TableOf(local1Result, 3), TableOf(local2Result, 3)))
End Function

' Components of each of four points along three axes.
'   corners: points [m]
'   xAxis: x axis
'   yAxis: y axis
'   zAxis: z axis
'   -> points [m]
'   Source: Definition.
Public Function GeometryToLocal(ByVal corners As Variant, ByVal xAxis As Variant, ByVal yAxis As Variant, _
    ByVal zAxis As Variant) As Variant
    Dim fault As Long
    Dim cornersGiven() As Double
    Dim xAxisGiven() As Double
    Dim yAxisGiven() As Double
    Dim zAxisGiven() As Double
    Equal DoublesOf(corners, 3, -1E+300, 1E+300, cornersGiven, fault), 4, fault
    Equal DoublesOf(xAxis, 1, -1E+300, 1E+300, xAxisGiven, fault), 3, fault
    Equal DoublesOf(yAxis, 1, -1E+300, 1E+300, yAxisGiven, fault), 3, fault
    Equal DoublesOf(zAxis, 1, -1E+300, 1E+300, zAxisGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryToLocal = CVErr(fault)
        Exit Function
    End If
    GETRNS cornersGiven(0), xAxisGiven(0), yAxisGiven(0), zAxisGiven(0)
    GeometryToLocal = TableOf(cornersGiven, 3)
End Function

' Where two infinite lines in plan meet.
'   line1Start: point of line 1 [m]
'   line1End: another point of line 1 [m]
'   line2Start: point of line 2 [m]
'   line2End: another point of line 2 [m]
'   -> meeting point [m]; 1e20 where there is none
'   Parallel lines give 1e20 in both coordinates: those for which |ab| |cd| times the sine of the angle between them is
'   below 1e-10.
'   Any of the points may be vectors; their z is not read.
'   Source: Elementary analytic geometry.
Public Function GeometryMeetingPoint(ByVal line1Start As Variant, ByVal line1End As Variant, _
    ByVal line2Start As Variant, ByVal line2End As Variant) As Variant
    Dim fault As Long
    Dim line1StartGiven() As Single
    Dim line1EndGiven() As Single
    Dim line2StartGiven() As Single
    Dim line2EndGiven() As Single
    Equal SinglesOf(line1Start, 1, -largest, largest, line1StartGiven, fault), 2, fault
    Equal SinglesOf(line1End, 1, -largest, largest, line1EndGiven, fault), 2, fault
    Equal SinglesOf(line2Start, 1, -largest, largest, line2StartGiven, fault), 2, fault
    Equal SinglesOf(line2End, 1, -largest, largest, line2EndGiven, fault), 2, fault
    If fault <> 0 Then
        GeometryMeetingPoint = CVErr(fault)
        Exit Function
    End If
    Dim meetingPointResult() As Single
    ReDim meetingPointResult(0 To 1)
    GEMEET line1StartGiven(0), line1EndGiven(0), line2StartGiven(0), line2EndGiven(0), meetingPointResult(0)
    GeometryMeetingPoint = TableOf(meetingPointResult, 1)
End Function

' Where two segments in plan cross or touch.
'   segment1Start: start of segment 1 [m]
'   segment1End: end of segment 1 [m]
'   segment2Start: start of segment 2 [m]
'   segment2End: end of segment 2 [m]
'   -> crossing point [m]; 1e20 where there is none
'   Segments that do not meet, and parallel ones whether they meet or not, give 1e20 in both coordinates. Not a number
'   counts as not meeting.
'   A segment reaches almost 0.0001 beyond its ends in x and in y.
'   Source: As GeometryMeetingPoint.
Public Function GeometryCrossingPoint(ByVal segment1Start As Variant, ByVal segment1End As Variant, _
    ByVal segment2Start As Variant, ByVal segment2End As Variant) As Variant
    Dim fault As Long
    Dim segment1StartGiven() As Single
    Dim segment1EndGiven() As Single
    Dim segment2StartGiven() As Single
    Dim segment2EndGiven() As Single
    Equal SinglesOf(segment1Start, 1, -largest, largest, segment1StartGiven, fault), 2, fault
    Equal SinglesOf(segment1End, 1, -largest, largest, segment1EndGiven, fault), 2, fault
    Equal SinglesOf(segment2Start, 1, -largest, largest, segment2StartGiven, fault), 2, fault
    Equal SinglesOf(segment2End, 1, -largest, largest, segment2EndGiven, fault), 2, fault
    If fault <> 0 Then
        GeometryCrossingPoint = CVErr(fault)
        Exit Function
    End If
    Dim crossingPointResult() As Single
    ReDim crossingPointResult(0 To 1)
    GECROS segment1StartGiven(0), segment1EndGiven(0), segment2StartGiven(0), segment2EndGiven(0), _
        crossingPointResult(0)
    GeometryCrossingPoint = TableOf(crossingPointResult, 1)
End Function

' Whether a point of the line AB lies between A and B.
'   firstEnd: one end [m]
'   secondEnd: other end [m]
'   point: point on the line AB [m]
'   -> 1 between them or at an end, else 0
'   That the point is on the line is not tested: the answer is whether it is in the box of which A and B are corners.
'   Not a number in y or z of the point does not exclude it.
'   Source: Definition.
Public Function GeometryInSpan(ByVal firstEnd As Variant, ByVal secondEnd As Variant, ByVal point As Variant) As Variant
    Dim fault As Long
    Dim firstEndGiven() As Single
    Dim secondEndGiven() As Single
    Dim pointGiven() As Single
    Equal SinglesOf(firstEnd, 1, -largest, largest, firstEndGiven, fault), 3, fault
    Equal SinglesOf(secondEnd, 1, -largest, largest, secondEndGiven, fault), 3, fault
    Equal SinglesOf(point, 1, -largest, largest, pointGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryInSpan = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = GEINLN(firstEndGiven(0), secondEndGiven(0), pointGiven(0))
    GeometryInSpan = CellOf(valueResult)
End Function

' Whether a point lies on B's side of A and nearer to A than B does.
'   firstEnd: one end [m]
'   secondEnd: other end [m]
'   point: point [m]
'   -> 1 if so, else 0
'   A itself counts, B does not; so nothing does where the two coincide.
'   Not a number anywhere gives 1.
'   Source: Definition.
Public Function GeometryAheadAndNearer(ByVal firstEnd As Variant, ByVal secondEnd As Variant, _
    ByVal point As Variant) As Variant
    Dim fault As Long
    Dim firstEndGiven() As Single
    Dim secondEndGiven() As Single
    Dim pointGiven() As Single
    Equal SinglesOf(firstEnd, 1, -largest, largest, firstEndGiven, fault), 3, fault
    Equal SinglesOf(secondEnd, 1, -largest, largest, secondEndGiven, fault), 3, fault
    Equal SinglesOf(point, 1, -largest, largest, pointGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryAheadAndNearer = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = GEINLN2(firstEndGiven(0), secondEndGiven(0), pointGiven(0))
    GeometryAheadAndNearer = CellOf(valueResult)
End Function

' Whether two points in plan coincide.
'   x1: x of one point [m]
'   y1: y of one point [m]
'   x2: x of the other [m]
'   y2: y of the other [m]
'   -> whether both coordinates differ by less than 1e-5
'   Source: Definition.
Public Function GeometryCoincide(ByVal x1 As Variant, ByVal y1 As Variant, ByVal x2 As Variant, _
    ByVal y2 As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(x1), HeldBy(y1), HeldBy(x2), HeldBy(y2))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = GeometryCoincide(CellAt(held(0), rowAt, columnAt), CellAt(held(1), rowAt, _
                    columnAt), CellAt(held(2), rowAt, columnAt), CellAt(held(3), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GeometryCoincide = spread
        Exit Function
    End If
    Dim fault As Long
    Dim x1Given As Single
    Dim y1Given As Single
    Dim x2Given As Single
    Dim y2Given As Single
    x1Given = SingleOf(x1, -largest, largest, fault)
    y1Given = SingleOf(y1, -largest, largest, fault)
    x2Given = SingleOf(x2, -largest, largest, fault)
    y2Given = SingleOf(y2, -largest, largest, fault)
    If fault <> 0 Then
        GeometryCoincide = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = GECOIN(x1Given, y1Given, x2Given, y2Given)
    GeometryCoincide = (valueResult <> 0)
End Function

' Side of a directed line in plan on which a point lies.
'   lineStart: start of the line [m]
'   lineEnd: point towards which it runs [m]
'   point: point [m]
'   -> 1 right of the line, -1 left of it, 0 nearer to it than 1e-5
'   Where the two points of the line are the same the line runs north.
'   Not a number gives 0.
'   Source: Distance of a point from a line by its bearing.
Public Function GeometrySideOfLine(ByVal lineStart As Variant, ByVal lineEnd As Variant, _
    ByVal point As Variant) As Variant
    Dim fault As Long
    Dim lineStartGiven() As Single
    Dim lineEndGiven() As Single
    Dim pointGiven() As Single
    Equal SinglesOf(lineStart, 1, -largest, largest, lineStartGiven, fault), 2, fault
    Equal SinglesOf(lineEnd, 1, -largest, largest, lineEndGiven, fault), 2, fault
    Equal SinglesOf(point, 1, -largest, largest, pointGiven, fault), 2, fault
    If fault <> 0 Then
        GeometrySideOfLine = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Long
    valueResult = IGEPNT(lineStartGiven(0), lineEndGiven(0), pointGiven(0))
    GeometrySideOfLine = CellOf(valueResult)
End Function

' Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the angle of an azimuth.
'   angle: angle from east, anticlockwise, or azimuth [deg]; valid 0 to 360
'   -> azimuth of the opposite direction, or angle of it [deg]
'   It is the remainder of 630 - angle by 360 with the sign of the dividend: angles above 630 give negative results.
'   Magnitudes from 1000 on are no angles and are returned as they are.
'   Source: Definition.
Public Function GeometryBackAzimuth(ByVal angle As Variant) As Variant
    Dim held As Variant, spread As Variant, rowCount As Long, columnCount As Long, rowAt As Long, columnAt As Long
    held = Array(HeldBy(angle))
    If Spans(held, rowCount, columnCount) Then
        ReDim spread(1 To rowCount, 1 To columnCount)
        For rowAt = 1 To rowCount
            For columnAt = 1 To columnCount
                spread(rowAt, columnAt) = GeometryBackAzimuth(CellAt(held(0), rowAt, columnAt))
            Next columnAt
        Next rowAt
        GeometryBackAzimuth = spread
        Exit Function
    End If
    Dim fault As Long
    Dim angleGiven As Single
    angleGiven = SingleOf(angle, 0, 360, fault)
    If fault <> 0 Then
        GeometryBackAzimuth = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = BORI(angleGiven)
    GeometryBackAzimuth = CellOf(valueResult)
End Function

' Unit vector of a direction, such as that to the sun.
'   solarAltitude: altitude [rad]; valid -1.5708 to 1.5708
'   solarAzimuth: azimuth [rad]; valid 0 to 6.2832
'   -> direction
'   Formula: (sin(solar_azimuth) cos(solar_altitude), cos(solar_azimuth) cos(solar_altitude), sin(solar_altitude))
'   Source: Spherical to rectangular coordinates.
Public Function GeometryDirectionTo(ByVal solarAltitude As Variant, ByVal solarAzimuth As Variant) As Variant
    Dim fault As Long
    Dim solarAltitudeGiven As Single
    Dim solarAzimuthGiven As Single
    solarAltitudeGiven = SingleOf(solarAltitude, -1.5708, 1.5708, fault)
    solarAzimuthGiven = SingleOf(solarAzimuth, 0, 6.2832, fault)
    If fault <> 0 Then
        GeometryDirectionTo = CVErr(fault)
        Exit Function
    End If
    Dim directionResult() As Single
    ReDim directionResult(0 To 2)
    GESUNV solarAltitudeGiven, solarAzimuthGiven, directionResult(0)
    GeometryDirectionTo = TableOf(directionResult, 1)
End Function

' Rotation matrix of a surface, from local to global coordinates, and its inverse.
'   surfaceAzimuth: azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
'   tilt: tilt: 0 horizontal facing up, pi/2 vertical [rad]; valid 0 to 3.1416
'   -> rotationMatrix: matrix; its columns are the local axes in global coordinates
'   -> inverseMatrix: inverse of it
'   Formula: columns (-cos(a), sin(a), 0), (-sin(a) cos(b), -cos(a) cos(b), sin(b)), (sin(a) sin(b), cos(a) sin(b),
'   cos(b)); a = surface_azimuth, b = tilt
'   Local x is level and points to the right seen from outside, y points up the slope, z outwards; the axes are
'   right-handed.
'   Elements of the matrix below 1e-5 in magnitude are set to 0. The inverse, by elimination with full pivoting, is the
'   transpose to rounding.
'   Source: Rotation matrices; Gauss-Jordan elimination.
Public Function GeometrySurfaceAxes(ByVal surfaceAzimuth As Variant, ByVal tilt As Variant) As Variant
    Dim fault As Long
    Dim surfaceAzimuthGiven As Single
    Dim tiltGiven As Single
    surfaceAzimuthGiven = SingleOf(surfaceAzimuth, 0, 6.2832, fault)
    tiltGiven = SingleOf(tilt, 0, 3.1416, fault)
    If fault <> 0 Then
        GeometrySurfaceAxes = CVErr(fault)
        Exit Function
    End If
    Dim rotationMatrixResult() As Single
    ReDim rotationMatrixResult(0 To 8)
    Dim inverseMatrixResult() As Single
    ReDim inverseMatrixResult(0 To 8)
    GERSET surfaceAzimuthGiven, tiltGiven, rotationMatrixResult(0), inverseMatrixResult(0)
    GeometrySurfaceAxes = Beside(Array(TableOf(rotationMatrixResult, 3), TableOf(inverseMatrixResult, 3)))
End Function

' Local to global coordinates: the rotation matrix times the vector.
'   localVector: vector in local coordinates [m]
'   rotationMatrix: rotation matrix; valid -1 to 1
'   -> vector in global coordinates [m]
'   Source: Definition.
Public Function GeometryLocalToGlobal(ByVal localVector As Variant, ByVal rotationMatrix As Variant) As Variant
    Dim fault As Long
    Dim localVectorGiven() As Single
    Dim rotationMatrixGiven() As Single
    Equal SinglesOf(localVector, 1, -largest, largest, localVectorGiven, fault), 3, fault
    Equal SinglesOf(rotationMatrix, 3, -1, 1, rotationMatrixGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryLocalToGlobal = CVErr(fault)
        Exit Function
    End If
    Dim globalVectorResult() As Single
    ReDim globalVectorResult(0 To 2)
    GERAXI localVectorGiven(0), rotationMatrixGiven(0), globalVectorResult(0)
    GeometryLocalToGlobal = TableOf(globalVectorResult, 1)
End Function

' Global to local coordinates: the transpose of the rotation matrix times the vector.
'   globalVector: vector in global coordinates [m]
'   rotationMatrix: rotation matrix; valid -1 to 1
'   -> vector in local coordinates [m]
'   Source: Definition.
Public Function GeometryGlobalToLocal(ByVal globalVector As Variant, ByVal rotationMatrix As Variant) As Variant
    Dim fault As Long
    Dim globalVectorGiven() As Single
    Dim rotationMatrixGiven() As Single
    Equal SinglesOf(globalVector, 1, -largest, largest, globalVectorGiven, fault), 3, fault
    Equal SinglesOf(rotationMatrix, 3, -1, 1, rotationMatrixGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryGlobalToLocal = CVErr(fault)
        Exit Function
    End If
    Dim localVectorResult() As Single
    ReDim localVectorResult(0 To 2)
    GERAX2 globalVectorGiven(0), rotationMatrixGiven(0), localVectorResult(0)
    GeometryGlobalToLocal = TableOf(localVectorResult, 1)
End Function

' Area of a polygon in plan.
'   x: x of the vertices [m]
'   y: y of the vertices [m]
'   -> area [m2]
'   Formula: half the size of the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
'   A polygon far from the origin beside its size loses digits.
'   Source: Shoelace formula.
Public Function GeometryPlanArea(ByVal x As Variant, ByVal y As Variant) As Variant
    Dim fault As Long
    Dim xGiven() As Single
    Dim yGiven() As Single
    Dim vertices As Long
    vertices = SinglesOf(x, 1, -largest, largest, xGiven, fault)
    Equal SinglesOf(y, 1, -largest, largest, yGiven, fault), vertices, fault
    Limit vertices, 3, 2147483647, fault
    If fault <> 0 Then
        GeometryPlanArea = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = GEAPOL(xGiven(0), yGiven(0), vertices)
    GeometryPlanArea = CellOf(valueResult)
End Function

' Area of a polygon in plan, positive for clockwise vertices.
'   x: x of the vertices [m]
'   y: y of the vertices [m]
'   -> area, negative for anticlockwise vertices [m2]
'   Formula: half the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
'   As GeometryPlanArea.
'   Source: Shoelace formula.
Public Function GeometrySignedPlanArea(ByVal x As Variant, ByVal y As Variant) As Variant
    Dim fault As Long
    Dim xGiven() As Single
    Dim yGiven() As Single
    Dim vertices As Long
    vertices = SinglesOf(x, 1, -largest, largest, xGiven, fault)
    Equal SinglesOf(y, 1, -largest, largest, yGiven, fault), vertices, fault
    Limit vertices, 3, 2147483647, fault
    If fault <> 0 Then
        GeometrySignedPlanArea = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = GEAPO2(xGiven(0), yGiven(0), vertices)
    GeometrySignedPlanArea = CellOf(valueResult)
End Function

' Area of a plane polygon in space.
'   x: x of the vertices [m]
'   y: y of the vertices [m]
'   z: z of the vertices [m]
'   -> area [m2]
'   It is the sum of the triangles over the edges with the mean of the vertices as apex, all counted as positive: too
'   large for a polygon that is not seen whole from there. Of the surfaces of real buildings 3.3 % come out too large by
'   more than 0.1 %, half of these by more than 7 %.
'   Source: Elementary geometry.
Public Function GeometryAreaInSpace(ByVal x As Variant, ByVal y As Variant, ByVal z As Variant) As Variant
    Dim fault As Long
    Dim xGiven() As Single
    Dim yGiven() As Single
    Dim zGiven() As Single
    Dim vertices As Long
    vertices = SinglesOf(x, 1, -largest, largest, xGiven, fault)
    Equal SinglesOf(y, 1, -largest, largest, yGiven, fault), vertices, fault
    Equal SinglesOf(z, 1, -largest, largest, zGiven, fault), vertices, fault
    Limit vertices, 3, 2147483647, fault
    If fault <> 0 Then
        GeometryAreaInSpace = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = GEAPO3(xGiven(0), yGiven(0), zGiven(0), vertices)
    GeometryAreaInSpace = CellOf(valueResult)
End Function

' Area, tilt and orientation of a plane polygon in space.
'   polygon: vertices [m]
'   -> area: area, positive when the vertices run as the corner at the first one turns [m2]
'   -> tilt: angle between the normal and the vertical [deg]
'   -> backAzimuth: azimuth opposite to the normal [deg]
'   The normal points to where the corner at the first vertex is seen to turn anticlockwise: its opposite is the outward
'   normal of a convex polygon that runs clockwise seen from outside.
'   Only the corner at the first vertex gives the plane. Of 31605 surfaces of real buildings 141 begin within a straight
'   side, and for 7 of these rounding alone decides the normal, so that area, tilt and orientation are wrong: let the
'   first vertex be a true corner.
'   The orientation of a nearly level polygon (the cosine of its tilt beyond 0.999) is the azimuth opposite to its first
'   side if the normal points up, and that of the side if it points down.
'   Degrees are radians times 180 by 3.141593, so that right angles can be one step off, and what faces north may get
'   0.00003.
'   Source: Shoelace formula in the plane of the polygon.
Public Function GeometryPolygonOrientation(ByVal polygon As Variant) As Variant
    Dim fault As Long
    Dim polygonGiven() As Single
    Dim vertices As Long
    vertices = SinglesOf(polygon, 3, -largest, largest, polygonGiven, fault)
    Limit vertices, 3, 2147483647, fault
    If fault <> 0 Then
        GeometryPolygonOrientation = CVErr(fault)
        Exit Function
    End If
    Dim areaResult As Single
    areaResult = unwritten
    Dim tiltResult As Single
    tiltResult = unwritten
    Dim backAzimuthResult As Single
    backAzimuthResult = unwritten
    GEASO vertices, polygonGiven(0), areaResult, tiltResult, backAzimuthResult
    GeometryPolygonOrientation = Array(CellOf(areaResult), CellOf(tiltResult), CellOf(backAzimuthResult))
End Function

' Projection of a point along a direction, forwards or backwards, onto a plane.
'   planePoint: a point of the plane [m]
'   planeNormal: normal of the plane, of any length
'   point: the point [m]
'   direction: direction, of any length
'   -> projected point [m]; 1e20 where there is none
'   Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction . plane_normal)
'   A direction parallel to the plane (its dot product with the normal of magnitude 1e-15 or less, or not a number)
'   gives 1e20 in all coordinates.
'   Source: Elementary analytic geometry.
Public Function GeometryProjection(ByVal planePoint As Variant, ByVal planeNormal As Variant, ByVal point As Variant, _
    ByVal direction As Variant) As Variant
    Dim fault As Long
    Dim planePointGiven() As Single
    Dim planeNormalGiven() As Single
    Dim pointGiven() As Single
    Dim directionGiven() As Single
    Equal SinglesOf(planePoint, 1, -largest, largest, planePointGiven, fault), 3, fault
    Equal SinglesOf(planeNormal, 1, -largest, largest, planeNormalGiven, fault), 3, fault
    Equal SinglesOf(point, 1, -largest, largest, pointGiven, fault), 3, fault
    Equal SinglesOf(direction, 1, -largest, largest, directionGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryProjection = CVErr(fault)
        Exit Function
    End If
    Dim projectedPointResult() As Single
    ReDim projectedPointResult(0 To 2)
    GEPROJ planePointGiven(0), planeNormalGiven(0), pointGiven(0), directionGiven(0), projectedPointResult(0)
    GeometryProjection = TableOf(projectedPointResult, 1)
End Function

' Projection of a point along a direction, forwards only, onto a plane.
'   planePoint: a point of the plane [m]
'   planeNormal: normal of the plane, of any length
'   point: the point [m]
'   direction: direction, of any length
'   -> projected point [m]; 1e20 where there is none
'   Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction . plane_normal)
'   A direction parallel to the plane or away from it, and a point that is in the plane already, give 1e20 in all
'   coordinates.
'   Forwards means that the way from the point to its projection, scaled to length 1, differs from the direction, scaled
'   so, by 1e-6 at most in each component. Coordinates that are large beside the way to the plane can spoil that by
'   rounding: at site coordinates of real buildings, about 7 % of the points whose projection lies ahead are not found.
'   Source: As GeometryProjection.
Public Function GeometryForwardProjection(ByVal planePoint As Variant, ByVal planeNormal As Variant, _
    ByVal point As Variant, ByVal direction As Variant) As Variant
    Dim fault As Long
    Dim planePointGiven() As Single
    Dim planeNormalGiven() As Single
    Dim pointGiven() As Single
    Dim directionGiven() As Single
    Equal SinglesOf(planePoint, 1, -largest, largest, planePointGiven, fault), 3, fault
    Equal SinglesOf(planeNormal, 1, -largest, largest, planeNormalGiven, fault), 3, fault
    Equal SinglesOf(point, 1, -largest, largest, pointGiven, fault), 3, fault
    Equal SinglesOf(direction, 1, -largest, largest, directionGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryForwardProjection = CVErr(fault)
        Exit Function
    End If
    Dim projectedPointResult() As Single
    ReDim projectedPointResult(0 To 2)
    GEPROJ2 planePointGiven(0), planeNormalGiven(0), pointGiven(0), directionGiven(0), projectedPointResult(0)
    GeometryForwardProjection = TableOf(projectedPointResult, 1)
End Function

' Projection of a point along a direction onto a plane, or the point itself where the plane does not lie ahead.
'   planePoint: a point of the plane [m]
'   planeNormal: normal of the plane, of any length
'   point: the point [m]
'   direction: direction, of any length
'   -> projected point, or the point itself [m]
'   Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction . plane_normal)
'   A direction whose product with the normal is exactly 0 gives what the division by zero makes of it: infinities or
'   not a number. There is no other limit for parallel directions, so that the length of the normal does not matter.
'   Ahead is as in GeometryForwardProjection, and so about 7 % of the points at site coordinates of real buildings are
'   returned as they are, although the plane lies ahead.
'   Source: As GeometryProjection.
Public Function GeometryForwardProjectionOrStart(ByVal planePoint As Variant, ByVal planeNormal As Variant, _
    ByVal point As Variant, ByVal direction As Variant) As Variant
    Dim fault As Long
    Dim planePointGiven() As Single
    Dim planeNormalGiven() As Single
    Dim pointGiven() As Single
    Dim directionGiven() As Single
    Equal SinglesOf(planePoint, 1, -largest, largest, planePointGiven, fault), 3, fault
    Equal SinglesOf(planeNormal, 1, -largest, largest, planeNormalGiven, fault), 3, fault
    Equal SinglesOf(point, 1, -largest, largest, pointGiven, fault), 3, fault
    Equal SinglesOf(direction, 1, -largest, largest, directionGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryForwardProjectionOrStart = CVErr(fault)
        Exit Function
    End If
    Dim projectedPointResult() As Single
    ReDim projectedPointResult(0 To 2)
    GEPROJ3 planePointGiven(0), planeNormalGiven(0), pointGiven(0), directionGiven(0), projectedPointResult(0)
    GeometryForwardProjectionOrStart = TableOf(projectedPointResult, 1)
End Function

' Dot product of two vectors.
'   vectorA: vector [m]
'   vectorB: vector [m]
'   -> a . b [m2]
'   Formula: a1 b1 + a2 b2 + a3 b3
'   Source: Definition.
Public Function GeometryDotProduct(ByVal vectorA As Variant, ByVal vectorB As Variant) As Variant
    Dim fault As Long
    Dim vectorAGiven() As Single
    Dim vectorBGiven() As Single
    Equal SinglesOf(vectorA, 1, -largest, largest, vectorAGiven, fault), 3, fault
    Equal SinglesOf(vectorB, 1, -largest, largest, vectorBGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryDotProduct = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = GEDOTP(vectorAGiven(0), vectorBGiven(0))
    GeometryDotProduct = CellOf(valueResult)
End Function

' Dot product of two vectors in double precision.
'   vectorA: vector [m]
'   vectorB: vector [m]
'   -> a . b [m2]
'   Formula: a1 b1 + a2 b2 + a3 b3
'   Source: Definition.
Public Function GeometryDotProductInDouble(ByVal vectorA As Variant, ByVal vectorB As Variant) As Variant
    Dim fault As Long
    Dim vectorAGiven() As Double
    Dim vectorBGiven() As Double
    Equal DoublesOf(vectorA, 1, -1E+300, 1E+300, vectorAGiven, fault), 3, fault
    Equal DoublesOf(vectorB, 1, -1E+300, 1E+300, vectorBGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryDotProductInDouble = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Double
    valueResult = GEDTDP(vectorAGiven(0), vectorBGiven(0))
    GeometryDotProductInDouble = CellOf(valueResult)
End Function

' Cross product of two vectors.
'   vectorA: vector [m]
'   vectorB: vector [m]
'   -> a x b [m2]
'   Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
'   Source: Definition.
Public Function GeometryCrossProduct(ByVal vectorA As Variant, ByVal vectorB As Variant) As Variant
    Dim fault As Long
    Dim vectorAGiven() As Single
    Dim vectorBGiven() As Single
    Equal SinglesOf(vectorA, 1, -largest, largest, vectorAGiven, fault), 3, fault
    Equal SinglesOf(vectorB, 1, -largest, largest, vectorBGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryCrossProduct = CVErr(fault)
        Exit Function
    End If
    Dim crossProductResult() As Single
    ReDim crossProductResult(0 To 2)
    GEXPRO vectorAGiven(0), vectorBGiven(0), crossProductResult(0)
    GeometryCrossProduct = TableOf(crossProductResult, 1)
End Function

' Cross product of two vectors in double precision.
'   vectorA: vector [m]
'   vectorB: vector [m]
'   -> a x b [m2]
'   Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
'   Source: Definition.
Public Function GeometryCrossProductInDouble(ByVal vectorA As Variant, ByVal vectorB As Variant) As Variant
    Dim fault As Long
    Dim vectorAGiven() As Double
    Dim vectorBGiven() As Double
    Equal DoublesOf(vectorA, 1, -1E+300, 1E+300, vectorAGiven, fault), 3, fault
    Equal DoublesOf(vectorB, 1, -1E+300, 1E+300, vectorBGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryCrossProductInDouble = CVErr(fault)
        Exit Function
    End If
    Dim crossProductResult() As Double
    ReDim crossProductResult(0 To 2)
    GEXPDP vectorAGiven(0), vectorBGiven(0), crossProductResult(0)
    GeometryCrossProductInDouble = TableOf(crossProductResult, 1)
End Function

' Length of a vector.
'   vector: vector [m]
'   -> length [m]
'   Formula: sqrt(v1^2 + v2^2 + v3^2)
'   Squares beyond the range of a float make the length infinite or 0: from about 1e19, below about 1e-23.
'   Source: Definition.
Public Function GeometryLength(ByVal vector As Variant) As Variant
    Dim fault As Long
    Dim vectorGiven() As Single
    Equal SinglesOf(vector, 1, -largest, largest, vectorGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryLength = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Single
    valueResult = GEVMOD(vectorGiven(0))
    GeometryLength = CellOf(valueResult)
End Function

' Length of a vector in double precision.
'   vector: vector [m]
'   -> length [m]
'   Formula: sqrt(v1^2 + v2^2 + v3^2)
'   Source: Definition.
Public Function GeometryLengthInDouble(ByVal vector As Variant) As Variant
    Dim fault As Long
    Dim vectorGiven() As Double
    Equal DoublesOf(vector, 1, -1E+300, 1E+300, vectorGiven, fault), 3, fault
    If fault <> 0 Then
        GeometryLengthInDouble = CVErr(fault)
        Exit Function
    End If
    Dim valueResult As Double
    valueResult = GEVMDP(vectorGiven(0))
    GeometryLengthInDouble = CellOf(valueResult)
End Function
