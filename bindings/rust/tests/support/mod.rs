//! What the generated tests call: the calls of the corpus, column by column, and what they are held against.
#![allow(dead_code, unused_imports)] // each program takes its part

mod bits;
mod corpus;

pub use bits::{near, same, Bits};
pub use corpus::{finish, run, Corpus, Differing};
