// The rows that a cursor can stand on, and their order.
#pragma once

#include "store/RowScan.h"

#include <memory>

struct Row {
    qint64 number = 0;               // the engine's number of the row
    std::vector<StoredValue> values; // in the order of the table's columns

    // How much room its texts and blobs take.
    size_t bytes() const;
};

// Rows that are read in one go: up to a number of rows, and of bytes where rows are large.
class RowBatch {
public:
    explicit RowBatch(size_t rowLimit)
        : m_rowLimit(rowLimit) {}

    size_t missing() const { return isFull() ? 0 : m_rowLimit - m_rows.size(); }
    bool isFull() const { return m_rows.size() >= m_rowLimit || m_bytes >= ByteLimit; }
    void add(Row row);
    std::vector<Row>& rows() { return m_rows; }

private:
    static constexpr size_t ByteLimit = size_t(256) * 1024;

    std::vector<Row> m_rows;
    size_t m_rowLimit;
    size_t m_bytes = 0;
};

class RowSource {
public:
    RowSource(std::shared_ptr<const Connection> connection, TableSchema table);
    virtual ~RowSource() = default;
    Q_DISABLE_COPY_MOVE(RowSource)

    const TableSchema& table() const { return m_table; }
    const std::shared_ptr<const Connection>& connection() const { return m_connection; }

    // Reads into the batch, nearest first, the rows beyond `from` in the order of the source (which
    // need not exist any more), or from its end without one. To be called in a transaction.
    virtual void read(const Row* from, Direction direction, RowBatch& batch) = 0;

    // The row as it now is; no value if it does not exist any more.
    std::optional<Row> rowNumbered(qint64 number);

    // The numbers of the rows that belong to the source, ascending; nullptr if all do.
    virtual const std::vector<qint64>* listed() const { return nullptr; }

    // Note that a row belongs to the source from now on, or no more. They matter where rows are
    // listed.
    virtual void include(qint64) {}
    virtual void exclude(qint64) {}

protected:
    Row takeRow(const Statement& statement) const;

private:
    std::shared_ptr<const Connection> m_connection;
    TableSchema m_table;
    std::unique_ptr<Statement> m_byNumber; // prepared once it is needed
};

// All rows of a table, in the order of an index (rows of one key in row order) or in row order.
class TableRows final : public RowSource {
public:
    TableRows(
        std::shared_ptr<const Connection> connection, TableSchema table,
        std::optional<KeyIndex> index = std::nullopt);

    void read(const Row* from, Direction direction, RowBatch& batch) override;

    bool hasIndex() const { return m_index.has_value(); }
    const KeyIndex& index() const { return *m_index; }

    // The first row whose key starts with these values.
    std::optional<Row> firstWithKey(const std::vector<StoredValue>& values);

private:
    // A stretch of the order: the rows that share the first key columns with a given row, and whose
    // next one lies beyond its, or is any value but Null. Together, stretches make "all rows
    // beyond this one" without ever comparing with Null.
    struct Stretch {
        enum class Next { Any, Beyond, NotNull };

        Direction direction = Direction::Forward;
        size_t sharedColumns = 0;
        Next next = Next::Any;

        // How many values of a key its statement takes.
        int keyParameters() const {
            return static_cast<int>(sharedColumns) + (next == Next::Any ? 0 : 1);
        }
        bool operator==(const Stretch&) const = default;
    };

    size_t keySize() const { return m_index ? m_index->columns.size() : 0; }
    const Column& keyColumn(size_t place) const;
    QByteArray nameInOrder(size_t place) const;
    QByteArray sql(const Stretch& stretch) const;
    Statement& statementFor(const Stretch& stretch);
    std::vector<StoredValue> keyOf(const Row& row) const;
    void readStretch(const Stretch& stretch, const std::vector<StoredValue>& key, RowBatch& batch);
    void checkOrder(const Row& earlier, const Row& later, Direction direction) const;

    std::optional<KeyIndex> m_index;
    std::vector<std::pair<Stretch, std::unique_ptr<Statement>>> m_statements;
};

// Some rows of a table, chosen once, in row order. Rows that were deleted since are passed over.
class ListedRows final : public RowSource {
public:
    ListedRows(
        std::shared_ptr<const Connection> connection, TableSchema table,
        std::vector<qint64> numbers);

    void read(const Row* from, Direction direction, RowBatch& batch) override;
    const std::vector<qint64>* listed() const override { return &m_numbers; }
    void include(qint64 number) override;
    void exclude(qint64 number) override;

private:
    std::vector<qint64> m_numbers;
};
