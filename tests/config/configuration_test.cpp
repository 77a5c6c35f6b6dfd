#include "config/configuration.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

TEST(Configuration, ReadsASettingWithoutEnteringIt) {
    clsConfiguration document;
    EXPECT_EQ(document.ReadSetting("a", 5).AsWhole(), 5);
    EXPECT_EQ(document.OutputConfiguration(), "");
    document.Root()->Item("a");
    EXPECT_EQ(document.OutputConfiguration(), "a = \"\";\r\n");
    document.RemoveSetting("a");
    EXPECT_EQ(document.OutputConfiguration(), "");
}

TEST(Configuration, SharesOrCopiesTheMapsItIsGiven) {
    clsConfiguration document;
    const auto stored = [&] { return document.ReadSetting("a", {}, true).AsMap(); };
    const auto map = std::make_shared<ConfigMap>();
    document.WriteSetting("a", map);
    EXPECT_EQ(stored(), map) << "a new key shares";
    EXPECT_NE(document.ReadSetting("a").AsMap(), map);
    document.WriteSetting("a", map);
    EXPECT_NE(stored(), map) << "one that is there copies";
    document.WriteSetting("a", map, true);
    EXPECT_EQ(stored(), map);

    const ConfigMapRef copy = document.Root(false);
    copy->Find("a")->AsMap()->Item("inner") = 1;
    copy->Item("b") = 2;
    EXPECT_EQ(document.OutputConfiguration("", false), "a{}");
}

TEST(Configuration, LivesInAFile) {
    const TempFolder folder;
    clsConfiguration document;
    EXPECT_TRUE(document.LoadConfiguration(folder.Write("old.cfg", "a=\"\t\xFF\r\";\r\n")));
    folder.Write("folder/file", "");
    for (const char* name : {"folder", "no folder\\x.cfg"}) {
        EXPECT_NE(document.LoadConfiguration(folder.Path(name)).reason, "");
        EXPECT_NE(document.SaveConfiguration(folder.Path(name)).reason, "");
    }
    EXPECT_TRUE(document.SaveConfiguration(folder.Path("new.cfg")));
    EXPECT_EQ(folder.Read("new.cfg"), "a = \"\xFF\";\r\n");
    EXPECT_TRUE(document.LoadConfiguration(folder.Path("absent.cfg")));
    EXPECT_EQ(document.Root()->Count(), 0);
    EXPECT_TRUE(std::filesystem::exists(folder.Native("absent.cfg")));
}
