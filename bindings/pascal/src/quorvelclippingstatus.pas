{ Produced from the catalogue of routines (catalogue/); do not edit. }

{ Why polygons cannot be clipped, and whether more room helps, by the status of HOHOLEDP. }
unit QuorvelClippingStatus;

{$mode objfpc}{$H+}

interface

function ClippingFault(Status: LongInt): string;
function IsShortOfRoom(Status: LongInt): Boolean;

implementation

function ClippingFault(Status: LongInt): string;
begin
  case Status of
    1: Result := 'a has fewer than 3 vertices';
    2: Result := 'b has fewer than 3 vertices';
    3: Result := 'a crosses itself';
    4: Result := 'b crosses itself';
    5: Result := 'a has no area';
    6: Result := 'a and b cross more than 1024 times';
    7, 10, 11: Result := 'the pieces have more vertices than there is room for';
    8: Result := 'an edge of a carries more than 10 crossings';
    9: Result := 'an edge of b carries more than 10 crossings';
    105, 106: Result := 'a or b is narrower than the tolerance, or touches itself';
    109: Result := 'a or b has coordinates that are not numbers';
  else
    Result := 'unknown status';
  end;
end;

function IsShortOfRoom(Status: LongInt): Boolean;
begin
  Result := Status in [7, 10, 11];
end;

end.
