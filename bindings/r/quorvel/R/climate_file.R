# Climate data files as objects, each with what was read of it.

climate_file <- function(path) {
  path <- path.expand(path)
  opened <- .Call(C_open, if (.Platform$OS.type == "windows") enc2utf8(path) else enc2native(path))
  if (is.integer(opened))
    fault("climate_file", "path", path, paste0("is ", dQuote(path, FALSE), ", no file that may be read"))
  file <- new.env(parent = emptyenv())
  file$path <- path
  file$pointer <- opened
  structure(file, class = "climate_file")
}

close.climate_file <- function(con, ...) {
  if (!is.null(con$pointer)) .Call(C_close, con$pointer)
  con$pointer <- NULL
  invisible()
}

print.climate_file <- function(x, ...) {
  cat(if (is.null(x$pointer)) "closed ", "climate data file ", dQuote(x$path, FALSE), "\n", sep = "")
  invisible(x)
}

readings <- c(station_climate = 0L, locate_station_band = 1L, interpolate_station_rows = 2L, station_row = 3L,
              station_records = 4L)

# What is known of an argument: as the routine has it, or where it goes on with what another was given.
known_of_station <- function(routine, argument) {
  own <- known[[routine]]$given[[argument]]
  if (is.null(own)) known$station_climate$given[[argument]] else own
}

# A column for each element; `start` stands there before.
read_stations <- function(file, routine, whole, real, start, unchecked) {
  if (!inherits(file, "climate_file") || is.null(file$pointer))
    fault(routine, "file", file, "must be an open climate_file")
  given <- c(whole, real)
  for (name in names(given))
    given[[name]] <- c(numbers(routine, name, known_of_station(routine, name), given[[name]], unchecked))
  count <- recycled(routine, names(given), lengths(given))
  given <- lapply(given, rep_len, count)
  real <- if (length(real)) given[[names(real)]] else numeric(count)
  read <- .Call(C_read, file$pointer, readings[[routine]], do.call(rbind, given[names(whole)]), real,
                matrix(rep(as.double(start), count), length(start)))
  unread <- which(read[[2]] != 0L)
  if (length(unread) && !unchecked)
    fault(routine, "station", given$station[unread[1]],
          sprintf("is %d, which cannot be read from %s", given$station[unread[1]], dQuote(file$path, FALSE)))
  read[[1]]
}

framed <- function(values, names) as.data.frame(t(`rownames<-`(values, names)))

station_climate <- function(file, station, month, band = 0, percentage = 0, band_set = c("first", "second"),
                            unchecked = FALSE) {
  if (missing(band_set)) band_set <- "first"
  whole <- list(station = station, band = band, month = month, band_set = band_set)
  values <- read_stations(file, "station_climate", whole, list(percentage = percentage), rep(NaN, 9), unchecked)
  framed(values, names(known$station_climate$results))
}

locate_station_band <- function(file, station, month, fraction, band_set = c("first", "second"), unchecked = FALSE) {
  if (missing(band_set)) band_set <- "first"
  whole <- list(station = station, band_set = band_set, month = month)
  values <- read_stations(file, "locate_station_band", whole, list(fraction = fraction), rep(NaN, 3), unchecked)
  framed(values, names(known$locate_station_band$results))
}

interpolate_station_rows <- function(file, station, month, base_row, lower_band, upper_band, band_weight,
                                     unchecked = FALSE) {
  whole <- list(station = station, base_row = base_row, lower_band = lower_band, upper_band = upper_band, month = month)
  c(read_stations(file, "interpolate_station_rows", whole, list(band_weight = band_weight), NaN, unchecked))
}

station_row <- function(file, station, row, unchecked = FALSE) {
  values <- read_stations(file, "station_row", list(station = station, row = row), list(), rep(NaN, 12), unchecked)
  if (ncol(values) == 1) c(values) else values
}

station_records <- function(file, station, records, month = 0, unchecked = FALSE) {
  if (!is.numeric(records) || !identical(dim(records), c(11L, 12L)))
    fault("station_records", "records", records, "must be a matrix of 11 numbers for each of 12 months")
  values <- read_stations(file, "station_records", list(station = station, month = month), list(), records, unchecked)
  array(values, if (ncol(values) == 1) c(11, 12) else c(11, 12, ncol(values)))
}
