#include "editor/ToolbarPictures.h"

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

// With a picture the toolkit takes the one for sharper screens that lies beside it; each is decoded when it
// is first painted.
QIcon ToolbarPicture(const QString& key) {
  BringThePictures();
  QIcon icon;
  for (const Picture& picture : pictures) {
    if (key != QStringView(picture.key)) continue;
    const QString file = QStringLiteral(":/toolbar/%1%2.png").arg(QStringView(picture.name));
    icon.addFile(file.arg(QString()), {}, QIcon::Normal);
    icon.addFile(file.arg(QStringLiteral("-lit")), {}, QIcon::Active);
  }
  return icon;
}
