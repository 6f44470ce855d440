#include "settings/key_table.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

using S = Settings;
using Form = KeyForm;

// Large enough for any use, small enough that sums and products of two values fit an int.
constexpr int kLargest = 30000;
constexpr int kLargestFont = 200;   // pixels
constexpr int kLargestCell = 1024;  // pixels

constexpr Limits kNone{};  // for forms without limits
constexpr Limits kAny{-kLargest, kLargest};
constexpr Limits kShade{0, 63};
constexpr Limits kPicture{16, 8192};
constexpr Limits kControl{1, 4096};
constexpr Limits AtLeast(int low) { return {low, kLargest}; }

constexpr SettingKey kKeys[] = {
    {"newmap", Form::Text, &S::newmap, kNone, SavedBy::Directories, 6},
    {"entity_qc_directory", Form::Directory, &S::entity_qc_directory, kNone, SavedBy::Directories, 2},
    {"wad_directory", Form::Directory, &S::wad_directory, kNone, SavedBy::Directories, 3},
    {"default_wad", Form::Text, &S::default_wad, kNone, SavedBy::Directories, 7},
    {"map_directory", Form::Directory, &S::map_directory, kNone, SavedBy::Directories, 1},
    {"bat_directory", Form::Directory, &S::bat_directory, kNone, SavedBy::Directories, 4},
    {"bspbuild_directory", Form::Directory, &S::bspbuild_directory},
    {"badtex", Form::Path, &S::badtex, kNone, SavedBy::Directories, 5},
    {"entities", Form::Text, &S::entities, kNone, SavedBy::Directories, 8},
    {"gridsize", Form::Number, &S::gridsize, AtLeast(1), SavedBy::Preferences, 8},
    {"drawmode", Form::Number, &S::drawmode, {0, 2}},
    {"stepsize", Form::Number, &S::stepsize, AtLeast(1), SavedBy::Preferences, 9},
    {"far_clip_distance", Form::Number, &S::far_clip_distance, {-16384, -2}, SavedBy::Preferences, 10},
    {"show_grid", Form::Flag, &S::show_grid, kNone, SavedBy::Preferences, 22},
    {"show_coordinates", Form::Flag, &S::show_coordinates, kNone, SavedBy::Preferences, 23},
    {"show_names", Form::Flag, &S::show_names, kNone, SavedBy::Preferences, 24},
    {"show_hits", Form::Flag, &S::show_hits},
    {"gammashift", Form::Number, &S::gammashift, {0, 128}, SavedBy::Preferences, 11},
    {"groupmode", Form::Flag, &S::groupmode, kNone, SavedBy::Preferences, 21},
    {"debugmode", Form::Flag, &S::debugmode},
    {"showeye", Form::Flag, &S::showeye, kNone, SavedBy::Preferences, 25},
    {"drag_vertex", Form::Number, &S::drag_vertex, {0, 2}, SavedBy::Preferences, 1},
    {"select_delta", Form::Number, &S::select_delta, AtLeast(1), SavedBy::Preferences, 6},
    {"vertex_use_grid", Form::Flag, &S::vertex_use_grid, kNone, SavedBy::Preferences, 20},
    {"steps_per_turn", Form::Number, &S::steps_per_turn, AtLeast(4), SavedBy::Preferences, 7},
    {"vertex_drag_sensitivity", Form::Number, &S::vertex_drag_sensitivity, AtLeast(1), SavedBy::Preferences,
     4},
    {"face_drag_percent", Form::Fraction, &S::face_drag_percent, {0, 49}, SavedBy::Preferences, 5},
    {"cloneDeltaX", Form::Number, &S::cloneDeltaX, kAny},
    {"cloneDeltaY", Form::Number, &S::cloneDeltaY, kAny},
    {"query_wall_width", Form::Flag, &S::query_wall_width, kNone, SavedBy::Preferences, 27},
    {"show_cameras", Form::Flag, &S::show_cameras, kNone, SavedBy::Preferences, 30},
    {"multi_select", Form::Flag, &S::multi_select, kNone, SavedBy::Preferences, 31},
    {"render_width", Form::Number, &S::render_width, kPicture},
    {"render_height", Form::Number, &S::render_height, kPicture},
    {"texture_alignment", Form::Number, &S::texture_alignment, {0, 1}, SavedBy::Preferences, 32},
    {"lock_cameras", Form::Flag, &S::lock_cameras, kNone, SavedBy::Preferences, 35},
    {"lightintensity", Form::Number, &S::lightintensity, kShade, SavedBy::Preferences, 2},
    {"ambientintensity", Form::Number, &S::ambientintensity, kShade, SavedBy::Preferences, 3},
    {"flatlevel", Form::Number, &S::flatlevel, kShade},
    {"shadeflats", Form::Flag, &S::shadeflats, kNone, SavedBy::Preferences, 34},
    {"shadetextures", Form::Flag, &S::shadetextures, kNone, SavedBy::Preferences, 33},
    {"showtexturedrag", Form::Flag, &S::showtexturedrag},
    {"distance_epsilon", Form::PositiveNumber, &S::distance_epsilon},
    {"min_epsilon", Form::PositiveNumber, &S::min_epsilon},
    {"max_epsilon", Form::PositiveNumber, &S::max_epsilon},
    {"velk_font", Form::Text, &S::velk_font, kNone, SavedBy::Preferences, 17},
    {"velk_font_size", Form::Number, &S::velk_font_size, {7, kLargestFont}, SavedBy::Preferences, 16},
    {"show_tabs", Form::Number, &S::show_tabs, {0, 2}, SavedBy::Preferences, 19},
    {"texture_list_width", Form::Number, &S::texture_list_width, kAny},
    {"texture_width", Form::Number, &S::texture_width, {4, kLargestCell}, SavedBy::Preferences, 12},
    {"texture_height", Form::Number, &S::texture_height, {4, kLargestCell}, SavedBy::Preferences, 13},
    {"t_small_w", Form::Number, &S::t_small_w, {1, kLargestCell}},
    {"t_small_h", Form::Number, &S::t_small_h, {1, kLargestCell}},
    {"granularity", Form::Number, &S::granularity, kAny},
    {"t_skyspeed", Form::Number, &S::t_skyspeed, AtLeast(1)},
    {"t_animatesky", Form::Flag, &S::t_animatesky},
    {"tex_button_height", Form::Number, &S::tex_button_height, kControl},
    {"tex_field_width", Form::Number, &S::tex_field_width, kControl},
    {"tex_label_width", Form::Number, &S::tex_label_width, kControl},
    {"stretch_textures", Form::Flag, &S::stretch_textures, kNone, SavedBy::Preferences, 26},
    {"nosmallstretch", Form::Flag, &S::nosmallstretch},
    {"animate", Form::Flag, &S::animate},
    {"timerdelay", Form::Number, &S::timerdelay, AtLeast(1)},
    {"brush_outline", Form::Rgb, &S::brush_outline, kNone, SavedBy::Colours, 18},
    {"select_outline", Form::Rgb, &S::select_outline, kNone, SavedBy::Colours, 19},
    {"face_outline", Form::Rgb, &S::face_outline, kNone, SavedBy::Colours, 20},
    {"show_favorites", Form::Flag, &S::show_favorites, kNone, SavedBy::Preferences, 28},
    {"show_frequent", Form::Flag, &S::show_frequent, kNone, SavedBy::Preferences, 29},
    {"show_tex_names", Form::Flag, &S::show_tex_names},
    {"numfav", Form::Number, &S::numfav, {1, 1024}},
    {"numfrq", Form::Number, &S::numfrq, {1, 1024}},
    {"height_fav", Form::Number, &S::height_fav, {4, kLargestCell}, SavedBy::Preferences, 15},
    {"height_frq", Form::Number, &S::height_frq, {4, kLargestCell}, SavedBy::Preferences, 14},
    {"camera_w", Form::Number, &S::camera_w, kPicture},
    {"camera_h", Form::Number, &S::camera_h, kPicture},
    {"camera_minmax", Form::Flag, &S::camera_minmax},
    {"camera_steps", Form::Number, &S::camera_steps, AtLeast(1)},
    {"camera_mode", Form::Number, &S::camera_mode, kAny},
    {"sort_entities", Form::Flag, &S::sort_entities},
    {"group_button_height", Form::Number, &S::group_button_height, kControl},
    {"group_button_width", Form::Number, &S::group_button_width, kControl},
    {"group_field_size", Form::Number, &S::group_field_size, kControl},
    {"group_font_size", Form::Number, &S::group_font_size, {1, kLargestFont}},
    {"group_list_size", Form::Number, &S::group_list_size, kControl},
    {"group_resize", Form::Flag, &S::group_resize},
    {"entity_button_size", Form::Number, &S::entity_button_size, kControl},
    {"entity_field_size", Form::Number, &S::entity_field_size, kControl},
    {"entity_font_size", Form::Number, &S::entity_font_size, {1, kLargestFont}},
    {"entity_window_width", Form::Number, &S::entity_window_width, kControl},
    {"entity_comment_size", Form::Number, &S::entity_comment_size, kControl},
    {"entity_keypair_size", Form::Number, &S::entity_keypair_size, kControl},
    {"box_size", Form::Number, &S::box_size, kControl},
    {"show_dots", Form::Flag, &S::show_dots},
    {"num_dots", Form::Number, &S::num_dots, {1, kLargestCell}},
    {"box_font_size", Form::Number, &S::box_font_size, {5, kLargestFont}},
    {"use_crosshair", Form::Flag, &S::use_crosshair},
    {"drag_brushes", Form::Number, &S::drag_brushes, kAny},
    {"select_delay", Form::Number, &S::select_delay, AtLeast(0)},
    {"start_set->scale", Form::Number, &S::start_set_scale, AtLeast(1), SavedBy::Preferences, 18},
    {"grid_style", Form::Number, &S::grid_style, kAny},
    {"wheel_zoom", Form::Flag, &S::wheel_zoom, kNone, SavedBy::Preferences, 36},
    {"middle_drag", Form::Flag, &S::middle_drag, kNone, SavedBy::Preferences, 37},
    {"window_quality", Form::Flag, &S::window_quality},
    {"undo_levels", Form::Number, &S::undo_levels, {1, 1000}, SavedBy::Preferences, 38},
    {"careful_tools", Form::Flag, &S::careful_tools},
    {"ask_when_changed", Form::Flag, &S::ask_when_changed},
    {"hover_pick", Form::Flag, &S::hover_pick},
    {"tool_cursors", Form::Flag, &S::tool_cursors},
    {"show_sizes", Form::Flag, &S::show_sizes},
    {"cancel_drags", Form::Flag, &S::cancel_drags},
    {"scroll_drags", Form::Flag, &S::scroll_drags},
    {"click_selects", Form::Flag, &S::click_selects},
    {"click_menu", Form::Flag, &S::click_menu},
    {"drag_clone", Form::Flag, &S::drag_clone},
    {"drag_arrows", Form::Flag, &S::drag_arrows},
    {"smooth_camera", Form::Flag, &S::smooth_camera},
    {"solid_entities", Form::Flag, &S::solid_entities},
    {"preview_results", Form::Flag, &S::preview_results},
    {"texture_lock", Form::Flag, &S::texture_lock},
    {"long_group_names", Form::Flag, &S::long_group_names},
    {"shared_borders", Form::Flag, &S::shared_borders},
    {"watch_leaks", Form::Flag, &S::watch_leaks},
    {"build_window", Form::Flag, &S::build_window},
    {"compiler_directory", Form::Text, &S::compiler_directory, kNone, SavedBy::Directories, 9},
    {"undo_megabytes", Form::Number, &S::undo_megabytes, {0, 65536}},

    {"fgcolor", Form::Rgb, &ViewColours::fgcolor, kNone, SavedBy::Colours, 1, Section::VelkColors},
    {"bgcolor", Form::Rgb, &ViewColours::bgcolor, kNone, SavedBy::Colours, 2, Section::VelkColors},
    {"majorgrid", Form::Rgb, &ViewColours::majorgrid, kNone, SavedBy::Colours, 3, Section::VelkColors},
    {"minorgrid", Form::Rgb, &ViewColours::minorgrid, kNone, SavedBy::Colours, 4, Section::VelkColors},
    {"color_gridlabel", Form::Rgb, &ViewColours::color_gridlabel, kNone, SavedBy::Colours, 5,
     Section::VelkColors},
    {"color_currentclipface", Form::Rgb, &ViewColours::color_currentclipface, kNone, SavedBy::Colours, 6,
     Section::VelkColors},
    {"color_otherclipface", Form::Rgb, &ViewColours::color_otherclipface, kNone, SavedBy::Colours, 7,
     Section::VelkColors},
    {"color_clipborder", Form::Rgb, &ViewColours::color_clipborder, kNone, SavedBy::Colours, 8,
     Section::VelkColors},
    {"color_connection", Form::Rgb, &ViewColours::color_connection, kNone, SavedBy::Colours, 9,
     Section::VelkColors},
    {"color_selection", Form::Rgb, &ViewColours::color_selection, kNone, SavedBy::Colours, 10,
     Section::VelkColors},
    {"color_otherbrush", Form::Rgb, &ViewColours::color_otherbrush, kNone, SavedBy::Colours, 11,
     Section::VelkColors},
    {"color_curfacecolor", Form::Rgb, &ViewColours::color_curfacecolor, kNone, SavedBy::Colours, 13,
     Section::VelkColors},
    {"color_hitcolor", Form::Rgb, &ViewColours::color_hitcolor, kNone, SavedBy::Colours, 12,
     Section::VelkColors},
    {"color_eyemarker", Form::Rgb, &ViewColours::color_eyemarker, kNone, SavedBy::Colours, 17,
     Section::VelkColors},
    {"color_activecamera", Form::Rgb, &ViewColours::color_activecamera, kNone, SavedBy::Colours, 15,
     Section::VelkColors},
    {"color_othercamera", Form::Rgb, &ViewColours::color_othercamera, kNone, SavedBy::Colours, 16,
     Section::VelkColors},
    {"color_textureselection", Form::Rgb, &ViewColours::color_textureselection, kNone, SavedBy::Colours, 14,
     Section::VelkColors},
};

}  // namespace

const char* SectionName(Section section) { return section == Section::Velk ? "Velk" : "VelkColors"; }

std::span<const SettingKey> SettingKeys() { return kKeys; }

const SettingKey* FindSettingKey(std::string_view name) {
  const auto* key = std::find_if(std::begin(kKeys), std::end(kKeys),
                                 [&](const SettingKey& k) { return EqualNoCase(k.name, name); });
  return key == std::end(kKeys) ? nullptr : key;
}

}  // namespace velk
