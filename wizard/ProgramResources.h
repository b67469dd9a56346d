// Numbers of the program's resources, for the resource script and for the code: plain defines only.
#ifndef ORVANTA_PROGRAM_RESOURCES_H
#define ORVANTA_PROGRAM_RESOURCES_H

#define ORVANTA_ICON_PROGRAM 1
#define ORVANTA_BITMAP_CLOSE 101  // a cross, 12 by 12
#define ORVANTA_BITMAP_BROWSE 102 // an open folder, 16 by 14

#endif
