#pragma once

#include "automation/local_object.h"

#include <string>
#include <utility>
#include <variant>

namespace rf::native {

/// An open file, closed when this object goes.
class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor)
        : descriptor_(descriptor)
    {
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1))
    {
    }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileDescriptor();

    [[nodiscard]] int get() const { return descriptor_; }
    /// 0, or the `errno` of a failure. The file counts as closed either way.
    [[nodiscard]] int close();

private:
    int descriptor_;
};

/// How a text file holds its text: "ANSI" is UTF-8 here, Unicode is UTF-16 in the lower byte first, with a mark.
enum class TextEncoding { Ansi, Unicode };

/// An open text file of "Scripting.FileSystemObject". One that is read holds the whole file from the start; one that
/// is written has no buffer, so that no text can be lost unnoticed when the stream goes.
class ScriptingTextStream final : public automation::LocalObject<ScriptingTextStream> {
public:
    static constexpr TextView className = u"TextStream";
    static std::span<const automation::LocalMember<ScriptingTextStream>> members();

    /// A stream that reads a file from where it stands.
    struct Read { };
    ScriptingTextStream(Read, const FileDescriptor& file, TextEncoding encoding);
    /// A stream that writes a file; an empty one gets its mark at once.
    struct Write { };
    ScriptingTextStream(Write, FileDescriptor file, TextEncoding encoding);

private:
    struct Closed { };
    struct Reader {
        Text content;
        std::size_t position = 0;
    };
    struct Writer {
        FileDescriptor file;
        TextEncoding encoding;
    };
    using State = std::variant<Closed, Reader, Writer>;

    /// Error 91 once the stream is closed, 54 when it was opened for the other direction.
    template <class Mode>
    [[nodiscard]] Mode& opened();

    [[nodiscard]] bool atEnd();
    [[nodiscard]] Text readAll();
    [[nodiscard]] Text readLine();
    void write(TextView text);
    void close();

    State state_;
};

} // namespace rf::native
