// How high a page can become on the screen. The toolkit's layout never comes back from a page that is more
// than 8,388,607 pixels high, whether it was filled in, typed or pasted. So what is shown of a page is held
// below that: a paragraph that alone is too high is shown in smaller letters, and what would still be too
// high for the page is hidden. Both are a matter of the layout: the document and its undo history stay as
// they are.
//
// How high a paragraph is is known only when it has been laid out, which is too late. What is reckoned here
// is a height that it does not exceed, from the widths of letters in most fonts and from what a line that
// breaks leaves free. For plain text that is two to three times what comes of it: some five
// megabytes are shown whole at the usual width.
#pragma once

#include <climits>
#include <optional>
#include <string>
#include <unordered_map>

#include <QtCore/QString>

class QTextBlock;
class QTextBlockFormat;
class QTextDocument;

namespace richtext {

// All in pixels.
constexpr double TallestPage = 7'000'000;
constexpr double TallestParagraph = TallestPage / 2;

// The heights of the blocks of one document at one width.
class HeightBound {
 public:
  HeightBound(const QTextDocument& document, double width) : document_(document), width_(width) {}

  // What the letters between two positions of the block take at most, with its spaces before and behind.
  double Of(const QTextBlock& block, int from = 0, int to = INT_MAX);
  // What the block takes with all of its letters shown in that size, in points.
  double OfLettersIn(double points, const QTextBlock& block);
  // The lines of the block at most.
  double Lines(const QTextBlock& block);
  double OfAll();

 private:
  struct Letters {
    double body = 0;   // the height of a letter
    double share = 1;  // of its width and its line to those of most fonts, if more than 1
    double width = 0, height = 0;
    bool arePictures = false;
  };
  template <class Piece>
  const Letters& LettersOf(const Piece& piece);
  double BodyOf(const Letters& letters) const;
  double ShareOf(const QString& family);
  void Measure(const QTextBlock& block, int from, int to);
  void Add(const Letters& letters, const QString& text, int from, int to);
  void AddLetter(char16_t unit, double width);

  const QTextDocument& document_;
  const double width_;
  std::unordered_map<int, Letters> letters_;  // by the toolkit's number of their format
  std::unordered_map<std::string, double> shares_;
  std::optional<double> body_;  // of all letters, whatever their format tells
  // Of the block in hand.
  double room_ = 0;  // for a line
  double tab_ = 0;   // the widest
  double lines_ = 0;
  double word_ = 0;  // the width of the one in hand
  double line_ = 0;  // the height of the tallest
  double pictures_ = 0;
};

// Watches over what is shown of a document that is laid out.
class HeightGuard {
 public:
  explicit HeightGuard(QTextDocument& document) : document_(document) { SetWidth(0); }

  // To be told of each QTextDocument::contentsChange, of which the layout hears afterwards. Hides, lowers and
  // shows again what the change calls for.
  void NoteChange(int at, int removed, int added);
  // To be told before the document is laid out at another width; does nothing where it is the same.
  void SetWidth(double pixels);

  // Nothing is hidden, and all is in its own letters and lines.
  bool IsAllShown() const { return !Hides() && !lowers_ && !squeezes_; }

 private:
  bool Hides() const;
  int Recount();
  // The letters that a block is shown in, its own where there is no size, and what it takes then.
  struct Look {
    double height = 0;
    std::optional<double> points = {};
  };
  Look Shown(const QTextBlock& block);

  QTextDocument& document_;
  double width_ = 0;
  std::optional<HeightBound> heights_;  // that knows the formats since the document was cleared last
  double bound_ = 0;  // of what is shown; too much where something has gone since it was counted
  double recountAt_ = TallestPage;
  bool lowers_ = false;    // a paragraph is shown in smaller letters
  bool squeezes_ = false;  // one was filled in with lower lines
  bool hid_ = false;       // when it was counted last, a paragraph was hidden
  int blocks_ = 1;
};

}  // namespace richtext
