# The first calls of the corpus of each routine, unchecked, to the bit: as whole arrays, and some one by one.
# corpus.R LAYOUTS, in the folder of the corpus
library(quorvel)

CASES <- 2000
SINGLY <- 50
CHARACTERS <- 64
UNTOUCHED <- as.raw(0xc5)

# A column of the corpus: how it is read, and what stands in the result for what was left alone.
column <- function(type, room, counts) {
  size <- c(Real = 4, DoubleReal = 8, Integer = 4, Text = 1)[[type]]
  kind <- c(Real = "numeric", DoubleReal = "numeric", Integer = "integer", Text = "raw")[[type]]
  list(kind = kind, size = size, room = if (type == "Text") CHARACTERS else room, counts = counts,
       none = if (type == "Integer") 0L else NaN, untouched = readBin(rep(UNTOUCHED, size), kind, size = size))
}
source(commandArgs(TRUE)[1])

# Without the blanks with which it may be filled up.
text_of <- function(bytes) sub(" *$", "", rawToChar(bytes[seq_len(match(as.raw(0), bytes) - 1)]), useBytes = TRUE)

# Numbers of all calls, an array with the calls as its last dimension; texts.
read_column <- function(column, bytes) {
  if (column$kind == "raw") return(apply(bytes, 2, text_of))
  numbers <- readBin(c(bytes), column$kind, length(bytes) / column$size, column$size, endian = "little")
  array(numbers, c(column$room, ncol(bytes)))
}

# What was given to the calls, and what these left.
read_calls <- function(name, layout) {
  columns <- c(layout$given, layout$left)
  sizes <- vapply(columns, function(column) column$size * prod(column$room), 1)
  bytes <- matrix(readBin(file.path("corpus", name), raw(), sum(sizes) * (CASES + 1)), sum(sizes))
  stopifnot(ncol(bytes) == CASES)
  rows <- split(seq_len(sum(sizes)), rep(seq_along(sizes), sizes))
  read <- Map(function(column, rows) read_column(column, bytes[rows, , drop = FALSE]), columns, rows)
  list(given = read[seq_along(layout$given)], left = read[-seq_along(layout$given)])
}

# Of some calls the part that their counts count.
part <- function(columns, read, counts, calls) {
  part_of <- function(column, numbers) {
    counted <- function(room, count) seq_len(if (is.na(count)) room else counts[[count]])
    extents <- Map(counted, column$room, column$counts)
    do.call(`[`, c(list(numbers), unname(extents), list(calls), drop = FALSE))
  }
  Map(part_of, columns, read)
}

assert_same <- function(got, left, column, what) {
  left[left %in% column$untouched] <- column$none
  if (is.logical(got)) got <- -as.integer(got)
  got <- as.vector(got)
  left <- as.vector(left)
  same <- (got == left & (got != 0 | 1 / got == 1 / left)) | (is.na(got) & is.na(left))
  if (length(got) != length(left) || !all(same %in% TRUE))
    stop(what, ": ", sum(!same %in% TRUE), " of ", length(left), " numbers differ")
}

assert_all_same <- function(name, layout, got, left) {
  if (length(left) == 1) got <- setNames(list(got), names(left))
  for (result in names(left)) assert_same(got[[result]], left[[result]], layout$left[[result]], paste(name, result))
}

call_unchecked <- function(name, given) {
  given <- given[names(quorvel:::known[[name]]$given)]
  if (name == "clip_polygons") quorvel:::run(name, given, TRUE) else do.call(name, c(given, unchecked = TRUE))
}

# Calls whose counts are valid, by these counts.
groups <- function(layout, given) {
  if (length(layout$limits) == 0) return(list(seq_len(CASES)))
  counts <- lapply(given[names(layout$limits)], as.vector)
  valid <- Reduce(`&`, Map(function(count, limits) count >= limits[1] & count <= limits[2], counts, layout$limits))
  split(which(valid), lapply(counts, `[`, valid), drop = TRUE)
}

compare_group <- function(name, layout, read, calls, singly) {
  counts <- lapply(read$given[names(layout$limits)], `[`, calls[1])
  given <- part(layout$given, read$given, counts, calls)
  shaped <- function(column, numbers) {
    if (length(column$room) == 0) as.vector(numbers)
    else if (singly) array(numbers, dim(numbers)[seq_along(column$room)])
    else numbers
  }
  got <- call_unchecked(layout$name, Map(shaped, layout$given, given))
  assert_all_same(name, layout, got, part(layout$left, read$left, counts, calls))
}

compare_routine <- function(name, layout) {
  read <- read_calls(name, layout)
  found <- groups(layout, read$given)
  for (calls in found) compare_group(name, layout, read, calls, FALSE)
  for (call in head(sort(unlist(found)), SINGLY)) compare_group(name, layout, read, call, TRUE)
  stopifnot(sum(lengths(found)) >= CASES / 4)
}

# Those of the climate data file read the file that they name, or go on with what an earlier call said: here station 1
# and set 1 of the example.
compare_file <- function(name, layout, file) {
  read <- read_calls(name, layout)
  given <- read$given
  if (name == "CLBNF0") {
    read_here <- which(given$file_name == "example.climate")
    record <- function(i) station_records(file, given$station[i], given$station_records[, , i], given$month[i], TRUE)
    got <- vapply(read_here, record, matrix(0, 11, 12))
    read$left$station_records <- read$left$station_records[, , read_here]
    stopifnot(length(read_here) >= CASES / 4)
  } else {
    own <- modifyList(list(station = 1), given[names(given) != "file_unit"])
    got <- do.call(layout$name, c(list(file), own, unchecked = TRUE))
  }
  if (!is.null(given$file_unit)) got[!given$file_unit %in% 31, ] <- NaN # another file
  assert_all_same(name, layout, got, read$left)
}

stopifnot(setequal(names(layouts), list.files("corpus")))
file <- climate_file("example.climate")
for (name in names(layouts)) {
  if (startsWith(name, "CLBNF")) compare_file(name, layouts[[name]], file)
  else compare_routine(name, layouts[[name]])
}
close(file)
cat("the bits of", length(layouts), "routines\n")
