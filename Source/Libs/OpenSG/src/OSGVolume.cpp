#include <OpenSG/OSGVolume.h>

namespace osg {

void Volume::getBounds(Pnt3f &lo, Pnt3f &hi) const
{
    lo = m_empty ? Pnt3f() : m_lo;
    hi = m_empty ? Pnt3f() : m_hi;
}

void Volume::setBounds(const Pnt3f &lo, const Pnt3f &hi)
{
    m_lo = lo;
    m_hi = hi;
    m_empty = false;
}

void Volume::getCenter(Pnt3f &center) const
{
    Pnt3f lo, hi;
    getBounds(lo, hi);
    center = (lo + hi.subZero()) * 0.5f;
}

void Volume::extendBy(const Pnt3f &point)
{
    if (m_empty) {
        setBounds(point, point);
        return;
    }
    for (UInt32 i = 0; i < 3; ++i) {
        m_lo[i] = std::min(m_lo[i], point[i]);
        m_hi[i] = std::max(m_hi[i], point[i]);
    }
}

void Volume::extendBy(const Volume &other)
{
    if (other.m_empty)
        return;
    extendBy(other.m_lo);
    extendBy(other.m_hi);
}

void Volume::transform(const Matrix &matrix)
{
    if (m_empty)
        return;
    const Pnt3f ends[2] = {m_lo, m_hi};
    m_empty = true;
    for (UInt32 corner = 0; corner < 8; ++corner) {
        Pnt3f point(ends[corner & 1].x(), ends[corner >> 1 & 1].y(), ends[corner >> 2].z());
        matrix.multFullMatrixPnt(point, point);
        extendBy(point);
    }
}

} // namespace osg
