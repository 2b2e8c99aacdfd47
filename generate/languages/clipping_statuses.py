"""What the languages say of polygons that cannot be clipped, by the status, and whether more room helps. The rest of
their clipping is written by hand."""

from typing import NamedTuple

import statuses

ABOUT = "Why polygons cannot be clipped, and whether more room helps, by the status of HOHOLEDP."
EDIT = "Produced from the catalogue of routines (catalogue/); do not edit."
UNKNOWN = "unknown status"

CALC = '''\
"""{about}"""
# {edit}

FAULTS = {{
{cases}}}
SHORT_OF_ROOM = ({short_of_room})
'''

CSHARP = """\
// {edit}
namespace Quorvel
{{
    // {about}
    internal static class ClippingStatus
    {{
        internal static string Fault(int status)
        {{
            switch (status)
            {{
{cases}                default: return "{unknown}";
            }}
        }}

        internal static bool IsShortOfRoom(int status) => {short_of_room};
    }}
}}
"""

FORTRAN = """\
!> {about}
! {edit}
module quorvel_clipping_status
   use, intrinsic :: iso_fortran_env, only: i4 => int32
   implicit none
   private
   public :: clipping_fault, is_short_of_room

contains

   pure function clipping_fault(status) result(text)
      integer(i4), intent(in) :: status
      character(len=:), allocatable :: text
      select case (status)
{cases}      case default
         text = '{unknown}'
      end select
   end function

   pure logical function is_short_of_room(status)
      integer(i4), intent(in) :: status
      is_short_of_room = any(status == [{short_of_room}])
   end function
end module quorvel_clipping_status
"""

JAVASCRIPT = """\
// {about}
// {edit}
export function clippingFault(status) {{
  switch (status) {{
{cases}    default: return '{unknown}';
  }}
}}

export const isShortOfRoom = (status) => [{short_of_room}].includes(status);
"""

PASCAL = """\
{{ {edit} }}

{{ {about} }}
unit QuorvelClippingStatus;

{{$mode objfpc}}{{$H+}}

interface

function ClippingFault(Status: LongInt): string;
function IsShortOfRoom(Status: LongInt): Boolean;

implementation

function ClippingFault(Status: LongInt): string;
begin
  case Status of
{cases}  else
    Result := '{unknown}';
  end;
end;

function IsShortOfRoom(Status: LongInt): Boolean;
begin
  Result := Status in [{short_of_room}];
end;

end.
"""

R = """\
# {edit}

# {about}
clipping_fault <- function(status) {{
  switch(as.character(status),
{cases}    "{unknown}")
}}

is_short_of_room <- function(status) status %in% c({short_of_room})
"""

RUST = """\
// {edit}
//! {about}

pub(crate) fn fault(status: i32) -> &'static str {{
    match status {{
{cases}        _ => "{unknown}",
    }}
}}

pub(crate) fn is_short_of_room(status: i32) -> bool {{
    matches!(status, {short_of_room})
}}
"""

VBA = """\
Private Function IsShortOfRoom(ByVal status As Long) As Boolean
    IsShortOfRoom = {short_of_room}
End Function
"""


class Form(NamedTuple):
    template: str
    case: str = ""  # a text with the statuses that it is for
    number: str = "{number}"  # one of these, and what stands between them
    between: str = ", "
    room: str = "{number}"  # a status that is short of room, and what stands between these
    either: str = ", "


FORMS = {
    "bindings/calc/addin/pythonpath/quorvel_calc/clipping_status.py": Form(
        CALC, "{numbers}", '    {number}: "{text}",\n', ""),
    "bindings/csharp/Quorvel/ClippingStatus.cs": Form(
        CSHARP, '                {numbers} return "{text}";\n', "case {number}:", " ", "status == {number}", " || "),
    "bindings/fortran/src/quorvel_clipping_status.f90": Form(
        FORTRAN, "      case ({numbers})\n         text = '{text}'\n"),
    "bindings/javascript/quorvel/clipping_status.js": Form(
        JAVASCRIPT, "    {numbers} return '{text}';\n", "case {number}:", " "),
    "bindings/pascal/src/quorvelclippingstatus.pas": Form(PASCAL, "    {numbers}: Result := '{text}';\n"),
    "bindings/r/quorvel/R/clipping_status.R": Form(R, '    {numbers} = "{text}",\n', '"{number}"', " = , "),
    "bindings/rust/src/clipping_status.rs": Form(
        RUST, '        {numbers} => "{text}",\n', "{number}", " | ", either=" | "),
}


def _rendered(form, found):
    cases = "".join(
        form.case.format(text=text, numbers=form.between.join(
            form.number.format(number=number, text=text) for number in numbers))
        for text, numbers in statuses.faults(found))
    room = form.either.join(form.room.format(number=number) for number in statuses.short_of_room(found))
    return form.template.format(about=ABOUT, edit=EDIT, unknown=UNKNOWN, cases=cases, short_of_room=room)


def files(families):
    """The texts by their files, from the root of the tree."""
    found = statuses.of_clipping(families)
    return {file: _rendered(form, found) for file, form in FORMS.items()}


def vba(families):
    """For its one module, where all faults are #VALUE!."""
    return _rendered(Form(VBA, room="status = {number}", either=" Or "), statuses.of_clipping(families))
