#include "commands/files/settings_forms.h"

#include <algorithm>

#include "base/text.h"
#include "settings/key_table.h"

namespace velk {
namespace {

using Kind = FormField::Kind;

struct Labelled {
  const char* key;
  const char* label;
  Kind kind;
  const char* page = "";
  const char* unit = "";
  int step = 1;
};

constexpr const char* kPlanViews = "Plan Views";
constexpr const char* kEditing = "Editing";
constexpr const char* kCamera = "Camera View";
constexpr const char* kTextures = "Textures";
constexpr const char* kWindow = "Main Window";

// In the order in which the dialog shows them, page by page.
constexpr Labelled kPreferences[] = {
    {"gridsize", "Grid Size", Kind::Whole, kPlanViews, "units"},
    {"start_set->scale", "Start Scale (percent)", Kind::Whole, kPlanViews, "%", 10},
    {"select_delta", "Selection Delta", Kind::Whole, kPlanViews, "px"},
    {"show_grid", "Grid On", Kind::Flag, kPlanViews},
    {"show_coordinates", "Show Grid Coordinates", Kind::Flag, kPlanViews},
    {"show_names", "Show Entity Names", Kind::Flag, kPlanViews},
    {"showeye", "Show Eye in XY Views", Kind::Flag, kPlanViews},
    {"wheel_zoom", "Wheel Zooms Plan Views", Kind::Flag, kPlanViews},
    {"middle_drag", "Middle Button Drags Plan Views", Kind::Flag, kPlanViews},
    {"drag_vertex", "Vertex Mode (0 = off, 1, or 2)", Kind::Choice, kEditing},
    {"vertex_drag_sensitivity", "Vertex Drag Sensitivity", Kind::Whole, kEditing},
    {"face_drag_percent", "Face Drag Percent", Kind::Whole, kEditing, "%"},
    {"undo_levels", "Undo Levels", Kind::Whole, kEditing, "", 10},
    {"vertex_use_grid", "Vertex Dragging Uses Grid", Kind::Flag, kEditing},
    {"groupmode", "Group Mode On", Kind::Flag, kEditing},
    {"multi_select", "Allow Multiple Selection", Kind::Flag, kEditing},
    {"query_wall_width", "Query Wall Width", Kind::Flag, kEditing},
    {"stepsize", "Step Size", Kind::Whole, kCamera, "units", 8},
    {"steps_per_turn", "Steps Per Turn", Kind::Whole, kCamera},
    {"far_clip_distance", "Far Clip Distance", Kind::Whole, kCamera, "units", 256},
    {"lightintensity", "Light Intensity", Kind::Whole, kCamera},
    {"ambientintensity", "Ambient Intensity", Kind::Whole, kCamera},
    {"show_cameras", "Show Cameras", Kind::Flag, kCamera},
    {"lock_cameras", "Unlock Cameras", Kind::Flag, kCamera},
    {"shadeflats", "Shade Flats", Kind::Flag, kCamera},
    {"shadetextures", "Shade Textures", Kind::Flag, kCamera},
    {"texture_width", "Texture Width", Kind::Whole, kTextures, "px", 8},
    {"texture_height", "Texture Height", Kind::Whole, kTextures, "px", 8},
    {"height_fav", "Favorites Height", Kind::Whole, kTextures, "px", 8},
    {"height_frq", "Frequent Height", Kind::Whole, kTextures, "px", 8},
    {"gammashift", "Gammashift (0 = off)*", Kind::Whole, kTextures},
    {"stretch_textures", "Stretch Textures", Kind::Flag, kTextures},
    {"show_favorites", "Show Favorites", Kind::Flag, kTextures},
    {"show_frequent", "Show Frequent", Kind::Flag, kTextures},
    {"texture_alignment", "Alt. 45 Deg. Face Texturing", Kind::Flag, kTextures},
    {"velk_font", "Velk Font*", Kind::Text, kWindow},
    {"velk_font_size", "Velk Font Size*", Kind::Whole, kWindow, "px"},
    {"show_tabs", "Show Tabs (0/off, 1/top, 2/bottom)*", Kind::Choice, kWindow},
};

// What the numbers of a key mean; an entry a number.
struct Choices {
  const char* key;
  std::vector<std::string> texts;
};
const std::vector<Choices>& KeyChoices() {
  static const std::vector<Choices> kAll{{"drag_vertex", {"Off", "1", "2"}},
                                         {"show_tabs", {"Off", "Top", "Bottom"}}};
  return kAll;
}

constexpr Labelled kColours[] = {
    {"fgcolor", "Window Foreground", Kind::Colour},
    {"bgcolor", "Window Background", Kind::Colour},
    {"majorgrid", "Major Grid", Kind::Colour},
    {"minorgrid", "Minor Grid", Kind::Colour},
    {"color_gridlabel", "Grid Labels", Kind::Colour},
    {"color_currentclipface", "Current Clip Point", Kind::Colour},
    {"color_otherclipface", "Other Clip Points", Kind::Colour},
    {"color_clipborder", "Clip Point Border", Kind::Colour},
    {"color_connection", "Connections", Kind::Colour},
    {"color_selection", "Selected Brush", Kind::Colour},
    {"color_otherbrush", "Other Brushes", Kind::Colour},
    {"color_curfacecolor", "Current Face", Kind::Colour},
    {"color_hitcolor", "Hit Brushes", Kind::Colour},
    {"color_eyemarker", "Eye Marker Color", Kind::Colour},
    {"color_activecamera", "Active Camera", Kind::Colour},
    {"color_othercamera", "Other Cameras", Kind::Colour},
    {"color_textureselection", "Selected Texture", Kind::Colour},
    {"brush_outline", "3D Texture Outline", Kind::Colour},
    {"select_outline", "3D Texture Selected", Kind::Colour},
    {"face_outline", "3D Texture Cur. Face", Kind::Colour},
};

struct Located {
  Labelled field;
  const char* chooser;
};
constexpr Located kDirectories[] = {
    {{"map_directory", ".map Directory", Kind::Folder}, "Choose default .map file directory..."},
    {{"entity_qc_directory", ".qc Directory", Kind::Folder}, "Choose default .qc file directory..."},
    {{"wad_directory", ".wad Directory", Kind::Folder}, "Choose default .wad file directory..."},
    {{"bat_directory", ".bat Directory", Kind::Folder}, "Choose default .bat file directory..."},
    {{"compiler_directory", "Compiler Directory", Kind::Folder}, "Choose the compiler's directory..."},
    {{"badtex", "badtex File", Kind::File}, "Choose badtex.bmp file..."},
    {{"newmap", "Default .map:", Kind::Text}, ""},
    {{"default_wad", "Default .wad(s):", Kind::Text}, ""},
    {{"entities", "Default .qc(s) (entities):", Kind::Text}, ""},
};

// The check box asks the opposite of what the key says.
bool IsReversed(std::string_view key) { return key == "lock_cameras"; }

std::string Reversed(const std::string& flag) { return TextToInt(flag) != 0 ? "0" : "1"; }

std::vector<std::string> ChoicesOf(std::string_view key) {
  for (const Choices& choices : KeyChoices()) {
    if (choices.key == key) return choices.texts;
  }
  return {};
}

// The dialog's own; those of other keys stand in the key table.
constexpr Limits kFaceDrag{1, 49};

Limits LimitsOf(const std::string& key) {
  const SettingKey* known = FindSettingKey(key);
  if (key == "face_drag_percent") return kFaceDrag;
  return known ? known->limits : Limits{};
}

NumberRange RangeOf(const Labelled& from) {
  const auto [low, high] = LimitsOf(from.key);
  NumberRange range;
  range.low = low;
  range.high = high;
  range.step = from.step;
  range.unit = from.unit;
  return range;
}

FormField FieldOf(const Labelled& from, const Settings& settings, const char* chooser = "") {
  FormField field;
  field.name = from.key;
  field.label = from.label;
  field.kind = from.kind;
  field.page = from.page;
  field.title = chooser;
  field.value = SettingText(settings, from.key).value_or("");
  field.choices = ChoicesOf(from.key);
  if (field.isNumber()) field.range = RangeOf(from);
  if (IsReversed(from.key)) field.value = Reversed(field.value);
  return field;
}

int ShownScale(const Settings& settings) { return Truncate(RoundHalfAway(settings.scale * 100.0)); }

// A number without digits keeps what the key holds.
std::string Limited(const FormField& field) {
  const auto number = LeadingInt(field.value);
  if (!number || !field.isNumber()) return field.value;
  const auto [low, high] = LimitsOf(field.name);
  return Format("%i", std::clamp(*number, low, high));
}

Form DialogOf(const char* title, const char* saveLabel, const char* note = "") {
  Form form;
  form.title = title;
  form.saveLabel = saveLabel;
  form.note = note;
  return form;
}

}  // namespace

Form PreferencesForm(const Settings& settings) {
  Form form = DialogOf("Preferences", "Save to VELK.INI",
                       "* = Must Save to Velk.ini and Restart Velk for Changes to Take Effect");
  Settings now = settings;
  now.start_set_scale = ShownScale(settings);
  for (const Labelled& preference : kPreferences) form.fields.push_back(FieldOf(preference, now));
  return form;
}

Form ColoursForm(const Settings& settings) {
  Form form = DialogOf("Set Colors...", "Save");
  for (const Labelled& colour : kColours) form.fields.push_back(FieldOf(colour, settings, colour.label));
  return form;
}

Form DirectoriesForm(const Settings& settings) {
  Form form = DialogOf("Set Directories & File Locations...", "Save to .ini",
                       "Multiple .wad or .qc files are specified as:\nwad1.wad;wad2.wad;wad3.wad");
  for (const auto& [field, chooser] : kDirectories) form.fields.push_back(FieldOf(field, settings, chooser));
  return form;
}

Form MouseForm(const std::vector<std::string>& planSetups, int planCurrent,
               const std::vector<std::string>& cameraSetups, int cameraCurrent) {
  Form form = DialogOf("Mouse Settings", "");
  form.fields = {ChoiceField("XY", "XY Settings", planCurrent, planSetups),
                 ChoiceField("3D", "3D Settings", cameraCurrent, cameraSetups)};
  return form;
}

void ApplyForm(const Form& form, Settings& settings) {
  for (const FormField& field : form.fields) {
    SetSettingText(settings, field.name, IsReversed(field.name) ? Reversed(field.value) : Limited(field));
  }
  // The form shows whole percents; a scale that it did not change keeps its fraction.
  const FormField* scale = form.find("start_set->scale");
  const bool changed = scale && TextToInt(scale->value) != ShownScale(settings);
  if (changed) settings.scale = static_cast<float>(0.01 * settings.start_set_scale);
}

}  // namespace velk
