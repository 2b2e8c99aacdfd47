"""Reads the result of facade.toml: how much less of the summer's sun each blind lets in, by orientation.

    python -m quorvel.study facade.toml && python facade_study.py
"""

import xarray

cube = xarray.open_zarr("facade.zarr")
wall = cube.transmitted_monthly.sel(station="Rome", tilt=90, glazing="double, low emissivity")
summer = wall.sel(month=slice(6, 8)).sum("month")
share = summer / summer.sel(blind="none", drop=True)
print(share.to_series().unstack("blind").round(2))
