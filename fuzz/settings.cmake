velk_fuzz(settings SOURCES settings.cpp USES settings)
