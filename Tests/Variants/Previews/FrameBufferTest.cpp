#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "Pictures/qxMainGlView.h"

#include <QBuffer>
#include <QPixmap>

namespace {

/// A picture in which no two pixels are alike.
QImage source(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, QColor(x % 256, y % 256, x / 256 * 16 + y / 256));
    }
    return image;
}

/// The same as the scene graph holds it: from the lower left corner on.
osg::ImageRefPtr sceneGraphPicture(const QImage &source)
{
    const QImage rows = source.mirrored().convertToFormat(QImage::Format_RGB888);
    std::vector<osg::UInt8> bytes;
    for (int y = 0; y < rows.height(); ++y)
        bytes.insert(bytes.end(), rows.constScanLine(y), rows.constScanLine(y) + 3 * rows.width());
    const osg::ImageRefPtr picture(osg::Image::create());
    const osg::CPEditor edit(picture.get());
    picture->set(osg::Image::OSG_RGB_PF, rows.width(), rows.height(), 1, 1, 1, 0, bytes.data());
    return picture;
}

/// That part of the picture as a preview, by way of a pixmap.
QByteArray previewOf(const QImage &source, const QRect &square)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPixmap::fromImage(source)
        .copy(square)
        .scaled(264, 256, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .save(&buffer, "PNG");
    return buffer.data();
}

typedef HostFixture FrameBufferTest;

} // namespace

TEST_F(FrameBufferTest, TheCentredSquareIsStretchedWithoutSmoothing)
{
    struct Crop {
        int width, height;
        QRect square;
    };
    qxMainGlView view(320, 200);
    qxVariantSet set("Set");
    for (const Crop &crop : {Crop{800, 600, {100, 0, 600, 600}}, Crop{600, 800, {0, 100, 600, 600}},
                             Crop{7, 4, {1, 0, 4, 4}}, Crop{4, 7, {0, 1, 4, 4}},
                             Crop{264, 264, {0, 0, 264, 264}}, Crop{1, 1, {0, 0, 1, 1}}}) {
        SCOPED_TRACE(testing::Message() << crop.width << " by " << crop.height);
        const QImage shown = source(crop.width, crop.height);
        view.show(sceneGraphPicture(shown).get());
        const QByteArray preview = qxVariants::getPreviewImageFromFrameBuffer(nullptr);
        EXPECT_EQ(preview, previewOf(shown, crop.square));
        qxVariants::renderVariantSetPreview(&set, true, false, false);
        EXPECT_EQ(set.getPreview(), preview);
    }
}

TEST_F(FrameBufferTest, WithoutAViewThatShowsSomethingAnEmptyPreviewIsStored)
{
    qxVariantSet set("Set");
    set.setPreview("earlier");
    qxVariants::renderVariantSetPreview(&set, true, false, false);
    EXPECT_EQ(set.getPreview(), QByteArray());

    set.setPreview("earlier");
    const qxMainGlView view(20000, 8);
    expectError("A picture cannot have 20000 by 8 pixels");
    qxVariants::renderVariantSetPreview(&set, true, false, false);
    EXPECT_EQ(set.getPreview(), QByteArray());
}
