#include "editor/ToolbarPictures.h"

#include "look/DrawnIcon.h"

// Outside every namespace, as the macro asks. Without it the linker leaves the pictures out.
static void BringThePictures() {
  Q_INIT_RESOURCE(toolbar);
}

namespace {

struct Picture {
  const char16_t* key;
  const char16_t* name;
};

constexpr Picture pictures[] = {
    {u"btnNewPage", u"new-page"},
    {u"btnFirstPage", u"title-page"},
    {u"btnBack", u"back"},
    {u"btnNext", u"next"},
    {u"btnLastPage", u"last-page"},
    {u"btnPrint", u"print"},
    {u"btnIndex", u"index"},
    {u"btnCal", u"calendar"},
    {u"btnInsertEmoticon", u"emoticon"},
    {u"btnInsertPicture", u"picture"},
    {u"btnFont", u"font"},
    {u"btnOptions", u"options"},
    {u"btnJournalProperties", u"journal-properties"},
    {u"btnHelp", u"help"},
};

}  // namespace

QIcon ToolbarPicture(const QString& key) {
  BringThePictures();
  const QString file = QStringLiteral(":/toolbar/%1%2.svg");
  for (const Picture& picture : pictures)
    if (key == QStringView(picture.key))
      return look::DrawnIcon(file.arg(QStringView(picture.name), QString()),
                             file.arg(QStringView(picture.name), QStringLiteral("-lit")));
  return {};
}
