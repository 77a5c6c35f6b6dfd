#include "config/config_map.h"

#include <gtest/gtest.h>

namespace {

std::string KeysOf(const ConfigMap& map) {
    std::string keys;
    for (const std::string& key : map.Keys()) {
        keys += key + ",";
    }
    return keys;
}

ConfigMapRef NestedTo(int depth) {
    auto map = std::make_shared<ConfigMap>();
    for (int level = 0; level < depth; ++level) {
        auto outer = std::make_shared<ConfigMap>();
        outer->Add("", map);
        map = outer;
    }
    return map;
}

}  // namespace

TEST(ConfigMap, KeepsItsOrderThroughEveryChange) {
    ConfigMap map;
    EXPECT_TRUE(map.Add("b", 1));
    EXPECT_TRUE(map.Add("B", 2));
    EXPECT_TRUE(map.Add("", 3));
    EXPECT_FALSE(map.Add("b", 9));
    EXPECT_TRUE(map.Item("looked for").IsNothing());
    map.Item("b") = "replaced";
    EXPECT_EQ(map.Find("absent"), nullptr);
    EXPECT_EQ(KeysOf(map), "b,B,,looked for,");
    EXPECT_EQ(map.Items()[0].AsText(), "replaced");
    EXPECT_TRUE(map.Remove("B"));
    EXPECT_FALSE(map.Remove("B"));
    EXPECT_EQ(KeysOf(map), "b,,looked for,");
    EXPECT_EQ(map.Count(), 3);
    map.RemoveAll();
    EXPECT_EQ(map.Count(), 0);
    EXPECT_FALSE(map.Exists("b"));
}

TEST(ConfigMap, TakesEntriesWithRepeatedKeys) {
    for (const int others : {0, 100}) {
        std::vector<ConfigEntry> entries;
        for (const auto& [key, number] : {std::pair("a", 1), {"b", 2}, {"a", 3}, {"c", 4}}) {
            entries.push_back({key, number});
        }
        for (int other = 0; other < others; ++other) {
            entries.push_back({std::to_string(other % (others / 2)), other});
        }
        entries.push_back({"b", 5});
        const ConfigMap map(std::move(entries));
        EXPECT_EQ(map.Count(), 3 + others / 2);
        EXPECT_EQ(KeysOf(map).substr(0, 6), "a,b,c,");
        EXPECT_EQ(map.Find("a")->AsWhole(), 3);
        EXPECT_EQ(map.Find("b")->AsWhole(), 5);
        EXPECT_EQ(map.Items()[static_cast<std::size_t>(map.Count() - 1)].AsWhole(),
                  others > 0 ? others - 1 : 4);
    }
}

TEST(ConfigMap, HoldsAMillionKeysAndLetsThemGo) {
    constexpr int keys = 1'000'000;
    ConfigMap map;
    for (int key = 0; key < keys; ++key) {
        ASSERT_TRUE(map.Add(std::to_string(key), key));
    }
    for (int key = 0; key < keys; ++key) {
        ASSERT_EQ(map.Find(std::to_string(key))->AsWhole(), key);
        if (key % 3 != 0) {
            ASSERT_TRUE(map.Remove(std::to_string(key)));
        }
    }
    ASSERT_EQ(map.Count(), (keys + 2) / 3);
    map.Item("1") = 1;
    int place = 0;
    for (const ConfigEntry& entry : map.Entries().first((keys + 2) / 3)) {
        ASSERT_EQ(entry.value.AsWhole(), place);
        ASSERT_TRUE(map.Exists(entry.key));
        place += 3;
    }
    EXPECT_EQ(map.Entries().back().key, "1");
    for (int key = 0; key < keys; ++key) {
        map.Remove(std::to_string(key));
    }
    EXPECT_EQ(map.Count(), 0);
}

TEST(ConfigMap, IsSharedByReferenceAndCopiedDeeply) {
    ConfigMapRef root = NestedTo(1'000'000);
    const ConfigMapRef inner = root->Find("")->AsMap();
    const ConfigMapRef copy = CopyBlock(*root);
    copy->Find("")->AsMap()->Item("new") = 1;
    EXPECT_FALSE(inner->Exists("new"));
    root->Item("") = 5;  // lets go of all but what is held here
    EXPECT_EQ(inner->Find("")->AsMap()->Count(), 1);
}
