#pragma once

#include <string>

/// The opened scene as lines of text: its nodes with their cores, transforms, choices, poses and
/// parts, which of them share a core, its materials in their order with what they contain, its
/// viewpoints and clips, and every variant with the state it is in.
std::string shownScene();
