"""Words that no argument may be called, since a language that calls the routines has them for itself."""

_WORDS = {
    "C": """auto break case char const continue default do double else enum extern float for goto if inline int long
        register restrict return short signed sizeof static struct switch typedef union unsigned void volatile while""",
    "C++": """alignas alignof and asm bitand bitor bool catch class compl concept consteval constexpr constinit decltype
        delete explicit export false friend mutable namespace new noexcept not nullptr operator or private protected
        public requires template this thread_local throw true try typeid typename using virtual wchar_t xor""",
    "the Windows headers": "far interface near small",
    "Python": """as assert async await def del elif except finally from global import in is lambda match none nonlocal
        pass raise type with yield""",
    "C#": """abstract base byte checked decimal delegate event fixed foreach implicit internal lock null object out
        override params readonly record ref sbyte sealed stackalloc string uint ulong unchecked unsafe ushort""",
    "VBA": """addressof alias any boolean byref byval call close currency date debug declare dim each eqv erase error
        exit function get gosub imp input integer let lib like line lset me mod name next on open option optional
        paramarray preserve print property put randomize redim rem resume rset seek select set single step stop sub
        then time to until variant wend write""",
    "Pascal": """array begin constructor destructor div downto end file finalization implementation inherited
        initialization label library nil of packed procedure program repeat resourcestring self shl shr threadvar type
        unit uses var""",
    "Fortran": """allocate block character common complex contains cycle data deallocate dimension elemental endif
        entry equivalence external format implicit intent intrinsic kind logical module namelist nullify parameter
        pointer precision pure real recursive result save sequence subroutine target use where""",
    "JavaScript": "arguments debugger eval extends instanceof super undefined",
    "R": "c f inf na nan t",
    "Rust": "become box crate dyn fn impl loop macro match move mut priv pub self super trait unsafe unsized use where",
}
RESERVED = {word: language for language, words in reversed(_WORDS.items()) for word in words.split()}
