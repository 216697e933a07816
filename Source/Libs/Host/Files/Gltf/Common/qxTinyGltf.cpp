// The one place where the body of the header-only reader is compiled.
#define TINYGLTF_IMPLEMENTATION
#include "Files/Gltf/Common/qxTinyGltf.h"
