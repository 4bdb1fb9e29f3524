#include "pictures/AddPicture.h"

#include "pictures/frmAddPicture.h"

void StartAddPicture() {
  look::The<frmAddPicture>().InsertPicture();
}

void AddPicture(const std::string& path) {
  look::The<frmAddPicture>().InsertPicture(path);
}
