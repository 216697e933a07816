#pragma once

#include <OpenSG/OSGMatrix.h>

namespace osg {

/// An axis-aligned box that may be empty, with a mark whether it is up to date.
class Volume {
public:
    /// Whether it contains nothing at all, not even a point.
    bool isEmpty() const { return m_empty; }
    /// Whether it is up to date; kept by the owner.
    bool isValid() const { return m_valid; }
    void setValid(bool valid = true) { m_valid = valid; }
    void setEmpty(bool empty = true) { m_empty = empty; }

    /// Zero corners when empty.
    void getBounds(Pnt3f &lo, Pnt3f &hi) const;
    void setBounds(const Pnt3f &lo, const Pnt3f &hi);
    void getCenter(Pnt3f &center) const;

    void extendBy(const Pnt3f &point);
    /// An empty volume adds nothing.
    void extendBy(const Volume &other);
    /// Becomes the box around the transformed box.
    void transform(const Matrix &matrix);

private:
    Pnt3f m_lo;
    Pnt3f m_hi;
    bool m_empty = true;
    bool m_valid = false;
};

} // namespace osg
