!> Ends with an error: the test looks at what it says.
program stops
   use quorvel
   print *, saturation_pressure([20.0, 250.0])
end program stops
