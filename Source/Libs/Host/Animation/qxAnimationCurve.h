#pragma once

#include <memory>
#include <vector>

/// A property that changes over time: keys and what is between them, as glTF 2.0 defines samplers
/// of animations (section 3.11 and appendix C).
struct qxAnimationCurve {
    /// What is between two keys.
    enum Interpolation { Step, Linear, CubicSpline };
    /// What the numbers are.
    enum Kind {
        Plain, ///< each number for itself
        Rotation ///< quaternions x, y, z, w, of length 1 at any time
    };
    /// Curves may share their numbers.
    typedef std::shared_ptr<const std::vector<float>> Numbers;

    /// The value at a time: before the first key that of the first, behind the last that of the
    /// last.
    std::vector<float> at(float time) const;
    /// Of the last key.
    float end() const { return times->back(); }

    Numbers times; ///< of the keys, in seconds, ascending; at least one
    /// `width` numbers for each key; with CubicSpline three times as many: the tangent of arrival,
    /// the value, the tangent of departure.
    Numbers values;
    std::size_t width = 0; ///< numbers of one value
    Interpolation interpolation = Linear; ///< of all keys
    Kind kind = Plain; ///< Rotation has a width of 4

private:
    enum Part { Arrival, Value, Departure };
    const float *part(std::size_t key, Part part) const;
    std::vector<float> mixed(std::size_t key, float share) const;
    std::vector<float> spline(std::size_t key, float share) const;
};
