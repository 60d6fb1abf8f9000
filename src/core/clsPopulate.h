// Fills the tree of books and chapters.
#pragma once

class TreeView;

class clsPopulate {
public:
    // Both testaments with their books, in the names in use, and their chapters. Keys: "Root1",
    // "Root2"; "X" and the book's number; book ":" chapter.
    void PopulateTree(TreeView& tree);
};
