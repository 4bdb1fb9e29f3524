#include "pictures/AddPicture.h"

#include "pictures/frmAddPicture.h"

void StartAddPicture() {
  look::The<frmAddPicture>().InsertPicture();
}
