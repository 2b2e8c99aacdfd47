#include "entry/entry.h"
#include "glazing/slats.h"

#include "glazing/store_optics.h"

using namespace quorvel;

namespace {

void store(const glazing::SlatDiffuse& diffuse, Real* t_sky, Real* t_ground, Real* a_sky,
           Real* a_ground) noexcept {
    *t_sky = diffuse.sky_transmittance;
    *t_ground = diffuse.ground_transmittance;
    *a_sky = diffuse.sky_absorptance;
    *a_ground = diffuse.ground_absorptance;
}

}  // namespace

void WNDRSL(const Real* s, const Real* w, const Real* beta, const Real* phi, const Real* alpha,
            Real* t, Real* a, Real* r) {
    store(glazing::slat_direct({*s, *w, *beta, *alpha, *alpha, 0.0f}, *phi), t, a, r);
}

void WNDRS2(const Real* s, const Real* w, const Real* beta, const Real* phi, const Real* alpha,
            const Real* alpha_b, Real* t, Real* a, Real* r) {
    store(glazing::slat_direct({*s, *w, *beta, *alpha, *alpha_b, 0.0f}, *phi), t, a, r);
}

void WNDRS3(const Real* s, const Real* w, const Real* beta, const Real* phi, const Real* f,
            const Real* alpha, const Real* alpha_b, Real* t, Real* a, Real* r) {
    store(glazing::slat_direct({*s, *w, *beta, *alpha, *alpha_b, *f}, *phi), t, a, r);
}

void WNDFSL(const Real* s, const Real* w, const Real* beta, const Real* alpha, Real* t_sky,
            Real* t_ground, Real* a_sky, Real* a_ground) {
    store(glazing::slat_diffuse({*s, *w, *beta, *alpha, *alpha, 0.0f}), t_sky, t_ground, a_sky,
          a_ground);
}

void WNDFS2(const Real* s, const Real* w, const Real* beta, const Real* alpha, const Real* alpha_b,
            Real* t_sky, Real* t_ground, Real* a_sky, Real* a_ground) {
    store(glazing::slat_diffuse({*s, *w, *beta, *alpha, *alpha_b, 0.0f}), t_sky, t_ground, a_sky,
          a_ground);
}

void WNDFS3(const Real* s, const Real* w, const Real* beta, const Real* f, const Real* alpha,
            const Real* alpha_b, Real* t_sky, Real* t_ground, Real* a_sky, Real* a_ground) {
    store(glazing::slat_diffuse({*s, *w, *beta, *alpha, *alpha_b, *f}), t_sky, t_ground, a_sky,
          a_ground);
}
