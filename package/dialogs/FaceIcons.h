// Drawings of what the editor of face controllers shows and does (designintf/ComponentIcons.h).
#pragma once
#include <array>

namespace face_icons {
inline constexpr const char* Load =
    "pen line 1.5 brush fill shape 2.5 5.5 9 5.5 11 7.5 19.5 7.5 19.5 19 2.5 19 pen accent 2 path 11 16.5 11 "
    "11 "
    "path 8 13.5 11 10.5 14 13.5";
inline constexpr const char* Save =
    "pen line 1.5 brush fill box 4 4 16 16 1.5 brush none path 8 4 8 8.5 15.5 8.5 15.5 4 pen accent 1.6 "
    "brush "
    "accent+50 box 7.5 13 9 7 0";
inline constexpr const char* Add = "pen accent 2.5 path 12 5 12 19 path 5 12 19 12";
inline constexpr const char* Remove = "pen accent 2.5 path 5 12 19 12";
inline constexpr const char* Clear = "pen accent 2.3 path 6 6 18 18 path 18 6 6 18";
inline constexpr const char* Properties =
    "pen line 1.5 brush fill box 4 3 16 18 1.5 pen accent 1.8 path 7.5 8 16.5 8 path 7.5 12 16.5 12 path 7.5 "
    "16 "
    "13 16";
// By the kind of a setting object.
inline constexpr std::array<const char*, 10> Kinds{
    "pen line 1.5 dots brush none box 4 4 16 16 2",
    "pen line 2 path 6 19 12 5 18 19 path 8.3 14 15.7 14",
    "pen accent+50 2 path 8 20.5 14 6.5 20 20.5 path 10.3 15.5 17.7 15.5 pen line 2 path 5 18 11 4 17 18 "
    "path 7.3 "
    "13 14.7 13",
    "pen line 2 path 3.5 17 12.5 5 15.5 19 path 7 12.5 14 14.5 pen accent 1.6 path 16.5 5 20.5 9 20.5 14",
    "pen accent+50 3 path 4 7 20 7 pen accent+25 3 path 4 11.5 20 11.5 pen accent 3 path 4 16 20 16 pen line "
    "1.5 "
    "brush none box 3 4.5 18 14.5 1",
    "pen line 1.5 brush fill box 3 5 18 14 1 pen none brush accent oval 6 7.5 4 4 pen accent 1.6 path 4.5 17 "
    "10 "
    "12.5 13 15 16.5 10.5 19.5 14",
    "pen line 1.5 brush fill box 3 5 18 14 1 pen accent 2 path 6 16 6 8 17.5 8 pen line 2 path 18 8.5 18 16 "
    "6.5 16",
    "pen line 1.5 brush accent box 4 4 16 16 2",
    "pen accent 1.5 path 4 10 10 4 path 4 16.5 16.5 4 path 7 20 20 7 path 13.5 20 20 13.5 pen line 1.5 brush "
    "none "
    "box 3.5 3.5 17 17 1",
    "pen line 1.5 brush fill box 3 4 8 7 1 box 13 4 8 7 1 box 3 13 8 7 1 pen accent 1.5 brush accent+50 box "
    "13 13 "
    "8 7 1"};
}  // namespace face_icons
