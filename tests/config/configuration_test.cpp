#include "config/configuration.h"

#include <gtest/gtest.h>

#include "config/reader.h"
#include "config/writer.h"
#include "support/temp_folder.h"

TEST(ConfigMap, KeepsItsOrderThroughEveryChange) {
    ConfigMap map;
    EXPECT_TRUE(map.Add("b", 1));
    EXPECT_TRUE(map.Add("B", 2));
    EXPECT_TRUE(map.Add("", 3));
    EXPECT_FALSE(map.Add("b", 9));
    EXPECT_TRUE(map.Item("looked for").IsNothing());
    map.Item("b") = "replaced";
    EXPECT_EQ(map.Find("absent"), nullptr);
    EXPECT_TRUE(map.Remove("B"));
    EXPECT_FALSE(map.Remove("B"));
    EXPECT_EQ(OutputBlock(map, 0, "", false), R"(b="replaced";=3;looked for="";)");
    map.RemoveAll();
    EXPECT_FALSE(map.Exists("b"));
}

TEST(ConfigMap, HoldsAMillionKeysAndLetsThemGo) {
    constexpr int keys = 1'000'000;
    std::vector<ConfigEntry> entries;
    entries.reserve(200);
    for (int place = 0; place < 200; ++place) {
        entries.push_back({std::to_string(place / 2), place / 2 - 1 + place % 2});
    }
    ConfigMap map(std::move(entries));  // each key twice, the last value counts
    for (int key = 100; key < keys; ++key) {
        ASSERT_TRUE(map.Add(std::to_string(key), key));
    }
    for (int key = 0; key < keys; ++key) {
        ASSERT_EQ(map.Find(std::to_string(key))->AsWhole(), key);
        ASSERT_TRUE(key % 3 == 0 || map.Remove(std::to_string(key)));
    }
    map.Item("1") = keys + 2;
    ASSERT_EQ(map.Count(), (keys + 2) / 3 + 1);
    int place = 0;
    for (const ConfigEntry& entry : map.Entries()) {
        ASSERT_EQ(entry.value.AsWhole(), place);
        ASSERT_TRUE(map.Exists(entry.key));
        place += 3;
    }
}

TEST(ConfigMap, AMillionOpenBracesAreReadCopiedSharedWrittenAndLetGo) {
    const std::string opened(1'000'000, '{');
    std::size_t position = 0;
    ConfigMapRef root = ParseBlock(position, opened);
    const ConfigMapRef copy = CopyBlock(*root);
    const ConfigMapRef inner = root->Find("")->AsMap();
    root.reset();  // lets go of all but what is held here
    EXPECT_EQ(inner->Find("")->AsMap()->Count(), 1);
    inner->Item("new") = 1;
    EXPECT_EQ(OutputBlock(*copy, 0, "", false), opened + std::string(opened.size(), '}'));
}

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
