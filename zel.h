// libzel: reads and writes the scene files of a 3D architectural rendering application.
// The one header a host includes for the whole public surface. C++11.
#ifndef ZEL_H
#define ZEL_H

#include "foundation/Image.h"
#include "foundation/RefCount.h"
#include "frame/ZelEntryPoints.h"
#include "frame/ZelFrontier.h"
#include "frame/ZelImage.h"
#include "frame/ZelMgr.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelStream.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

#endif
