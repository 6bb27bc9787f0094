#pragma once
// A control bound to a field of a file: how it loads from the file, takes its default, gives its
// value to the save, and tells the page of the user's changes. A page holds one binding per bound
// control; its LoadSettings, RestoreDefaults and SaveSettings run them.

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shell/controls.h"
#include "shell/page_decl.h"
#include "store/hub_profiles.h"
#include "store/schema.h"
#include "store/table_files.h"

namespace qb::shell {

class Binding {
  public:
    Binding(const store::FileSchema& file, const store::Field& field, std::string key)
        : file_(file), field_(field), key_(std::move(key)) {}
    virtual ~Binding() = default;
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

    const store::FileSchema& File() const { return file_; }
    const store::Field& Field() const { return field_; }
    // The bound key: a field's, or "tSub.bRow" for one row of named flags.
    const std::string& Key() const { return key_; }

    virtual void Load(store::TableFiles& files, const store::ProfileList& profiles) = 0;
    virtual void Restore(const store::ProfileList& profiles) = 0;
    // What the save writes: the value of a row (a profile number, a named flag's index), or the
    // rows of a list.
    virtual std::string Value(int row) const = 0;
    // The value the save writes for a field of the file as Shape left it.
    virtual std::string ValueOf(const store::Field&, int row) const { return Value(row); }
    virtual std::vector<store::ListEntry> Rows() const { return {}; }
    // Where the rows a list holds are the file's rows: the field as the save writes it.
    virtual void Shape(store::FileSchema&) const {}
    // Takes in another control of the same field, as the options of one group are bound
    // together; false where the binding holds one control only.
    virtual bool Join(Control&, const ControlDecl&) { return false; }

  private:
    const store::FileSchema& file_;
    const store::Field& field_;
    std::string key_;
};

// The binding of a declared control, with `markDirty` run on each change the user makes; null
// for a control bound to nothing.
std::unique_ptr<Binding> Bind(const ControlDecl& decl, const store::FileSchema* file,
                              Control& control, Control* textBox,
                              const std::function<void()>& markDirty);

// Makes a declared control, with no binding yet.
std::unique_ptr<Control> MakeControl(const ControlDecl& decl);

}  // namespace qb::shell
