#include "climate/help.h"

namespace quorvel::climatefile {

const char* const help_on_program = R"(quorvel-climate COMMAND --help tells of each of them.

A station has, for each month, ten bands of days, in two sets: set 1 ranks the days by warmth, set 2
by sunshine. Each band has a cumulative frequency F and seven quantities:
  Q1, Q2      beam and diffuse factor: the irradiance, direct normal and diffuse horizontal, as a
              multiple of the design irradiance of a clear sky
  Q3, Q5      air and wet-bulb temperature at time A, when the air of the day is warmest, °C
  Q4, Q6      the same at time B, when it is coldest, °C
  Q7          cloud-free share of the sky, 0 to 1

Exit status
  0 done; 1 check has found violations, or anything that is not the input's fault, such as a missing
  library; 2 bad input, with one line that says where and what is allowed. The library, quorvel.dll
  or libquorvel.so, is looked for beside the program, or is the file that the environment variable
  QUORVEL_LIBRARY names.)";

const char* const help_on_pack = R"(The station file
  TOML; from-hourly and show --text write such files, examples/ has two of them.

  name                    of the station, to tell it by; it does not enter the climate data file
  station                 its number in the climate data file, 1 to 1000
  [set1] and [set2]
    time_A, time_B        hours, 0 to 24: a list of twelve, January to December, or one for all
  [set1.F], [set1.Q1] to [set1.Q7], and those of set2
    January to December   a list of ten, bands 1 to 10, or one for all of them
  F is the share of the month's days in the band and those before it: 0 to 1, never falling from
  band to band, 1 in band 10. Q1 and Q2 lie within 0 to 10, Q3 to Q6 within -90 to 60 °C, Q7 within
  0 to 1.

The climate data file
  Records of 432 bytes: nine rows of twelve numbers of four bytes, lowest byte first. Record 1 is
  the header; its second word H places the stations, of 19 records each. Station S begins at record
      19 S + (H - 1) div 18 + H - 16        (div cuts off the fraction)
  The files written here have H = 0 and all other words of the header 0, so station 1 begins at
  record 3, and record 2 is empty. (Only H = -1 would put it at record 2, but -1 is what the library
  keeps in place of a header that it has not read.) Numbers left out between stations take their
  place too, with all values 0.
  The library reads H once for as long as it is loaded: files read by one process must agree in it,
  as all files written here do.

  The file is written beside its place under the name OUT.part and then renamed: whatever fails, a
  file that is already there stays as it was.)";

const char* const help_on_show =
    R"(The values are read through the library, as any other program reads them.
--text writes the station file that pack takes, with every digit; the name is not in the climate data
file.)";

const char* const help_on_check = R"(The rules
  The file is a whole number of records, and H puts station 1 behind the header and into the file.
  The last station has all of its 19 records.
  In every station, set and month F does not fall from band to band and is 1 in band 10.
  F and Q7 lie within 0 to 1, Q1 and Q2 within 0 to 10, Q3 to Q6 within -90 to 60 °C, times A and B
  within 0 to 24 h, and all are numbers.
Each violation is one line, with station, set, month and band. A station whose values are all 0 is a
number that the file leaves out. Other values of H than pack writes are taken as they are.)";

const char* const help_on_hourly = R"(The method
  The file is read as the EPW format has it: eight header lines, then a line for each hour of
  standard time from 1 January on, 365 or 366 days. Temperature, humidity and pressure are taken as
  those at the end of the hour, irradiation and the sun's place as those of the hour as a whole, with
  the sun at its middle.

  Times A and B of a month are the hours at which its mean daily course of temperature is highest
  and lowest; both sets have the same. Every day then has seven quantities:
  Q1          the day's direct normal irradiation, by that of the design irradiance in a clear sky
              (CLSNNR, for the sun of CLSNGE and CLTCOR) at the station's height
  Q2          the same of the diffuse horizontal irradiation; both are 0 without sun, and 10 at most
  Q3, Q4      dry-bulb temperature at time A and at time B
  Q5, Q6      wet-bulb temperature then, that a sling psychrometer reads (PSTWET)
  Q7          1 less the total sky cover, mean of the hours that have one
  The days of a month are ranked, in set 1 from the highest to the lowest mean of their 24 dry-bulb
  temperatures, in set 2 from the highest to the lowest Q1, equal ones by date. They are cut into ten
  bands of equal frequency, as nearly as whole days allow (three or four days in a month of 31). A
  band's F counts its days and those before them; Q1 to Q7 are means over its days. So the means of
  the bands, weighted by their frequency, are the month's means. F is rounded to 4 decimals,
  temperatures to 2, all else to 3.

  One year is one year: bands of three days hold its chances too. Take a typical year, or the means
  of the station files of several years, for the climate of a place.

A value that is missing (99.9, 999, 9999) is a fault, except that of the sky cover while the day has
another one. The station file is written beside its place and then renamed.)";

}  // namespace quorvel::climatefile
