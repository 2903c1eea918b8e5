#include "entry.h"

#include "windows/openentry.h"

#include <optional>

#include <windows.h>

namespace platform {

Entry inspect(const QString &path)
{
    const auto failure = [](DWORD error) {
        return isMissing(error) ? Entry() : Entry{EntryKind::Other, 0, reasonOf(error), {}};
    };
    const QString extended = extendedPath(path);
    if (extended.isEmpty())
        return {};
    const UniqueHandle entry = openEntry(extended, FILE_READ_ATTRIBUTES, Links::Open);
    if (!entry.isValid())
        return failure(::GetLastError());
    if (PlaceCheck().placeOf(entry, extended) == PlaceCheck::Place::Elsewhere)
        return {EntryKind::Link, 0, {}, {}};
    const std::optional<EntryAttributes> attributes = attributesOf(entry);
    if (!attributes)
        return failure(::GetLastError());
    if (::GetFileType(entry.get()) != FILE_TYPE_DISK)
        return {EntryKind::Other, 0, {}, {}};
    FILE_STANDARD_INFO standard{};
    if (!::GetFileInformationByHandleEx(entry.get(), FileStandardInfo, &standard, sizeof standard))
        return failure(::GetLastError());
    switch (attributes->nature) {
    case EntryNature::File:
        return {EntryKind::File, standard.EndOfFile.QuadPart, {}, idOfFolder(folderOf(path))};
    case EntryNature::Folder:
        return {EntryKind::Folder, 0, {}, {}};
    case EntryNature::FileLink:
    case EntryNature::FolderLink:
        return {EntryKind::Link, 0, {}, {}};
    case EntryNature::Special:
        break;
    }
    return {EntryKind::Other, 0, {}, {}};
}

} // namespace platform
