#pragma once

#include <initializer_list>

class QAbstractItemView;

/// Shows of each text of these views the first 1000 characters, far more than a column is wide. Names of the databases
/// and of plan files come into the views, and one of a million letters would be laid out for seconds whenever it is
/// drawn. What the items hold, and what is edited, stays whole.
void shortenTexts(std::initializer_list<QAbstractItemView*> views);
