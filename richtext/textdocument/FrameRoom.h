// Room for the borders above and below a frame, which the toolkit's layout knows nothing of: the first
// paragraph of a frame is shown with a larger space before it, the last one with a larger one behind it. What
// the page tells of its spaces is kept beside them.
#pragma once

class QTextDocument;

namespace richtext {

// Of the paragraphs from one that holds a position to one that holds another, by what stands beside them now.
// What changes belongs to the step of undo before.
void MakeRoomForFrames(QTextDocument& document, int from, int to);

}  // namespace richtext
