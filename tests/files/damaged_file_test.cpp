// Files that were cut short or changed on the way: refused with a message, or read as what they
// say, and never half read.

#include <gtest/gtest.h>

#include <functional>

#include "support/file_layout.h"
#include "support/synthetic_battle.h"

namespace varnstride {
namespace {

class DamagedFile : public testing::Test {
 protected:
    DamagedFile() : field_({}) {
        MakeSavable(field_.game);
        field_.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
        field_.Add(kPrussian, 2, 1, MakeUnit(UnitType::Lancers));
        field_.game.Army(kFrench).hasGroupAssignments = 1;
        bytes_ = SerializeBattleFile(TakeFromGame(field_.game));
    }

    Result<BattleFile> Parse(std::span<const std::byte> bytes) const {
        return ParseBattleFile(bytes, "a.cmb", field_.catalogue);
    }
    void ExpectRefusedWhenCutTo(std::size_t length) const {
        const auto result = Parse(std::span(bytes_).first(length));
        ASSERT_FALSE(result.Ok()) << "cut to " << length;
        EXPECT_TRUE(result.Message().starts_with("a.cmb: ")) << result.Message();
    }
    // Every message names the file; what is read can be written and says the same.
    void ExpectRefusedOrFaithful(std::span<const std::byte> bytes, std::size_t at) const {
        const auto result = Parse(bytes);
        if (result.Ok()) {
            EXPECT_TRUE(std::ranges::equal(SerializeBattleFile(result.Get()), bytes))
                << "byte " << at;
        } else {
            EXPECT_TRUE(result.Message().starts_with("a.cmb: ")) << result.Message();
        }
    }
    void Flip(std::size_t at) {
        const std::byte right = bytes_[at];
        for (const int wrong : {0x01, 0xFF}) {
            bytes_[at] = right ^ static_cast<std::byte>(wrong);
            ExpectRefusedOrFaithful(bytes_, at);
        }
        bytes_[at] = right;
    }

    const FileLayout layout_{.width = 25, .height = 6, .briefings = true};
    Field field_;
    std::vector<std::byte> bytes_;
};

TEST_F(DamagedFile, TheSoundOneIsRead) {
    ASSERT_TRUE(Parse(bytes_).Ok());
    EXPECT_EQ(bytes_.size(), layout_.End());
}

TEST_F(DamagedFile, ACutFileIsRefusedWhereverItEnds) {
    for (const std::size_t bound : layout_.Bounds()) {
        if (bound > 0) ExpectRefusedWhenCutTo(bound - 1);
        if (bound < layout_.End()) {
            ExpectRefusedWhenCutTo(bound);
            ExpectRefusedWhenCutTo(bound + 1);
        }
    }
    for (std::size_t length = 0; length < bytes_.size(); length += 4999) {
        ExpectRefusedWhenCutTo(length);
    }
}

TEST_F(DamagedFile, AByteTooManyIsRefused) {
    bytes_.push_back(std::byte{0});
    const auto result = Parse(bytes_);
    ASSERT_FALSE(result.Ok());
    EXPECT_EQ(result.Message(), "a.cmb: 1 bytes stand behind the end of the battle");
}

TEST_F(DamagedFile, AFlippedByteIsRefusedOrKept) {
    for (std::size_t at = 0; at < FileLayout::kMap; ++at)
        Flip(at);
    for (std::size_t at = layout_.Cell(1, 1); at < layout_.Cell(1, 2); ++at)
        Flip(at);
    for (std::size_t at = layout_.Counts(); at < layout_.Header() + 34; ++at)
        Flip(at);
    for (std::size_t at = layout_.Time(); at < layout_.Briefings(); ++at)
        Flip(at);
    for (std::size_t at = layout_.Unit(0, 1); at < layout_.Unit(0, 2); ++at)
        Flip(at);
    for (std::size_t at = layout_.TurnLog(); at < layout_.TurnLog() + 8; ++at)
        Flip(at);
    for (std::size_t at = 0; at < bytes_.size(); at += 3001)
        Flip(at);
}

TEST_F(DamagedFile, AFlippedByteOfTheOlderLayoutIsRefusedOrCanBeSaved) {
    std::vector<std::byte> older = InOlderLayout(bytes_, layout_, 4, 3);
    ASSERT_TRUE(Parse(older).Ok());
    for (std::size_t at = 0; at < older.size(); at += 29) {
        const std::byte right = older[at];
        older[at] ^= std::byte{0xFF};
        const auto result = Parse(older);
        if (result.Ok()) {
            EXPECT_TRUE(Parse(SerializeBattleFile(result.Get())).Ok()) << "byte " << at;
        } else {
            EXPECT_TRUE(result.Message().starts_with("a.cmb: ")) << result.Message();
        }
        older[at] = right;
    }
}

}  // namespace
}  // namespace varnstride
