// Makes the file of the commentary: one row for each chapter that has a comment.
#pragma once

#include "makers/Maker.h"
#include "readers/SwordComments.h"

class CommentMaker final : public Maker {
public:
    explicit CommentMaker(std::unique_ptr<SwordComments> source)
        : m_source(std::move(source)) {}

    // Rows in canonical order, counted from 1. The introduction of a book opens the comment on its
    // first chapter. Error::NotADatabase for a source without a comment.
    MadeFile make(const Order& order, Progress& progress) override;

private:
    std::unique_ptr<SwordComments> m_source;
};
