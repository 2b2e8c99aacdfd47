# What is known of arguments and results, and what a caller passes as numbers that fit.

# An argument: the ends of its valid range, which `valid` tells; its extents, NA for what is counted.
number <- function(low, high, valid, whole = FALSE, shape = NULL)
  list(low = max(low, if (whole) -.Machine$integer.max), high = min(high, if (whole) .Machine$integer.max),
       valid = valid, whole = whole, shape = shape)

# A selector, of numbers with names.
choice <- function(..., shape = NULL) {
  choices <- c(...)
  valid <- paste("valid", paste0(choices, " (\"", names(choices), "\")", collapse = ", "))
  c(number(min(choices), max(choices), valid, whole = TRUE, shape = shape), list(choices = choices))
}

returned <- function(logical = FALSE, shape = NULL) list(logical = logical, shape = shape)

fault <- function(routine, argument, value, complaint, place = "")
  stop(structure(class = c("quorvel_error", "error", "condition"), list(
    message = paste0(routine, ": ", argument, place, " ", complaint), call = NULL,
    routine = routine, argument = argument, value = value)))

refuse_value <- function(routine, argument, value, at, valid) {
  place <- if (length(value) > 1) sprintf("[%d]", at) else ""
  shown <- if (is.character(value)) dQuote(value[at], FALSE) else format(value[at], digits = 9)
  fault(routine, argument, value[at], paste0("is ", shown, "; ", valid), place)
}

# The numbers of a selector's names, which may be shortened.
selected <- function(routine, argument, known, names) {
  found <- pmatch(names, names(known$choices), duplicates.ok = TRUE)
  if (anyNA(found)) refuse_value(routine, argument, names, which(is.na(found))[1], known$valid)
  array_like(known$choices[found], names)
}

array_like <- function(numbers, like) {
  dim(numbers) <- dim(like)
  numbers
}

check_range <- function(routine, argument, known, value) {
  if (length(value) == 0) return()
  if (!anyNA(value) && min(value) >= known$low && max(value) <= known$high && (!known$whole || all(value %% 1 == 0)))
    return()
  part <- known$whole & is.finite(value) & value %% 1 != 0
  at <- which(is.na(value) | value < known$low | value > known$high | part)[1]
  refuse_value(routine, argument, value, at, paste0(known$valid, if (part[at]) ", whole numbers"))
}

# An argument as double or integer, with its dimensions.
numbers <- function(routine, argument, known, value, unchecked) {
  if (is.character(value) && !is.null(known$choices)) value <- selected(routine, argument, known, value)
  if (!is.numeric(value) && !is.logical(value))
    fault(routine, argument, value, paste("must be numbers, not", class(value)[1]))
  if (!unchecked) check_range(routine, argument, known, value)
  if (!known$whole) storage.mode(value) <- "double"
  else if (!is.integer(value)) suppressWarnings(storage.mode(value) <- "integer") # NA where it has no room
  value
}

# How many elements an argument has; NA for a vector or matrix that is one for all.
elements <- function(routine, argument, known, value) {
  extents <- known$shape
  if (is.null(extents)) return(length(value))
  given <- if (is.null(dim(value))) length(value) else dim(value)
  rank <- length(extents)
  fits <- length(given) %in% c(rank, rank + 1) && all(is.na(extents) | given[seq_len(rank)] == extents)
  if (!fits) {
    wanted <- paste(ifelse(is.na(extents), "n", extents), collapse = " x ")
    fault(routine, argument, value, paste("must be", wanted, "numbers, not", paste(given, collapse = " x ")))
  }
  if (length(given) > rank) given[rank + 1] else NA
}

# How many elements a call has, for which shorter arguments are recycled.
recycled <- function(routine, names, counts) {
  count <- if (any(counts == 0)) 0 else max(counts, 1)
  odd <- which(count %% counts != 0)
  if (length(odd))
    fault(routine, names[odd[1]], NULL, sprintf("has %d elements, and %s %.0f", counts[odd[1]],
                                                names[which.max(counts)], count))
  count
}
