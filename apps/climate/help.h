#pragma once

namespace quorvel::climatefile {

// What --help says after the options: of the program, and of each of its commands.
extern const char* const help_on_program;
extern const char* const help_on_pack;
extern const char* const help_on_show;
extern const char* const help_on_check;
extern const char* const help_on_hourly;

}  // namespace quorvel::climatefile
