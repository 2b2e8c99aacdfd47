use quorvel::unchecked;
use std::cell::RefCell;
use std::path::PathBuf;

const CASES: usize = 2000;
const UNTOUCHED: u32 = 0xC5C5_C5C5;
const TEXT_WORDS: usize = 16;

thread_local! {
    static RUN: RefCell<(usize, Vec<String>)> = RefCell::default(); // how many routines, and what differs
}

/// The calls of one routine: arguments before the call, then what it left.
pub struct Corpus {
    routine: &'static str,
    words: Vec<u32>,
    chosen: Vec<bool>,
    place: usize,
}

/// From the state in which the corpus begins.
pub fn run(routine: &'static str, test: impl Fn(&mut Corpus)) {
    unchecked::climate::station_records("example.climate", 1, 0, &[[1.0; 11]; 12]).unwrap();
    let bytes = std::fs::read(format!("corpus/{routine}")).unwrap();
    let words = bytes.chunks_exact(4).map(|word| u32::from_le_bytes(word.try_into().unwrap()));
    let mut corpus = Corpus { routine, words: words.collect(), chosen: vec![true; CASES], place: 0 };
    test(&mut corpus);
    assert_eq!(corpus.place * CASES, corpus.words.len(), "{routine}: words of a case");
    let compared = corpus.chosen.iter().filter(|&&chosen| chosen).count();
    assert!(compared > CASES / 2, "{routine}: only {compared} cases can be called");
    RUN.with(|run| run.borrow_mut().0 += 1);
}

/// Tells what differs, if anything does, of that many routines.
pub fn finish(routines: usize) {
    RUN.with(|run| assert_eq!(*run.borrow(), (routines, Vec::new())));
    assert_eq!(std::fs::read_dir("corpus").unwrap().count(), routines);
}

impl Corpus {
    pub fn column<T: Word>(&mut self) -> Vec<T> {
        self.next(T::WORDS, T::read)
    }

    /// Names of files, of any bytes.
    pub fn texts(&mut self) -> Vec<PathBuf> {
        use std::os::unix::ffi::OsStringExt;
        self.next(TEXT_WORDS, |words| {
            let bytes = words.iter().flat_map(|word| word.to_le_bytes());
            std::ffi::OsString::from_vec(bytes.take_while(|&byte| byte != 0).collect()).into()
        })
    }

    /// Leaves out cases that no list can tell.
    pub fn only(&mut self, which: impl Fn(usize) -> bool) {
        self.chosen = (0..CASES).map(which).collect();
    }

    pub fn each<T>(&self, call: impl Fn(usize) -> T) -> Vec<Option<T>> {
        (0..CASES).map(|i| self.chosen[i].then(|| call(i))).collect()
    }

    /// Holds the next column against what calls gave. What a call leaves as it was is not a number.
    pub fn left<T>(&mut self, name: &str, words: usize, got: &[&Vec<Option<T>>], read: impl Fn(&T, &mut Vec<u32>)) {
        let left = self.next(words, <[u32]>::to_vec);
        let differs = |one: &T, left: &[u32]| {
            let mut words = Vec::new();
            read(one, &mut words);
            words.iter().zip(left).any(|(&got, &left)| got != left && !(left == UNTOUCHED && is_none(got)))
        };
        for results in got {
            let both = results.iter().zip(&left).filter_map(|(one, left)| Some((one.as_ref()?, left)));
            let differing = both.filter(|(one, left)| differs(one, left)).count();
            if differing > 0 {
                let text = format!("{}, {name}: {differing} cases differ", self.routine);
                RUN.with(|run| run.borrow_mut().1.push(text));
            }
        }
    }

    fn next<T>(&mut self, words: usize, read: impl Fn(&[u32]) -> T) -> Vec<T> {
        let (first, of_case) = (self.place, self.words.len() / CASES);
        self.place += words;
        self.words.chunks_exact(of_case).map(|case| read(&case[first..first + words])).collect()
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
