velk_fuzz(mapfile SOURCES mapfile.cpp USES mapfile)
