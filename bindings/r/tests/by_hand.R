# What the examples and the corpus do not show. Needs example.climate.
library(quorvel)

refused <- function(call, words) {
  fault <- tryCatch({ call; "nothing is refused" }, error = conditionMessage)
  if (fault != words) stop("\"", fault, "\" instead of \"", words, "\"")
}

refused(vapour_pressure(20, 150), "vapour_pressure: relative_humidity is 150; valid 0 to 100 %")
refused(vapour_pressure(20, c(40, NA)), "vapour_pressure: relative_humidity[2] is NA; valid 0 to 100 %")
refused(vapour_pressure(20, "50"), "vapour_pressure: relative_humidity must be numbers, not character")
refused(vapour_pressure(20:21, 40:42), "vapour_pressure: dry_bulb has 2 elements, and relative_humidity 3")
refused(vapour_pressure(20), 'argument "relative_humidity" is missing, with no default')
refused(design_day(6.5), "design_day: month is 6.5; valid 1 to 12, whole numbers")
refused(vapour_pressure_from_psychrometer(25, 20, 1e5, "wet"),
        'vapour_pressure_from_psychrometer: psychrometer is "wet"; valid 1 ("sling"), 2 ("screen")')
refused(vapour_pressure_from_psychrometer(25, 20, 1e5, 3),
        'vapour_pressure_from_psychrometer: psychrometer is 3; valid 1 ("sling"), 2 ("screen")')
refused(u_value(c(0.1, 0.2), 1, 0.13, 0.04), "u_value: conductivity has 1 layers, and another argument 2")
refused(u_value(rep(1, 21), rep(1, 21), 0.13, 0.04, unchecked = TRUE), "u_value: layers must be from 0 to 20")
refused(cross_product(1:2, 1:3), "cross_product: vector_a must be 3 numbers, not 2")
refused(polygon_orientation(matrix(0, 2, 4)), "polygon_orientation: polygon must be 3 x n numbers, not 2 x 4")
refused(unit_direct_shares(0.5, 0.1, 0.3, c(2, 9), unchecked = TRUE), "unit_direct_shares: panes must be from 1 to 5")
fault <- tryCatch(vapour_pressure(20, c(50, 150)), quorvel_error = identity)
stopifnot(fault$routine == "vapour_pressure", fault$argument == "relative_humidity", fault$value == 150)

# Selectors: the first unless given; by name, short name, number; one for each element
pressure <- function(...) vapour_pressure_from_psychrometer(25, 20, 101325, ...)
stopifnot(pressure() == pressure("sling"), pressure("scr") == pressure(2), pressure(2) < pressure(1L))
stopifnot(pressure(c("sling", "screen")) == c(pressure(1), pressure(2)))

# Elements: recycled, with names and dimensions; none; vectors and lists one for all, or one for each
day <- solar_geometry(0.9, c(80, 172), c(9, 10, 11, 12))
stopifnot(identical(day[3, ], `rownames<-`(solar_geometry(0.9, 80, 11), 3L)))
table <- matrix(c(0, 20, 30, 40), 2, dimnames = list(c("a", "b"), NULL))
stopifnot(saturation_pressure(table)["b", 2] == saturation_pressure(40))
stopifnot(identical(names(vapour_pressure(20, c(low = 30, high = 60))), c("low", "high")))
stopifnot(identical(saturation_pressure(numeric()), numeric()), nrow(solar_geometry(0.9, numeric(), 12)) == 0)
walls <- cbind(c(0.1, 0.05), c(0.1, 0.3))
stopifnot(u_value(walls, c(0.77, 0.04), 0.13, 0.04) == apply(walls, 2, u_value, c(0.77, 0.04), 0.13, 0.04))
axes <- surface_axes(c(0.3, 1.2), 0.7)$rotation_matrix
stopifnot(dim(axes) == c(3, 3, 2), abs(local_to_global(c(1, 2, 3), axes) - apply(axes, 3, `%*%`, c(1, 2, 3))) < 1e-6)
shares <- unit_direct_shares(0.5, 0.1, 0.3, c(2, 3))$pane_shares
stopifnot(dim(shares) == c(3, 2), is.nan(shares) == c(FALSE, FALSE, TRUE, FALSE, FALSE, FALSE))

# Unchecked: what is no number passes, as far as there is one
stopifnot(is.nan(saturation_pressure(c(NA, 1e300), unchecked = TRUE)[1]))
stopifnot(identical(design_day(c(NA, 2.7, 1e10), unchecked = TRUE), design_day(c(-2^31, 2, -2^31), unchecked = TRUE)))

# Climate data files: alike and apart
file <- climate_file("example.climate")
other <- climate_file("example.climate")
months <- station_climate(file, 1, 1:12, percentage = 97.5)
invisible(station_climate(other, 2, 1))
stopifnot(identical(months[7, ], `rownames<-`(station_climate(file, 1, 7, percentage = 97.5), 7L)))
band <- locate_station_band(file, 1, 1, 0.343052)
stopifnot(band$lower_band == 3, band$upper_band == 4)
value <- do.call(interpolate_station_rows, c(list(file, 1, 1, base_row = 12), band))
stopifnot(abs(value - 0.532542) < 2e-5, station_row(file, 1, 1) == c(15, 14, 15, 15, 16, 14, 16, 15, 14, 16, 14, 14))
stopifnot(is.nan(station_row(file, 5000, 1, unchecked = TRUE)), dim(station_row(file, 1, 1:3)) == c(12, 3))
refused(station_climate(file, 1, 13), "station_climate: month is 13; valid 1 to 12")
refused(station_row(file, c(1, 5000), 1), "station_row: station is 5000, which cannot be read from \"example.climate\"")
refused(climate_file("none.climate"), "climate_file: path is \"none.climate\", no file that may be read")
close(file)
refused(station_row(file, 1, 1), "station_row: file must be an open climate_file")
stopifnot(station_row(other, 1, 1)[1] == 15)

# Polygons: areas add up
square <- cbind(c(0, 0, 2, 2), c(0, 2, 2, 0))
areas <- vapply(clip_polygons(square, square + 1), function(pieces) sum(vapply(pieces, polygon_area, 0)), 0)
stopifnot(areas == c(difference = 3, overlap = 1))
hole <- clip_polygons(data.frame(square), square / 4 + 0.5)
stopifnot(abs(sum(vapply(hole$difference, polygon_area, 0)) - 3.75) < 1e-9)
angle <- seq(0, 2 * pi, length.out = 201)[-1]
star <- function(turn) cbind(cos(angle), sin(angle)) * (1 + 0.5 * cos(20 * angle + turn))
stars <- clip_polygons(star(0), star(pi)) # more pieces than there is room for at first
stopifnot(abs(polygon_area(star(0)) - sum(vapply(unlist(stars, recursive = FALSE), polygon_area, 0))) < 1e-9)
refused(clip_polygons(square[c(1, 3, 2, 4), ], square), "clip_polygons: a and b cannot be clipped: a crosses itself")
refused(clip_polygons(square, square[1:2, ]), "clip_polygons: b has fewer than 3 vertices")

# No function hides one of R's own
for (package in c("base", "stats", "graphics", "grDevices", "utils", "methods"))
  stopifnot(!getNamespaceExports("quorvel") %in% getNamespaceExports(package))
cat("tests by hand\n")
