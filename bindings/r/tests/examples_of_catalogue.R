# The examples of the catalogue, and that each of their arguments is held to its range:
# examples_of_catalogue.R EXAMPLES
library(quorvel)
compared <- refused <- 0

compare <- function(what, got, wanted, within, logical) {
  got <- c(got)[seq_along(wanted)]
  if (logical) wanted <- wanted != 0
  if (!isTRUE(all(abs(got - wanted) <= within))) stop(what, ": ", toString(got), " instead of ", toString(wanted))
  compared <<- compared + 1
}

# With one number that is none, or just outside of the range.
check_refusals <- function(call) {
  name <- as.character(call[[1]])
  given <- lapply(as.list(call)[-1], eval)
  for (argument in names(given)[lengths(given) > 0]) {
    known <- quorvel:::known[[name]]$given[[argument]]
    step <- if (known$whole) 1 else 1e-4
    for (value in c(NaN, if (is.finite(known$low)) known$low - step, if (is.finite(known$high)) known$high + step)) {
      wrong <- if (is.character(given[[argument]])) value else replace(given[[argument]], 1, value)
      fault <- tryCatch({ do.call(name, replace(given, argument, list(wrong))); NULL }, quorvel_error = identity)
      if (!identical(c(fault$routine, fault$argument), c(name, argument)))
        stop(name, ": ", argument, " = ", value, " is not refused")
      refused <<- refused + 1
    }
  }
}

examples <- parse(commandArgs(TRUE)[1], keep.source = FALSE)
for (statement in examples) {
  eval(statement)
  if (identical(statement[[1]], quote(`<-`)) && is.null(statement[[3]]$unchecked)) check_refusals(statement[[3]])
}
stopifnot(compared == sum(vapply(examples, function(each) identical(each[[1]], quote(compare)), TRUE)), compared > 150)
cat(compared, "results of examples,", refused, "faults refused\n")
