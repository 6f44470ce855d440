velk_fuzz(textures SOURCES textures.cpp USES textures)
