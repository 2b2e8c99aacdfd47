/// A number of a result.
pub enum Number {
    Real(f32),
    Double(f64),
    Integer(i32),
}

/// A result: a number, or any array of them.
pub trait Bits {
    fn each(&self, visit: &mut dyn FnMut(Number));
}

impl Bits for f32 {
    fn each(&self, visit: &mut dyn FnMut(Number)) {
        visit(Number::Real(*self));
    }
}

impl Bits for f64 {
    fn each(&self, visit: &mut dyn FnMut(Number)) {
        visit(Number::Double(*self));
    }
}

impl Bits for i32 {
    fn each(&self, visit: &mut dyn FnMut(Number)) {
        visit(Number::Integer(*self));
    }
}

impl Bits for bool {
    fn each(&self, visit: &mut dyn FnMut(Number)) {
        visit(Number::Integer(-i32::from(*self)));
    }
}

impl<T: Bits, const N: usize> Bits for [T; N] {
    fn each(&self, visit: &mut dyn FnMut(Number)) {
        self.iter().for_each(|one| one.each(visit));
    }
}

impl<T: Bits> Bits for Vec<T> {
    fn each(&self, visit: &mut dyn FnMut(Number)) {
        self.iter().for_each(|one| one.each(visit));
    }
}

/// As the corpus writes them: one not-a-number for all.
pub fn words(result: &dyn Bits) -> Vec<u32> {
    let mut words = Vec::new();
    result.each(&mut |number| match number {
        Number::Real(value) => words.push(if value.is_nan() { 0x7fc0_0000 } else { value.to_bits() }),
        Number::Double(value) => {
            let bits = if value.is_nan() { 0x7ff8_0000_0000_0000 } else { value.to_bits() };
            words.extend([bits as u32, (bits >> 32) as u32]);
        }
        Number::Integer(value) => words.push(value as u32),
    });
    words
}

/// Holds the first numbers of a result against those expected.
pub fn near(what: &str, result: &dyn Bits, within: f64, expected: &[f64]) {
    let mut numbers = Vec::new();
    result.each(&mut |number| {
        numbers.push(match number {
            Number::Real(value) => f64::from(value),
            Number::Double(value) => value,
            Number::Integer(value) => f64::from(value),
        })
    });
    assert!(numbers.len() >= expected.len(), "{what}: too few numbers");
    for (number, value) in numbers.iter().zip(expected) {
        assert!((number - value).abs() <= within, "{what}: {number} and not {value}");
    }
}

/// Of a call for one element, and of one for an array of it.
pub fn same(what: &str, one: &dyn Bits, other: &dyn Bits) {
    assert_eq!(words(one), words(other), "{what}");
}
