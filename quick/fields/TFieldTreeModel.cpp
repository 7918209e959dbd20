#include "fields/TFieldTreeModel.h"

#include "fields/FieldPath.h"
#include "module/TBackground.h"
#include "module/TParameterHub.h"
#include "stores/TChangeAuthor.h"
#include "stores/TPersistenceHold.h"
#include "stores/TSqliteStore.h"
#include "terminal/ActiveItems.h"
#include "terminal/SizeText.h"
#include "texts/HostText.h"

#include <algorithm>
#include <iterator>

namespace {

/// The selections by the length of their path less one.
constexpr EParamID Selections[] = {PARAM_CLIENT, PARAM_FARM, PARAM_FIELD, PARAM_ACTIVE_JOB};
static_assert(std::size(Selections) == FieldPath::MostNames);

const int MostNames = FieldPath::MostNames;

QString Selected(int level) { return ActiveItems::Name(*TParameterCatalogue::Find(Selections[level])); }

/// Whether the items of @p path are selected.
bool IsSelected(const QStringList& path)
{
    for (int level = 0; level < path.size(); ++level) {
        if (Selected(level) != path.at(level))
            return false;
    }
    return true;
}

EFieldResult Choose(TParameterStore& store, TFieldTree& tree, const QStringList& path, QString* error)
{
    QList<tagFieldItem> items;
    const EFieldResult result = tree.List(FIELD_DRIVE_INTERNAL, path, &items, error);
    if (result != FIELD_DONE || IsSelected(path))
        return result;
    TPersistenceHold hold(store); // one transaction
    for (int level = 0; level < MostNames; ++level)
        ActiveItems::Select(store, *TParameterCatalogue::Find(Selections[level]), path.value(level, QLatin1String("")));
    if (hold.Release())
        return FIELD_DONE;
    *error = QLatin1String("cannot store the selection");
    return FIELD_FAILED;
}

bool AreSame(const QList<tagFieldItem>& some, const QList<tagFieldItem>& others)
{
    const auto haveSameName = [](const tagFieldItem& one, const tagFieldItem& other) { return one.path == other.path; };
    return std::equal(some.begin(), some.end(), others.begin(), others.end(), haveSameName);
}

} // namespace

TFieldTreeModel::TFieldTreeModel(QObject* parent) : QAbstractListModel(parent)
{
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, [this](int number) {
        if (std::find(std::begin(Selections), std::end(Selections), number) != std::end(Selections))
            Read();
    });
    Read();
}

void TFieldTreeModel::SetPath(const QStringList& path)
{
    if (path == m_Path)
        return;
    m_Path = path;
    emit pathChanged();
    Read();
}

QString TFieldTreeModel::Level() const
{
    return m_Path.size() < MostNames ? FieldPath::Kind(m_Path + QStringList(QString())) : QString();
}

QString TFieldTreeModel::checkName(const QString& name) const
{
    if (m_Path.size() >= MostNames)
        return tr("A job holds no items.");
    QString error;
    if (!FieldPath::IsName(m_Path + QStringList(name), name, &error))
        return CabQuick::HostText(error);
    const auto isTaken = [&name](const tagFieldItem& item) {
        return FieldPath::Folded(item.path.last()) == FieldPath::Folded(name);
    };
    return std::any_of(m_Items.begin(), m_Items.end(), isTaken) ? tr("There is one with this name already.")
                                                                : QString();
}

void TFieldTreeModel::add(const QString& name)
{
    const QStringList path = m_Path + QStringList(name);
    Run([path](TFieldTree& tree, QString* error) {
        return FieldPath::Read(FieldPath::Text(path), error) == path ? tree.Add(path, error) : FIELD_FAILED;
    });
}

void TFieldTreeModel::rename(const QString& name, const QString& newName)
{
    const QStringList path = m_Path + QStringList(name);
    Run([path, newName](TFieldTree& tree, QString* error) { return tree.Rename(path, newName, error); });
}

void TFieldTreeModel::remove(const QString& name, bool force)
{
    const QStringList path = m_Path + QStringList(name);
    Run([path, force](TFieldTree& tree, QString* error) { return tree.Remove(path, force, error); });
}

void TFieldTreeModel::choose(const QString& name)
{
    const QStringList path = m_Path + QStringList(name);
    TSqliteStore& store = TParameterHub::Instance().Store();
    Run([path, &store](TFieldTree& tree, QString* error) { return Choose(store, tree, path, error); });
}

void TFieldTreeModel::Run(const TOperation& operation)
{
    TSqliteStore& store = TParameterHub::Instance().Store();
    CountJobs(1);
    TBackground::Lane("fields").Run(
        this,
        [&store, operation] {
            const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
            TFieldTree tree(store);
            QString error;
            const EFieldResult result = operation(tree, &error);
            return tagResult{result, CabQuick::HostText(error)};
        },
        [this](const tagResult& result) {
            const bool isDone = result.result == FIELD_DONE;
            Read();
            SetError(isDone ? QString() : result.error, result.result == FIELD_REFUSED);
            CountJobs(-1);
            emit done(isDone, m_Error);
        });
}

void TFieldTreeModel::Read()
{
    TSqliteStore& store = TParameterHub::Instance().Store();
    const QStringList path = m_Path;
    const int reading = ++m_Readings;
    CountJobs(1);
    TBackground::Lane("fields").Run(
        this,
        [&store, path] {
            tagListing listing = {path, {}, QString()};
            if (path.size() < MostNames)
                TFieldTree(store).List(FIELD_DRIVE_INTERNAL, path, &listing.items, &listing.error);
            listing.error = CabQuick::HostText(listing.error);
            const auto isDeeper = [&path](const tagFieldItem& item) { return item.path.size() != path.size() + 1; };
            listing.items.erase(std::remove_if(listing.items.begin(), listing.items.end(), isDeeper),
                                listing.items.end());
            return listing;
        },
        [this, reading](const tagListing& listing) {
            if (reading == m_Readings)
                Take(listing);
            CountJobs(-1);
        });
}

void TFieldTreeModel::Take(const tagListing& listing)
{
    if (!listing.error.isEmpty())
        SetError(listing.error, false);
    if (AreSame(listing.items, m_Items)) {
        m_Items = listing.items;
        if (!m_Items.isEmpty())
            emit dataChanged(index(0), index(Count() - 1));
        return;
    }
    beginResetModel();
    m_Items = listing.items;
    endResetModel();
    emit countChanged();
}

void TFieldTreeModel::CountJobs(int change)
{
    const bool wasBusy = IsBusy();
    m_Jobs += change;
    if (IsBusy() != wasBusy)
        emit busyChanged();
}

void TFieldTreeModel::SetError(const QString& error, bool isRefused)
{
    if (error == m_Error && isRefused == m_IsRefused)
        return;
    m_Error = error;
    m_IsRefused = isRefused;
    emit errorChanged();
}

int TFieldTreeModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Count(); }

QVariant TFieldTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= Count())
        return QVariant();
    const tagFieldItem& item = m_Items.at(index.row());
    switch (role) {
    case ROLE_NAME:
        return item.path.last();
    case ROLE_IS_ACTIVE:
        return item.isActive;
    case ROLE_FILES:
        return item.files;
    case ROLE_BYTES:
        return static_cast<double>(item.bytes);
    case ROLE_SIZE_TEXT:
        return tr("%n file(s), %1", nullptr, item.files).arg(SizeText(item.bytes));
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> TFieldTreeModel::roleNames() const
{
    return {{ROLE_NAME, "name"},
            {ROLE_IS_ACTIVE, "isActive"},
            {ROLE_FILES, "files"},
            {ROLE_BYTES, "bytes"},
            {ROLE_SIZE_TEXT, "sizeText"}};
}
