#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGImageFields.h>
#include <OpenSG/OSGNumberFields.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGStringFields.h>

namespace osg {

/// A picture. Rows are packed and the bottom row comes first.
class Image : public AttachmentContainer {
    typedef AttachmentContainer Inherited;

public:
    typedef ImagePtr Ptr;
    enum {
        NameFieldId = Inherited::NextFieldId,
        WidthFieldId,
        HeightFieldId,
        DepthFieldId,
        BppFieldId,
        MipMapCountFieldId,
        FrameCountFieldId,
        FrameDelayFieldId,
        PixelFormatFieldId,
        PixelFieldId,
        DataTypeFieldId,
        SideCountFieldId,
        NextFieldId
    };
    /// Channels of a pixel in their order, as GL values: alpha, luminance, red, green, blue.
    enum PixelFormat {
        OSG_INVALID_PF = 0,
        OSG_A_PF = GL_ALPHA,
        OSG_L_PF = GL_LUMINANCE,
        OSG_LA_PF = GL_LUMINANCE_ALPHA,
        OSG_RGB_PF = GL_RGB,
        OSG_RGBA_PF = GL_RGBA,
        OSG_BGR_PF = GL_BGR,
        OSG_BGRA_PF = GL_BGRA
    };
    /// Number format of a channel, as GL values.
    enum Type {
        OSG_INVALID_IMAGEDATATYPE = 0,
        OSG_UINT8_IMAGEDATA = GL_UNSIGNED_BYTE,
        OSG_UINT16_IMAGEDATA = GL_UNSIGNED_SHORT,
        OSG_UINT32_IMAGEDATA = GL_UNSIGNED_INT,
        OSG_FLOAT32_IMAGEDATA = GL_FLOAT
    };

    OSG_FIELD_CONTAINER_DECL(ImagePtr)

    /// Sets size and format and copies \a data; without data the old bytes stay. Sizes below 1
    /// become
    /// 1. An unknown format gives false, with the size already changed. No data is kept without
    /// \a allocMem.
    bool set(UInt32 pixelFormat, Int32 width, Int32 height = 1, Int32 depth = 1,
             Int32 mipmapCount = 1, Int32 frameCount = 1, Time frameDelay = 0.0,
             const UInt8 *data = 0, Int32 type = OSG_UINT8_IMAGEDATA, bool allocMem = true,
             Int32 sideCount = 1);
    /// A copy of another image. False for null.
    bool set(ImagePtr image);
    /// Copies as many bytes as the image has.
    bool setData(const UInt8 *data);

    /// Whether there is any data.
    bool isValid() const { return !_mfPixel.empty(); }
    bool hasAlphaChannel() const;
    /// Channels per pixel, 0 for an unknown format.
    UInt32 getComponents() const;
    /// Size of all data in bytes; without the smaller levels, later frames, other sides if so
    /// wished.
    unsigned long getSize(bool withMipmap = true, bool withFrames = true,
                          bool withSides = true) const;
    /// The first byte of a part; NULL when the image has no data.
    UInt8 *getData(UInt32 mipmap = 0, UInt32 frame = 0, UInt32 side = 0);
    const UInt8 *getData(UInt32 mipmap = 0, UInt32 frame = 0, UInt32 side = 0) const;

    /// Fills all data.
    void clear(UChar8 value = 0);
    /// Converts to another format, in place or into \a destination. Keeps one level of detail.
    /// Where there is no alpha, brightness gives it. From and to BGR and BGRA the pixels come out
    /// as 0. False for images that do not hold bytes, for unknown formats, and in place for the
    /// format that the image has.
    bool reformat(const PixelFormat pixelFormat, ImagePtr destination = NullFC);
    /// Resamples, in place or into \a destination. Keeps one level of detail, frame and side.
    bool scale(Int32 width, Int32 height, Int32 depth = 1, ImagePtr destination = NullFC);

    /// A text of the image itself, not the name that osg::getName() gives.
    OSG_SF(SFString, Name)
    /// Size in pixels.
    OSG_SF_INIT(SFInt32, Width, 0)
    OSG_SF_INIT(SFInt32, Height, 1)
    OSG_SF_INIT(SFInt32, Depth, 1)
    /// Bytes per pixel.
    OSG_SF_INIT(SFInt32, Bpp, 1)
    /// Levels of detail, each half the size of the one before.
    OSG_SF_INIT(SFInt32, MipMapCount, 1)
    /// Pictures that follow each other, and the seconds between.
    OSG_SF_INIT(SFInt32, FrameCount, 1)
    OSG_SF_INIT(SFReal64, FrameDelay, 0)
    /// One of the formats above.
    OSG_SF_INIT(SFUInt32, PixelFormat, OSG_INVALID_PF)
    /// All data: side by side, frame by frame, level by level.
    OSG_MF(MFUInt8, Pixel)
    OSG_SF_INIT(SFInt32, DataType, OSG_UINT8_IMAGEDATA)
    /// 6 for a cube map, else 1.
    OSG_SF_INIT(SFInt32, SideCount, 1)

protected:
    Image() = default;
    Image(const Image &) = default;

private:
    /// Bytes of one level, and where a part begins.
    unsigned long levelSize(UInt32 mipmap) const;
    unsigned long offset(UInt32 mipmap, UInt32 frame, UInt32 side) const;

    OSG_CONTAINER_STATICS
};

typedef Image ImageBase;
typedef RefPtr<ImagePtr> ImageRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(Image, ImagePtr)

} // namespace osg
