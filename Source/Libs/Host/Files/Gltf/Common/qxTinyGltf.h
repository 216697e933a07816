#pragma once

// The typed reader with the same settings everywhere: it decodes and encodes no pictures.
#define TINYGLTF_NO_STB_IMAGE
#define TINYGLTF_NO_STB_IMAGE_WRITE
#include <tiny_gltf.h>
