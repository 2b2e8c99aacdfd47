/// An enumeration of `i32`.
pub trait Selector: Copy {
    fn number(self) -> i32;
    fn numbers(values: &[Self]) -> &[i32];
}

/// Declares an enumeration whose values C knows by their numbers.
macro_rules! selector {
    ($(#[$about:meta])* $name:ident { $($(#[$what:meta])* $value:ident = $number:literal,)* }) => {
        $(#[$about])*
        #[repr(i32)]
        #[derive(Clone, Copy, Debug, PartialEq, Eq, Hash)]
        pub enum $name {
            $($(#[$what])* $value = $number,)*
        }

        impl From<$name> for i32 {
            fn from(value: $name) -> i32 {
                value as i32
            }
        }

        impl TryFrom<i32> for $name {
            type Error = crate::Error;

            fn try_from(number: i32) -> Result<Self, crate::Error> {
                match number {
                    $($number => Ok($name::$value),)*
                    _ => Err(crate::Error::Value {
                        function: concat!(stringify!($name), "::try_from"),
                        argument: "number".to_owned(),
                        value: number.to_string(),
                        valid: [$(concat!(stringify!($number), " (", stringify!($value), ")")),*].join(", "),
                    }),
                }
            }
        }

        impl crate::selector::Selector for $name {
            fn number(self) -> i32 {
                self as i32
            }

            fn numbers(values: &[Self]) -> &[i32] {
                // Each value is stored as its number.
                unsafe { std::slice::from_raw_parts(values.as_ptr().cast(), values.len()) }
            }
        }
    };
}
pub(crate) use selector;
