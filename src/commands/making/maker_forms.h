// The forms of the commands that make brushes: their fields from the values last accepted, and the values
// from what the user filled in.
#pragma once

#include "base/form.h"
#include "makers/arch.h"
#include "makers/box.h"
#include "makers/cylinder.h"
#include "makers/lights.h"
#include "makers/prism.h"
#include "makers/pyramid.h"
#include "makers/revolve.h"
#include "makers/sphere.h"
#include "makers/stairs.h"

namespace velk {

// Their numbers may be typed out of their limits, which are shown beside them then.
Form FormOf(const PrismParams& params);
Form FormOf(const PyramidParams& params);
Form FormOf(const CylinderParams& params);
Form FormOf(const SphereParams& params);
Form FormOf(const RevolveParams& params);
Form FormOf(const BoxParams& params);
Form FormOf(const ArchParams& params);
Form FormOf(const StairParams& params);
// With the names of the classes to choose from.
Form FormOf(const LightParams& params, std::vector<std::string> types);

// Within their limits, where the maker has some.
void Read(const Form& form, PrismParams& params);
void Read(const Form& form, PyramidParams& params);
void Read(const Form& form, CylinderParams& params);
void Read(const Form& form, SphereParams& params);
void Read(const Form& form, RevolveParams& params);
void Read(const Form& form, BoxParams& params);
void Read(const Form& form, ArchParams& params);
void Read(const Form& form, StairParams& params);
// Without a class when there is none to choose.
void Read(const Form& form, LightParams& params);

}  // namespace velk
