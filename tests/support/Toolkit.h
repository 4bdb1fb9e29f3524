// The toolkit, its keys and clicks, and what the tests use of the library: enough for most of them.
#pragma once

#include <algorithm>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include <QtTest/QTest>
#include <QtWidgets/QtWidgets>
