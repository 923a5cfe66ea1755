#include "display/unit_pass.h"

#include <array>
#include <optional>

#include "actions/sides.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kSpentBase = 5;

struct BaseRow {
    int army;
    int tile;
};
// The base is laid twice, by two tables; with a sprite the second one is what shows.
constexpr std::array<BaseRow, 5> kBases = {
    {{kFrench, 2}, {kBritish, 0}, {kAustrian, 4}, {kPrussian, 3}, {kRussian, 1}}};
constexpr std::array<BaseRow, 3> kSpriteBases = {{{kFrench, 2}, {kBritish, 0}, {kPrussian, 1}}};

template <std::size_t Count>
std::optional<int> BaseOf(const std::array<BaseRow, Count>& rows, int army) {
    for (const BaseRow& row : rows) {
        if (row.army == army) return row.tile;
    }
    return std::nullopt;
}

// Whether a person has the army's turn.
bool IsPlayersOwn(const Game& game, int army) {
    return army == game.state.currentArmy && IsHumanArmy(game);
}

bool IsSpent(const Game& game, UnitId id) {
    return id.army == game.state.currentArmy && game.At(id).actionPoints == 0;
}

Sheet MoraleSheet(int maxMorale) {
    if (maxMorale >= 30) return Sheet::EliteMorale;
    if (maxMorale >= 25) return Sheet::VeteranMorale;
    if (maxMorale >= 20) return Sheet::ExperiencedMorale;
    return Sheet::MilitiaMorale;
}

int MoraleTile(const Unit& unit) {
    if (unit.morale == unit.maxMorale) return 0;
    const int percent = unit.morale * 100 / unit.maxMorale;
    if (percent >= 80) return 1;
    if (percent >= 60) return 2;
    if (percent >= 40) return 3;
    return 4;
}

std::optional<int> AmmunitionTile(int ammunition) {
    if (ammunition >= 7) return 3;
    if (ammunition >= 5) return 2;
    if (ammunition >= 3) return 1;
    if (ammunition >= 1) return 0;
    return std::nullopt;
}

// The tiles of one unit of the normal view, one upon the other.
class UnitPicture {
 public:
    UnitPicture(const Game& game, const Art& art, TileList& tiles)
        : game_(game), art_(art), tiles_(tiles), onBases_(game.settings.showUnitBases == 1) {}

    void Add(UnitId id, Point at) {
        id_ = id;
        at_ = at;
        if (onBases_) {
            AddBase(game_.At(id).actionPoints == 0, BaseOf(kBases, id.army));
        } else if (game_.settings.healthBars == 1) {
            AddMorale();
        }
        if (const auto nation = NationOf(id.army)) AddSprite(*nation);
    }

 private:
    const Unit& Shown() const { return game_.At(id_); }
    void Put(const TileSet& set, int tile) { tiles_.push_back({&set, tile, at_}); }

    void AddBase(bool isSpent, std::optional<int> tile) {
        if (isSpent) tile = kSpentBase;
        if (tile) Put(art_.At(Sheet::UnitBases), *tile);
    }

    // Under extreme fog a player sees only that an enemy is weak.
    void AddMorale() {
        if (Shown().maxMorale <= 0) return;
        constexpr int kWeak = 3;
        const int tile = MoraleTile(Shown());
        const bool isTold = game_.header.fogExtreme != 1 || game_.header.fogNormal == 1 ||
                            IsPlayersOwn(game_, id_.army);
        if (tile >= kWeak || isTold) Put(art_.At(MoraleSheet(Shown().maxMorale)), tile);
    }

    void AddSprite(std::size_t nation) {
        const bool spent = IsSpent(game_, id_);
        if (onBases_) AddBase(spent, BaseOf(kSpriteBases, id_.army));
        const SpriteForm form = onBases_ ? SpriteForm::Based
                                : spent  ? SpriteForm::Spent
                                         : SpriteForm::Fresh;
        if (Shown().type == UnitType::Leader) {
            Put(art_.At(onBases_ ? Sheet::LeadersOnBases : Sheet::Leaders),
                LeaderTile(nation, form));
        } else if (const auto sprite = SpriteOf(id_.army, Shown(), form)) {
            Put(art_.Sprites().Find(*sprite), sprite->tile);
        }
        if (!onBases_) AddAmmunition();
    }

    void AddAmmunition() {
        if (game_.header.fogNone != 1 && !IsPlayersOwn(game_, id_.army)) return;
        const auto tile = AmmunitionTile(Shown().ammunition);
        if (tile) Put(art_.At(Sheet::Ammunition), *tile);
    }

    const Game& game_;
    const Art& art_;
    TileList& tiles_;
    const bool onBases_;
    UnitId id_;
    Point at_;
};

// The picture of a type on the small sheet; nothing for a type without one of its own.
std::optional<int> SmallUnitTile(UnitType type) {
    constexpr int kRockets = 19;
    constexpr int kHorseGuns = 22;
    constexpr int kFieldGuns = 23;
    if (IsBetween(type, UnitType::LightInfantry, UnitType::GuardCavalry))
        return static_cast<int>(type) - 1;
    if (type == UnitType::RocketArtillery) return kRockets;
    if (type == UnitType::HorseArtillery) return kHorseGuns;
    if (type == UnitType::FieldArtillery) return kFieldGuns;
    return std::nullopt;
}

// Draws the units of the zoom-out view one after another: mortars are shown by the picture of the
// unit drawn before them.
class SmallUnitPicture {
 public:
    SmallUnitPicture(const Game& game, const Art& art, TileList& tiles)
        : game_(game), art_(art), tiles_(tiles) {}

    void Add(UnitId id, Point at) {
        if (game_.grid.At(game_.At(id).Place()).occupant <= 0) return;
        if (game_.settings.armyColours == 1) {
            tiles_.push_back({&art_.At(Sheet::ArmyColours), id.army, at});
            return;
        }
        const UnitType type = game_.At(id).type;
        const auto tile = type == UnitType::MortarArtillery ? last_ : SmallUnitTile(type);
        if (!tile) return;
        last_ = tile;
        tiles_.push_back({&art_.At(Sheet::SmallUnits), *tile, at});
    }

 private:
    const Game& game_;
    const Art& art_;
    TileList& tiles_;
    std::optional<int> last_;
};

// Calls show(unit, place) for every unit seen, in the order in which they are drawn.
template <typename Show>
void ForEachSeen(const Game& game, const Plotter& plotter, Show show) {
    const int last = std::min(game.state.unitLimit, kUnitsPerArmy - 1);
    for (int army = 0; army < kArmyCount; ++army) {
        if (game.Army(army).present == 0) continue;
        for (int index = last; index >= 1; --index) {
            const UnitId id{army, index};
            if (IsUnitSeen(game, id)) show(id, plotter.PlotCell(game.At(id).Place()));
        }
    }
}

template <typename Picture>
TileList ListUnits(const Game& game, const Art& art, const Plotter& plotter) {
    TileList tiles;
    Picture picture(game, art, tiles);
    ForEachSeen(game, plotter, [&](UnitId id, Point at) { picture.Add(id, at); });
    return tiles;
}

bool IsArrivalTold(const Game& game, UnitId id) {
    if (game.At(id).arrivalTurn < game.state.gameTurn) return true;
    return game.state.battlePassRunning != 0 || SideOf(id.army) == game.OwnSide() ||
           id.army == game.header.firstPlayer;
}

}  // namespace

bool IsUnitSeen(const Game& game, UnitId id) {
    const Unit& unit = game.At(id);
    if (unit.Place() == kNoCell || !game.grid.Holds(unit.Place()) || !IsOnMap(game, id))
        return false;
    return HasFogOfWar(game) ? unit.visible == 1 : IsArrivalTold(game, id);
}

TileList UnitTiles(const Game& game, const Art& art, ViewKind view, const Plotter& plotter) {
    return view == ViewKind::Normal ? ListUnits<UnitPicture>(game, art, plotter)
                                    : ListUnits<SmallUnitPicture>(game, art, plotter);
}

}  // namespace varnstride
