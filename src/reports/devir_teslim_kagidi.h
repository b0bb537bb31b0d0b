#pragma once

#include "rapor_tablosu.h"

// The paper of the handover minutes: two heading lines with the page number
// at their end, the rows at their Tab places, an empty line to close. No
// institution header and no signatures.
namespace DevirTeslimTutanagi {

// yon is the orientation (1 OpDik, 2 OpYat): a portrait page takes 70
// lines, a landscape one 52.
RaporKagidi Kagit(int yon);

}
