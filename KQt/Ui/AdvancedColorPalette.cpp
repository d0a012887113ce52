#include <KQt/Ui/AdvancedColorPalette.h>

namespace Kestrel::Gui {

// Written as the designers write colours.
// clazy:excludeall=qcolor-from-literal

// clang-format off
const std::array<QColor, AdvancedColorPaletteSize> AdvancedColorPalette = { // clazy:exclude=non-pod-global-static
    QColor("#ffffff"), QColor("#f7f6f6"), QColor("#ebebeb"), QColor("#d6d6d6"), QColor("#c0c0c0"), QColor("#aaaaaa"),
    QColor("#929292"), QColor("#7a7a7a"), QColor("#606060"), QColor("#444444"), QColor("#232323"), QColor("#000000"),

    QColor("#003748"), QColor("#021f54"), QColor("#120639"), QColor("#2f073b"), QColor("#3d051b"), QColor("#5e0202"),
    QColor("#5b1a04"), QColor("#58330a"), QColor("#553d0d"), QColor("#656119"), QColor("#4e5516"), QColor("#243e16"),

    QColor("#004e63"), QColor("#033076"), QColor("#1c0c4f"), QColor("#460e56"), QColor("#570e28"), QColor("#840705"),
    QColor("#7d2709"), QColor("#7b4812"), QColor("#785616"), QColor("#8c8525"), QColor("#6e7623"), QColor("#355723"),

    QColor("#006e8c"), QColor("#0844a4"), QColor("#2e1572"), QColor("#631878"), QColor("#7a163c"), QColor("#b70f0a"),
    QColor("#af3a11"), QColor("#aa671d"), QColor("#a77a23"), QColor("#c3bb38"), QColor("#99a534"), QColor("#4c7a34"),

    QColor("#008db1"), QColor("#0c59cf"), QColor("#3b1d8f"), QColor("#7e2199"), QColor("#9c1f4d"), QColor("#e61610"),
    QColor("#dc4c18"), QColor("#d68227"), QColor("#d39c2f"), QColor("#f4eb49"), QColor("#c1d045"), QColor("#629c44"),

    QColor("#00a4d3"), QColor("#1464f6"), QColor("#5125ad"), QColor("#9c29b7"), QColor("#bb285c"), QColor("#ff3823"),
    QColor("#ff6624"), QColor("#ffa834"), QColor("#fec63d"), QColor("#fefb64"), QColor("#d7eb5a"), QColor("#72bb53"),

    QColor("#00c8f8"), QColor("#3d8af7"), QColor("#6334e3"), QColor("#c238eb"), QColor("#e93578"), QColor("#ff5d55"),
    QColor("#ff8351"), QColor("#ffb253"), QColor("#ffc957"), QColor("#fef67f"), QColor("#e2ee79"), QColor("#92d36e"),

    QColor("#4dd7fa"), QColor("#75a9f9"), QColor("#8b51f5"), QColor("#d757f6"), QColor("#f06e9c"), QColor("#ff8a84"),
    QColor("#ffa382"), QColor("#ffc581"), QColor("#ffd783"), QColor("#fef8a0"), QColor("#e9f29b"), QColor("#aedd94"),

    QColor("#91e4fb"), QColor("#a8c6fa"), QColor("#b38df7"), QColor("#e692f8"), QColor("#f6a2bf"), QColor("#ffb4b0"),
    QColor("#ffc3ae"), QColor("#ffd8ad"), QColor("#ffe3ae"), QColor("#fefac0"), QColor("#f1f6be"), QColor("#cbe8ba"),

    QColor("#c9f1fd"), QColor("#d4e3fc"), QColor("#dacafb"), QColor("#f2c9fb"), QColor("#fad2e0"), QColor("#ffdad8"),
    QColor("#ffe2d8"), QColor("#ffecd7"), QColor("#fff1d7"), QColor("#fefce0"), QColor("#f7fade"), QColor("#dfedd6"),
};
// clang-format on

} // namespace Kestrel::Gui
