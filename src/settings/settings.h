// The settings record: every value of velk.ini with its built-in default. One object, owned by the
// editor; everyone else gets a const reference.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/colour.h"
#include "base/ini_file.h"

namespace velk {

// The colours of section [VelkColors].
struct ViewColours {
  Colour fgcolor{255, 255, 255};
  Colour bgcolor{0, 0, 0};
  Colour majorgrid{0, 0, 127};
  Colour minorgrid{63, 63, 63};
  Colour color_gridlabel{255, 255, 0};
  Colour color_currentclipface{255, 255, 0};
  Colour color_otherclipface{0, 255, 255};
  Colour color_clipborder{255, 0, 0};
  Colour color_connection{128, 0, 128};
  Colour color_selection{255, 63, 0};
  Colour color_otherbrush{127, 127, 127};
  Colour color_curfacecolor{255, 255, 0};
  Colour color_hitcolor{0, 127, 255};
  Colour color_eyemarker{128, 0, 0};
  Colour color_activecamera{255, 255, 0};
  Colour color_othercamera{255, 0, 0};
  Colour color_textureselection{0, 255, 255};
};

// What the views leave out; toggled while the editor runs, never saved.
struct ViewFilter {
  bool omitLights = false;
  bool omitEntities = false;
  bool omitWorld = false;
  bool omitWater = false;
  bool omitClip = false;

  bool omitsAny() const { return omitLights || omitEntities || omitWorld || omitWater || omitClip; }
};

// Of the camera view.
inline constexpr int kWireMode = 0, kFlatMode = 1, kTexturedMode = 2;

// Values of section [Velk] carry the name of their key.
struct Settings {
  // Files and directories, as given; directories end in a separator.
  std::string newmap = "NEWMAP.MAP";
  std::string entity_qc_directory = "c:\\bc45\\velk3\\";  // also the editor's home directory
  std::string wad_directory = "c:\\qbsp\\";
  std::string default_wad = "wizard.wad";  // several parted by ';'
  std::string map_directory = "c:\\qbsp\\";
  std::string bat_directory = "c:\\qbsp\\";
  std::string bspbuild_directory = "c:\\velk\\";
  std::string badtex = "badtex.bmp";
  std::string entities = "ents.qc";  // several parted by ';'

  // General and plan views.
  int gridsize = 8;  // world units
  int drawmode = kWireMode;
  float stepsize = 64;              // world units
  float far_clip_distance = -8192;  // view depth, negative
  bool show_grid = false;
  bool show_coordinates = true;
  bool show_names = false;
  bool show_hits = false;
  int gammashift = 0;  // 0..128, 0 is off
  bool groupmode = false;
  bool debugmode = false;
  bool showeye = false;
  int drag_vertex = 0;   // 0 off, 1, 2
  int select_delta = 4;  // pixels
  bool vertex_use_grid = false;
  int steps_per_turn = 16;
  int vertex_drag_sensitivity = 32;
  double face_drag_percent = 0;  // held as a fraction
  int cloneDeltaX = 0;
  int cloneDeltaY = 0;
  bool query_wall_width = true;
  bool show_cameras = true;
  bool multi_select = true;
  int render_width = 320;  // pixels
  int render_height = 200;
  int texture_alignment = 0;  // 0 standard, 1 alternative choice at 45 degrees
  bool lock_cameras = false;
  float lightintensity = 32;    // 0..63
  float ambientintensity = 16;  // 0..63
  int flatlevel = 32;           // 0..63
  bool shadeflats = true;
  bool shadetextures = true;
  bool showtexturedrag = true;
  float distance_epsilon = 1.0f;
  float min_epsilon = 0.000001f;
  float max_epsilon = 0.05f;

  // Main window.
  std::string velk_font = "Arial";
  int velk_font_size = 12;
  int show_tabs = 1;  // 0 off, 1 top, 2 bottom
  int texture_list_width = 120;

  // Texture browser.
  int texture_width = 48;
  int texture_height = 48;
  int t_small_w = 24;
  int t_small_h = 24;
  int granularity = 10;
  int t_skyspeed = 3;
  bool t_animatesky = true;
  int tex_button_height = 12;
  int tex_field_width = 40;
  int tex_label_width = 120;
  bool stretch_textures = false;
  bool nosmallstretch = true;
  bool animate = true;
  int timerdelay = 250;  // milliseconds
  Colour brush_outline{255, 255, 255};
  Colour select_outline{255, 0, 0};
  Colour face_outline{255, 255, 0};
  bool show_favorites = true;
  bool show_frequent = true;
  bool show_tex_names = true;
  int numfav = 10;
  int numfrq = 10;
  int height_fav = 32;
  int height_frq = 32;

  // Other windows.
  int camera_w = 320;
  int camera_h = 200;
  bool camera_minmax = true;
  int camera_steps = 36;
  int camera_mode = 0;
  bool sort_entities = true;
  int group_button_height = 12;
  int group_button_width = 150;
  int group_field_size = 150;
  int group_font_size = 10;
  int group_list_size = 300;
  bool group_resize = true;
  int entity_button_size = 12;
  int entity_field_size = 150;
  int entity_font_size = 10;
  int entity_window_width = 200;
  int entity_comment_size = 50;
  int entity_keypair_size = 60;
  int box_size = 15;  // camera markers, pixels
  bool show_dots = true;
  int num_dots = 6;
  int box_font_size = 9;
  bool use_crosshair = true;
  int drag_brushes = -1;
  int select_delay = 1000;    // milliseconds
  int start_set_scale = 100;  // key "start_set->scale", percent
  int grid_style = 0;         // nonzero: dots

  // Beyond the classic keys; built-in values keep the classic behaviour.
  bool wheel_zoom = false;      // the wheel zooms plan views at the cursor
  bool middle_drag = false;     // the middle button drags plan views where no binding claims it
  bool window_quality = false;  // the camera view renders at its window's own pixel size
  int undo_levels = 1;
  bool careful_tools = false;     // tools and operations do better where their classic behaviour hurts
  bool ask_when_changed = false;  // questions before closing go by what a map holds, not by its modified flag
  int undo_megabytes = 0;         // that undo may keep; 0 for any number
  bool hover_pick = false;        // what a click would take is shown before the click
  bool tool_cursors = false;      // a cursor shape for each kind of tool
  bool show_sizes = false;        // sizes and offsets stand beside what is drawn, resized or moved
  bool cancel_drags = false;      // Esc and the other buttons cancel a drag
  bool scroll_drags = false;      // a view scrolls when a drag leaves it
  bool click_selects = false;     // a press and release in one place selects
  bool click_menu = false;        // a right click opens a context menu
  bool drag_clone = false;        // a drag with CTRL leaves a copy behind
  bool drag_arrows = false;       // arrow keys during a drag move by a grid step
  bool smooth_camera = false;     // held movement keys move the camera by time
  bool solid_entities = false;    // entity boxes shaded in the camera view, those around the eye left out
  bool preview_results = false;   // dialogs show what they would make as ghosts in the views
  bool texture_lock = false;      // textures move along with brushes
  bool long_group_names = false;  // group names of up to 63 characters are kept when a map is read
  bool shared_borders = false;    // the border between two windows resizes both
  bool watch_leaks = false;       // leak points beside a map are loaded when they change
  bool build_window = false;      // the batch commands run in the build window
  std::string compiler_directory;  // of the map compiler's programs, besides PATH

  ViewColours colours;

  // Held here while the editor runs, never saved.
  ViewFilter filter;
  float scale = 1.0f;        // plan views, pixels per world unit
  bool connections = false;  // entity connections drawn in plan views
  bool outline = false;      // face outlines in the camera view

  // The view-plane turn of one turn command, radians.
  double turnStep() const { return 6.283185307179586 / steps_per_turn; }
};

// Reads every key of both sections; missing or unreadable values keep the defaults, numbers out of their
// limits become the nearest limit. `scale` starts at `start_set_scale`.
Settings LoadSettings(const IniFile& ini);

// Write the keys of the three dialogs, in their fixed order, into `ini`. The preferences save the current
// scale as the one to start with.
void StorePreferences(const Settings& settings, IniFile& ini);
void StoreColours(const Settings& settings, IniFile& ini);
void StoreDirectories(const Settings& settings, IniFile& ini);

// The value of any key of either section as velk.ini would hold it; none for an unknown key.
std::optional<std::string> SettingText(const Settings& settings, std::string_view name);
// Gives a key the value that `text` would give it in velk.ini, limits and unreadable values included; false
// for an unknown key.
bool SetSettingText(Settings& settings, std::string_view name, const std::string& text);

}  // namespace velk
