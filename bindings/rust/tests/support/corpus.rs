use super::bits::{words, Bits};
use quorvel::unchecked;
use std::collections::BTreeMap;
use std::path::PathBuf;

const CASES: usize = 2000;
const UNTOUCHED: u32 = 0xC5C5_C5C5;
const TEXT_WORDS: usize = 16;

/// How many results of calls differ, by routine and result.
pub type Differing = BTreeMap<String, usize>;

/// The calls of one routine: arguments before the call, then what it left.
pub struct Corpus<'a> {
    routine: &'static str,
    words: Vec<u32>,
    chosen: Vec<bool>,
    place: usize,
    differing: &'a mut Differing,
}

/// What one call left, result by result.
pub struct Left<'a> {
    routine: &'static str,
    words: &'a [u32],
    differing: &'a mut Differing,
}

/// The calls of a routine, from the state in which the corpus begins.
pub fn run(differing: &mut Differing, routine: &'static str, test: fn(&mut Corpus)) {
    unchecked::climate::station_records("example.climate", 1, 0, &[[1.0; 11]; 12]).unwrap();
    let bytes = std::fs::read(format!("corpus/{routine}")).unwrap();
    let words = bytes.chunks_exact(4).map(|word| u32::from_le_bytes(word.try_into().unwrap())).collect();
    test(&mut Corpus { routine, words, chosen: vec![true; CASES], place: 0, differing });
}

/// That all is as it should be, of that many routines.
pub fn finish(differing: Differing, routines: usize) {
    assert_eq!(differing, Differing::new());
    assert_eq!(std::fs::read_dir("corpus").unwrap().count(), routines);
}

impl Corpus<'_> {
    /// An argument of all calls.
    pub fn column<T: Word>(&mut self) -> Vec<T> {
        self.next(T::WORDS).into_iter().map(T::read).collect()
    }

    /// Names of files, of any bytes.
    pub fn texts(&mut self) -> Vec<PathBuf> {
        use std::os::unix::ffi::OsStringExt;
        let text = |words: &[u32]| {
            let bytes = words.iter().flat_map(|word| word.to_le_bytes());
            std::ffi::OsString::from_vec(bytes.take_while(|&byte| byte != 0).collect()).into()
        };
        self.next(TEXT_WORDS).into_iter().map(text).collect()
    }

    /// Leaves out cases that no list can tell.
    pub fn only(&mut self, which: &dyn Fn(usize) -> bool) {
        self.chosen = (0..CASES).map(which).collect();
        let left = self.chosen.iter().filter(|&&chosen| chosen).count();
        assert!(left > CASES / 2, "{}: only {left} cases can be called", self.routine);
    }

    /// Calls again, and holds every result against what the call left.
    pub fn each(&mut self, call: &dyn Fn(usize, &mut Left)) {
        let of_case = self.words.len() / CASES;
        for (i, case) in self.words.chunks_exact(of_case).enumerate().filter(|&(i, _)| self.chosen[i]) {
            let mut left = Left { routine: self.routine, words: &case[self.place..], differing: self.differing };
            call(i, &mut left);
            assert!(left.words.is_empty(), "{}: words of a case", self.routine);
        }
    }

    fn next(&mut self, words: usize) -> Vec<&[u32]> {
        let (first, of_case) = (self.place, self.words.len() / CASES);
        self.place += words;
        self.words.chunks_exact(of_case).map(|case| &case[first..first + words]).collect()
    }
}

impl Left<'_> {
    /// Holds the next result, for which there is room of so many words, against what calls gave. What a call leaves as
    /// it was is not a number.
    pub fn hold(&mut self, name: &str, room: usize, got: &[&dyn Bits]) {
        let (left, rest) = self.words.split_at(room);
        self.words = rest;
        for one in got {
            if words(*one).iter().zip(left).any(|(&got, &left)| got != left && !(left == UNTOUCHED && is_none(got))) {
                *self.differing.entry(format!("{}, {name}", self.routine)).or_default() += 1;
            }
        }
    }
}

fn is_none(word: u32) -> bool {
    matches!(word, 0 | 0x7fc0_0000 | 0x7ff8_0000)
}

/// What a column holds: numbers, or arrays of them.
pub trait Word {
    const WORDS: usize;
    fn read(words: &[u32]) -> Self;
}

impl Word for f32 {
    const WORDS: usize = 1;

    fn read(words: &[u32]) -> Self {
        f32::from_bits(words[0])
    }
}

impl Word for i32 {
    const WORDS: usize = 1;

    fn read(words: &[u32]) -> Self {
        words[0] as i32
    }
}

impl Word for f64 {
    const WORDS: usize = 2;

    fn read(words: &[u32]) -> Self {
        f64::from_bits(u64::from(words[0]) | u64::from(words[1]) << 32)
    }
}

impl<T: Word, const N: usize> Word for [T; N] {
    const WORDS: usize = N * T::WORDS;

    fn read(words: &[u32]) -> Self {
        std::array::from_fn(|k| T::read(&words[k * T::WORDS..]))
    }
}
