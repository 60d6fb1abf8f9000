// Puts groups of controls side by side, and goes on in a new row where one does not fit any more.
#pragma once

#include <QLayout>

class FlowLayout final : public QLayout {
    Q_OBJECT

public:
    FlowLayout(QWidget* parent, int spacing);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

private:
    // One row of items and the space that the widest-growing of them may take.
    struct Row {
        QList<QLayoutItem*> items;
        int width = 0;
        int height = 0;
    };

    QList<Row> rowsFor(int width) const;
    void placeRow(const Row& row, const QRect& area) const;

    QList<QLayoutItem*> m_items;
};
