// A form that is never shown: its text box turns rich text into plain text, and prints long plain texts. It
// is empty again when all is printed.
#pragma once

#include "look/Form.h"
#include "richtext/box/RichTextBox.h"

class frmPrintRTF : public look::Form {
  Q_OBJECT

 public:
  frmPrintRTF();

  // Lays nothing out, since nobody sees it, and so holds a journal of ten thousand pages. Its pages are
  // broken when they are printed.
  richtext::RichTextBox* txtM;
};
