#include "Contract.h"

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGSpotLight.h>

#include <cstring>

using namespace osg;

TEST(Lights, StartWhiteOnAndUnattenuated)
{
    const auto light = held<SpotLight>();
    EXPECT_EQ(light->getDiffuse(), Color4f(1, 1, 1, 1));
    EXPECT_EQ(light->getConstantAttenuation(), 1);
    EXPECT_EQ(held<DirectionalLight>()->getDirection(), Vec3f(0, 0, 1));
    light->setSpotCutOffDeg(90);
    EXPECT_NEAR(light->getSpotCutOff(), 1.5707963, 1e-5);
}

TEST(Images, CopyTheDataTheyAreGiven)
{
    const auto image = held<Image>();
    EXPECT_EQ(image->getData(), nullptr);
    EXPECT_FALSE(image->isValid());
    UInt8 pixels[] = {1, 2, 3, 4, 5, 6};
    ASSERT_TRUE(image->set(Image::OSG_RGB_PF, 1, 2, 1, 1, 1, 0.0, pixels));
    pixels[0] = 99;
    EXPECT_EQ(image->getBpp(), 3);
    EXPECT_EQ(image->getSize(), 6u);
    EXPECT_EQ(image->getData()[0], 1);
    EXPECT_FALSE(image->set(12345, 1, 2));
    ASSERT_TRUE(image->set(Image::OSG_L_PF, 2, 3)); // Without data the old bytes stay.
    EXPECT_EQ(std::memcmp(image->getData() + 1, pixels + 1, 5), 0);
}
