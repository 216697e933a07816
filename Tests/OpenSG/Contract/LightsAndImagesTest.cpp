#include "Contract.h"

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGSpotLight.h>

#include <cstring>

using namespace osg;

TEST(Lights, StartWhiteAndUnattenuated)
{
    const auto light = held<SpotLight>();
    const Color4f white(1, 1, 1, 1);
    EXPECT_EQ(light->getAmbient(), Color4f(0, 0, 0, 1));
    EXPECT_TRUE(light->getDiffuse() == white && light->getSpecular() == white);
    EXPECT_TRUE(light->getOn() && light->getBeacon() == NullFC);
    EXPECT_EQ(light->getConstantAttenuation(), 1);
    EXPECT_EQ(light->getLinearAttenuation() + light->getQuadraticAttenuation(), 0);
    EXPECT_EQ(light->getSpotCutOff() + light->getSpotExponent(), 0);
    EXPECT_EQ(held<DirectionalLight>()->getDirection(), Vec3f(0, 0, 1));
    const auto beacon = held<Node>();
    light->setBeacon(beacon);
    EXPECT_EQ(beacon.get().getRefCount(), 1); // A light does not hold its beacon.
    light->setSpotCutOffDeg(90);
    EXPECT_NEAR(light->getSpotCutOff(), 1.5707963, 1e-5);
}

TEST(Images, CopyTheDataTheyAreGiven)
{
    const auto image = held<Image>();
    EXPECT_TRUE(!image->isValid() && image->getData() == nullptr);
    UInt8 pixels[] = {1, 2, 3, 4, 5, 6};
    ASSERT_TRUE(image->set(Image::OSG_RGB_PF, 1, 2, 1, 1, 1, 0.0, pixels));
    pixels[0] = 99;
    EXPECT_EQ(image->getData()[0], 1);
    ASSERT_TRUE(image->set(Image::OSG_L_PF, 2, 3)); // Without data the old bytes stay.
    EXPECT_EQ(std::memcmp(image->getData() + 1, pixels + 1, 5), 0);
}

TEST(Images, CorrectTheirSizesAndHaveTheBytesAndTheNumberOfTheirFormat)
{
    const auto image = held<Image>();
    const auto size = [&image] {
        return Vec3f(image->getWidth(), image->getHeight(), image->getDepth());
    };
    EXPECT_EQ(size(), Vec3f(0, 1, 1));
    EXPECT_TRUE(image->set(Image::OSG_L_PF, 0, -3, 0));
    EXPECT_EQ(size(), Vec3f(1, 1, 1));
    EXPECT_FALSE(image->set(12345, 6, 7)); // The size is another one all the same.
    EXPECT_EQ(size(), Vec3f(6, 7, 1));

    const struct {
        int format, number, bytes;
    } formats[] = {
        {Image::OSG_RGB_PF, 0x1907, 3}, {Image::OSG_RGBA_PF, 0x1908, 4},
        {Image::OSG_L_PF, 0x1909, 1},   {Image::OSG_LA_PF, 0x190A, 2},
        {Image::OSG_BGR_PF, 0x80E0, 3}, {Image::OSG_BGRA_PF, 0x80E1, 4},
    };
    for (const auto &row : formats) {
        EXPECT_EQ(row.format, row.number);
        EXPECT_TRUE(image->set(UInt32(row.format), 2, 3)) << row.number;
        EXPECT_EQ(image->getBpp(), row.bytes) << row.number;
        EXPECT_EQ(image->getSize(), 6u * unsigned(row.bytes)) << row.number;
        EXPECT_EQ(image->getPixelFormat(), UInt32(row.number));
        EXPECT_EQ(image->hasAlphaChannel(), row.bytes % 2 == 0) << row.number;
    }
    EXPECT_EQ(Image::OSG_A_PF, 0x1906);
    EXPECT_EQ(Image::OSG_INVALID_PF, 0);
}

TEST(Images, TakeBrightnessForAlphaAndLoseTheirPixelsFromAndToThoseWithBlueFirst)
{
    using Bytes = std::vector<UInt8>;
    const UInt8 pixel[] = {10, 20, 60, 40};
    const struct {
        Image::PixelFormat from, to;
        Bytes expected;
    } rows[] = {
        {Image::OSG_A_PF, Image::OSG_LA_PF, {10, 10}},
        {Image::OSG_L_PF, Image::OSG_RGBA_PF, {10, 10, 10, 10}},
        {Image::OSG_LA_PF, Image::OSG_A_PF, {20}},
        {Image::OSG_RGB_PF, Image::OSG_RGBA_PF, {10, 20, 60, 30}},
        {Image::OSG_RGB_PF, Image::OSG_A_PF, {30}},
        {Image::OSG_RGBA_PF, Image::OSG_LA_PF, {30, 40}},
        {Image::OSG_RGBA_PF, Image::OSG_RGB_PF, {10, 20, 60}},
        {Image::OSG_BGR_PF, Image::OSG_RGB_PF, {0, 0, 0}},
        {Image::OSG_RGBA_PF, Image::OSG_BGRA_PF, {0, 0, 0, 0}},
    };
    for (const auto &row : rows) {
        const auto image = held<Image>(), other = held<Image>();
        image->set(row.from, 1, 1, 1, 1, 1, 0.0, pixel);
        EXPECT_FALSE(image->reformat(row.from)) << row.from; // It is in this format.
        EXPECT_TRUE(image->reformat(row.to, other.get()) && image->reformat(row.to));
        for (const auto &each : {image, other})
            EXPECT_EQ(Bytes(each->getData(), each->getData() + each->getSize()), row.expected)
                << row.from << " " << row.to;
    }
}

TEST(Images, AreCopiedReformattedAndScaled)
{
    const auto image = held<Image>(), copy = held<Image>();
    const UInt8 pixels[] = {10, 20, 30};
    image->set(Image::OSG_RGB_PF, 1, 1, 1, 1, 1, 0.0, pixels);
    ASSERT_TRUE(copy->set(image.get()));
    ASSERT_TRUE(image->reformat(Image::OSG_RGBA_PF));
    EXPECT_EQ(image->getBpp(), 4);
    EXPECT_EQ(std::memcmp(image->getData(), pixels, 3), 0);
    ASSERT_TRUE(image->scale(2, 3, 1));
    EXPECT_EQ(image->getSize(), 24u);
    EXPECT_EQ(image->getData()[20], 10);
    EXPECT_EQ(copy->getSize(), 3u);
    EXPECT_EQ(std::memcmp(copy->getData(), pixels, 3), 0);
}
