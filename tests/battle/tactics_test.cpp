// The exchange of plans: what the defender can answer, what the attacker is offered, what the
// computer picks. Tactics and responses by their numbers; a string has a figure for each throw.
#include "battle/tactics.h"

#include <gtest/gtest.h>

#include <functional>
#include <string_view>

#include "battle/attack_field.h"
#include "support/prepared_dice.h"

namespace varnstride {
namespace {

// An area of two enemies; nothing else is known of either side but the arms, which are letters:
// Line, Cavalry, Guns, Skirmishers of the light infantry.
struct PlanField : AttackField {
    PlanField() { game.battle.enemySlotsFilled = 2; }

    BattleState& Battle() { return game.battle; }
    void SetEnemy(std::string_view arms) {
        Battle().enemyLineHere = Has(arms, 'L');
        Battle().enemyCavalryHere = Has(arms, 'C');
        Battle().enemyGunsHere = Has(arms, 'G');
        Battle().enemyLightHere = Has(arms, 'S');
    }
    void SetOwn(std::string_view arms) {
        Battle().ownLine = Has(arms, 'L');
        Battle().ownCavalry = Has(arms, 'C');
        Battle().ownGuns = Has(arms, 'G');
        Battle().ownLight = Has(arms, 'S');
    }
    std::string Own() const {
        const BattleState& battle = game.battle;
        return std::string(battle.ownLine, 'L') + std::string(battle.ownCavalry, 'C') +
               std::string(battle.ownGuns, 'G') + std::string(battle.ownLight, 'S');
    }

    // Draws the response from that throw; the tactic from the second, when the computer attacks.
    void Choose(int response, int tactic = -1) {
        game.settings.computerSide = tactic < 0 ? 0 : 1;
        Battle().requiredLeadership = 2;
        Battle().chosenTactic = Battle().tacticalAdvantage = 0;
        std::vector<DieThrow> dice = {{8, response}};
        if (tactic >= 0) dice.push_back({10, tactic});
        const std::uint32_t thrown = PrepareDice(game, dice);
        ChooseTactics(game);
        EXPECT_EQ(game.generator.State(), thrown);
    }

 private:
    static int Has(std::string_view arms, char arm) {
        return arms.find(arm) == std::string_view::npos ? 0 : 1;
    }
};

using Change = std::function<void(PlanField&)>;
void Nothing(PlanField&) {
}
void InClose(PlanField& field) {
    field.game.state.closeSlots = 3;
}
void Hard(PlanField& field) {
    field.game.header.hardDifficulty = 1;
}
void AllInSquare(PlanField& field) {
    field.Battle().enemySquares = 2;
}

// Row by row the sum of the nine figures, and the sum with each taken as often as its column says.
TEST(Advantage, OfEachTactic) {
    constexpr int kSums[10][2] = {
        {-7, -36}, {3, 23}, {-3, -14}, {2, 22},  {4, 7},
        {8, 15},   {2, 26}, {-3, -11}, {-1, -4}, {9, 21},
    };
    for (int tactic = 0; tactic < 10; ++tactic) {
        int sum = 0;
        int weighted = 0;
        for (int response = 0; response < 9; ++response) {
            sum += AdvantageOf(tactic, response);
            weighted += response * AdvantageOf(tactic, response);
        }
        EXPECT_EQ(sum, kSums[tactic][0]) << tactic;
        EXPECT_EQ(weighted, kSums[tactic][1]) << tactic;
        EXPECT_EQ(AdvantageOf(tactic, 9), 4) << tactic;
    }
}

TEST(Response, IsWhatTheArmsAllow) {
    struct ResponseCase {
        std::string_view enemy;
        std::string_view responses;  // by the throw, 0 to 7
        Change change = Nothing;
    };
    const ResponseCase cases[] = {
        {"L", "01234007"},
        {"C", "00034060"},
        {"G", "00000500"},
        {"S", "00034007"},
        {"LC", "01234067"},
        {"LG", "01234507"},
        {"LS", "01234007"},
        {"CG", "00034560"},
        {"CS", "00034067"},
        {"GS", "00030507"},
        {"LCG", "01234567"},
        {"LCS", "01234067"},
        {"LGS", "01234507"},
        {"CGS", "01234567"},
        {"LCGS", "01234567"},
        {"", "01234007"},
        {"LCG", "01234567", [](auto& f) { f.game.state.closeSlots = 2; }},
        {"LCG", "01234507", InClose},
        {"LCG", "00034507", [](auto& f) { f.Battle().enemyShaken = 2; }},
        {"LCG", "01234567", [](auto& f) { f.Battle().enemyShaken = 1; }},
        {"LCG", "01234567", [](auto& f) { f.Battle().enemySquares = 1; }},
        {"L", "88888888", AllInSquare},
        {"G", "99999999", [](auto& f) { f.Battle().enemyRouted = 2; }},
        {"L", "99999999", [](auto& f) { f.Battle().enemyRouted = f.Battle().enemySquares = 2; }},
    };
    for (const ResponseCase& response : cases) {
        PlanField field;
        field.SetEnemy(response.enemy);
        response.change(field);
        std::string drawn;
        for (int thrown = 0; thrown < 8; ++thrown) {
            field.Choose(thrown);
            drawn += std::to_string(field.Battle().tacticalResponse);
        }
        EXPECT_EQ(drawn, response.responses) << response.enemy;
    }
}

// Pairs of a tactic and the arm that leads it; = leaves the arms as they are.
TEST(TacticsDialog, OffersWhatTheArmsAllow) {
    struct OfferCase {
        std::string_view own;
        int templateId;
        const char* caption;
        std::string_view offers;
    };
    const OfferCase cases[] = {
        {"S", 566, "Light Infantry Tactics", "1=2=3=4=7=8="},
        {"LS", 566, "Light Infantry Tactics", "1=2=3=4=7=8="},
        {"C", 567, "Cavalry Only Tactics", "3=4=5=9="},
        {"L", 568, "Line Infantry Only Tactics", "1=2=3=4=7="},
        {"LC", 569, "Line Infantry & Cavalry Tactics", "1L2L3L4C5C"},
        {"GS", 570, "Light Infantry and Artillery Tactics", "6G8S"},
        {"LG", 571, "Line Infantry and Artillery Tactics", "1=2=3=4=6G7="},
        {"CG", 572, "Cavalry and Artillery Tactics", "5C6G"},
        {"CS", 574, "Light Infantry and Cavalry", "3C5C8S"},
        {"LCG", 541, "Tactics", "1L2L3L4C5C6G7L"},
        {"LCS", 1810, "Tactics", "1L2L3L4C5C7L8S"},
        {"LGS", 1811, "Tactics", "1=2=3=4=6G7=8S"},
        {"CGS", 1812, "Tactics", "3S4C5C6G8S"},
    };
    constexpr int kButtons[] = {0, 1647, 1071, 1648, 1649, 1651, 1650, 1652, 1656, 1071};
    constexpr int kAgainstWithdrawal[] = {0, 0, 2, 0, 2, 1, 2, 0, 1, 1};  // response 3
    for (const OfferCase& offer : cases) {
        for (std::size_t each = 0; each < offer.offers.size(); each += 2) {
            const int tactic = offer.offers[each] - '0';
            const char leads = offer.offers[each + 1];
            PlanField field;
            field.SetEnemy("L");
            field.SetOwn(offer.own);
            field.witness.answers = [&](Dialog& dialog) {
                dialog.closedBy = kButtons[tactic];
                EXPECT_EQ(dialog.templateId, offer.templateId);
                EXPECT_EQ(dialog.caption, offer.caption);
                EXPECT_EQ(dialog.controls.size(), offer.offers.size() / 2);
            };
            field.Choose(3);
            SCOPED_TRACE(testing::Message() << offer.own << " with tactic " << tactic);
            EXPECT_EQ(field.witness.dialogs.size(), 1U);
            EXPECT_EQ(field.Battle().chosenTactic, tactic);
            EXPECT_EQ(field.Battle().tacticalAdvantage, kAgainstWithdrawal[tactic]);
            EXPECT_EQ(field.Battle().requiredLeadership, tactic == 3 ? 7 : tactic == 4 ? 8 : 2);
            EXPECT_EQ(field.Own(), leads == '=' ? std::string(offer.own) : std::string(1, leads));
        }
    }
}

TEST(TacticsDialog, OpensForArmsThatHaveAChoice) {
    struct GateCase {
        const char* name;
        std::string_view own;
        int eventCard;
        bool enemyRouted;
        bool opens;
        int advantage;  // of a frontal attack, against response 0 or 9
    };
    const GateCase cases[] = {
        {"line", "L", 39, false, true, -1},
        {"line in heavy rain", "L", 205, false, false, 0},
        {"guns in heavy rain", "LG", 205, false, true, -1},
        {"no dialog for guns alone", "G", 0, false, false, 0},
        {"nor for all arms together", "LCGS", 0, false, false, 0},
        {"the enemy runs", "L", 0, true, true, 4},
        {"the enemy runs from guns alone", "G", 0, true, false, 4},
        {"the enemy runs in heavy rain", "LS", 205, true, false, 0},
    };
    for (const GateCase& gate : cases) {
        PlanField field;
        field.SetEnemy("L");
        field.SetOwn(gate.own);
        field.game.state.eventCard = gate.eventCard;
        field.Battle().enemyRouted = gate.enemyRouted ? 2 : 0;
        field.witness.answers = [](Dialog& dialog) { dialog.closedBy = 1647; };
        field.Choose(0);
        EXPECT_EQ(field.witness.dialogs.size(), gate.opens ? 1U : 0U) << gate.name;
        EXPECT_EQ(field.Battle().chosenTactic, gate.opens ? 1 : 0) << gate.name;
        EXPECT_EQ(field.Battle().tacticalAdvantage, gate.advantage) << gate.name;
    }
}

TEST(ComputersTactic, FitsArmsAndGround) {
    struct PickCase {
        std::string_view own;
        std::string_view enemy;
        std::string_view tactics;  // by the throw, 0 to 9
        std::vector<Change> changes = {};
    };
    const PickCase cases[] = {
        {"L", "L", "0123400700"},
        {"L", "C", "0000000000"},
        {"L", "L", "7777777777", {AllInSquare}},
        {"L", "LC", "7777777777", {AllInSquare}},
        {"L", "L", "0444444744", {Hard}},
        {"L", "C", "0000000000", {Hard}},
        {"G", "L", "6666666666"},
        {"LG", "C", "6666666666", {Hard}},
        {"S", "L", "0123400780"},
        {"S", "C", "0000000000", {Hard}},
        {"S", "L", "0888888888", {Hard}},
        {"LS", "L", "0123400780"},
        {"LS", "C", "0000000000"},
        {"LS", "L", "0444444444", {Hard}},
        {"CG", "L", "0003056000"},
        {"CG", "L", "5555555555", {Hard}},
        {"CG", "L", "0003056000", {Hard, AllInSquare}},
        {"CG", "L", "0000000000", {Hard, InClose}},
        {"GS", "L", "0120406780"},
        {"GS", "L", "8888888888", {Hard}},
        {"GS", "L", "6666666666", {Hard, AllInSquare}},
        {"C", "L", "0000450009"},
        {"C", "L", "0000400000", {InClose}},
        {"LC", "L", "0123450789"},
        {"LC", "L", "0123400780", {InClose}},
        {"LCG", "L", "0123456789", {Hard}},
    };
    for (const PickCase& pick : cases) {
        PlanField field;
        field.SetEnemy(pick.enemy);
        field.SetOwn(pick.own);
        for (const Change& change : pick.changes)
            change(field);
        std::string picked;
        for (int thrown = 0; thrown < 10; ++thrown) {
            field.Choose(0, thrown);
            picked += std::to_string(field.Battle().chosenTactic);
        }
        EXPECT_EQ(picked, pick.tactics) << pick.own << " on " << pick.enemy;
        EXPECT_EQ(field.Own(), pick.own);
        EXPECT_EQ(field.Battle().requiredLeadership, 2);
    }
}

// A response counts only when somebody is there to give it.
TEST(ComputersTactic, GainsByWhatTheEnemyCanDo) {
    struct GainCase {
        int tactic;
        int response;
        std::string_view enemy;
        int advantage;
        Change change = Nothing;
    };
    const GainCase cases[] = {
        {0, 1, "L", -1},
        {4, 1, "", 0},
        {4, 1, "CGS", 1},
        {5, 2, "L", 2},
        {5, 2, "CGS", 0},
        {8, 2, "CGS", 1},
        {9, 2, "CGS", 2},
        {4, 3, "", 2},
        {6, 5, "G", 0},
        {9, 5, "LG", -1},
        {9, 6, "C", 3},
        {0, 6, "LC", -3},
        {4, 7, "L", 1},
        {4, 7, "S", 0},
        {8, 7, "L", 1},
        {8, 7, "S", 0},
        {6, 0, "L", 4, AllInSquare},
        {5, 0, "L", -1, AllInSquare},
        {0, 0, "L", 4, [](auto& f) { f.Battle().enemyRouted = 2; }},
    };
    for (const GainCase& gain : cases) {
        PlanField field;
        field.SetEnemy(gain.enemy);
        field.SetOwn("LCGS");  // who keep the tactic thrown
        gain.change(field);
        field.Choose(gain.response, gain.tactic);
        EXPECT_EQ(field.Battle().tacticalAdvantage, gain.advantage)
            << gain.tactic << " against " << gain.response << " of " << gain.enemy;
    }
}

}  // namespace
}  // namespace varnstride
