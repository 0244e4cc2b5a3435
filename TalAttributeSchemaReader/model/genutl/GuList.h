// The linked list that the model's objects embed for their children.
#pragma once

#include "TalAttributeSchemaReader/model/genutl/CGTList.h"

/// A list of objects whose type its owner knows: the accessor that hands it out says what it holds.
/// `model/ModelWalk.h` walks it without a cast.
using GuList = CGTList<void*>;
