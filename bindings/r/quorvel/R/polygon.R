# Polygons in plan as matrices of two columns, in double precision.

plan <- function(polygon, routine, name) {
  points <- unname(as.matrix(polygon))
  if (!is.numeric(points) || ncol(points) != 2 || !all(is.finite(points)))
    fault(routine, name, polygon, "must be a matrix of finite numbers with a row [x, y] for each vertex")
  points
}

clip_in_room <- function(a, b, room) {
  points <- rbind(a, b, matrix(0, room, 2))
  capacity <- nrow(points)
  run("clip_polygons", list(points[, 1], points[, 2], seq_len(nrow(a)), nrow(a) + seq_len(nrow(b)), 1024, capacity, capacity,
                   nrow(a) + nrow(b)), unchecked = TRUE)
}

# Of a list: the number of vertices of each piece and their places, negative where a bridge begins; then 0.
pieces <- function(clipped, list) {
  found <- list()
  at <- 1
  while (list[at] != 0) {
    places <- abs(list[at + seq_len(list[at])])
    found[[length(found) + 1]] <- cbind(x = clipped$x[places], y = clipped$y[places])
    at <- at + 1 + list[at]
  }
  found
}

clip_polygons <- function(a, b) {
  a <- plan(a, "clip_polygons", "a")
  b <- plan(b, "clip_polygons", "b")
  for (name in c("a", "b"))
    if (nrow(get(name)) < 3) fault("clip_polygons", name, get(name), "has fewer than 3 vertices")
  room <- 64
  clipped <- clip_in_room(a, b, room)
  while (is_short_of_room(clipped$status) && room < 2^24) clipped <- clip_in_room(a, b, room <- 2 * room)
  if (clipped$status != 0)
    fault("clip_polygons", "a and b", clipped$status, paste("cannot be clipped:", clipping_fault(clipped$status)))
  list(difference = pieces(clipped, clipped$difference_pieces), overlap = pieces(clipped, clipped$overlap_pieces))
}

polygon_area <- function(polygon) {
  points <- plan(polygon, "polygon_area", "polygon")
  if (nrow(points) < 3) return(0)
  x <- points[, 1] - points[1, 1]
  y <- points[, 2] - points[1, 2]
  abs(sum(x[-1] * y[-length(y)] - x[-length(x)] * y[-1])) / 2
}
