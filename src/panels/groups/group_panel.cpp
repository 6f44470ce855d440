#include "panels/groups/group_panel.h"
