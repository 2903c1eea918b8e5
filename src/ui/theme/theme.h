#pragma once

/// All colours and styles of the user interface, named after their use. The values are in tokens.h,
/// and the other headers have the styles by subject.
#include "boxes.h"
#include "buttons.h"
#include "cards.h"
#include "detaillist.h"
#include "fields.h"
#include "labels.h"
#include "navigation.h"
#include "tokens.h"
