#include "Light/qxExrReader.h"

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxFileText.h"
#include "Files/qxMemoryBudget.h"

#include <QtEndian>

#include <OpenEXR/ImfChannelList.h>
#include <OpenEXR/ImfFrameBuffer.h>
#include <OpenEXR/ImfHeader.h>
#include <OpenEXR/ImfIO.h>
#include <OpenEXR/ImfInputFile.h>
#include <OpenEXR/ImfTileDescription.h>
#include <OpenEXR/ImfVersion.h>

#include <cstring>

namespace {

const unsigned int _largestTile = 4096; ///< memory for one is taken before any pixel is read

/// The library reads from what is in memory already.
class Stream : public Imf::IStream {
public:
    explicit Stream(const QByteArray &bytes) : IStream(""), m_bytes(bytes) {}

    bool read(char target[], int count) override
    {
        if (count < 0 || std::uint64_t(count) > size() - std::min(m_next, size()))
            throw std::runtime_error("unexpected end of the file");
        std::memcpy(target, m_bytes.constData() + m_next, std::size_t(count));
        m_next += std::uint64_t(count);
        return m_next < size();
    }
    std::uint64_t tellg() override { return m_next; }
    void seekg(std::uint64_t place) override { m_next = place; }

private:
    std::uint64_t size() const { return std::uint64_t(m_bytes.size()); }

    const QByteArray &m_bytes;
    std::uint64_t m_next = 0;
};

[[noreturn]] void fail(const QString &reason)
{
    throw qxGltfError(reason);
}

/// The library believes the lengths that attributes state.
void checkAttributes(const QByteArray &bytes)
{
    const auto broken = [] { fail(qxFileText::tr("its header is damaged")); };
    const auto number = [&](int place) {
        if (place > bytes.size() - 4)
            broken();
        return qFromLittleEndian<qint32>(bytes.constData() + place);
    };
    const qint32 version = number(4);
    if (version & (Imf::MULTI_PART_FILE_FLAG | Imf::NON_IMAGE_FLAG))
        fail(qxFileText::tr("it has several parts or several depths"));
    for (int place = 8; bytes.mid(place, 1) != QByteArray(1, '\0');) {
        const int name = bytes.indexOf('\0', place);
        const int type = name < 0 ? -1 : bytes.indexOf('\0', name + 1);
        if (type < 0)
            broken();
        const qint32 length = number(type + 1);
        if (length < 0 || length > bytes.size() - type - 5)
            broken();
        place = type + 5 + length;
    }
}

void checkSize(const Imf::Header &header, const QByteArray &bytes)
{
    const Imath::Box2i &window = header.dataWindow();
    const qint64 width = qint64(window.max.x) - window.min.x + 1;
    const qint64 height = qint64(window.max.y) - window.min.y + 1;
    if (width <= 0 || height <= 0)
        fail(qxFileText::tr("it has no pixels"));
    if (width > qxLightPicture::largest || height > qxLightPicture::largest)
        fail(qxFileText::tr("it is too large"));
    if (!header.hasTileDescription())
        return;
    // Each tile has an entry of eight bytes in a table.
    const Imf::TileDescription &tile = header.tileDescription();
    if (tile.xSize == 0 || tile.ySize == 0 || tile.xSize > _largestTile
        || tile.ySize > _largestTile)
        fail(qxFileText::tr("its header is damaged"));
    if (width / qint64(tile.xSize) * (height / qint64(tile.ySize)) > bytes.size() / 8)
        fail(qxFileText::tr("its pixels end too early"));
}

Imf::Header checkedHeader(const QByteArray &bytes)
{
    checkAttributes(bytes);
    Stream stream(bytes);
    stream.seekg(8);
    int version = qFromLittleEndian<qint32>(bytes.constData() + 4);
    Imf::Header header;
    header.readFrom(stream, version);
    checkSize(header, bytes);
    return header;
}

std::string coloursOf(const Imf::Header &header)
{
    const Imf::ChannelList &channels = header.channels();
    const auto has = [&channels](const char *name) {
        const Imf::Channel *channel = channels.findChannel(name);
        return channel && channel->xSampling == 1 && channel->ySampling == 1;
    };
    if (has("R") && has("G") && has("B"))
        return "RGB";
    if (!has("Y") || channels.findChannel("RY") || channels.findChannel("BY"))
        fail(qxFileText::tr("it has no channels R, G and B in full size"));
    return "YYY";
}

qxLightPicture pixelsOf(Imf::InputFile &file, const std::string &colours)
{
    const Imath::Box2i window = file.header().dataWindow();
    qxLightPicture picture(window.max.x - window.min.x + 1, window.max.y - window.min.y + 1);
    const std::size_t column = sizeof(osg::Vec3f);
    const std::size_t row = column * std::size_t(picture.width);
    Imf::FrameBuffer target;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        // The library adds the place of a pixel to a pointer that stands for 0, 0.
        const auto first = reinterpret_cast<std::intptr_t>(&picture.light[0][i]);
        const std::intptr_t shift = std::intptr_t(window.min.x) * std::intptr_t(column)
            + std::intptr_t(window.min.y) * std::intptr_t(row);
        target.insert(std::string(1, colours[i]),
                      Imf::Slice(Imf::FLOAT, reinterpret_cast<char *>(first - shift), column, row));
    }
    file.setFrameBuffer(target);
    file.readPixels(window.min.y, window.max.y);
    return picture;
}

/// What the library throws becomes an error with its text.
template <class Work>
auto translated(const Work &work) -> decltype(work())
{
    try {
        return work();
    } catch (const qxGltfError &) {
        throw;
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const std::exception &error) {
        // It begins with the name of its stream, which has none.
        fail(QString::fromUtf8(error.what())
                 .remove(QStringLiteral("Cannot read image file \"\". ")));
    }
}

QSize sizeOf(const Imf::Header &header)
{
    const Imath::V2i difference = header.dataWindow().size();
    return QSize(difference.x + 1, difference.y + 1);
}

} // namespace

qxLightPicture qxReadExr(const QByteArray &bytes, qxMemoryBudget &budget)
{
    return translated([&] {
        const Imf::Header header = checkedHeader(bytes);
        const std::string colours = coloursOf(header);
        const QSize size = sizeOf(header);
        budget.take(qint64(size.width()) * size.height(), sizeof(osg::Vec3f));
        Stream stream(bytes);
        Imf::InputFile file(stream, 0);
        qxLightPicture picture = pixelsOf(file, colours);
        if (colours == "YYY") {
            for (osg::Vec3f &light : picture.light)
                light[0] = light[1] = light[2];
        }
        return picture;
    });
}

QSize qxExrSize(const QByteArray &bytes)
{
    return translated([&] {
        const Imf::Header header = checkedHeader(bytes);
        coloursOf(header);
        return sizeOf(header);
    });
}
