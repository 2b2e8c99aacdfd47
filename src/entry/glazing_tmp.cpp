// Interim: produced from the catalogue.
#include "entry/entry.h"
#include "glazing/glass.h"
#include "glazing/layers.h"
#include "glazing/pane.h"
#include "glazing/shading_coefficient.h"
#include "glazing/slats.h"
using namespace quorvel;
using namespace quorvel::entry;

Real WNRANG(const Real* theta, const Real* n) {
    return glazing::refraction_angle<Real>(*theta, *n);
}

void WNREFL(const Real* theta, const Real* refracted, const Real* n, Real* rp, Real* rs) {
    const auto [rp_value, rs_value] = glazing::surface_reflectance<Real>(*theta, *refracted, *n);
    store(rp_value, rp);
    store(rs_value, rs);
}

Real WNABEN(const Real* refracted, const Real* kl, const Real*) {
    return glazing::single_pass_absorption<Real>(*refracted, *kl);
}

void WNTAR(const Real* absorbed, const Real* reflected, Real* t, Real* a, Real* r) {
    const auto [t_value, a_value, r_value] = glazing::slab_optics<Real>(*absorbed, *reflected);
    store(t_value, t);
    store(a_value, a);
    store(r_value, r);
}

Real WNKL(const Real* tn, const Real* n) { return glazing::absorption_product<Real>(*tn, *n); }

Real WNTNOR(const Real* kl, const Real* rho) {
    return glazing::normal_transmittance<Real>(*kl, *rho);
}

void WNDRGL(const Real* tn, const Real* r0, const Real* theta, Real* t_p, Real* a_p, Real* r_p,
            Real* t_s, Real* a_s, Real* r_s) {
    const auto [t_p_value, a_p_value, r_p_value, t_s_value, a_s_value, r_s_value] =
        glazing::glass_direct<Real>(*tn, *r0, *theta);
    store(t_p_value, t_p);
    store(a_p_value, a_p);
    store(r_p_value, r_p);
    store(t_s_value, t_s);
    store(a_s_value, a_s);
    store(r_s_value, r_s);
}

void WNDFGL(const Real* tn, const Real* r0, Real* t, Real* a) {
    const auto [t_value, a_value] = glazing::glass_diffuse<Real>(*tn, *r0);
    store(t_value, t);
    store(a_value, a);
}

void WNDRSC(const Real* sc, const Real* scl, const Real* theta, Real* t, Real* a, Real* r) {
    const auto [t_value, a_value, r_value] = glazing::unit_direct<Real>(*sc, *scl, *theta);
    store(t_value, t);
    store(a_value, a);
    store(r_value, r);
}

void WNDFSC(const Real* sc, const Real* scl, Real* t, Real* a, Real* r) {
    const auto [t_value, a_value, r_value] = glazing::unit_diffuse<Real>(*sc, *scl);
    store(t_value, t);
    store(a_value, a);
    store(r_value, r);
}

void WNDRRO(const Real* tau, const Real* rho, const Real*, Real* t, Real* a, Real* r) {
    const auto [t_value, a_value, r_value] = glazing::roller_blind<Real>(*tau, *rho);
    store(t_value, t);
    store(a_value, a);
    store(r_value, r);
}

void WNDRSL(const Real* s, const Real* w, const Real* beta, const Real* phi, const Real* alpha,
            Real* t, Real* a, Real* r) {
    const auto [t_value, a_value, r_value] =
        glazing::slat_direct<Real>(*s, *w, *beta, *phi, *alpha);
    store(t_value, t);
    store(a_value, a);
    store(r_value, r);
}

void WNDRS2(const Real* s, const Real* w, const Real* beta, const Real* phi, const Real* alpha,
            const Real* alpha_b, Real* t, Real* a, Real* r) {
    const auto [t_value, a_value, r_value] =
        glazing::two_faced_slat_direct<Real>(*s, *w, *beta, *phi, *alpha, *alpha_b);
    store(t_value, t);
    store(a_value, a);
    store(r_value, r);
}

void WNDRS3(const Real* s, const Real* w, const Real* beta, const Real* phi, const Real* f,
            const Real* alpha, const Real* alpha_b, Real* t, Real* a, Real* r) {
    const auto [t_value, a_value, r_value] =
        glazing::open_slat_direct<Real>(*s, *w, *beta, *phi, *f, *alpha, *alpha_b);
    store(t_value, t);
    store(a_value, a);
    store(r_value, r);
}

void WNDFSL(const Real* s, const Real* w, const Real* beta, const Real* alpha, Real* t_sky,
            Real* t_ground, Real* a_sky, Real* a_ground) {
    const auto [t_sky_value, t_ground_value, a_sky_value, a_ground_value] =
        glazing::slat_diffuse<Real>(*s, *w, *beta, *alpha);
    store(t_sky_value, t_sky);
    store(t_ground_value, t_ground);
    store(a_sky_value, a_sky);
    store(a_ground_value, a_ground);
}

void WNDFS2(const Real* s, const Real* w, const Real* beta, const Real* alpha, const Real* alpha_b,
            Real* t_sky, Real* t_ground, Real* a_sky, Real* a_ground) {
    const auto [t_sky_value, t_ground_value, a_sky_value, a_ground_value] =
        glazing::two_faced_slat_diffuse<Real>(*s, *w, *beta, *alpha, *alpha_b);
    store(t_sky_value, t_sky);
    store(t_ground_value, t_ground);
    store(a_sky_value, a_sky);
    store(a_ground_value, a_ground);
}

void WNDFS3(const Real* s, const Real* w, const Real* beta, const Real* f, const Real* alpha,
            const Real* alpha_b, Real* t_sky, Real* t_ground, Real* a_sky, Real* a_ground) {
    const auto [t_sky_value, t_ground_value, a_sky_value, a_ground_value] =
        glazing::open_slat_diffuse<Real>(*s, *w, *beta, *f, *alpha, *alpha_b);
    store(t_sky_value, t_sky);
    store(t_ground_value, t_ground);
    store(a_sky_value, a_sky);
    store(a_ground_value, a_ground);
}

void WNDFRO(const Real* tau, const Real* rho, Real* t, Real* a, Real* r) {
    const auto [t_value, a_value, r_value] = glazing::diffuse_roller_blind<Real>(*tau, *rho);
    store(t_value, t);
    store(a_value, a);
    store(r_value, r);
}
