#include "commands/making/maker_commands.h"

#include <algorithm>

#include "base/text.h"
#include "commands/making/maker_forms.h"
#include "makers/room.h"
#include "makers/seed.h"
#include "mapfile/revolve_file.h"

namespace velk {
namespace {

MakerRules RulesOf(Editor& editor) {
  return {std::max(editor.settings().gridsize, 1), editor.settings().careful_tools};
}

// False when the form was cancelled; then the values stay as they are.
template <class Params>
bool Ask(Editor& editor, Form form, Params& params) {
  if (editor.services().prompts.fill(form) == FormAnswer::Cancel) return false;
  Read(form, params);
  return true;
}

Outcome Cancelled(const char* text) { return Outcome::Drawn(Redraw::All, text ? text : ""); }

template <class Params>
using Maker = Made (*)(const Seed&, const Params&, const MakerRules&);

// The makers that ask for nothing but numbers.
template <class Params>
Outcome MakeByNumbers(Editor& editor, map& m, Params& params, const MakerTexts& texts, Maker<Params> make) {
  brush* seed = OnlySelected(m);
  if (!seed) return Outcome::Said(kNotOneSelected);
  if (!Ask(editor, FormOf(params), params)) return Cancelled(texts.notMade);
  const MakerRules rules = RulesOf(editor);
  return ReplaceSeed(m, *seed, make(SeedOf(*seed), params, rules),
                     {.careful = rules.careful, .status = texts.made});
}

// With care what is made stays with the seed.
MadeFor OwnerBy(const MakerRules& rules, MadeFor classic) {
  return rules.careful ? MadeFor::SeedsOwner : classic;
}

double HeightOfSteps(const Form& form, const Seed& seed) {
  StairParams params;
  Read(form, params);
  return StepHeight(seed, params.steps);
}

// Shows how high the steps come out, and has high ones confirmed.
Form StairsForm(const StairParams& params, const Seed& seed, Prompts& prompts) {
  Form form = FormOf(params);
  form.changed = [seed](Form& now) { now.note = Format("Step Height: %3.2f", HeightOfSteps(now, seed)); };
  form.check = [seed, &prompts](Form& now) -> std::optional<FormRefusal> {
    const auto question = StepHeightQuestion(HeightOfSteps(now, seed));
    if (!question) return std::nullopt;
    const Answer answer = prompts.ask({.caption = kStepHeightCaption,
                                       .text = *question,
                                       .buttons = MessageBox::Buttons::YesNo,
                                       .icon = MessageBox::Icon::Question});
    return answer == Answer::Yes ? std::nullopt : std::optional(FormRefusal{.text = {}, .field = "steps"});
  };
  return form;
}

// Says when the seed is too low.
Form ArchForm(const ArchParams& params, const Seed& seed, const MakerRules& rules) {
  Form form = FormOf(params);
  form.changed = [seed, rules](Form& now) {
    ArchParams wanted;
    Read(now, wanted);
    const bool fits = MakeArch(seed, wanted, rules).has_value();
    now.note = fits ? "" : Format("%s\n%s", kArchTooShort[0], kArchTooShort[1]);
  };
  return form;
}

}  // namespace

std::optional<int> WallThickness(Editor& editor) {
  const int gridsize = editor.settings().gridsize;
  if (!editor.settings().query_wall_width) return gridsize;
  const auto answer = editor.services().prompts.input(
      {.title = kWallTitle, .prompt = kWallPrompt, .text = Format("%i", gridsize)});
  return answer ? std::optional(TextToInt(*answer)) : std::nullopt;
}

Outcome MakeStairsInPlace(Editor& editor, map& m) {
  brush* brushSelected = OnlySelected(m);
  if (!brushSelected) return Outcome::Said(kNotOneSelected);
  const Seed seed = SeedOf(*brushSelected);
  StairParams& params = editor.remembered().stairs;
  if (!Ask(editor, StairsForm(params, seed, editor.services().prompts), params)) {
    return Cancelled(kStairsNotMade);
  }
  const MakerRules rules = RulesOf(editor);
  return ReplaceSeed(m, *brushSelected, MakeStairs(seed, params, rules),
                     {.owner = OwnerBy(rules, MadeFor::Current),
                      .careful = rules.careful,
                      .status = StairsMade(StepHeight(seed, params.steps))});
}

Outcome MakeRoomInPlace(Editor& editor, map& m) {
  const std::optional<int> thickness = WallThickness(editor);
  if (!thickness) return {};
  const MakerRules rules = RulesOf(editor);
  brush* seed = OnlySelected(m);
  if (!seed || !IsWallThickness(*thickness)) {
    if (rules.careful) return Outcome::Said(seed ? kNothingMade : kNotOneSelected);
    return Outcome::Drawn(Redraw::All, kRoomTexts.made);
  }
  return ReplaceSeed(
      m, *seed, MakeRoom(SeedOf(*seed), *thickness, rules),
      {.owner = OwnerBy(rules, MadeFor::World), .careful = rules.careful, .status = kRoomTexts.made});
}

Outcome MakeArchInPlace(Editor& editor, map& m) {
  brush* brushSelected = OnlySelected(m);
  if (!brushSelected) return Outcome::Said(kNotOneSelected);
  const Seed seed = SeedOf(*brushSelected);
  const MakerRules rules = RulesOf(editor);
  ArchParams& params = editor.remembered().arch;
  if (!Ask(editor, ArchForm(params, seed, rules), params)) return Cancelled(kArchTexts.notMade);
  std::optional<Made> made = MakeArch(seed, params, rules);
  if (!made) return Outcome::Drawn(Redraw::All, rules.careful ? kArchTooShortStatus : kArchTexts.made);
  return ReplaceSeed(
      m, *brushSelected, std::move(*made),
      {.owner = OwnerBy(rules, MadeFor::Current), .careful = rules.careful, .status = kArchTexts.made});
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
  brush* seed = OnlySelected(m);
  if (!seed) return Outcome::Said(kNotOneSelected);
  LightParams& params = editor.remembered().lights;
  if (!Ask(editor, FormOf(params, LightTypes(editor.classes())), params)) {
    return Cancelled(kLightsTexts.notMade);
  }
  return MakeLights(m, *seed, params);
}

Outcome RevolveInPlace(Editor& editor, map& m) {
  brush* seed = OnlySelected(m);
  if (!seed) return Outcome::Said(kNotOneSelected);
  const auto file = editor.services().prompts.chooseFile({.title = kRevolveTitle,
                                                          .filter = kRevolveFilter,
                                                          .directory = editor.settings().map_directory,
                                                          .fileName = {}});
  if (!file) return {};
  RevolveParams& params = editor.remembered().revolve;
  if (!Ask(editor, FormOf(params), params)) return Cancelled(kRevolveTexts.notMade);
  const MakerRules rules = RulesOf(editor);
  const auto profile = ReadRevolveFile(editor.services().paths, *file);
  Made made = MakeRevolved(SeedOf(*seed), profile.value_or(Profile{}), params, rules);
  return ReplaceSeed(m, *seed, std::move(made),
                     {.careful = rules.careful,
                      .status = kRevolveTexts.made,
                      .nothing = profile ? kNothingMade : kProfileUnread});
}

Outcome CreateBrush(Editor& editor, map& m) {
  BoxParams& params = editor.remembered().box;
  if (!Ask(editor, FormOf(params), params)) return Cancelled(kBoxTexts.notMade);
  const MakerRules rules = RulesOf(editor);
  Made made = MakeBox(params, editor.texture().current(), editor.panels().groups.current(), rules);
  if (rules.careful && made.brushes.empty()) return Outcome::Said(kNoBoxMade);
  PlaceBrushes(m, *m.currentEntity(), std::move(made));
  return Outcome::Drawn(Redraw::All, kBoxTexts.made);
}

}  // namespace velk
