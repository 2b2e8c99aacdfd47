/** One value for all elements, or a value for each. */
export type Each<T> = T | ArrayLike<T> | ArrayLike<number>;

/** The numbers of a vector, of points or of layers: one after the other, or row by row. */
export type List = ArrayLike<number> | ArrayLike<ArrayLike<number>>;

/** Of an object with the values of a selector. */
export type NameOrValue<Values> = keyof Values | Values[keyof Values];
