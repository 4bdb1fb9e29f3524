// Lists whose rows stand a little apart, so that the eye keeps to its line and the mouse hits it.
#pragma once

#include <QtWidgets/QAbstractItemView>

namespace look {

// Some pixels more for each row than its font needs. Beside a picture a text is set a little smaller where it
// would outgrow its place.
void GiveRowsAir(QAbstractItemView& list);

}  // namespace look
