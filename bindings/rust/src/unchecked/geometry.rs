// Produced from the catalogue of routines (catalogue/); do not edit.

//! Geometry, unchecked.

use crate::geometry::*;
use crate::{check, elements, sys, Error, Input};
use std::ptr::addr_of_mut;

/// `HOHOLEDP` as it is in quorvel.h.
pub fn clip(
    x: &[f64], y: &[f64], positions_a: &[i32], positions_b: &[i32], crossing_capacity: i32,
    difference_capacity: i32, overlap_capacity: i32, used_points: i32,
) -> Result<Clip, Error> {
    let vertices_a = check::count("unchecked::geometry::clip", &[("positions_a", positions_a.len())])?;
    let vertices_b = check::count("unchecked::geometry::clip", &[("positions_b", positions_b.len())])?;
    let point_capacity = check::count("unchecked::geometry::clip", &[("x", x.len()), ("y", y.len())])?;
    let room_of_difference_capacity = check::room(
        "unchecked::geometry::clip", "difference_capacity", difference_capacity,
    )?;
    let room_of_overlap_capacity = check::room(
        "unchecked::geometry::clip", "overlap_capacity", overlap_capacity,
    )?;
    let mut results = Clip {
        x: x.to_vec(), y: y.to_vec(), used_points, difference_pieces: vec![0; room_of_difference_capacity],
        overlap_pieces: vec![0; room_of_overlap_capacity], status: 0,
    };
    unsafe { sys::HOHOLEDP(
        results.x.as_mut_ptr(), results.y.as_mut_ptr(), &vertices_a, positions_a.as_ptr(), &vertices_b,
        positions_b.as_ptr(), &point_capacity, &crossing_capacity, &difference_capacity, &overlap_capacity,
        &mut results.used_points, results.difference_pieces.as_mut_ptr(), results.overlap_pieces.as_mut_ptr(),
        &mut results.status,
    ) };
    Ok(results)
}

/// [`crate::geometry::overlap`] without checks.
pub fn overlap(x_1: &[f32], y_1: &[f32], x_2: &[f32], y_2: &[f32]) -> Result<Overlap, Error> {
    let vertices_1 = check::count("geometry::overlap", &[("x_1", x_1.len()), ("y_1", y_1.len())])?;
    let vertices_2 = check::count("geometry::overlap", &[("x_2", x_2.len()), ("y_2", y_2.len())])?;
    let mut results = Overlap {
        piece_x: [[f32::NAN; 25]; 5], piece_y: [[f32::NAN; 25]; 5], piece_vertices: [0; 5], area: f32::NAN,
    };
    unsafe { sys::GEOVER(
        x_1.as_ptr(), y_1.as_ptr(), &vertices_1, x_2.as_ptr(), y_2.as_ptr(), &vertices_2,
        results.piece_x.as_mut_ptr().cast(), results.piece_y.as_mut_ptr().cast(),
        results.piece_vertices.as_mut_ptr(), &mut results.area,
    ) };
    Ok(results)
}

/// [`crate::geometry::overlap_alias`] without checks.
pub fn overlap_alias(x_1: &[f32], y_1: &[f32], x_2: &[f32], y_2: &[f32]) -> Result<OverlapAlias, Error> {
    let vertices_1 = check::count("geometry::overlap_alias", &[("x_1", x_1.len()), ("y_1", y_1.len())])?;
    let vertices_2 = check::count("geometry::overlap_alias", &[("x_2", x_2.len()), ("y_2", y_2.len())])?;
    let mut results = OverlapAlias {
        piece_x: [[f32::NAN; 25]; 5], piece_y: [[f32::NAN; 25]; 5], piece_vertices: [0; 5], area: f32::NAN,
    };
    unsafe { sys::GEHOLE(
        x_1.as_ptr(), y_1.as_ptr(), &vertices_1, x_2.as_ptr(), y_2.as_ptr(), &vertices_2,
        results.piece_x.as_mut_ptr().cast(), results.piece_y.as_mut_ptr().cast(),
        results.piece_vertices.as_mut_ptr(), &mut results.area,
    ) };
    Ok(results)
}

/// [`crate::geometry::collinearity`] without checks.
pub fn collinearity(x: &[f32], y: &[f32]) -> Result<i32, Error> {
    let points = check::count("geometry::collinearity", &[("x", x.len()), ("y", y.len())])?;
    Ok(unsafe { sys::IGELIN(x.as_ptr(), y.as_ptr(), &points) })
}

/// [`crate::geometry::count_enclosed`] without checks.
pub fn count_enclosed(
    x: &[f32], y: &[f32], point_x: &[f32], point_y: &[f32], enclosed: &[i32],
) -> Result<CountEnclosed, Error> {
    let vertices = check::count("geometry::count_enclosed", &[("x", x.len()), ("y", y.len())])?;
    let points = check::count("geometry::count_enclosed", &[
        ("point_x", point_x.len()), ("point_y", point_y.len()), ("enclosed", enclosed.len()),
    ])?;
    let mut results = CountEnclosed { enclosed: enclosed.to_vec(), enclosed_points: 0 };
    unsafe { sys::GECLOS(
        x.as_ptr(), y.as_ptr(), &vertices, point_x.as_ptr(), point_y.as_ptr(), &points,
        results.enclosed.as_mut_ptr(), &mut results.enclosed_points,
    ) };
    Ok(results)
}

/// [`crate::geometry::boundary_crossing`] without checks.
pub fn boundary_crossing(
    segment_start: &[f32; 2], segment_end: &[f32; 2], x: &[f32], y: &[f32],
) -> Result<BoundaryCrossing, Error> {
    let vertices = check::count("geometry::boundary_crossing", &[("x", x.len()), ("y", y.len())])?;
    let mut results = BoundaryCrossing { crossing_point: [f32::NAN; 2], crossing_code: 0 };
    unsafe { sys::GESIDE(
        segment_start.as_ptr(), segment_end.as_ptr(), x.as_ptr(), y.as_ptr(), &vertices,
        results.crossing_point.as_mut_ptr(), &mut results.crossing_code,
    ) };
    Ok(results)
}

/// [`crate::geometry::inside`] without checks.
pub fn inside(point: &[f32; 3], polygon: &[[f32; 3]]) -> Result<i32, Error> {
    let vertices = check::count("geometry::inside", &[("polygon", polygon.len())])?;
    let mut result = 0;
    unsafe { sys::GEINSI(point.as_ptr(), polygon.as_ptr().cast(), &vertices, &mut result) };
    Ok(result)
}

/// [`crate::geometry::parallel_planes`] without checks.
pub fn parallel_planes(triangle_1: &[[f64; 3]; 3], triangle_2: &[[f64; 3]; 3]) -> bool {
    unsafe { sys::GEPLEL(triangle_1.as_ptr().cast(), triangle_2.as_ptr().cast()) != 0 }
}

/// [`crate::geometry::parallel_sides`] without checks.
pub fn parallel_sides(triangle_1: &[[f64; 3]; 3], triangle_2: &[[f64; 3]; 3]) -> ParallelSides {
    let mut results = ParallelSides { truth: false, side_1: 0, side_2: 0 };
    results.truth = unsafe { sys::GEPSID(
        triangle_1.as_ptr().cast(), triangle_2.as_ptr().cast(), &mut results.side_1, &mut results.side_2,
    ) != 0 };
    results
}

/// [`crate::geometry::rectangular`] without checks.
pub fn rectangular(quadrilateral: &[[f64; 3]; 4]) -> bool {
    unsafe { sys::GERECT(quadrilateral.as_ptr().cast()) != 0 }
}

/// [`crate::geometry::facing`] without checks.
pub fn facing(triangle: &[[f64; 3]; 3], azimuth: f64) -> Facing {
    let mut results = Facing { azimuth, tilt: f64::NAN };
    unsafe { sys::GETILT(triangle.as_ptr().cast(), &mut results.azimuth, &mut results.tilt) };
    results
}

/// [`crate::geometry::local_coordinates`] without checks.
pub fn local_coordinates(
    quadrilateral_1: &[[f64; 3]; 4], quadrilateral_2: &[[f64; 3]; 4],
) -> LocalCoordinates {
    let mut results = LocalCoordinates { local_1: [[f64::NAN; 3]; 4], local_2: [[f64::NAN; 3]; 4] };
    unsafe { sys::GELCAL(
        quadrilateral_1.as_ptr().cast(), quadrilateral_2.as_ptr().cast(), results.local_1.as_mut_ptr().cast(),
        results.local_2.as_mut_ptr().cast(),
    ) };
    results
}

/// [`crate::geometry::to_local`] without checks.
pub fn to_local(
    corners: &[[f64; 3]; 4], x_axis: &[f64; 3], y_axis: &[f64; 3], z_axis: &[f64; 3],
) -> [[f64; 3]; 4] {
    let mut result = *corners;
    unsafe { sys::GETRNS(result.as_mut_ptr().cast(), x_axis.as_ptr(), y_axis.as_ptr(), z_axis.as_ptr()) };
    result
}

/// [`crate::geometry::meeting_point`] without checks.
pub fn meeting_point(
    line_1_start: &[f32; 2], line_1_end: &[f32; 2], line_2_start: &[f32; 2], line_2_end: &[f32; 2],
) -> [f32; 2] {
    let mut result = [f32::NAN; 2];
    unsafe { sys::GEMEET(
        line_1_start.as_ptr(), line_1_end.as_ptr(), line_2_start.as_ptr(), line_2_end.as_ptr(),
        result.as_mut_ptr(),
    ) };
    result
}

/// [`crate::geometry::crossing_point`] without checks.
pub fn crossing_point(
    segment_1_start: &[f32; 2], segment_1_end: &[f32; 2], segment_2_start: &[f32; 2],
    segment_2_end: &[f32; 2],
) -> [f32; 2] {
    let mut result = [f32::NAN; 2];
    unsafe { sys::GECROS(
        segment_1_start.as_ptr(), segment_1_end.as_ptr(), segment_2_start.as_ptr(), segment_2_end.as_ptr(),
        result.as_mut_ptr(),
    ) };
    result
}

/// [`crate::geometry::in_span`] without checks.
pub fn in_span(first_end: &[f32; 3], second_end: &[f32; 3], point: &[f32; 3]) -> f32 {
    unsafe { sys::GEINLN(first_end.as_ptr(), second_end.as_ptr(), point.as_ptr()) }
}

/// [`crate::geometry::ahead_and_nearer`] without checks.
pub fn ahead_and_nearer(first_end: &[f32; 3], second_end: &[f32; 3], point: &[f32; 3]) -> f32 {
    unsafe { sys::GEINLN2(first_end.as_ptr(), second_end.as_ptr(), point.as_ptr()) }
}

/// [`crate::geometry::coincide`] without checks.
pub fn coincide(x_1: f32, y_1: f32, x_2: f32, y_2: f32) -> bool {
    unsafe { sys::GECOIN(&x_1, &y_1, &x_2, &y_2) != 0 }
}

/// [`crate::geometry::side_of_line`] without checks.
pub fn side_of_line(line_start: &[f32; 2], line_end: &[f32; 2], point: &[f32; 2]) -> i32 {
    unsafe { sys::IGEPNT(line_start.as_ptr(), line_end.as_ptr(), point.as_ptr()) }
}

/// [`crate::geometry::back_azimuth`] without checks.
pub fn back_azimuth(angle: f32) -> f32 {
    unsafe { sys::BORI(&angle) }
}

/// [`crate::geometry::direction_to`] without checks.
pub fn direction_to(solar_altitude: f32, solar_azimuth: f32) -> [f32; 3] {
    let mut result = [f32::NAN; 3];
    unsafe { sys::GESUNV(&solar_altitude, &solar_azimuth, result.as_mut_ptr()) };
    result
}

/// [`crate::geometry::surface_axes`] without checks.
pub fn surface_axes(surface_azimuth: f32, tilt: f32) -> SurfaceAxes {
    let mut results = SurfaceAxes { rotation_matrix: [[f32::NAN; 3]; 3], inverse_matrix: [[f32::NAN; 3]; 3] };
    unsafe { sys::GERSET(
        &surface_azimuth, &tilt, results.rotation_matrix.as_mut_ptr().cast(),
        results.inverse_matrix.as_mut_ptr().cast(),
    ) };
    results
}

/// [`crate::geometry::local_to_global`] without checks.
pub fn local_to_global(local_vector: &[f32; 3], rotation_matrix: &[[f32; 3]; 3]) -> [f32; 3] {
    let mut result = [f32::NAN; 3];
    unsafe { sys::GERAXI(local_vector.as_ptr(), rotation_matrix.as_ptr().cast(), result.as_mut_ptr()) };
    result
}

/// [`crate::geometry::global_to_local`] without checks.
pub fn global_to_local(global_vector: &[f32; 3], rotation_matrix: &[[f32; 3]; 3]) -> [f32; 3] {
    let mut result = [f32::NAN; 3];
    unsafe { sys::GERAX2(global_vector.as_ptr(), rotation_matrix.as_ptr().cast(), result.as_mut_ptr()) };
    result
}

/// [`crate::geometry::plan_area`] without checks.
pub fn plan_area(x: &[f32], y: &[f32]) -> Result<f32, Error> {
    let vertices = check::count("geometry::plan_area", &[("x", x.len()), ("y", y.len())])?;
    Ok(unsafe { sys::GEAPOL(x.as_ptr(), y.as_ptr(), &vertices) })
}

/// [`crate::geometry::signed_plan_area`] without checks.
pub fn signed_plan_area(x: &[f32], y: &[f32]) -> Result<f32, Error> {
    let vertices = check::count("geometry::signed_plan_area", &[("x", x.len()), ("y", y.len())])?;
    Ok(unsafe { sys::GEAPO2(x.as_ptr(), y.as_ptr(), &vertices) })
}

/// [`crate::geometry::area_in_space`] without checks.
pub fn area_in_space(x: &[f32], y: &[f32], z: &[f32]) -> Result<f32, Error> {
    let vertices = check::count("geometry::area_in_space", &[("x", x.len()), ("y", y.len()), ("z", z.len())])?;
    Ok(unsafe { sys::GEAPO3(x.as_ptr(), y.as_ptr(), z.as_ptr(), &vertices) })
}

/// [`crate::geometry::polygon_orientation`] without checks.
pub fn polygon_orientation(polygon: &[[f32; 3]]) -> Result<PolygonOrientation, Error> {
    let vertices = check::count("geometry::polygon_orientation", &[("polygon", polygon.len())])?;
    let mut results = PolygonOrientation { area: f32::NAN, tilt: f32::NAN, back_azimuth: f32::NAN };
    unsafe { sys::GEASO(
        &vertices, polygon.as_ptr().cast(), &mut results.area, &mut results.tilt, &mut results.back_azimuth,
    ) };
    Ok(results)
}

/// [`crate::geometry::projection`] without checks.
pub fn projection(
    plane_point: &[f32; 3], plane_normal: &[f32; 3], point: &[f32; 3], direction: &[f32; 3],
) -> [f32; 3] {
    let mut result = [f32::NAN; 3];
    unsafe { sys::GEPROJ(
        plane_point.as_ptr(), plane_normal.as_ptr(), point.as_ptr(), direction.as_ptr(), result.as_mut_ptr(),
    ) };
    result
}

/// [`crate::geometry::forward_projection`] without checks.
pub fn forward_projection(
    plane_point: &[f32; 3], plane_normal: &[f32; 3], point: &[f32; 3], direction: &[f32; 3],
) -> [f32; 3] {
    let mut result = [f32::NAN; 3];
    unsafe { sys::GEPROJ2(
        plane_point.as_ptr(), plane_normal.as_ptr(), point.as_ptr(), direction.as_ptr(), result.as_mut_ptr(),
    ) };
    result
}

/// [`crate::geometry::forward_projection_or_start`] without checks.
pub fn forward_projection_or_start(
    plane_point: &[f32; 3], plane_normal: &[f32; 3], point: &[f32; 3], direction: &[f32; 3],
) -> [f32; 3] {
    let mut result = [f32::NAN; 3];
    unsafe { sys::GEPROJ3(
        plane_point.as_ptr(), plane_normal.as_ptr(), point.as_ptr(), direction.as_ptr(), result.as_mut_ptr(),
    ) };
    result
}

/// [`crate::geometry::dot_product`] without checks.
pub fn dot_product(vector_a: &[f32; 3], vector_b: &[f32; 3]) -> f32 {
    unsafe { sys::GEDOTP(vector_a.as_ptr(), vector_b.as_ptr()) }
}

/// [`crate::geometry::dot_product_in_double`] without checks.
pub fn dot_product_in_double(vector_a: &[f64; 3], vector_b: &[f64; 3]) -> f64 {
    unsafe { sys::GEDTDP(vector_a.as_ptr(), vector_b.as_ptr()) }
}

/// [`crate::geometry::cross_product`] without checks.
pub fn cross_product(vector_a: &[f32; 3], vector_b: &[f32; 3]) -> [f32; 3] {
    let mut result = [f32::NAN; 3];
    unsafe { sys::GEXPRO(vector_a.as_ptr(), vector_b.as_ptr(), result.as_mut_ptr()) };
    result
}

/// [`crate::geometry::cross_product_in_double`] without checks.
pub fn cross_product_in_double(vector_a: &[f64; 3], vector_b: &[f64; 3]) -> [f64; 3] {
    let mut result = [f64::NAN; 3];
    unsafe { sys::GEXPDP(vector_a.as_ptr(), vector_b.as_ptr(), result.as_mut_ptr()) };
    result
}

/// [`crate::geometry::length`] without checks.
pub fn length(vector: &[f32; 3]) -> f32 {
    unsafe { sys::GEVMOD(vector.as_ptr()) }
}

/// [`crate::geometry::length_in_double`] without checks.
pub fn length_in_double(vector: &[f64; 3]) -> f64 {
    unsafe { sys::GEVMDP(vector.as_ptr()) }
}

/// Functions of whole arrays.
pub mod arrays {
    use super::*;

    /// [`crate::geometry::parallel_planes`] of whole arrays, without checks.
    pub fn parallel_planes<'a>(
        triangle_1: impl Into<Input<'a, [[f64; 3]; 3]>>, triangle_2: impl Into<Input<'a, [[f64; 3]; 3]>>,
    ) -> Result<Vec<bool>, Error> {
        let triangle_1 = triangle_1.into();
        let triangle_2 = triangle_2.into();
        let lengths = [triangle_1.length("triangle_1"), triangle_2.length("triangle_2")];
        let mut results = elements::results::<i32>("geometry::parallel_planes", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_parallel_planes(
            count, triangle_1.first().cast(), triangle_1.stride(), triangle_2.first().cast(), triangle_2.stride(),
            at, stride,
        ) });
        Ok(elements::logical(results))
    }

    /// [`crate::geometry::rectangular`] of whole arrays, without checks.
    pub fn rectangular<'a>(quadrilateral: impl Into<Input<'a, [[f64; 3]; 4]>>) -> Result<Vec<bool>, Error> {
        let quadrilateral = quadrilateral.into();
        let lengths = [quadrilateral.length("quadrilateral")];
        let mut results = elements::results::<i32>("geometry::rectangular", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_rectangular(
            count, quadrilateral.first().cast(), quadrilateral.stride(), at, stride,
        ) });
        Ok(elements::logical(results))
    }

    /// [`crate::geometry::facing`] of whole arrays, without checks.
    pub fn facing<'a>(
        triangle: impl Into<Input<'a, [[f64; 3]; 3]>>, azimuth: impl Into<Input<'a, f64>>,
    ) -> Result<Vec<Facing>, Error> {
        let triangle = triangle.into();
        let azimuth = azimuth.into();
        let lengths = [triangle.length("triangle"), azimuth.length("azimuth")];
        let mut results = elements::results::<Facing>("geometry::facing", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_facing(
            count, triangle.first().cast(), triangle.stride(), azimuth.first(), azimuth.stride(),
            addr_of_mut!((*at).azimuth), stride, addr_of_mut!((*at).tilt), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::local_coordinates`] of whole arrays, without checks.
    pub fn local_coordinates<'a>(
        quadrilateral_1: impl Into<Input<'a, [[f64; 3]; 4]>>,
        quadrilateral_2: impl Into<Input<'a, [[f64; 3]; 4]>>,
    ) -> Result<Vec<LocalCoordinates>, Error> {
        let quadrilateral_1 = quadrilateral_1.into();
        let quadrilateral_2 = quadrilateral_2.into();
        let lengths = [quadrilateral_1.length("quadrilateral_1"), quadrilateral_2.length("quadrilateral_2")];
        let mut results = elements::results::<LocalCoordinates>("geometry::local_coordinates", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_local_coordinates(
            count, quadrilateral_1.first().cast(), quadrilateral_1.stride(),
            quadrilateral_2.first().cast(), quadrilateral_2.stride(), addr_of_mut!((*at).local_1).cast(), stride,
            addr_of_mut!((*at).local_2).cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::to_local`] of whole arrays, without checks.
    pub fn to_local<'a>(
        corners: impl Into<Input<'a, [[f64; 3]; 4]>>, x_axis: impl Into<Input<'a, [f64; 3]>>,
        y_axis: impl Into<Input<'a, [f64; 3]>>, z_axis: impl Into<Input<'a, [f64; 3]>>,
    ) -> Result<Vec<[[f64; 3]; 4]>, Error> {
        let corners = corners.into();
        let x_axis = x_axis.into();
        let y_axis = y_axis.into();
        let z_axis = z_axis.into();
        let lengths = [
            corners.length("corners"), x_axis.length("x_axis"), y_axis.length("y_axis"), z_axis.length("z_axis"),
        ];
        let mut results = elements::results::<[[f64; 3]; 4]>("geometry::to_local", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_to_local(
            count, corners.first().cast(), corners.stride(), x_axis.first().cast(), x_axis.stride(),
            y_axis.first().cast(), y_axis.stride(), z_axis.first().cast(), z_axis.stride(), at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::meeting_point`] of whole arrays, without checks.
    pub fn meeting_point<'a>(
        line_1_start: impl Into<Input<'a, [f32; 2]>>, line_1_end: impl Into<Input<'a, [f32; 2]>>,
        line_2_start: impl Into<Input<'a, [f32; 2]>>, line_2_end: impl Into<Input<'a, [f32; 2]>>,
    ) -> Result<Vec<[f32; 2]>, Error> {
        let line_1_start = line_1_start.into();
        let line_1_end = line_1_end.into();
        let line_2_start = line_2_start.into();
        let line_2_end = line_2_end.into();
        let lengths = [
            line_1_start.length("line_1_start"), line_1_end.length("line_1_end"),
            line_2_start.length("line_2_start"), line_2_end.length("line_2_end"),
        ];
        let mut results = elements::results::<[f32; 2]>("geometry::meeting_point", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_meeting_point(
            count, line_1_start.first().cast(), line_1_start.stride(),
            line_1_end.first().cast(), line_1_end.stride(), line_2_start.first().cast(), line_2_start.stride(),
            line_2_end.first().cast(), line_2_end.stride(), at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::crossing_point`] of whole arrays, without checks.
    pub fn crossing_point<'a>(
        segment_1_start: impl Into<Input<'a, [f32; 2]>>, segment_1_end: impl Into<Input<'a, [f32; 2]>>,
        segment_2_start: impl Into<Input<'a, [f32; 2]>>, segment_2_end: impl Into<Input<'a, [f32; 2]>>,
    ) -> Result<Vec<[f32; 2]>, Error> {
        let segment_1_start = segment_1_start.into();
        let segment_1_end = segment_1_end.into();
        let segment_2_start = segment_2_start.into();
        let segment_2_end = segment_2_end.into();
        let lengths = [
            segment_1_start.length("segment_1_start"), segment_1_end.length("segment_1_end"),
            segment_2_start.length("segment_2_start"), segment_2_end.length("segment_2_end"),
        ];
        let mut results = elements::results::<[f32; 2]>("geometry::crossing_point", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_crossing_point(
            count, segment_1_start.first().cast(), segment_1_start.stride(),
            segment_1_end.first().cast(), segment_1_end.stride(),
            segment_2_start.first().cast(), segment_2_start.stride(),
            segment_2_end.first().cast(), segment_2_end.stride(), at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::in_span`] of whole arrays, without checks.
    pub fn in_span<'a>(
        first_end: impl Into<Input<'a, [f32; 3]>>, second_end: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<f32>, Error> {
        let first_end = first_end.into();
        let second_end = second_end.into();
        let point = point.into();
        let lengths = [first_end.length("first_end"), second_end.length("second_end"), point.length("point")];
        let mut results = elements::results::<f32>("geometry::in_span", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_in_span(
            count, first_end.first().cast(), first_end.stride(), second_end.first().cast(), second_end.stride(),
            point.first().cast(), point.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::ahead_and_nearer`] of whole arrays, without checks.
    pub fn ahead_and_nearer<'a>(
        first_end: impl Into<Input<'a, [f32; 3]>>, second_end: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<f32>, Error> {
        let first_end = first_end.into();
        let second_end = second_end.into();
        let point = point.into();
        let lengths = [first_end.length("first_end"), second_end.length("second_end"), point.length("point")];
        let mut results = elements::results::<f32>("geometry::ahead_and_nearer", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_ahead_and_nearer(
            count, first_end.first().cast(), first_end.stride(), second_end.first().cast(), second_end.stride(),
            point.first().cast(), point.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::coincide`] of whole arrays, without checks.
    pub fn coincide<'a>(
        x_1: impl Into<Input<'a, f32>>, y_1: impl Into<Input<'a, f32>>, x_2: impl Into<Input<'a, f32>>,
        y_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<bool>, Error> {
        let x_1 = x_1.into();
        let y_1 = y_1.into();
        let x_2 = x_2.into();
        let y_2 = y_2.into();
        let lengths = [x_1.length("x_1"), y_1.length("y_1"), x_2.length("x_2"), y_2.length("y_2")];
        let mut results = elements::results::<i32>("geometry::coincide", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_coincide(
            count, x_1.first(), x_1.stride(), y_1.first(), y_1.stride(), x_2.first(), x_2.stride(),
            y_2.first(), y_2.stride(), at, stride,
        ) });
        Ok(elements::logical(results))
    }

    /// [`crate::geometry::side_of_line`] of whole arrays, without checks.
    pub fn side_of_line<'a>(
        line_start: impl Into<Input<'a, [f32; 2]>>, line_end: impl Into<Input<'a, [f32; 2]>>,
        point: impl Into<Input<'a, [f32; 2]>>,
    ) -> Result<Vec<i32>, Error> {
        let line_start = line_start.into();
        let line_end = line_end.into();
        let point = point.into();
        let lengths = [line_start.length("line_start"), line_end.length("line_end"), point.length("point")];
        let mut results = elements::results::<i32>("geometry::side_of_line", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_side_of_line(
            count, line_start.first().cast(), line_start.stride(), line_end.first().cast(), line_end.stride(),
            point.first().cast(), point.stride(), at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::back_azimuth`] of whole arrays, without checks.
    pub fn back_azimuth<'a>(angle: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let angle = angle.into();
        let lengths = [angle.length("angle")];
        let mut results = elements::results::<f32>("geometry::back_azimuth", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_back_azimuth(count, angle.first(), angle.stride(), at, stride) });
        Ok(results)
    }

    /// [`crate::geometry::direction_to`] of whole arrays, without checks.
    pub fn direction_to<'a>(
        solar_altitude: impl Into<Input<'a, f32>>, solar_azimuth: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let solar_altitude = solar_altitude.into();
        let solar_azimuth = solar_azimuth.into();
        let lengths = [solar_altitude.length("solar_altitude"), solar_azimuth.length("solar_azimuth")];
        let mut results = elements::results::<[f32; 3]>("geometry::direction_to", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_direction_to(
            count, solar_altitude.first(), solar_altitude.stride(), solar_azimuth.first(), solar_azimuth.stride(),
            at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::surface_axes`] of whole arrays, without checks.
    pub fn surface_axes<'a>(
        surface_azimuth: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SurfaceAxes>, Error> {
        let surface_azimuth = surface_azimuth.into();
        let tilt = tilt.into();
        let lengths = [surface_azimuth.length("surface_azimuth"), tilt.length("tilt")];
        let mut results = elements::results::<SurfaceAxes>("geometry::surface_axes", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_surface_axes(
            count, surface_azimuth.first(), surface_azimuth.stride(), tilt.first(), tilt.stride(),
            addr_of_mut!((*at).rotation_matrix).cast(), stride, addr_of_mut!((*at).inverse_matrix).cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::local_to_global`] of whole arrays, without checks.
    pub fn local_to_global<'a>(
        local_vector: impl Into<Input<'a, [f32; 3]>>, rotation_matrix: impl Into<Input<'a, [[f32; 3]; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let local_vector = local_vector.into();
        let rotation_matrix = rotation_matrix.into();
        let lengths = [local_vector.length("local_vector"), rotation_matrix.length("rotation_matrix")];
        let mut results = elements::results::<[f32; 3]>("geometry::local_to_global", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_local_to_global(
            count, local_vector.first().cast(), local_vector.stride(),
            rotation_matrix.first().cast(), rotation_matrix.stride(), at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::global_to_local`] of whole arrays, without checks.
    pub fn global_to_local<'a>(
        global_vector: impl Into<Input<'a, [f32; 3]>>, rotation_matrix: impl Into<Input<'a, [[f32; 3]; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let global_vector = global_vector.into();
        let rotation_matrix = rotation_matrix.into();
        let lengths = [global_vector.length("global_vector"), rotation_matrix.length("rotation_matrix")];
        let mut results = elements::results::<[f32; 3]>("geometry::global_to_local", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_global_to_local(
            count, global_vector.first().cast(), global_vector.stride(),
            rotation_matrix.first().cast(), rotation_matrix.stride(), at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::projection`] of whole arrays, without checks.
    pub fn projection<'a>(
        plane_point: impl Into<Input<'a, [f32; 3]>>, plane_normal: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>, direction: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let plane_point = plane_point.into();
        let plane_normal = plane_normal.into();
        let point = point.into();
        let direction = direction.into();
        let lengths = [
            plane_point.length("plane_point"), plane_normal.length("plane_normal"), point.length("point"),
            direction.length("direction"),
        ];
        let mut results = elements::results::<[f32; 3]>("geometry::projection", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_projection(
            count, plane_point.first().cast(), plane_point.stride(),
            plane_normal.first().cast(), plane_normal.stride(), point.first().cast(), point.stride(),
            direction.first().cast(), direction.stride(), at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::forward_projection`] of whole arrays, without checks.
    pub fn forward_projection<'a>(
        plane_point: impl Into<Input<'a, [f32; 3]>>, plane_normal: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>, direction: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let plane_point = plane_point.into();
        let plane_normal = plane_normal.into();
        let point = point.into();
        let direction = direction.into();
        let lengths = [
            plane_point.length("plane_point"), plane_normal.length("plane_normal"), point.length("point"),
            direction.length("direction"),
        ];
        let mut results = elements::results::<[f32; 3]>("geometry::forward_projection", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_forward_projection(
            count, plane_point.first().cast(), plane_point.stride(),
            plane_normal.first().cast(), plane_normal.stride(), point.first().cast(), point.stride(),
            direction.first().cast(), direction.stride(), at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::forward_projection_or_start`] of whole arrays, without checks.
    pub fn forward_projection_or_start<'a>(
        plane_point: impl Into<Input<'a, [f32; 3]>>, plane_normal: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>, direction: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let plane_point = plane_point.into();
        let plane_normal = plane_normal.into();
        let point = point.into();
        let direction = direction.into();
        let lengths = [
            plane_point.length("plane_point"), plane_normal.length("plane_normal"), point.length("point"),
            direction.length("direction"),
        ];
        let mut results = elements::results::<[f32; 3]>("geometry::forward_projection_or_start", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_forward_projection_or_start(
            count, plane_point.first().cast(), plane_point.stride(),
            plane_normal.first().cast(), plane_normal.stride(), point.first().cast(), point.stride(),
            direction.first().cast(), direction.stride(), at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::dot_product`] of whole arrays, without checks.
    pub fn dot_product<'a>(
        vector_a: impl Into<Input<'a, [f32; 3]>>, vector_b: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<f32>, Error> {
        let vector_a = vector_a.into();
        let vector_b = vector_b.into();
        let lengths = [vector_a.length("vector_a"), vector_b.length("vector_b")];
        let mut results = elements::results::<f32>("geometry::dot_product", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dot_product(
            count, vector_a.first().cast(), vector_a.stride(), vector_b.first().cast(), vector_b.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::dot_product_in_double`] of whole arrays, without checks.
    pub fn dot_product_in_double<'a>(
        vector_a: impl Into<Input<'a, [f64; 3]>>, vector_b: impl Into<Input<'a, [f64; 3]>>,
    ) -> Result<Vec<f64>, Error> {
        let vector_a = vector_a.into();
        let vector_b = vector_b.into();
        let lengths = [vector_a.length("vector_a"), vector_b.length("vector_b")];
        let mut results = elements::results::<f64>("geometry::dot_product_in_double", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_dot_product_in_double(
            count, vector_a.first().cast(), vector_a.stride(), vector_b.first().cast(), vector_b.stride(),
            at, stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::cross_product`] of whole arrays, without checks.
    pub fn cross_product<'a>(
        vector_a: impl Into<Input<'a, [f32; 3]>>, vector_b: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let vector_a = vector_a.into();
        let vector_b = vector_b.into();
        let lengths = [vector_a.length("vector_a"), vector_b.length("vector_b")];
        let mut results = elements::results::<[f32; 3]>("geometry::cross_product", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_cross_product(
            count, vector_a.first().cast(), vector_a.stride(), vector_b.first().cast(), vector_b.stride(),
            at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::cross_product_in_double`] of whole arrays, without checks.
    pub fn cross_product_in_double<'a>(
        vector_a: impl Into<Input<'a, [f64; 3]>>, vector_b: impl Into<Input<'a, [f64; 3]>>,
    ) -> Result<Vec<[f64; 3]>, Error> {
        let vector_a = vector_a.into();
        let vector_b = vector_b.into();
        let lengths = [vector_a.length("vector_a"), vector_b.length("vector_b")];
        let mut results = elements::results::<[f64; 3]>("geometry::cross_product_in_double", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_cross_product_in_double(
            count, vector_a.first().cast(), vector_a.stride(), vector_b.first().cast(), vector_b.stride(),
            at.cast(), stride,
        ) });
        Ok(results)
    }

    /// [`crate::geometry::length`] of whole arrays, without checks.
    pub fn length<'a>(vector: impl Into<Input<'a, [f32; 3]>>) -> Result<Vec<f32>, Error> {
        let vector = vector.into();
        let lengths = [vector.length("vector")];
        let mut results = elements::results::<f32>("geometry::length", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_length(count, vector.first().cast(), vector.stride(), at, stride) });
        Ok(results)
    }

    /// [`crate::geometry::length_in_double`] of whole arrays, without checks.
    pub fn length_in_double<'a>(vector: impl Into<Input<'a, [f64; 3]>>) -> Result<Vec<f64>, Error> {
        let vector = vector.into();
        let lengths = [vector.length("vector")];
        let mut results = elements::results::<f64>("geometry::length_in_double", &lengths)?;
        let (count, at, stride) = elements::room(&mut results);
        elements::done(unsafe { sys::quorvel_length_in_double(
            count, vector.first().cast(), vector.stride(), at, stride,
        ) });
        Ok(results)
    }
}
