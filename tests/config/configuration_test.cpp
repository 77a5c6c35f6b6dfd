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

TEST(ConfigMap, ReadsAMillionKeysTwiceAndFindsEach) {
    constexpr int Keys = 1'000'000;
    std::string text;
    for (int entry = 0; entry < 2 * Keys; ++entry) {
        text += std::to_string(entry % Keys) + '=' + std::to_string(entry) + ';';
    }
    std::size_t position = 0;
    const ConfigMapRef map = ParseBlock(position, text + "}next=1;");
    EXPECT_EQ(position, text.size() + 1);
    ASSERT_EQ(map->Count(), Keys);
    for (int key = 0; key < Keys; ++key) {
        const ConfigEntry& entry = map->Entries()[static_cast<std::size_t>(key)];
        ASSERT_EQ(entry.key, std::to_string(key));
        ASSERT_EQ(entry.value.AsWhole(), key + Keys);
        ASSERT_EQ(map->Find(entry.key), &entry.value);
    }
    EXPECT_EQ(map->Find("1000000"), nullptr);
}

TEST(ConfigMap, KeepsReferencesUntilAKeyIsAddedOrRemoved) {
    ConfigMap map;
    for (int key = 0; key < 20; ++key) {
        map.Item(std::to_string(key)) = key;
    }
    EXPECT_TRUE(map.Remove("3"));
    const ConfigValue* const ten = map.Find("10");
    EXPECT_EQ(map.Keys()[3], "4");
    EXPECT_EQ(map.Items()[18].AsWhole(), 19);
    EXPECT_EQ(&map.Entries()[9].value, ten);
    EXPECT_EQ(ten->AsWhole(), 10);
    EXPECT_FALSE(map.Exists("3"));
}

TEST(ConfigMap, IsCopiedAndFreedAtAnyDepth) {
    const std::string opened(1'000'000, '{');
    std::size_t position = 0;
    ConfigMapRef root = ParseBlock(position, opened);
    const ConfigMapRef copy = CopyBlock(*root);
    root.reset();
    EXPECT_EQ(OutputBlock(*copy, 0, "", false), opened + std::string(opened.size(), '}'));
}

TEST(Configuration, ReadsASettingWithoutAddingIt) {
    clsConfiguration document;
    EXPECT_EQ(document.ReadSetting("a", 5).AsWhole(), 5);
    document.Root()->Item("b");
    EXPECT_EQ(document.OutputConfiguration(), "b = \"\";\r\n");
    document.RemoveSetting("b");
    EXPECT_EQ(document.OutputConfiguration(), "");
}

TEST(Configuration, SharesOrCopiesAStoredMap) {
    clsConfiguration document;
    const auto stored = [&] { return document.ReadSetting("a", {}, true).AsMap(); };
    const auto map = std::make_shared<ConfigMap>();
    document.WriteSetting("a", map);
    EXPECT_EQ(stored(), map) << "shared under a new key";
    EXPECT_NE(document.ReadSetting("a").AsMap(), map);
    document.WriteSetting("a", map);
    EXPECT_NE(stored(), map) << "copied under an old one";
    document.WriteSetting("a", map, true);
    EXPECT_EQ(stored(), map);

    const ConfigMapRef copy = document.Root(false);
    copy->Find("a")->AsMap()->Item("inner") = 1;
    copy->Item("b") = 2;
    EXPECT_EQ(document.OutputConfiguration("", false), "a{}");
}

TEST(Configuration, LoadsAndSavesAFile) {
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
