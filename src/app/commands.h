// Every menu item, toolbar button and key comes here as a plain number or key and goes on to what
// it stands for.
#pragma once

#include "model/game.h"

namespace varnstride {

// A menu or toolbar command by its number; unknown numbers do nothing.
void DispatchCommand(Game& game, int id);

enum class Key {
    A,
    B,
    C,
    D,
    E,
    F,
    G,
    H,
    I,
    J,
    K,
    L,
    M,
    N,
    O,
    P,
    Q,
    R,
    S,
    T,
    U,
    V,
    W,
    X,
    Y,
    Z,
    One,
    Two,
    Three,
    Tab,
    Shift,
    F1,
    F2,
};

// A key as it comes up.
void DispatchKey(Game& game, Key key);

}  // namespace varnstride
