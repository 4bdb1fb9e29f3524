#include "output/modExport.h"

#include <algorithm>
#include <string_view>

#include <QtCore/QFile>

#include "editor/PageFace.h"
#include "editor/PageTurning.h"
#include "look/Pass.h"
#include "output/ExportDisplay.h"
#include "output/ExportSettings.h"
#include "output/HtmlSections.h"
#include "output/PageLines.h"
#include "output/ReplaceText.h"
#include "pictures/PictureSlots.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "platform/files/OutputFile.h"
#include "richtext/box/RichTextBox.h"
#include "state/State.h"

std::string ExportTarget;

namespace {

const JournalEntry& OpenEntry() {
  return Journals.at(static_cast<std::size_t>(CurrentJournal));
}

std::string ExportRoot() {
  return platform::PathOf("export");
}

// The path of an entry of the export folder that is called after the journal. `name` is Windows-1252; one
// that would lead elsewhere is no name.
std::string PathInExportRoot(const std::string& name) {
  const std::string bytes = QFile::encodeName(platform::FromCodePage(name)).toStdString();
  const bool leadsElsewhere = bytes.find('/') != std::string::npos || bytes == "." || bytes == "..";
  if (leadsElsewhere || bytes.empty() || bytes.find('\0') != std::string::npos)
    throw platform::Failure(platform::FailureKind::BadFileName, bytes);
  return ExportRoot() + "/" + bytes;
}

std::string SinglePagePath() {
  return PathInExportRoot(OpenEntry().Name + ".html");
}

// Named after the journal's file, whose name never changes, without its ending of four characters.
std::string JournalFolder() {
  const std::string& fileName = OpenEntry().FileName;
  return PathInExportRoot(fileName.substr(0, fileName.size() - std::min<std::size_t>(4, fileName.size())));
}

std::string PagePath(const std::string& folder, std::int32_t page) {
  return folder + (page == 0 ? "/index.html" : "/page" + std::to_string(page) + ".html");
}

void MakeFolderIfMissing(const std::string& path) {
  if (platform::IsMissing(path)) platform::MakeFolder(path);
}

// An existing file is deleted if the user agrees.
bool MayWrite(const std::string& path) {
  if (!platform::FileExists(path)) return true;
  const platform::Message question{"File exists, overwrite?", platform::Buttons::OkCancel,
                                   platform::BoxIcon::Question};
  if (platform::ShowMessage(question) != platform::Answer::Ok) return false;
  platform::DeleteFile(path);
  return true;
}

// The current page's text as the text box gives it, in one line of HTML. Its formatting stays behind.
void WritePageText(const std::string& path) {
  const std::string text = WebLines(Face().txtM->Text());
  WriteHtmlLine(ReplaceText(text, std::string(HtmlLineEnd), "<BR>").append(HtmlLineEnd), path);
}

void WriteTableEnd(const std::string& path) {
  WriteHtmlLines(path, {"</TD>", "</TD>", "</TABLE>"});
}

void WriteFileEnd(const std::string& path, const ExportSettings& settings) {
  WriteTableEnd(path);
  WriteHtmlFooter(path, settings);
  WriteHtmlLines(path, {"</CENTER>", "</BODY>", "</HTML>"});
}

// One file of a multi-page export: the current page.
void WritePageFile(const std::string& folder, const std::string& path, const ExportSettings& settings) {
  WriteHtmlHead(path, settings);
  WriteHtmlBodyStart(path, CurrentPage, settings);
  WriteHtmlPictures(PictureRowsOnShow(), folder, path);
  WritePageText(path);
  if (CurrentPage == 0) {
    WriteHtmlLine("<BR>", path);
    if (settings.dateIndex) WriteHtmlDateIndex(path, settings);
  }
  WriteTableEnd(path);
  WriteHtmlLine("<BR>\r\n", path);
  if (!settings.topMenu) WriteHtmlMenuBar(CurrentPage, path, settings);
  WriteFileEnd(path, settings);
}

// The current page's content in the one file, its table closed and a rule behind it.
void WriteSinglePagePart(const std::string& path) {
  WriteHtmlPictures(PictureRowsOnShow(), ExportRoot(), path);
  WritePageText(path);
  WriteTableEnd(path);
  WriteHtmlLine("<HR>\r\n", path);
}

// Turns to each dated page in turn and has it written; the windows stay alive.
template <class WritePage>
void TurnPages(const ExportSettings& settings, ExportDisplay& display, WritePage&& writePage) {
  look::Pass pass;
  for (std::int32_t k = 1; k <= settings.pageCount; ++k) {
    GoNextPage();
    writePage(k);
    display.ShowStep(k + 2);
    pass.Yield();
  }
}

}  // namespace

int EnsureExportFolder() {
  try {
    MakeFolderIfMissing(ExportRoot());
    return 0;
  } catch (const platform::Failure& failure) {
    const platform::Failure description(failure.kind());  // the next word follows without a blank
    platform::ShowMessage(std::string(description.what()) +
                          "Error creating Export folder, check if Thorn Quill folders are read-only.");
    return 1;
  }
}

// The bookcase may remember more pages than are there, if the file has gone.
std::int32_t ExportedPageCount() {
  return std::min(OpenEntry().PageCount, PageCount);
}

void ExportMultiPage(const ExportSettings& settings, ExportDisplay& display) {
  GoFirstPage();
  const std::string folder = JournalFolder();
  MakeFolderIfMissing(ExportRoot());
  MakeFolderIfMissing(folder);
  std::string path = PagePath(folder, 0);
  if (!MayWrite(path)) return;
  ExportTarget = path;
  display.HideResult();
  display.ShowStart(settings.pageCount + 2);
  WritePageFile(folder, path, settings);
  display.ShowStep(2);
  TurnPages(settings, display, [&](std::int32_t k) {
    path = PagePath(folder, k);
    platform::DeleteFile(path);  // the one question was for all pages
    WritePageFile(folder, path, settings);
  });
  display.ShowResult(path);
}

void ExportSinglePage(const ExportSettings& settings, ExportDisplay& display) {
  display.HideResult();
  GoFirstPage();
  const std::string path = SinglePagePath();
  if (!MayWrite(path)) return;
  display.ShowStart(settings.pageCount + 2);
  WriteHtmlHead(path, settings);
  WriteHtmlBodyStart(path, -1, settings);
  WriteSinglePagePart(path);
  display.ShowStep(2);
  TurnPages(settings, display, [&](std::int32_t k) {
    WriteHtmlLines(path, {"<TABLE BORDER=0  width=100%>", "<TR>", "<TD>", HtmlFontLine});
    WriteHtmlPageCaption(path, k, settings);
    WriteSinglePagePart(path);
  });
  WriteFileEnd(path, settings);
  display.ShowResult(path);
  ExportTarget = path;
}
