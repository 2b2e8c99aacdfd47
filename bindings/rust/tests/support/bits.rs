const ANY_NAN: u32 = 0x7fc0_0000;
const ANY_DOUBLE_NAN: u64 = 0x7ff8_0000_0000_0000;

/// Numbers as the corpus writes them: one not-a-number for all, -1 for true.
pub trait Bits {
    fn words(&self, words: &mut Vec<u32>);
    fn numbers(&self, numbers: &mut Vec<f64>);
}

impl Bits for f32 {
    fn words(&self, words: &mut Vec<u32>) {
        words.push(if self.is_nan() { ANY_NAN } else { self.to_bits() });
    }

    fn numbers(&self, numbers: &mut Vec<f64>) {
        numbers.push(f64::from(*self));
    }
}

impl Bits for f64 {
    fn words(&self, words: &mut Vec<u32>) {
        let bits = if self.is_nan() { ANY_DOUBLE_NAN } else { self.to_bits() };
        words.extend([bits as u32, (bits >> 32) as u32]);
    }

    fn numbers(&self, numbers: &mut Vec<f64>) {
        numbers.push(*self);
    }
}

impl Bits for i32 {
    fn words(&self, words: &mut Vec<u32>) {
        words.push(*self as u32);
    }

    fn numbers(&self, numbers: &mut Vec<f64>) {
        numbers.push(f64::from(*self));
    }
}

impl Bits for bool {
    fn words(&self, words: &mut Vec<u32>) {
        (-i32::from(*self)).words(words);
    }

    fn numbers(&self, numbers: &mut Vec<f64>) {
        (-i32::from(*self)).numbers(numbers);
    }
}

impl<T: Bits> Bits for [T] {
    fn words(&self, words: &mut Vec<u32>) {
        self.iter().for_each(|one| one.words(words));
    }

    fn numbers(&self, numbers: &mut Vec<f64>) {
        self.iter().for_each(|one| one.numbers(numbers));
    }
}

impl<T: Bits, const N: usize> Bits for [T; N] {
    fn words(&self, words: &mut Vec<u32>) {
        self[..].words(words);
    }

    fn numbers(&self, numbers: &mut Vec<f64>) {
        self[..].numbers(numbers);
    }
}

impl<T: Bits> Bits for Vec<T> {
    fn words(&self, words: &mut Vec<u32>) {
        self[..].words(words);
    }

    fn numbers(&self, numbers: &mut Vec<f64>) {
        self[..].numbers(numbers);
    }
}

/// Holds the first numbers of a result against those expected.
pub fn near(what: &str, got: &impl Bits, within: f64, expected: &[f64]) {
    let mut numbers = Vec::new();
    got.numbers(&mut numbers);
    assert!(numbers.len() >= expected.len(), "{what}: too few numbers");
    for (number, value) in numbers.iter().zip(expected) {
        assert!((number - value).abs() <= within, "{what}: {number} and not {value}");
    }
}

/// Of a call for one element, and of one for an array of it.
pub fn same<T: Bits>(what: &str, one: &T, other: &T) {
    let (mut first, mut second) = (Vec::new(), Vec::new());
    one.words(&mut first);
    other.words(&mut second);
    assert_eq!(first, second, "{what}");
}
