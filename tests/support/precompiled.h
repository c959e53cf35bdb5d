// What nearly every test includes, of Qt and the standard library; never a header of ours, which change every day.
#pragma once

#include <QWebElement>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>
#include <QtSql>
#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
