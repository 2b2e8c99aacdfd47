# The examples of the catalogue: examples_of_catalogue.R EXAMPLES
library(quorvel)
compared <- 0

compare <- function(what, got, wanted, within, logical) {
  got <- c(got)[seq_along(wanted)]
  if (logical) wanted <- wanted != 0
  if (!isTRUE(all(abs(got - wanted) <= within))) stop(what, ": ", toString(got), " instead of ", toString(wanted))
  compared <<- compared + 1
}

examples <- parse(commandArgs(TRUE)[1], keep.source = FALSE)
for (statement in examples) eval(statement)
stopifnot(compared == sum(vapply(examples, function(each) identical(each[[1]], quote(compare)), TRUE)), compared > 150)
cat(compared, "results of examples\n")
