#ifndef KORVENTALLY_PLATFORM_WIN32_UI_RESOURCE_IDS_H_
#define KORVENTALLY_PLATFORM_WIN32_UI_RESOURCE_IDS_H_

/* Read by the resource compiler too, which knows neither "#pragma once" nor C++.
   A picture exists in three sizes, for 100, 150 and 200 percent: its number and the two behind. */
#define KORVENTALLY_PROGRAM_ICON 1
#define KORVENTALLY_ABOUT_BANNER 110
#define KORVENTALLY_LOGO 120

#endif
