#include "commands/making/maker_commands.h"

#include <algorithm>

#include "base/text.h"
#include "commands/editing/repeat.h"
#include "commands/making/made_picture.h"
#include "commands/making/maker_forms.h"
#include "makers/room.h"
#include "makers/seed.h"
#include "mapfile/revolve_file.h"
#include "ops/reshape.h"

namespace velk {
namespace {

MakerRules RulesOf(Editor& editor) {
  return {std::max(editor.settings().gridsize, 1), editor.settings().careful_tools};
}

template <class Params>
Params Wanted(const Form& form, Params params) {
  Read(form, params);
  return params;
}

// With care what is made stays with the seed.
MadeFor OwnerBy(const MakerRules& rules, MadeFor classic) {
  return rules.careful ? MadeFor::SeedsOwner : classic;
}

// False when the form was cancelled; then the values stay as they are. `make` builds what is shown meanwhile.
template <class Params, class Make>
bool Ask(Editor& editor, Form form, Params& params, Make&& make) {
  const auto ghosts = [&](const Form& now) {
    Made made = make(Wanted(now, params));
    return made.tooMany ? Brushes{} : std::move(made.brushes);
  };
  if (!FillWithPreview(editor, form, ghosts)) return false;
  Read(form, params);
  return true;
}

Outcome Cancelled(const char* text) { return Outcome::Drawn(Redraw::All, text ? text : ""); }

// Runs a maker on the one selected brush, and keeps it to be repeated on another.
Outcome MakeRepeatably(Editor& editor, map& m, std::function<Outcome(map&, brush& seed)> make) {
  return RunRepeatably(editor, m, [make = std::move(make)](map& now) {
    brush* seed = OnlySelected(now);
    return seed ? make(now, *seed) : Outcome::Said(kNotOneSelected);
  });
}

template <class Params>
using Maker = Made (*)(const Seed&, const Params&, const MakerRules&);

// The makers that ask for nothing but numbers.
template <class Params>
Outcome MakeByNumbers(Editor& editor, map& m, Params& params, const MakerTexts& texts, Maker<Params> make) {
  const brush* selected = OnlySelected(m);
  if (!selected) return Outcome::Said(kNotOneSelected);
  const auto made = [seed = SeedOf(*selected), make, &editor](const Params& wanted) {
    return make(seed, wanted, RulesOf(editor));
  };
  if (!Ask(editor, FormOf(params), params, made)) return Cancelled(texts.notMade);
  return MakeRepeatably(editor, m, [&editor, &texts, make, wanted = params](map& now, brush& seed) {
    const MakerRules rules = RulesOf(editor);
    return ReplaceSeed(
        now, seed, make(SeedOf(seed), wanted, rules),
        {.owner = OwnerBy(rules, MadeFor::World), .careful = rules.careful, .status = texts.made});
  });
}

std::shared_ptr<MadePicture> PictureOf(Editor& editor, const Seed& seed,
                                       std::span<const char* const> buttons) {
  return std::make_shared<MadePicture>(editor, seed.mins, seed.maxs, buttons);
}

// Has high steps confirmed.
std::optional<FormRefusal> ConfirmHeight(Prompts& prompts, double height) {
  const auto question = StepHeightQuestion(height);
  if (!question) return std::nullopt;
  if (prompts.agrees(kStepHeightCaption, *question)) return std::nullopt;
  return FormRefusal{.text = {}, .field = "steps"};
}

// Its picture shows how high the steps come out.
Form StairsForm(Editor& editor, const StairParams& params, const Seed& seed) {
  Form form = FormOf(params);
  const auto picture = PictureOf(editor, seed, kPictureButtons);
  form.picture = picture;
  const auto height = std::make_shared<double>(0);
  picture->readout = [height](int roll, int pitch, int yaw) {
    return Format(kStairReadout, *height, roll, pitch, yaw);
  };
  form.changed = [picture, height, seed, params, &editor](Form& now) {
    const StairParams wanted = Wanted(now, params);
    *height = StepHeight(seed, wanted.steps);
    picture->show(MakeStairs(seed, wanted, RulesOf(editor)));
  };
  form.check = [height, &editor](Form&) { return ConfirmHeight(editor.services().prompts, *height); };
  return form;
}

// Its picture says when the seed is too low.
Form ArchForm(Editor& editor, const ArchParams& params, const Seed& seed) {
  Form form = FormOf(params);
  const auto picture = PictureOf(editor, seed, kArchPictureButtons);
  form.picture = picture;
  const auto fits = std::make_shared<bool>(true);
  picture->readout = [fits](int roll, int pitch, int yaw) {
    if (!*fits) return Format("%s\n%s", kArchTooShort[0], kArchTooShort[1]);
    return Format(kArchReadout, roll, pitch, yaw);
  };
  form.changed = [picture, fits, seed, params, &editor](Form& now) {
    std::optional<Made> made = MakeArch(seed, Wanted(now, params), RulesOf(editor));
    *fits = made.has_value();
    picture->show(made ? std::move(*made) : Made{});
  };
  return form;
}

Outcome BuildStairs(Editor& editor, map& m, brush& selected, const StairParams& params) {
  const MakerRules rules = RulesOf(editor);
  const Seed seed = SeedOf(selected);
  return ReplaceSeed(m, selected, MakeStairs(seed, params, rules),
                     {.owner = OwnerBy(rules, MadeFor::Current),
                      .careful = rules.careful,
                      .status = StairsMade(StepHeight(seed, params.steps))});
}

Outcome BuildArch(Editor& editor, map& m, brush& selected, const ArchParams& params) {
  const MakerRules rules = RulesOf(editor);
  std::optional<Made> made = MakeArch(SeedOf(selected), params, rules);
  if (!made) return Outcome::Drawn(Redraw::All, rules.careful ? kArchTooShortStatus : kArchTexts.made);
  return ReplaceSeed(
      m, selected, std::move(*made),
      {.owner = OwnerBy(rules, MadeFor::Current), .careful = rules.careful, .status = kArchTexts.made});
}

Outcome BuildRoom(Editor& editor, map& m, int thickness) {
  const MakerRules rules = RulesOf(editor);
  brush* seed = OnlySelected(m);
  if (!seed || !IsWallThickness(thickness)) {
    if (rules.careful) return Outcome::Said(seed ? kBadThickness : kNotOneSelected);
    return Outcome::Drawn(Redraw::All, kRoomTexts.made);
  }
  return ReplaceSeed(
      m, *seed, MakeRoom(SeedOf(*seed), thickness, rules),
      {.owner = OwnerBy(rules, MadeFor::World), .careful = rules.careful, .status = kRoomTexts.made});
}

Outcome BuildRevolved(Editor& editor, map& m, brush& seed, const std::optional<Profile>& profile,
                      const RevolveParams& params) {
  const MakerRules rules = RulesOf(editor);
  Made made = MakeRevolved(SeedOf(seed), profile.value_or(Profile{}), params, rules);
  return ReplaceSeed(m, seed, std::move(made),
                     {.owner = OwnerBy(rules, MadeFor::World),
                      .careful = rules.careful,
                      .status = kRevolveTexts.made,
                      .nothing = profile ? kNothingMade : kProfileUnread});
}

Outcome BuildBox(Editor& editor, map& m, const BoxParams& params) {
  const MakerRules rules = RulesOf(editor);
  Made made = MakeBox(params, editor.texture().current(), editor.panels().groups.current(), rules);
  if (rules.careful && made.brushes.empty()) return Outcome::Said(kNoBoxMade);
  // A point entity's brushes are in no file.
  entity& owner = rules.careful && !m.currentEntity()->isModel ? *m.world() : *m.currentEntity();
  PlaceBrushes(m, owner, std::move(made));
  return Outcome::Drawn(Redraw::All, kBoxTexts.made);
}

}  // namespace

std::optional<int> WallThickness(Editor& editor, const std::function<Brushes(int thickness)>& make) {
  const int gridsize = editor.settings().gridsize;
  if (!editor.settings().query_wall_width) return gridsize;
  const auto ghosts = [&make](const std::string& text) {
    const int thickness = TextToInt(text);
    return IsWallThickness(thickness) ? make(thickness) : Brushes{};
  };
  const auto answer = AskWithPreview(
      editor, {.title = kWallTitle, .prompt = kWallPrompt, .text = Format("%i", gridsize)}, ghosts);
  return answer ? std::optional(TextToInt(*answer)) : std::nullopt;
}

Outcome MakeStairsInPlace(Editor& editor, map& m) {
  const brush* selected = OnlySelected(m);
  if (!selected) return Outcome::Said(kNotOneSelected);
  const Seed seed = SeedOf(*selected);
  StairParams& params = editor.remembered().stairs;
  const auto made = [&](const StairParams& wanted) { return MakeStairs(seed, wanted, RulesOf(editor)); };
  if (!Ask(editor, StairsForm(editor, params, seed), params, made)) return Cancelled(kStairsNotMade);
  return MakeRepeatably(editor, m, [&editor, wanted = params](map& now, brush& b) {
    return BuildStairs(editor, now, b, wanted);
  });
}

Outcome MakeRoomInPlace(Editor& editor, map& m) {
  const std::optional<int> thickness = WallThickness(editor, [&](int wanted) {
    const brush* seed = OnlySelected(m);
    return seed ? MakeRoom(SeedOf(*seed), wanted, RulesOf(editor)).brushes : Brushes{};
  });
  if (!thickness) return {};
  return RunRepeatably(editor, m,
                       [&editor, wanted = *thickness](map& now) { return BuildRoom(editor, now, wanted); });
}

Outcome MakeArchInPlace(Editor& editor, map& m) {
  const brush* selected = OnlySelected(m);
  if (!selected) return Outcome::Said(kNotOneSelected);
  const Seed seed = SeedOf(*selected);
  ArchParams& params = editor.remembered().arch;
  const auto made = [&](const ArchParams& wanted) {
    return MakeArch(seed, wanted, RulesOf(editor)).value_or(Made{});
  };
  if (!Ask(editor, ArchForm(editor, params, seed), params, made)) return Cancelled(kArchTexts.notMade);
  return MakeRepeatably(editor, m, [&editor, wanted = params](map& now, brush& b) {
    return BuildArch(editor, now, b, wanted);
  });
}

Outcome MakeSphereInPlace(Editor& editor, map& m) {
  return MakeByNumbers(editor, m, editor.remembered().sphere, kSphereTexts, MakeSphere);
}

Outcome MakeCylinderInPlace(Editor& editor, map& m) {
  return MakeByNumbers(editor, m, editor.remembered().cylinder, kCylinderTexts, MakeCylinder);
}

Outcome MakePrismInPlace(Editor& editor, map& m) {
  return MakeByNumbers(editor, m, editor.remembered().prism, kPrismTexts, MakePrism);
}

Outcome MakePyramidInPlace(Editor& editor, map& m) {
  return MakeByNumbers(editor, m, editor.remembered().pyramid, kPyramidTexts, MakePyramid);
}

Outcome MakeLightsInPlace(Editor& editor, map& m) {
  const brush* selected = OnlySelected(m);
  if (!selected) return Outcome::Said(kNotOneSelected);
  LightParams& params = editor.remembered().lights;
  const auto made = [&editor, seed = SeedOf(*selected)](const LightParams& wanted) {
    return LightBoxes(seed, wanted, editor.classes());
  };
  if (!Ask(editor, FormOf(params, LightTypes(editor.classes())), params, made)) {
    return Cancelled(kLightsTexts.notMade);
  }
  return MakeRepeatably(editor, m,
                        [wanted = params, careful = RulesOf(editor).careful](map& now, brush& seed) {
                          return MakeLights(now, seed, wanted, careful);
                        });
}

Outcome RevolveInPlace(Editor& editor, map& m) {
  const brush* selected = OnlySelected(m);
  if (!selected) return Outcome::Said(kNotOneSelected);
  const auto file = editor.services().prompts.chooseFile({.title = kRevolveTitle,
                                                          .filter = kRevolveFilter,
                                                          .directory = editor.settings().map_directory,
                                                          .fileName = {}});
  if (!file) return {};
  const auto profile = ReadRevolveFile(editor.services().paths, *file);
  RevolveParams& params = editor.remembered().revolve;
  const auto made = [&, seed = SeedOf(*selected)](const RevolveParams& wanted) {
    return MakeRevolved(seed, profile.value_or(Profile{}), wanted, RulesOf(editor));
  };
  if (!Ask(editor, FormOf(params), params, made)) return Cancelled(kRevolveTexts.notMade);
  return MakeRepeatably(editor, m, [&editor, profile, wanted = params](map& now, brush& seed) {
    return BuildRevolved(editor, now, seed, profile, wanted);
  });
}

Outcome CreateBrush(Editor& editor, map& m) {
  BoxParams& params = editor.remembered().box;
  const auto made = [&](const BoxParams& wanted) {
    return MakeBox(wanted, editor.texture().current(), editor.panels().groups.current(), RulesOf(editor));
  };
  if (!Ask(editor, FormOf(params), params, made)) return Cancelled(kBoxTexts.notMade);
  return RunRepeatably(editor, m,
                       [&editor, wanted = params](map& now) { return BuildBox(editor, now, wanted); });
}

}  // namespace velk
