#pragma once

#include <QImage>

/// How different two pictures of one size look when they are shown in turn, from 0 (the same) to 1:
/// the mean of the error map of Andersson et al., "FLIP: A Difference Evaluator for Alternating
/// Images", 2020, for pictures of eight bits, at 67 pixels per degree, as on a large screen of
/// 3,840 pixels that is as far away as it is wide.
float qxMeanFlip(const QImage &reference, const QImage &test);
