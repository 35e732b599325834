#pragma once

#include "objects/ui/property_dialog.h"

// The groups and fields of the property dialogs, one file per dialog. Each is called once on a new dialog.
namespace corvanta {

void buildButobj(PropertyDialog &d);
void buildHotobj(PropertyDialog &d);
void buildLbxobj(PropertyDialog &d);
void buildLblobj(PropertyDialog &d);
void buildTbxobj(PropertyDialog &d);
void buildImgobj(PropertyDialog &d);
void buildTkrobj(PropertyDialog &d);
void buildAniobj(PropertyDialog &d);
void buildGrdobj(PropertyDialog &d);
void buildImgdbobj(PropertyDialog &d);
void buildCbxobj(PropertyDialog &d);
void buildFbxobj(PropertyDialog &d);
void buildUrlobj(PropertyDialog &d);

} // namespace corvanta
