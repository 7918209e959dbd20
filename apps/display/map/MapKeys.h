#pragma once

#include <Qt>

#include <array>

/// What a key does to the map while the map has the keyboard's focus.
enum EMapAction : int
{
    MAP_LOOK_LEFT,
    MAP_LOOK_RIGHT,
    MAP_LOOK_UP,
    MAP_LOOK_DOWN,
    MAP_ZOOM_IN,
    MAP_ZOOM_OUT,
    MAP_FOLLOW, ///< the vehicle, again
    MAP_TURN,   ///< between heading up and north up
};

struct tagMapKey
{
    int key;
    EMapAction action;
};

/// All other keys go on to what is around the map.
inline constexpr std::array MapKeys = {
    tagMapKey{Qt::Key_Left, MAP_LOOK_LEFT},
    tagMapKey{Qt::Key_Right, MAP_LOOK_RIGHT},
    tagMapKey{Qt::Key_Up, MAP_LOOK_UP},
    tagMapKey{Qt::Key_Down, MAP_LOOK_DOWN},
    tagMapKey{Qt::Key_Plus, MAP_ZOOM_IN},
    tagMapKey{Qt::Key_Equal, MAP_ZOOM_IN}, // the key of the plus on many keyboards
    tagMapKey{Qt::Key_Minus, MAP_ZOOM_OUT},
    tagMapKey{Qt::Key_Home, MAP_FOLLOW},
    tagMapKey{Qt::Key_N, MAP_TURN},
};

/// How far an arrow key looks, in parts of the shorter side of what is seen.
constexpr double LookPart = 0.125;
