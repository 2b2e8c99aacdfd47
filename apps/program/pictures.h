// The files that a run writes, and which picture goes into which.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "telling/answer.h"

namespace quorvel::program {

struct File {
    std::string path;
    std::function<std::string()> bytes;
};

// Makes the bytes of all files before the first is written.
void write(const std::vector<File>& files);

// The ending of a file of a picture, such as ".svg". Throws host::InputError for any other.
std::string picture_ending(const std::string& file);

// The first picture of an answer goes into the file itself, further ones into files beside it with
// their key in the name: day.svg, day-shadow.svg. Of several inputs all have the input's name too:
// day-london.svg.
std::vector<File> pictures(std::span<const host::Answered> answers,
                           const std::vector<std::string>& files);

}  // namespace quorvel::program
