#include "config/configuration.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

TEST(Configuration, ReadsASettingWithoutEnteringIt) {
    clsConfiguration document;
    EXPECT_EQ(document.ReadSetting("a", 5).AsWhole(), 5);
    EXPECT_TRUE(document.ReadSetting("a").IsNothing());
    EXPECT_EQ(document.OutputConfiguration(), "");
    document.Root()->Item("a");
    EXPECT_EQ(document.OutputConfiguration(), "a = \"\";\r\n");
    document.RemoveSetting("a");
    EXPECT_EQ(document.OutputConfiguration(), "");
}

TEST(Configuration, SharesOrCopiesTheMapsItIsGiven) {
    clsConfiguration document;
    const auto first = std::make_shared<ConfigMap>();
    const auto second = std::make_shared<ConfigMap>();
    document.WriteSetting("a", first);
    EXPECT_EQ(document.ReadSetting("a", {}, true).AsMap(), first);
    EXPECT_NE(document.ReadSetting("a").AsMap(), first);
    document.WriteSetting("b", 1);
    document.WriteSetting("a", second, true);
    EXPECT_EQ(document.ReadSetting("a", {}, true).AsMap(), second);
    document.WriteSetting("a", first);
    EXPECT_NE(document.ReadSetting("a", {}, true).AsMap(), first);

    const ConfigMapRef copy = document.Root(false);
    copy->Find("a")->AsMap()->Item("inner") = 1;
    copy->Item("b") = 2;
    EXPECT_EQ(document.OutputConfiguration("", false), "a{}b=1;");
}

TEST(Configuration, LivesInAFile) {
    const TempFolder folder;
    clsConfiguration document;
    document.WriteSetting("old", 1);
    EXPECT_TRUE(document.LoadConfiguration(folder.Path("new.cfg")));
    EXPECT_EQ(document.Root()->Count(), 0);
    EXPECT_EQ(std::filesystem::file_size(folder.Native("new.cfg")), 0U);

    document.WriteSetting("a", "\t\xFF");
    EXPECT_TRUE(document.SaveConfiguration(folder.Path("new.cfg")));
    EXPECT_EQ(folder.Read("new.cfg"), "a = \"\\t\xFF\";\r\n");
    EXPECT_TRUE(document.LoadConfiguration(folder.Write("other.cfg", "b=\"x\r\";\r\n")));
    EXPECT_EQ(document.OutputConfiguration(), "b = \"x\";\r\n");

    std::filesystem::create_directory(folder.Native("folder"));
    for (const char* name : {"folder", "no folder\\x.cfg"}) {
        EXPECT_NE(document.LoadConfiguration(folder.Path(name)).reason, "");
        EXPECT_NE(document.SaveConfiguration(folder.Path(name)).reason, "");
    }
    EXPECT_EQ(document.OutputConfiguration(), "b = \"x\";\r\n");
}
