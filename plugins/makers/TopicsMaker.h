// Makes the file of topics, empty: what will stand in it is the user's.
#pragma once

#include "makers/Maker.h"

class TopicsMaker final : public Maker {
public:
    MadeFile make(const Order& order, Progress& progress) override;
};
