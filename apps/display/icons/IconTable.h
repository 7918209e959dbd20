#pragma once

#include <array>

/// The display's icons. Drawn for this project on a grid of 24 by 24 with a stroke of 2 and round ends, without fills:
/// an icon is the path of one SVG element.
struct tagIcon
{
    const char* name;
    const char* path;
};

inline constexpr std::array Icons = {
    tagIcon{"plus", "M12 5v14M5 12h14"},
    tagIcon{"minus", "M5 12h14"},
    tagIcon{"heading", "M12 3l6 17-6-5-6 5z"},
    tagIcon{"north", "M7 21V13l10 8v-8M12 10V3M9 6l3-3 3 3"},
    tagIcon{"centre", "M12 2v5M12 17v5M2 12h5M17 12h5M12 7a5 5 0 1 0 0 10 5 5 0 0 0 0-10"},
    tagIcon{"flag", "M12 22c-4-5-6-8.5-6-12a6 6 0 0 1 12 0c0 3.5-2 7-6 12z"},
    tagIcon{"lines", "M4 21L8 3M10 21L14 3M16 21L20 3"},
    tagIcon{"moon", "M20 14.5A8.5 8.5 0 1 1 10 4a6.5 6.5 0 0 0 10 10.5z"},
    tagIcon{"sun", "M12 8a4 4 0 1 0 0 8 4 4 0 0 0 0-8M12 2v2M12 20v2M2 12h2M20 12h2M4.9 4.9l1.4 1.4M17.7 17.7l1.4 "
                   "1.4M4.9 19.1l1.4-1.4M17.7 6.3l1.4-1.4"},
    tagIcon{"lock", "M5 11h14v10H5zM8 11V7a4 4 0 0 1 8 0v4"},
    tagIcon{"unlock", "M5 11h14v10H5zM8 11V7a4 4 0 0 1 7.7-1.5"},
    tagIcon{"stick", "M8 9h8v11a1 1 0 0 1-1 1H9a1 1 0 0 1-1-1zM9 9V3h6v6M11 6h.01M13 6h.01"},
    tagIcon{"receiver", "M12 13v8M12 10a1.5 1.5 0 1 0 0 3 1.5 1.5 0 0 0 0-3M8.5 15a5 5 0 0 1 0-7M15.5 8a5 5 0 0 1 0 "
                        "7M5.5 18a9.2 9.2 0 0 1 0-13M18.5 5a9.2 9.2 0 0 1 0 13"},
    tagIcon{"tractor", "M7 12a4.5 4.5 0 1 0 0 9 4.5 4.5 0 0 0 0-9M18.5 16a2.5 2.5 0 1 0 0 5 2.5 2.5 0 0 0 0-5M11.5 "
                       "18H16M5 12.5V4h6l2 7h7v5M17 11V7"},
    tagIcon{"field", "M3 7l7-4 11 4-1 11-9 3-8-5zM4 12l6-3 10 2M4 16.5l6-3.5 9.5 3"},
    tagIcon{"logs", "M5 3h10l4 4v14H5zM9 9h3M9 13h6M9 17h6"},
    tagIcon{"settings", "M3 6h3M10 6h11M8 4a2 2 0 1 0 0 4 2 2 0 0 0 0-4M3 12h10M17 12h4M15 10a2 2 0 1 0 0 4 2 2 0 0 0 "
                        "0-4M3 18h3M10 18h11M8 16a2 2 0 1 0 0 4 2 2 0 0 0 0-4"},
    tagIcon{"search", "M10.5 4a6.5 6.5 0 1 0 0 13 6.5 6.5 0 0 0 0-13M15.5 15.5L21 21"},
    tagIcon{"back", "M15 5l-7 7 7 7"},
    tagIcon{"forward", "M9 5l7 7-7 7"},
    tagIcon{"up", "M5 15l7-7 7 7"},
    tagIcon{"down", "M5 9l7 7 7-7"},
    tagIcon{"close", "M6 6l12 12M18 6L6 18"},
    tagIcon{"check", "M4 13l5 5L20 7"},
    tagIcon{"warning", "M12 4L2.5 20h19zM12 10v4M12 17h.01"},
    tagIcon{"backspace", "M9 5h12v14H9l-6-7zM12 9.5l5 5M17 9.5l-5 5"},
    tagIcon{"trash", "M4 7h16M9 7V4h6v3M6 7l1 14h10l1-14M10 11v6M14 11v6"},
    tagIcon{"pencil", "M4 20l1-5L16 4l4 4L9 19zM13.5 6.5l4 4"},
    tagIcon{"reset", "M4 4v6h6M4.5 10A8.2 8.2 0 1 1 4 14"},
    tagIcon{"play", "M7 4l13 8-13 8z"},
    tagIcon{"pause", "M8 5v14M16 5v14"},
    tagIcon{"working", "M3 6h18M12 2v4M5 6v4M12 6v4M19 6v4M5 13v.01M12 13v.01M19 13v.01M3.5 17v.01M6.5 17v.01M10.5 "
                       "17v.01M13.5 17v.01M17.5 17v.01M20.5 17v.01M5 21v.01M12 21v.01M19 21v.01"},
    tagIcon{"export", "M12 3v11M7.5 7.5L12 3l4.5 4.5M4 14v6h16v-6"},
    tagIcon{"import", "M12 14V3M7.5 9.5L12 14l4.5-4.5M4 14v6h16v-6"},
    tagIcon{"clock", "M12 3a9 9 0 1 0 0 18 9 9 0 0 0 0-18M12 7v5l3.5 3"},
    tagIcon{"drive", "M5 4h14l2 10v6H3v-6zM3 14h18M7 17h.01M11 17h.01"},
    tagIcon{"memory", "M6 6h12v12H6zM9 2v4M15 2v4M9 18v4M15 18v4M2 9h4M2 15h4M18 9h4M18 15h4"},
    tagIcon{"language", "M12 3a9 9 0 1 0 0 18 9 9 0 0 0 0-18M3 12h18M12 3c-5 5-5 13 0 18M12 3c5 5 5 13 0 18"},
    tagIcon{"palette",
            "M12 3a9 9 0 1 0 0 18c3 0 1-3 2.5-4.5S21 16 21 12a9 9 0 0 0-9-9M8 9h.01M12 7h.01M16 9h.01M7 13.5h.01"},
    tagIcon{"folder", "M3 6h6l2 3h10v11H3z"},
    tagIcon{"info", "M12 3a9 9 0 1 0 0 18 9 9 0 0 0 0-18M12 11v6M12 7.5h.01"},
    tagIcon{"job", "M5 5h14v16H5zM9 5V3h6v2M9 13l2 2 4-4"},
    tagIcon{"tiles", "M4 4h6v6H4zM14 4h6v6h-6zM4 14h6v6H4zM14 14h6v6h-6z"},
    tagIcon{"person", "M12 4a4 4 0 1 0 0 8 4 4 0 0 0 0-8M4 21c0-4 3.5-6 8-6s8 2 8 6"},
    tagIcon{"farm", "M3 21V11l9-7 9 7v10zM9 21v-7h6v7"},
    tagIcon{"left", "M19 4L5 12l14 8z"},
    tagIcon{"right", "M5 4l14 8-14 8z"},
    tagIcon{"shift", "M12 3l9 9h-5v8H8v-8H3z"},
};
