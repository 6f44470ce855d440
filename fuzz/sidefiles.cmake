velk_fuzz(sidefiles SOURCES sidefiles.cpp USES build)
