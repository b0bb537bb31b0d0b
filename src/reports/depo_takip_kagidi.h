#pragma once

#include "rapor_tablosu.h"

// The paper of store tracking: a separator and the heading line with the
// page number at its end on every page, the rows at their Tab places.
namespace DepoTakibi {

RaporKagidi Kagit();

}
