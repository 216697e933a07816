#include <OpenSG/OSGImage.h>

namespace osg {

OSG_FIELD_MASK(Image, Name)
OSG_FIELD_MASK(Image, Width)
OSG_FIELD_MASK(Image, Height)
OSG_FIELD_MASK(Image, Depth)
OSG_FIELD_MASK(Image, Bpp)
OSG_FIELD_MASK(Image, MipMapCount)
OSG_FIELD_MASK(Image, FrameCount)
OSG_FIELD_MASK(Image, FrameDelay)
OSG_FIELD_MASK(Image, PixelFormat)
OSG_FIELD_MASK(Image, Pixel)
OSG_FIELD_MASK(Image, DataType)
OSG_FIELD_MASK(Image, SideCount)

FieldDescription *Image::_desc[] = {OSG_SF_DESC(Image, Name, "name", false),
                                    OSG_SF_DESC(Image, Width, "width", false),
                                    OSG_SF_DESC(Image, Height, "height", false),
                                    OSG_SF_DESC(Image, Depth, "depth", false),
                                    OSG_SF_DESC(Image, Bpp, "bpp", false),
                                    OSG_SF_DESC(Image, MipMapCount, "mipMapCount", false),
                                    OSG_SF_DESC(Image, FrameCount, "frameCount", false),
                                    OSG_SF_DESC(Image, FrameDelay, "frameDelay", false),
                                    OSG_SF_DESC(Image, PixelFormat, "pixelFormat", false),
                                    OSG_MF_DESC(Image, Pixel, "pixel", false),
                                    OSG_SF_DESC(Image, DataType, "dataType", false),
                                    OSG_SF_DESC(Image, SideCount, "sideCount", false)};

FieldContainerType Image::_type(
    "Image", "AttachmentContainer", NULL, [] { return FieldContainerPtr(Image::createEmpty()); },
    NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(Image, ImagePtr)

namespace {

UInt32 componentsOf(UInt32 format)
{
    switch (format) {
    case Image::OSG_A_PF:
    case Image::OSG_L_PF:
        return 1;
    case Image::OSG_LA_PF:
        return 2;
    case Image::OSG_RGB_PF:
    case Image::OSG_BGR_PF:
        return 3;
    case Image::OSG_RGBA_PF:
    case Image::OSG_BGRA_PF:
        return 4;
    default:
        return 0;
    }
}

UInt32 bytesOf(Int32 dataType)
{
    switch (dataType) {
    case Image::OSG_UINT8_IMAGEDATA:
        return 1;
    case Image::OSG_UINT16_IMAGEDATA:
        return 2;
    case Image::OSG_UINT32_IMAGEDATA:
    case Image::OSG_FLOAT32_IMAGEDATA:
        return 4;
    default:
        return 0;
    }
}

// Only what follows is converted between formats; not what has blue first.
bool isConverted(UInt32 format)
{
    return format != Image::OSG_BGR_PF && format != Image::OSG_BGRA_PF;
}

struct Pixel {
    UInt8 red, green, blue, alpha;
};

// Stands for brightness and, where there is none, for alpha.
UInt8 mean(const UInt8 *rgb)
{
    return UInt8((rgb[0] + rgb[1] + rgb[2]) / 3);
}

Pixel readPixel(const UInt8 *p, UInt32 format)
{
    switch (format) {
    case Image::OSG_A_PF:
    case Image::OSG_L_PF:
        return {p[0], p[0], p[0], p[0]};
    case Image::OSG_LA_PF:
        return {p[0], p[0], p[0], p[1]};
    case Image::OSG_RGB_PF:
        return {p[0], p[1], p[2], mean(p)};
    default:
        return {p[0], p[1], p[2], p[3]};
    }
}

void writePixel(const Pixel &pixel, UInt8 *p, UInt32 format)
{
    const UInt8 rgb[] = {pixel.red, pixel.green, pixel.blue};
    switch (componentsOf(format)) {
    case 1:
        p[0] = format == Image::OSG_A_PF ? pixel.alpha : mean(rgb);
        return;
    case 2:
        p[0] = mean(rgb);
        p[1] = pixel.alpha;
        return;
    case 4:
        p[3] = pixel.alpha;
        [[fallthrough]];
    default:
        std::copy(rgb, rgb + 3, p);
    }
}

} // namespace

// A list, not a procedure.
bool Image::set(UInt32 pixelFormat, Int32 width, Int32 height, Int32 depth, Int32 mipmapCount,
                Int32 frameCount, Time frameDelay, const UInt8 *data, Int32 type, bool allocMem,
                Int32 sideCount)
{
    setWidth(std::max(width, 1));
    setHeight(std::max(height, 1));
    setDepth(std::max(depth, 1));
    setMipMapCount(std::max(mipmapCount, 1));
    setFrameCount(std::max(frameCount, 1));
    setSideCount(std::max(sideCount, 1));
    setFrameDelay(frameDelay);
    setPixelFormat(pixelFormat);
    setDataType(type);
    setBpp(Int32(getComponents() * bytesOf(type)));
    if (getBpp() == 0)
        return false;
    _mfPixel.resize(allocMem ? getSize() : 0);
    return !data || !allocMem || setData(data);
}

bool Image::set(ImagePtr image)
{
    if (!image)
        return false;
    set(image->getPixelFormat(), image->getWidth(), image->getHeight(), image->getDepth(),
        image->getMipMapCount(), image->getFrameCount(), image->getFrameDelay(), image->getData(),
        image->getDataType(), image->isValid(), image->getSideCount());
    setName(image->getName());
    return true;
}

bool Image::setData(const UInt8 *data)
{
    if (!data || _mfPixel.empty())
        return false;
    // Setting an image from its own data leaves it as it is.
    if (data != _mfPixel.getValues().data())
        std::copy(data, data + _mfPixel.size(), _mfPixel.begin());
    return true;
}

bool Image::hasAlphaChannel() const
{
    const UInt32 format = getPixelFormat();
    return format == OSG_A_PF || format == OSG_LA_PF || format == OSG_RGBA_PF
        || format == OSG_BGRA_PF;
}

UInt32 Image::getComponents() const
{
    return componentsOf(getPixelFormat());
}

unsigned long Image::levelSize(UInt32 mipmap) const
{
    const auto extent = [mipmap](Int32 size) {
        return std::max(1ul, (unsigned long)size >> mipmap);
    };
    return extent(getWidth()) * extent(getHeight()) * extent(getDepth()) * (unsigned long)getBpp();
}

unsigned long Image::getSize(bool withMipmap, bool withFrames, bool withSides) const
{
    unsigned long size = 0;
    for (Int32 level = 0; level < (withMipmap ? getMipMapCount() : 1); ++level)
        size += levelSize(UInt32(level));
    if (withFrames)
        size *= (unsigned long)getFrameCount();
    if (withSides)
        size *= (unsigned long)getSideCount();
    return size;
}

unsigned long Image::offset(UInt32 mipmap, UInt32 frame, UInt32 side) const
{
    unsigned long result = getSize(true, true, false) * side + getSize(true, false, false) * frame;
    for (UInt32 level = 0; level < mipmap; ++level)
        result += levelSize(level);
    return result;
}

const UInt8 *Image::getData(UInt32 mipmap, UInt32 frame, UInt32 side) const
{
    return isValid() ? _mfPixel.getValues().data() + offset(mipmap, frame, side) : NULL;
}

UInt8 *Image::getData(UInt32 mipmap, UInt32 frame, UInt32 side)
{
    return isValid() ? _mfPixel.getValues().data() + offset(mipmap, frame, side) : NULL;
}

void Image::clear(UChar8 value)
{
    std::fill(_mfPixel.begin(), _mfPixel.end(), value);
}

bool Image::reformat(const PixelFormat pixelFormat, ImagePtr destination)
{
    const UInt32 components = componentsOf(pixelFormat);
    if (!isValid() || getDataType() != OSG_UINT8_IMAGEDATA || components == 0)
        return false;
    if (!destination && pixelFormat == PixelFormat(getPixelFormat()))
        return false;
    const bool hasPixels = isConverted(pixelFormat) && isConverted(getPixelFormat());
    const unsigned long count = getSize(false) / (unsigned long)getBpp();
    std::vector<UInt8> pixels(count * components);
    for (unsigned long i = 0; hasPixels && i < count; ++i) {
        const UInt8 *source = _mfPixel.getValues().data() + i * (unsigned long)getBpp();
        writePixel(readPixel(source, getPixelFormat()), &pixels[i * components], pixelFormat);
    }
    Image &result = destination ? *destination : *this;
    return result.set(pixelFormat, getWidth(), getHeight(), getDepth(), 1, getFrameCount(),
                      getFrameDelay(), pixels.data(), OSG_UINT8_IMAGEDATA, true, getSideCount());
}

bool Image::scale(Int32 width, Int32 height, Int32 depth, ImagePtr destination)
{
    if (!isValid() || width < 1 || height < 1 || depth < 1)
        return false;
    const size_t bpp = size_t(getBpp());
    std::vector<UInt8> pixels(size_t(width) * size_t(height) * size_t(depth) * bpp);
    const auto nearest = [](size_t i, Int32 size, Int32 sourceSize) {
        // From the middle of one pixel to the pixel that it falls into.
        return (2 * i + 1) * size_t(sourceSize) / (2 * size_t(size));
    };
    for (size_t i = 0; i < pixels.size() / bpp; ++i) {
        const size_t x = nearest(i % size_t(width), width, getWidth());
        const size_t y = nearest(i / size_t(width) % size_t(height), height, getHeight());
        const size_t z = nearest(i / size_t(width) / size_t(height), depth, getDepth());
        const size_t source = (z * size_t(getHeight()) + y) * size_t(getWidth()) + x;
        std::copy_n(getData() + source * bpp, bpp, &pixels[i * bpp]);
    }
    Image &result = destination ? *destination : *this;
    return result.set(getPixelFormat(), width, height, depth, 1, 1, 0.0, pixels.data(),
                      getDataType());
}

} // namespace osg
