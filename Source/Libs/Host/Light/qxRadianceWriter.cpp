#include "Light/qxRadianceWriter.h"

#include "Render/qxRenderMath.h"

#include <QString>

#include <array>

namespace {

/// Red, green, blue and their common exponent, each for all pixels of a row.
typedef std::array<QByteArray, 4> RowOfChannels;

void append(const osg::Vec3f &light, RowOfChannels &row)
{
    const osg::Vec3f shown = qxIsFinite(light) ? qxNotNegative(light) : osg::Vec3f();
    int exponent = 0;
    const float most = qxPeak(shown);
    const float unit = most > 1e-32f ? std::frexp(most, &exponent) * 256.0f / most : 0.0f;
    for (osg::UInt32 i = 0; i < 3; ++i)
        row[i] += char(int(shown[i] * unit));
    row[3] += char(unit > 0.0f ? exponent + 128 : 0);
}

/// How many bytes from there on are the same, at most as many as one mark can say.
int runAt(const QByteArray &bytes, int begin)
{
    int end = begin + 1;
    while (end < bytes.size() && end - begin < 127 && bytes[end] == bytes[begin])
        ++end;
    return end - begin;
}

void appendRuns(const QByteArray &bytes, QByteArray &out)
{
    const int shortest = 4; // shorter ones take no less room as runs
    for (int begin = 0; begin < bytes.size();) {
        const int run = runAt(bytes, begin);
        if (run >= shortest) {
            out += char(128 + run);
            out += bytes[begin];
            begin += run;
            continue;
        }
        int end = begin + run;
        while (end < bytes.size() && end - begin < 128 && runAt(bytes, end) < shortest)
            ++end;
        out += char(end - begin);
        out += bytes.mid(begin, end - begin);
        begin = end;
    }
}

} // namespace

QByteArray qxWriteRadiance(const qxLightPicture &picture)
{
    QByteArray out = QStringLiteral("#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y %1 +X %2\n")
                         .arg(picture.height)
                         .arg(picture.width)
                         .toLatin1();
    const bool hasRuns = picture.width >= 8 && picture.width < 32768; // as the format has it
    for (int y = 0; y < picture.height; ++y) {
        RowOfChannels row;
        for (int x = 0; x < picture.width; ++x)
            append(picture.at(x, y), row);
        if (hasRuns) {
            out += QByteArray("\2\2", 2) + char(picture.width >> 8) + char(picture.width & 255);
            for (const QByteArray &channel : row)
                appendRuns(channel, out);
            continue;
        }
        for (int x = 0; x < picture.width; ++x) {
            for (const QByteArray &channel : row)
                out += channel[x];
        }
    }
    return out;
}
