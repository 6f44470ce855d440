#include "panels/textures/texture_panel.h"
