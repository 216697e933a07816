#include "Light/qxRadianceReader.h"

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxFileText.h"
#include "Files/qxMemoryBudget.h"

#include <array>

namespace {

/// Red, green and blue, and their common exponent.
typedef std::array<unsigned char, 4> Pixel;

osg::Vec3f lightOf(const Pixel &pixel)
{
    if (pixel[3] == 0)
        return osg::Vec3f();
    const float unit = std::ldexp(1.0f, int(pixel[3]) - (128 + 8));
    return osg::Vec3f((float(pixel[0]) + 0.5f) * unit, (float(pixel[1]) + 0.5f) * unit,
                      (float(pixel[2]) + 0.5f) * unit);
}

class Reader {
public:
    Reader(const QByteArray &bytes, qxMemoryBudget &budget) : m_bytes(bytes), m_budget(budget) {}

    QSize size()
    {
        readHeader();
        return readSize();
    }

    qxLightPicture read()
    {
        const QSize size = this->size();
        m_budget.take(qint64(size.width()) * size.height(), sizeof(osg::Vec3f));
        qxLightPicture picture(size.width(), size.height());
        std::vector<Pixel> row(std::size_t(picture.width));
        for (int y = 0; y < picture.height; ++y) {
            readRow(row);
            for (int x = 0; x < picture.width; ++x)
                picture.at(x, y) = lightOf(row[std::size_t(x)]);
        }
        return picture;
    }

private:
    [[noreturn]] static void fail(const QString &reason) { throw qxGltfError(reason); }

    QByteArray line()
    {
        const int end = m_bytes.indexOf('\n', m_next);
        if (end < 0)
            fail(qxFileText::tr("its header does not end"));
        const QByteArray text = m_bytes.mid(m_next, end - m_next);
        m_next = end + 1;
        return text;
    }

    void readHeader()
    {
        for (QByteArray text = line(); !text.isEmpty(); text = line()) {
            if (text.startsWith("FORMAT=") && text != "FORMAT=32-bit_rle_rgbe")
                fail(qxFileText::tr("its pixels are not in RGBE"));
        }
    }

    /// Rows from above, pixels from the left: other orders have never been usual.
    QSize readSize()
    {
        const QList<QByteArray> words = line().simplified().split(' ');
        if (words.size() != 4 || words[0] != "-Y" || words[2] != "+X")
            fail(qxFileText::tr("its size is not written as \"-Y HEIGHT +X WIDTH\""));
        const QSize size(words[3].toInt(), words[1].toInt());
        if (size.isEmpty())
            fail(qxFileText::tr("it has no pixels"));
        if (size.width() > qxLightPicture::largest || size.height() > qxLightPicture::largest)
            fail(qxFileText::tr("it is too large"));
        return size;
    }

    unsigned char byte()
    {
        if (m_next >= m_bytes.size())
            fail(qxFileText::tr("its pixels end too early"));
        return static_cast<unsigned char>(m_bytes[m_next++]);
    }

    Pixel pixel()
    {
        Pixel result;
        for (unsigned char &value : result)
            value = byte();
        return result;
    }

    void readRow(std::vector<Pixel> &row)
    {
        const std::size_t width = row.size();
        const Pixel first = pixel();
        const bool isNewForm = first[0] == 2 && first[1] == 2 && first[2] < 128
            && std::size_t(first[2] * 256 + first[3]) == width;
        if (width >= 8 && width < 32768 && isNewForm) {
            for (std::size_t channel = 0; channel < 4; ++channel)
                readChannel(row, channel);
        } else {
            readPixels(row, first);
        }
    }

    /// Runs of equal bytes, and bytes one by one.
    void readChannel(std::vector<Pixel> &row, std::size_t channel)
    {
        for (std::size_t x = 0; x < row.size();) {
            const unsigned char code = byte();
            const std::size_t count = code > 128 ? code - 128u : code;
            if (count == 0 || count > row.size() - x)
                fail(qxFileText::tr("a run of its pixels is damaged"));
            const unsigned char same = code > 128 ? byte() : 0;
            for (const std::size_t end = x + count; x < end; ++x)
                row[x][channel] = code > 128 ? same : byte();
        }
    }

    /// Pixel by pixel; one of three ones repeats the one before. Further ones that follow at once
    /// are the higher digits of the count.
    void readPixels(std::vector<Pixel> &row, Pixel next)
    {
        int shift = 0;
        for (std::size_t x = 0; x < row.size();) {
            const bool isRun = next[0] == 1 && next[1] == 1 && next[2] == 1;
            if (!isRun) {
                row[x++] = next;
                shift = 0;
            } else {
                const std::size_t count = shift > 16 ? row.size() : std::size_t(next[3]) << shift;
                if (x == 0 || count > row.size() - x)
                    fail(qxFileText::tr("a run of its pixels is damaged"));
                std::fill_n(row.begin() + std::ptrdiff_t(x), count, row[x - 1]);
                x += count;
                shift += 8;
            }
            if (x < row.size())
                next = pixel();
        }
    }

    const QByteArray &m_bytes;
    qxMemoryBudget &m_budget;
    int m_next = 0; ///< place in the bytes
};

} // namespace

qxLightPicture qxReadRadiance(const QByteArray &bytes, qxMemoryBudget &budget)
{
    return Reader(bytes, budget).read();
}

QSize qxRadianceSize(const QByteArray &bytes)
{
    qxMemoryBudget none(0);
    return Reader(bytes, none).size();
}
