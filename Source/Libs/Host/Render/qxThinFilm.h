#pragma once

#include "Render/qxRenderMath.h"

/// The light that a thin film on a surface reflects, after Belcour and Barla 2017, "A Practical
/// Extension to Microfacet Theory for the Modeling of Varying Iridescence", in the form that
/// KHR_materials_iridescence gives it.
/// \param ior of the film
/// \param thickness in nanometres
/// \param base what the surface below reflects at right angles
osg::Vec3f qxThinFilm(float cosine, float ior, float thickness, const osg::Vec3f &base);
