//! Polygons in plan: what two of them have in common, and what is left of one without the other.
//!
//! ```
//! use quorvel::polygon::{clip, total_area};
//!
//! let roof = [[0.0, 0.0], [0.0, 8.0], [12.0, 8.0], [12.0, 0.0]];
//! let shadow = [[6.0, 4.0], [6.0, 20.0], [20.0, 20.0], [20.0, 4.0]];
//! let clipped = clip(&roof, &shadow)?;
//! assert_eq!(total_area(&clipped.overlap), 24.0);
//! # Ok::<(), quorvel::Error>(())
//! ```

use crate::clipping_status::is_short_of_room;
use crate::{geometry, unchecked, Error};

/// x and y in m.
pub type Point = [f64; 2];

/// Vertices one after the other, either way round.
pub type Polygon = Vec<Point>;

const FIRST_ROOM: usize = 64;
const MOST_ROOM: usize = 1 << 24;
const MOST_CROSSINGS: i32 = 1024;

/// What is left of a polygon A without another one, B, and what they have in common. The pieces run in the sense of A.
/// Where B lies within A the difference is two pieces, which touch along level bridges.
#[derive(Clone, Debug, PartialEq)]
pub struct Clipped {
    /// A without B.
    pub difference: Vec<Polygon>,
    /// A and B.
    pub overlap: Vec<Polygon>,
}

/// Difference A - B and overlap of two polygons, exact to about 1e-4 of the diagonal of the box round both, times the
/// length of the boundaries; the areas of difference and overlap add up to that of A to rounding.
///
/// # Errors
/// [`Error::Clipping`] where a polygon crosses itself, has no area or fewer than 3 vertices, or coordinates that are
/// not numbers, or the two cross more than 1024 times.
pub fn clip(a: &[Point], b: &[Point]) -> Result<Clipped, Error> {
    if a.iter().chain(b).flatten().any(|coordinate| !coordinate.is_finite()) {
        return Err(Error::Clipping { status: 109 });
    }
    let mut room = FIRST_ROOM;
    loop {
        let found = attempt(a, b, room)?;
        match found.status {
            0 => {
                let pieces = |list: &[i32]| pieces(&found, list);
                return Ok(Clipped {
                    difference: pieces(&found.difference_pieces),
                    overlap: pieces(&found.overlap_pieces),
                });
            }
            status if is_short_of_room(status) && room < MOST_ROOM => room *= 2,
            status => return Err(Error::Clipping { status }),
        }
    }
}

/// Area of a polygon in m², whichever way round it is.
pub fn area(polygon: &[Point]) -> f64 {
    let origin = polygon.first().copied().unwrap_or_default();
    let from_origin = |point: Point| [point[0] - origin[0], point[1] - origin[1]];
    let twice: f64 = polygon
        .windows(2)
        .map(|edge| {
            let (p, q) = (from_origin(edge[0]), from_origin(edge[1]));
            q[0] * p[1] - p[0] * q[1]
        })
        .sum();
    twice.abs() / 2.0
}

/// Area of pieces together in m².
pub fn total_area(pieces: &[Polygon]) -> f64 {
    pieces.iter().map(|piece| area(piece)).sum()
}

fn attempt(a: &[Point], b: &[Point], room: usize) -> Result<geometry::Clip, Error> {
    let given = a.len() + b.len();
    let coordinates = |axis: usize| -> Vec<f64> {
        let points = a.iter().chain(b).map(|point| point[axis]);
        points.chain(std::iter::repeat(0.0).take(room)).collect()
    };
    let capacity = i32::try_from(given + room).map_err(|_| Error::Clipping { status: 7 })?;
    let positions: Vec<i32> = (1..=given as i32).collect();
    let (of_a, of_b) = positions.split_at(a.len());
    unchecked::geometry::clip(
        &coordinates(0), &coordinates(1), of_a, of_b, MOST_CROSSINGS, capacity, capacity, given as i32,
    )
}

/// A list has the number of vertices of each piece, their positions from 1, negative where a bridge begins, and a 0 at
/// last.
fn pieces(found: &geometry::Clip, mut list: &[i32]) -> Vec<Polygon> {
    let mut pieces = Vec::new();
    while list[0] != 0 {
        let (piece, rest) = list[1..].split_at(list[0] as usize);
        let point = |position: &i32| {
            let place = position.unsigned_abs() as usize - 1;
            [found.x[place], found.y[place]]
        };
        pieces.push(piece.iter().map(point).collect());
        list = rest;
    }
    pieces
}
