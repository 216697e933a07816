#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxMemoryBudget.h"
#include "Light/qxLightPictureReader.h"
#include "Light/qxRadianceWriter.h"

#include <OpenEXR/ImfChannelList.h>
#include <OpenEXR/ImfFrameBuffer.h>
#include <OpenEXR/ImfHeader.h>
#include <OpenEXR/ImfIO.h>
#include <OpenEXR/ImfOutputFile.h>
#include <OpenEXR/ImfTileDescription.h>
#include <OpenEXR/ImfTiledOutputFile.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

const int width = 40;
const int height = 12;

/// Red rises to the right, green downwards, blue is far above 1.
osg::Vec3f lightAt(int x, int y)
{
    return osg::Vec3f(float(x) / 64, float(y) / 16, 12);
}

std::string rgbeAt(int x, int y)
{
    const osg::Vec3f light = lightAt(x, y);
    const auto part = [](float value) { return char(int(value * 16)); }; // 2^(132 - 136)
    return {part(light[0]), part(light[1]), part(light[2]), char(132)};
}

/// In the three forms that rows have; with `isOld` a pixel stands for four.
QByteArray radiance(bool isPacked, bool isOld)
{
    std::string bytes = "#?RADIANCE\nSOFTWARE=test\nFORMAT=32-bit_rle_rgbe\n\n-Y 12 +X 40\n";
    for (int y = 0; y < height; ++y) {
        if (isPacked)
            bytes += {2, 2, 0, char(width)};
        for (int channel = 0; channel < 4 && isPacked; ++channel) {
            for (int x = 0; x < width; x += 20) {
                if (channel >= 1) { // green, blue and the exponent are the same along a row
                    bytes += {char(128 + 20), rgbeAt(x, y)[std::size_t(channel)]};
                    continue;
                }
                bytes += char(20);
                for (int i = x; i < x + 20; ++i)
                    bytes += rgbeAt(i, y)[0];
            }
        }
        for (int x = 0; x < width && !isPacked; ++x) {
            bytes += rgbeAt(x, y);
            if (isOld) {
                bytes += {1, 1, 1, 3};
                x += 3;
            }
        }
    }
    return QByteArray::fromStdString(bytes);
}

class Memory : public Imf::OStream {
public:
    Memory() : OStream("") {}
    void write(const char bytes[], int count) override
    {
        content.replace(int(m_place), count, QByteArray(bytes, count));
        m_place += std::uint64_t(count);
    }
    std::uint64_t tellp() override { return m_place; }
    void seekp(std::uint64_t place) override { m_place = place; }

    QByteArray content;

private:
    std::uint64_t m_place = 0;
};

/// With the window of its data away from the origin.
QByteArray exr(Imf::PixelType type, bool isTiled, const std::string &names = "RGB")
{
    const Imath::Box2i window(Imath::V2i(-3, 5), Imath::V2i(width - 4, height + 4));
    Imf::Header header(window, window);
    std::vector<float> floats;
    std::vector<half> halves;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (osg::UInt32 i = 0; i < 3; ++i) {
                floats.push_back(lightAt(x, y)[i]);
                halves.push_back(half(lightAt(x, y)[i]));
            }
        }
    }
    Imf::FrameBuffer pixels;
    const bool isFloat = type == Imf::FLOAT;
    const std::size_t size = isFloat ? sizeof(float) : sizeof(half);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string name(1, names[i]);
        header.channels().insert(name, Imf::Channel(type));
        char *const first =
            isFloat ? reinterpret_cast<char *>(&floats[i]) : reinterpret_cast<char *>(&halves[i]);
        pixels.insert(name, Imf::Slice::Make(type, first, window, 3 * size, 3 * size * width));
    }
    Memory memory;
    if (isTiled) {
        header.setTileDescription(Imf::TileDescription(16, 8, Imf::MIPMAP_LEVELS));
        Imf::TiledOutputFile file(memory, header, 0);
        file.setFrameBuffer(pixels);
        file.writeTiles(0, file.numXTiles(0) - 1, 0, file.numYTiles(0) - 1, 0);
    } else {
        Imf::OutputFile file(memory, header, 0);
        file.setFrameBuffer(pixels);
        file.writePixels(height);
    }
    return memory.content;
}

/// Why the bytes are no picture; empty if they are.
std::string flawOf(const QByteArray &bytes, qint64 memory = 1 << 24)
{
    try {
        qxMemoryBudget budget(memory);
        qxReadLightPicture(bytes, budget);
    } catch (const qxGltfError &error) {
        return error.reason().toStdString();
    }
    return std::string();
}

QByteArray with(QByteArray bytes, const char *old, const QByteArray &replacement)
{
    const int place = bytes.indexOf(old);
    EXPECT_GE(place, 0) << old;
    return bytes.replace(place, int(std::strlen(old)), replacement);
}

} // namespace

TEST(LightPictureTest, EveryFormOfAFileShowsTheSameLight)
{
    for (const auto &[form, bytes] : {std::pair("flat", radiance(false, false)),
                                      {"old runs", radiance(false, true)},
                                      {"runs", radiance(true, false)},
                                      {"float", exr(Imf::FLOAT, false)},
                                      {"half", exr(Imf::HALF, false)},
                                      {"tiles", exr(Imf::HALF, true)}}) {
        ASSERT_EQ(flawOf(bytes), "") << form;
        qxMemoryBudget budget(1 << 20);
        const qxLightPicture picture = qxReadLightPicture(bytes, budget);
        EXPECT_EQ(qxLightPictureSize(bytes), QSize(width, height)) << form;
        ASSERT_EQ(picture.light.size(), std::size_t(width * height)) << form;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                EXPECT_LT((picture.at(x, y) - lightAt(x, y)).length(), 0.1f)
                    << form << x << ' ' << y;
        }
    }
    qxMemoryBudget budget(1 << 20);
    const qxLightPicture grey = qxReadLightPicture(exr(Imf::HALF, false, "Y"), budget);
    EXPECT_EQ(grey.at(8, 3), osg::Vec3f(0.125f, 0.125f, 0.125f));
}

/// With runs of all lengths, darkness, and widths that have no runs.
TEST(LightPictureTest, WrittenPicturesReadBackWithinTheirPrecision)
{
    std::mt19937 random(7);
    for (const int pixels : {1, 7, 8, 131, 700}) {
        qxLightPicture picture(pixels, 3);
        std::size_t next = 0;
        while (next < picture.light.size()) {
            const float power = std::ldexp(1.0f, int(random() % 40) - 20);
            const auto part = [&] { return random() % 5 == 0 ? 0.0f : power / (1 + random() % 9); };
            const osg::Vec3f light(part(), part(), part());
            for (auto run = 1 + random() % 300; run > 0 && next < picture.light.size(); --run)
                picture.light[next++] = random() % 50 == 0 ? osg::Vec3f(part(), 0, part()) : light;
        }
        qxMemoryBudget budget(1 << 20);
        const qxLightPicture read = qxReadLightPicture(qxWriteRadiance(picture), budget);
        ASSERT_EQ(read.light.size(), picture.light.size());
        for (std::size_t i = 0; i < read.light.size(); ++i) {
            const float peak =
                std::max({picture.light[i][0], picture.light[i][1], picture.light[i][2]});
            EXPECT_LE((read.light[i] - picture.light[i]).length(), peak / 128)
                << pixels << ' ' << i;
        }
    }
    qxLightPicture odd(2, 1);
    odd.light = {osg::Vec3f(std::numeric_limits<float>::quiet_NaN(), 1, 1), osg::Vec3f(-1, 1, 0)};
    qxMemoryBudget budget(1 << 20);
    const qxLightPicture read = qxReadLightPicture(qxWriteRadiance(odd), budget);
    EXPECT_EQ(read.light[0], osg::Vec3f());
    EXPECT_LT((read.light[1] - osg::Vec3f(0, 1, 0)).length(), 0.02f);
}

TEST(LightPictureTest, DamagedFilesAreRefusedWithTheReason)
{
    const QByteArray hdr = radiance(true, false);
    const QByteArray open = exr(Imf::FLOAT, false);
    const QByteArray tiled = exr(Imf::HALF, true);
    const QByteArray window("\xfd\xff\xff\xff\x05\0\0\0", 8);
    const QByteArray huge("\xfd\xff\xff\xff\0\0\0\x80", 8);
    QByteArray parts = open;
    parts[5] = 0x10;
    for (const auto &[bytes, reason] :
         {std::pair(QByteArray(), "neither a Radiance nor an OpenEXR"),
          {QByteArray("PNG"), "neither a Radiance nor an OpenEXR"},
          {QByteArray("#?RADIANCE\nFORMAT=32-bit_rle_rgbe"), "header does not end"},
          {with(hdr, "rgbe", "xyze"), "not in RGBE"},
          {with(hdr, "-Y", "+Y"), "-Y HEIGHT +X WIDTH"},
          {with(hdr, "+X 40", "+X 0"), "no pixels"},
          {with(hdr, "+X 40", "+X 40000"), "too large"},
          {with(hdr, "+X 40", "+X -40"), "no pixels"},
          {with(hdr, "\x02\x02", "\x01\x01\x01\x40"), "run of its pixels is damaged"},
          {with(hdr, "\x02\x02", QByteArray("\x02\x02\0\x28\xff", 5)),
           "run of its pixels is damaged"},
          {parts, "several parts"},
          {with(open, "box2i", QByteArray("box2i\0\xff\xff\xff\x7f", 10)), "header is damaged"},
          {exr(Imf::HALF, false, "RG"), "no channels R, G and B"},
          {QByteArray(tiled).replace(window, huge), "too large"},
          {with(tiled, QByteArray("\x10\0\0\0\x08", 5).constData(), QByteArray()), ""}})
        EXPECT_NE(flawOf(bytes).find(reason), std::string::npos) << reason << ": " << flawOf(bytes);
    EXPECT_NE(flawOf(hdr, 1000).find("memory"), std::string::npos) << flawOf(hdr, 1000);
    EXPECT_NE(flawOf(open, 1000).find("memory"), std::string::npos) << flawOf(open, 1000);
    for (const QByteArray &whole : {hdr, radiance(false, true), open, tiled}) {
        for (int size = 0; size < whole.size(); size += 7) {
            EXPECT_NE(flawOf(whole.left(size)), "") << size;
            QByteArray changed = whole;
            changed[size] = char(changed[size] ^ 0x55);
            flawOf(changed); // whatever it says
        }
    }
}
