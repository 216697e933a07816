#include "qxDocumentIndex.h"

#include <gtest/gtest.h>

TEST(IndexTest, VariantsOfOneNameAreToldApartByKind)
{
    qxDocument document;
    document.variants.resize(2);
    document.variants[0].name = document.variants[1].name = "Lamp";
    document.variants[1].kind = &qxVariantKinds::light;
    const qxDocumentIndex index(document);
    EXPECT_EQ(index.variant(&qxVariantKinds::node, "Lamp"), 0);
    EXPECT_EQ(index.variant(&qxVariantKinds::light, "Lamp"), 1);
    EXPECT_EQ(index.variant(&qxVariantKinds::overlay, "Lamp"), -1);
}
