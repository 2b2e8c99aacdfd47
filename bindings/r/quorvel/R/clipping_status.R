# Produced from the catalogue of routines (catalogue/); do not edit.

# Why polygons cannot be clipped, and whether more room helps, by the status of HOHOLEDP.
clipping_fault <- function(status) {
  switch(as.character(status),
    "1" = "a has fewer than 3 vertices",
    "2" = "b has fewer than 3 vertices",
    "3" = "a crosses itself",
    "4" = "b crosses itself",
    "5" = "a has no area",
    "6" = "a and b cross more than 1024 times",
    "7" = , "10" = , "11" = "the pieces have more vertices than there is room for",
    "8" = "an edge of a carries more than 10 crossings",
    "9" = "an edge of b carries more than 10 crossings",
    "105" = , "106" = "a or b is narrower than the tolerance, or touches itself",
    "109" = "a or b has coordinates that are not numbers",
    "unknown status")
}

is_short_of_room <- function(status) status %in% c(7, 10, 11)
