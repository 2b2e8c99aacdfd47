// Quorvel for C++20: building-physics and building-services calculations, for applications that
// link its libraries.
//
//     #include <quorvel/quorvel.hpp>
//     using namespace quorvel;
//
//     float pv = psychro::vapour_pressure_from_psychrometer(25, 20, 101325, psychrometer::sling);
//
//     std::vector<float> t = ..., pressures(t.size());
//     psychro::vapour_pressure(t, 50.0f, pressures);  // one humidity for all of them
//
// Every routine has two forms. For one element its values go in, and a value or a structure of
// values comes out; an output that the routine leaves as it was is not a number (an integer: 0), or
// as it was given. For whole arrays each argument is an Input, one value or an array, and the
// outputs are arrays as long as one another. Each element gets the same bits in both forms, on
// every platform. Angles are in radians; azimuths run from north, clockwise seen from above.
//
// Values outside the ranges get what the notes say. A count outside its range throws
// std::out_of_range, and arrays and lists that do not belong together throw std::invalid_argument,
// before anything is written; what() names routine and argument. All may be called from many
// threads; none starts one, but for quorvel::parallel.
#pragma once

#include "quorvel/climate.hpp"
#include "quorvel/climate_file.hpp"
#include "quorvel/fabric.hpp"
#include "quorvel/geometry.hpp"
#include "quorvel/glazing.hpp"
#include "quorvel/input.hpp"
#include "quorvel/parallel.hpp"
#include "quorvel/polygon.hpp"
#include "quorvel/psychro.hpp"
#include "quorvel/selectors.hpp"
