#pragma once

#include <map>
#include <optional>
#include <vector>

#include "control/PropertyValue.h"
#include "platform/Files.h"

namespace ostrel {

/// Where a container keeps the properties of a stored control: values by key, each of one kind. A key that is
/// missing is told apart from an empty value.
class Bag {
public:
    virtual ~Bag() = default;
    virtual std::optional<PropertyValue> Read(const Text& key) const = 0;
    virtual void Write(const Text& key, PropertyValue value) = 0;
    virtual void Remove(const Text& key) = 0;
};

/// A bag in memory. It remembers the order in which keys were first written.
class MapBag : public Bag {
public:
    struct Entry {
        Text key;
        PropertyValue value;
    };

    std::optional<PropertyValue> Read(const Text& key) const override;
    void Write(const Text& key, PropertyValue value) override;
    void Remove(const Text& key) override;
    const std::vector<Entry>& Entries() const { return entries_; }
    void Clear();

private:
    std::vector<Entry> entries_;
    std::map<Text, std::size_t> places_;
};

/// A bag that lies in a readable file, one key a line: `HelpDelay = 50`, `Offline = False`,
/// `PageTitle = "Sales \"2001\""`, `Icon = picture "C:\\host.ico"`. Inside quotes a backslash stands before
/// quotes and backslashes, `\r`, `\n` and `\t` are the control characters, and all that is not plain ASCII is
/// `\xHH`, so the file survives any editor. Lines starting with "#" and lines that are damaged are passed
/// over; of a key that stands there twice the last good line holds.
class FileBag final : public MapBag {
public:
    FileBag(Files& files, Text path) : files_(files), path_(std::move(path)) {}
    /// Replaces what the bag holds by the file. A missing file is an empty bag; one that cannot be read
    /// leaves the bag empty and says why.
    FileResult Load();
    /// In one step: the old file or the new one stands there whole.
    FileResult Save() const;

private:
    Files& files_;
    Text path_;
};

/// The file's text of a bag, and back.
Text FormatBag(const MapBag& bag);
void ParseBag(TextView text, MapBag& bag);

} // namespace ostrel
