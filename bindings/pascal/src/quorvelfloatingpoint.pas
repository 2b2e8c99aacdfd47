{ What lies between Pascal and the library: the exceptions of floating point, and the length of lists.

  Free Pascal unmasks three exceptions of floating point, with which a program ends where the library, as C does, goes
  on with what is not a number. They are masked around each call, so that a program's own arithmetic keeps what it has. }
unit QuorvelFloatingPoint;

{$mode objfpc}{$R-}{$Q-}{$asmmode intel}

interface

uses
  Math;

type
{$ifdef cpux86_64}
  TFloatingPointState = record
    Mxcsr: LongWord;
    ControlWord: Word; { of the x87, with which the library for Windows takes remainders }
  end;
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
{ SetExceptionMask would take longer, and change for a moment with what new threads begin. }
function MaskExceptions: TFloatingPointState;
const
  AllOfMxcsr = $1F80;
  AllOfX87 = $3F;
var
  State, Masked: TFloatingPointState;
begin
  asm
    stmxcsr State.Mxcsr
    fnstcw State.ControlWord
  end;
  Masked.Mxcsr := State.Mxcsr or AllOfMxcsr;
  Masked.ControlWord := State.ControlWord or AllOfX87;
  asm
    ldmxcsr Masked.Mxcsr
    fldcw Masked.ControlWord
  end;
  Result := State;
end;

{ What the x87 was held from telling is forgotten: it would tell it with its next instruction. }
procedure RestoreExceptions(State: TFloatingPointState);
begin
  asm
    ldmxcsr State.Mxcsr
    fnclex
    fldcw State.ControlWord
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
begin
  FillDWord(First^, Count, $7FC00000);
end;

procedure SetNoNumbers(First: PDouble; Count: SizeInt);
begin
  FillQWord(First^, Count, $7FF8000000000000);
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
