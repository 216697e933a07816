#pragma once

#include <string>

/// Everything that the opened scene is and shows, in lines: its nodes with their cores, places,
/// choices, poses and parts, which of them share a core, its materials in their order with what
/// they contain, its viewpoints and clips, and every variant with the state it is in.
std::string shownScene();
