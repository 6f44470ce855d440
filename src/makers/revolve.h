// A profile from a file, turned about the y axis through the seed's middle.
#pragma once

#include "makers/lathe.h"
#include "makers/maker_texts.h"

namespace velk {

inline constexpr MakerTexts kRevolveTexts{"Revolve Object", "Revolved object at selected brush position...",
                                          "Couldn't revolve object..."};
inline constexpr const char* kProfileUnread = "No profile could be read, brush kept...";
inline constexpr int kMostRevolveStrips = 99;

struct RevolveParams {
  int strips = 5;   // around the axis
  int inner = 100;  // what 1 in the profile means, in world units; the outer at least one larger
  int outer = 200;
};
inline constexpr MakerField kRevolveFields[] = {
    {"strips", "Strips", 1, kMostRevolveStrips}, {"inner", "Inner Radius", 1}, {"outer", "Outer Radius", 2}};

// What the form's numbers become before they are remembered.
RevolveParams Limited(const RevolveParams& params);

// An empty profile makes nothing.
Made MakeRevolved(const Seed& seed, const Profile& profile, const RevolveParams& params,
                  const MakerRules& rules);

}  // namespace velk
