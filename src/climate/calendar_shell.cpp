#include "climate/calendar.h"
#include "entry/entry.h"

using namespace quorvel;

void CLDAY(const Integer* month, Integer* day) { *day = climate::design_day(*month); }

void CLDAYEX(const Integer* month, Integer* day, const Integer* option) {
    *day = climate::design_day_by_option(*month, *option);
}

Integer ICLDAY(const Integer* month) { return climate::design_day(*month); }

Integer ICLDAYEX(const Integer* month, const Integer* option) {
    return climate::design_day_by_option(*month, *option);
}

Integer ICLDA2(const Integer* month) { return climate::second_design_day(*month); }

Integer ICLDA2EX(const Integer* month, const Integer* option) {
    return climate::second_design_day_by_option(*month, *option);
}
