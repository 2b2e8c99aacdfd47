"""Reads the result of facade.toml: how much less of the summer's sun each blind lets in, by orientation.

    python -m quorvel.study facade.toml && python facade_study.py
"""

import xarray

cube = xarray.open_zarr("facade.zarr")
summer = cube.transmitted_monthly.sel(month=slice(6, 8), station="Rome", tilt=90, glazing="double, low emissivity").sum("month")
share = summer / summer.sel(blind="none")
print(share.drop_vars(["station", "glazing", "tilt", "latitude", "longitude", "time_zone"]).to_series().unstack("blind").round(2))
