{ What lies between Pascal and the library: the exceptions of floating point, and the length of lists.

  Free Pascal unmasks three exceptions of floating point, with which a program ends where the library, as C does, goes on
  with what is not a number. They are masked around each call, so that a program's own arithmetic keeps what it has. }
unit QuorvelFloatingPoint;

{$mode objfpc}{$R-}{$Q-}{$asmmode intel}

interface

uses
  Math;

type
{$ifdef cpux86_64}
  TFloatingPointState = LongWord;
{$else}
  TFloatingPointState = TFPUExceptionMask;
{$endif}

{ Masks all exceptions in this thread; gives what RestoreExceptions takes. }
function MaskExceptions: TFloatingPointState; {$ifndef cpux86_64}inline;{$endif}
procedure RestoreExceptions(State: TFloatingPointState); {$ifndef cpux86_64}inline;{$endif}

procedure SetNoNumbers(First: PSingle; Count: SizeInt);
procedure SetNoNumbers(First: PDouble; Count: SizeInt);
procedure SetNoNumbers(First: PLongInt; Count: SizeInt);

{ The length of the shortest of some lists. }
function Shortest(const Lengths: array of SizeInt): LongInt;

implementation

{$ifdef cpux86_64}
{ SetExceptionMask would take ten times as long, and change for a moment with what new threads begin. }
function MaskExceptions: TFloatingPointState;
const
  AllMasks = $1F80;
var
  State: LongWord;
begin
  asm
    stmxcsr State
  end;
  Result := State;
  State := State or AllMasks;
  asm
    ldmxcsr State
  end;
end;

procedure RestoreExceptions(State: TFloatingPointState);
begin
  asm
    ldmxcsr State
  end;
end;
{$else}
function MaskExceptions: TFloatingPointState;
begin
  Result := SetExceptionMask([exInvalidOp, exDenormalized, exZeroDivide, exOverflow, exUnderflow, exPrecision]);
end;

procedure RestoreExceptions(State: TFloatingPointState);
begin
  ClearExceptions(False);
  SetExceptionMask(State);
end;
{$endif}

procedure SetNoNumbers(First: PSingle; Count: SizeInt);
var
  I: SizeInt;
begin
  for I := 0 to Count - 1 do First[I] := NaN;
end;

procedure SetNoNumbers(First: PDouble; Count: SizeInt);
var
  I: SizeInt;
begin
  for I := 0 to Count - 1 do First[I] := NaN;
end;

procedure SetNoNumbers(First: PLongInt; Count: SizeInt);
begin
  FillChar(First^, Count * SizeOf(First^), 0);
end;

function Shortest(const Lengths: array of SizeInt): LongInt;
var
  Each: SizeInt;
begin
  Result := High(LongInt);
  for Each in Lengths do
    if Each < Result then Result := Each;
end;

end.
