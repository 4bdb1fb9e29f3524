// The row of Pictures that a new picture gets, and its place on the current page.
#pragma once

#include <string>

// The current page has its seven pictures; those whose files have gone count.
bool PageIsFull();

// Makes the row for AddFile in AddWidth by AddHeight with the frame AddFrameIndex, whose full path is
// `frameFile`; empty where that is 0. Saves nothing and shows nothing.
void MakeRow(const std::string& frameFile);
