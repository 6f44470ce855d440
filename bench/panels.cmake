velk_bench(panels SOURCES panels_bench.cpp USES textures)
