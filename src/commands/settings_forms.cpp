#include "commands/settings_forms.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

using Kind = FormField::Kind;

struct Labelled {
  const char* key;
  const char* label;
  Kind kind;
};

// In the order in which the dialog shows them.
constexpr Labelled kPreferences[] = {
    {"gridsize", "Grid Size", Kind::Text},
    {"start_set->scale", "Start Scale (percent)", Kind::Text},
    {"stepsize", "Step Size", Kind::Text},
    {"steps_per_turn", "Steps Per Turn", Kind::Text},
    {"far_clip_distance", "Far Clip Distance", Kind::Text},
    {"select_delta", "Selection Delta", Kind::Text},
    {"drag_vertex", "Vertex Mode (0 = off, 1, or 2)", Kind::Text},
    {"vertex_drag_sensitivity", "Vertex Drag Sensitivity", Kind::Text},
    {"face_drag_percent", "Face Drag Percent", Kind::Text},
    {"lightintensity", "Light Intensity", Kind::Text},
    {"ambientintensity", "Ambient Intensity", Kind::Text},
    {"texture_width", "Texture Width", Kind::Text},
    {"texture_height", "Texture Height", Kind::Text},
    {"height_fav", "Favorites Height", Kind::Text},
    {"height_frq", "Frequent Height", Kind::Text},
    {"undo_levels", "Undo Levels", Kind::Text},
    {"gammashift", "Gammashift (0 = off)*", Kind::Text},
    {"velk_font", "Velk Font*", Kind::Text},
    {"velk_font_size", "Velk Font Size*", Kind::Text},
    {"show_tabs", "Show Tabs (0/off, 1/top, 2/bottom)*", Kind::Text},
    {"show_grid", "Grid On", Kind::Flag},
    {"show_coordinates", "Show Grid Coordinates", Kind::Flag},
    {"show_names", "Show Entity Names", Kind::Flag},
    {"showeye", "Show Eye in XY Views", Kind::Flag},
    {"show_cameras", "Show Cameras", Kind::Flag},
    {"lock_cameras", "Unlock Cameras", Kind::Flag},
    {"groupmode", "Group Mode On", Kind::Flag},
    {"multi_select", "Allow Multiple Selection", Kind::Flag},
    {"vertex_use_grid", "Vertex Dragging Uses Grid", Kind::Flag},
    {"query_wall_width", "Query Wall Width", Kind::Flag},
    {"texture_alignment", "Alt. 45 Deg. Face Texturing", Kind::Flag},
    {"shadeflats", "Shade Flats", Kind::Flag},
    {"shadetextures", "Shade Textures", Kind::Flag},
    {"stretch_textures", "Stretch Textures", Kind::Flag},
    {"show_favorites", "Show Favorites", Kind::Flag},
    {"show_frequent", "Show Frequent", Kind::Flag},
    {"wheel_zoom", "Wheel Zooms Plan Views", Kind::Flag},
    {"middle_drag", "Middle Button Drags Plan Views", Kind::Flag},
};

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
    {{"badtex", "badtex File", Kind::File}, "Choose badtex.bmp file..."},
    {{"newmap", "Default .map:", Kind::Text}, ""},
    {{"default_wad", "Default .wad(s):", Kind::Text}, ""},
    {{"entities", "Default .qc(s) (entities):", Kind::Text}, ""},
};

// The check box asks the opposite of what the key says.
bool isReversed(std::string_view key) { return key == "lock_cameras"; }

std::string reversed(const std::string& flag) { return TextToInt(flag) != 0 ? "0" : "1"; }

FormField fieldOf(const Labelled& from, const Settings& settings, const char* chooser = "") {
  FormField field{from.key, from.label, from.kind, SettingText(settings, from.key).value_or(""), {}, chooser};
  if (isReversed(from.key)) field.value = reversed(field.value);
  return field;
}

int shownScale(const Settings& settings) { return Truncate(RoundHalfAway(settings.scale * 100.0)); }

// Limits that only the dialog has.
std::string limited(const FormField& field) {
  if (field.name != "face_drag_percent") return field.value;
  return Format("%i", std::clamp(TextToInt(field.value), 1, 49));
}

FormField choiceOf(const char* name, const char* label, const std::vector<std::string>& setups, int current) {
  return {name, label, Kind::Choice, Format("%i", current), setups, ""};
}

}  // namespace

Form PreferencesForm(const Settings& settings) {
  Form form{"Preferences",
            {},
            "* = Must Save to Velk.ini and Restart Velk for Changes to Take Effect",
            "Save to VELK.INI"};
  Settings now = settings;
  now.start_set_scale = shownScale(settings);
  for (const Labelled& preference : kPreferences) form.fields.push_back(fieldOf(preference, now));
  return form;
}

Form ColoursForm(const Settings& settings) {
  Form form{"Set Colors...", {}, "", "Save"};
  for (const Labelled& colour : kColours) form.fields.push_back(fieldOf(colour, settings, colour.label));
  return form;
}

Form DirectoriesForm(const Settings& settings) {
  Form form{"Set Directories & File Locations...",
            {},
            "Multiple .wad or .qc files are specified as:\nwad1.wad;wad2.wad;wad3.wad",
            "Save to .ini"};
  for (const auto& [field, chooser] : kDirectories) form.fields.push_back(fieldOf(field, settings, chooser));
  return form;
}

Form MouseForm(const std::vector<std::string>& planSetups, int planCurrent,
               const std::vector<std::string>& cameraSetups, int cameraCurrent) {
  return {"Mouse Settings",
          {choiceOf("XY", "XY Settings", planSetups, planCurrent),
           choiceOf("3D", "3D Settings", cameraSetups, cameraCurrent)},
          "",
          ""};
}

void ApplyForm(const Form& form, Settings& settings) {
  for (const FormField& field : form.fields) {
    SetSettingText(settings, field.name, isReversed(field.name) ? reversed(field.value) : limited(field));
  }
  // The form shows whole percents; a scale that it did not change keeps its fraction.
  const auto scale = std::find_if(form.fields.begin(), form.fields.end(),
                                  [](const FormField& field) { return field.name == "start_set->scale"; });
  const bool changed = scale != form.fields.end() && TextToInt(scale->value) != shownScale(settings);
  if (changed) settings.scale = static_cast<float>(0.01 * settings.start_set_scale);
}

}  // namespace velk
