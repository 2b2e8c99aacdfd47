# A routine called over all its elements.

run <- function(name, given, unchecked) {
  called <- known[[name]]
  names <- names(called$given)
  counts <- integer(length(given))
  for (i in seq_along(given)) {
    given[[i]] <- numbers(name, names[i], called$given[[i]], given[[i]], unchecked)
    counts[i] <- elements(name, names[i], called$given[[i]], given[[i]])
  }
  each <- ifelse(is.na(counts), 1L, counts)
  count <- recycled(name, names, each)
  values <- .Call(C_run, called$routine, given, each, count)
  if (is.character(values)) stop(simpleError(values))
  scalar <- vapply(called$given, function(known) is.null(known$shape), TRUE)
  many <- count != 1 || any(!scalar & !is.na(counts))
  like <- given[scalar & each == count]
  results <- Map(function(known, value) arranged(known, value, count, many, like), called$results, values)
  told(results, count)
}

# A result with its dimensions, the elements last.
arranged <- function(known, value, count, many, like) {
  if (known$logical) value <- value != 0L
  if (is.null(known$shape)) return(with_attributes(value, like))
  extents <- known$shape
  extents[is.na(extents)] <- length(value) / max(1, count * prod(extents, na.rm = TRUE))
  if (many) extents <- c(extents, count)
  if (length(extents) > 1) dim(value) <- extents
  value
}

# Names and dimensions as in R's own arithmetic: of the first argument that has any.
with_attributes <- function(value, like) {
  for (each in like)
    if (!is.null(attributes(each))) {
      attributes(value) <- attributes(each)[intersect(names(attributes(each)), c("names", "dim", "dimnames"))]
      break
    }
  value
}

told <- function(results, count) {
  if (length(results) == 1) return(results[[1]])
  plain <- all(lengths(results) == count) && all(vapply(results, function(each) is.null(dim(each)), TRUE))
  if (!plain) return(results)
  structure(lapply(results, unname), class = "data.frame", row.names = .set_row_names(count))
}
