#include <QtTest>
