// What all harnesses of the program do: the input is a file, and whatever is in it, the program
// works or says in one line what is wrong with it.
#pragma once

#include <fstream>
#include <string>

#include "conformance/climate_file.h"
#include "fuzz/bytes.h"
#include "fuzz/library.h"
#include "reading/input.h"

namespace quorvel::fuzz {

// A new folder to work in, with the example of a climate data file in it.
inline void enter_folder() { static const conformance::ExampleFolder folder; }

inline void write_file(const std::string& name, std::string_view bytes) {
    std::ofstream stream(name, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    require(static_cast<bool>(stream.flush()), "the folder for temporary files can be written");
}

// Does the work with the name of a file of these bytes.
template <class Work>
void try_file(std::string_view bytes, Work work) {
    enter_folder();
    const std::string name = "input";
    write_file(name, bytes);
    forget_climate_file();
    try {
        work(name);
    } catch (const host::InputError& fault) {
        const std::string_view told = fault.what();
        require(!told.empty() && told.find('\n') == told.npos, "a fault is told in one line");
    }
}

template <class Work>
void try_file(const std::uint8_t* data, std::size_t size, Work work) {
    try_file({reinterpret_cast<const char*>(data), size}, work);
}

}  // namespace quorvel::fuzz
