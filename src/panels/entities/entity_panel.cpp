#include "panels/entities/entity_panel.h"
