#include "cli/page_json.h"

#include <cstdio>

#include "store/cp1252.h"

namespace qb::cli {
namespace {

using shell::Control;
using shell::ControlKind;

class JsonObject {
  public:
    explicit JsonObject(std::string& out) : out_(out) { out_ += '{'; }
    ~JsonObject() { out_ += '}'; }
    JsonObject(const JsonObject&) = delete;
    JsonObject& operator=(const JsonObject&) = delete;

    std::string& Key(const char* key) {
        if (!first_) out_ += ',';
        first_ = false;
        out_ += '"';
        out_ += key;
        out_ += "\":";
        return out_;
    }
    void Text(const char* key, const std::string& cp1252) { Key(key) += JsonString(cp1252); }
    void Number(const char* key, long value) { Key(key) += std::to_string(value); }
    void Bool(const char* key, bool value) { Key(key) += value ? "true" : "false"; }

  private:
    std::string& out_;
    bool first_ = true;
};

template <class Items, class Each>
void Array(std::string& out, const Items& items, Each each) {
    out += '[';
    bool first = true;
    for (const auto& item : items) {
        if (!first) out += ',';
        first = false;
        each(item);
    }
    out += ']';
}

const char* KindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::List:
            return "list";
        case ControlKind::Toolbar:
            return "toolbar";
        case ControlKind::StatusBar:
            return "status";
        case ControlKind::Text:
            return "text";
        case ControlKind::Check:
            return "check";
        case ControlKind::Combo:
            return "combo";
        case ControlKind::UpDown:
            return "updown";
        case ControlKind::Label:
            return "label";
        case ControlKind::Frame:
            return "frame";
        case ControlKind::Button:
            return "button";
        case ControlKind::Tooltip:
            return "tooltip";
        case ControlKind::Option:
            return "option";
        case ControlKind::Slider:
            return "slider";
    }
    return "?";
}

void ListJson(JsonObject& json, std::string& out, const shell::ListControl& list) {
    json.Bool("checkboxes", list.CheckBoxes());
    // What a page keeps on the list itself, such as the name of the file it holds.
    if (!list.Tag().empty()) json.Text("tag", list.Tag());
    Array(json.Key("columns"), list.Columns(), [&](const shell::ListColumn& column) {
        JsonObject c(out);
        c.Text("key", column.key);
        c.Text("text", column.text);
        c.Number("width", column.width);
    });
    int index = 0;
    Array(json.Key("rows"), list.Rows(), [&](const shell::ListRow& row) {
        ++index;
        JsonObject r(out);
        r.Text("key", row.key);
        r.Text("text", row.text);
        r.Bool("checked", row.checked);
        Array(r.Key("cells"), row.cells, [&](const std::string& cell) { out += JsonString(cell); });
        r.Bool("selected", list.Selected() == index);
    });
}

void ControlJson(std::string& out, const Control& control) {
    JsonObject json(out);
    json.Text("name", control.Name());
    json.Text("kind", KindName(control.Kind()));
    if (!control.Enabled()) json.Bool("enabled", false);
    if (!control.Visible()) json.Bool("visible", false);
    switch (control.Kind()) {
        case ControlKind::List:
            ListJson(json, out, static_cast<const shell::ListControl&>(control));
            break;
        case ControlKind::Toolbar: {
            const auto& toolbar = static_cast<const shell::Toolbar&>(control);
            std::vector<const shell::ToolButton*> buttons;
            for (const auto& button : toolbar.Buttons()) {
                if (!button.separator) buttons.push_back(&button);
            }
            Array(json.Key("buttons"), buttons, [&](const shell::ToolButton* button) {
                JsonObject b(out);
                b.Text("key", button->key);
                b.Bool("enabled", button->enabled);
                b.Text("tip", button->tip);
                b.Bool("pressed", button->pressed);
                if (!button->menu.empty()) {
                    Array(b.Key("menu"), button->menu, [&](const shell::MenuEntry& entry) {
                        JsonObject m(out);
                        m.Text("key", entry.key);
                        m.Text("text", entry.text);
                    });
                }
            });
            break;
        }
        case ControlKind::Check: {
            const auto& check = static_cast<const shell::CheckBox&>(control);
            json.Text("caption", check.Caption());
            json.Number("value", check.Value());
            break;
        }
        case ControlKind::Option: {
            const auto& option = static_cast<const shell::OptionButton&>(control);
            json.Text("caption", option.Caption());
            json.Number("value", option.Value());
            break;
        }
        case ControlKind::Text: {
            const auto& text = static_cast<const shell::TextBox&>(control);
            json.Text("caption", text.Caption());
            json.Text("value", text.Text());
            json.Bool("readonly", text.ReadOnly());
            break;
        }
        case ControlKind::Combo: {
            const auto& combo = static_cast<const shell::ComboBox&>(control);
            json.Text("caption", combo.Caption());
            json.Text("value", combo.Text());
            Array(json.Key("items"), combo.Items(),
                  [&](const std::string& item) { out += JsonString(item); });
            break;
        }
        case ControlKind::UpDown: {
            const auto& updown = static_cast<const shell::UpDown&>(control);
            json.Number("value", updown.Value());
            json.Number("min", updown.Min());
            json.Number("max", updown.Max());
            json.Number("step", updown.Step());
            break;
        }
        case ControlKind::Slider: {
            const auto& slider = static_cast<const shell::Slider&>(control);
            json.Text("caption", slider.Caption());
            json.Number("value", slider.Value());
            json.Number("min", slider.Min());
            json.Number("max", slider.Max());
            break;
        }
        case ControlKind::Label:
        case ControlKind::Frame:
        case ControlKind::Button:
            json.Text("caption", control.Caption());
            break;
        case ControlKind::Tooltip: {
            const auto& tip = static_cast<const shell::Tooltip&>(control);
            json.Text("parent", tip.Parent());
            json.Text("title", tip.Title());
            json.Text("text", tip.TipText());
            break;
        }
        case ControlKind::StatusBar:
            break;
    }
}

}  // namespace

std::string JsonString(const std::string& cp1252) {
    std::string out = "\"";
    for (char c : store::Cp1252ToUtf8(cp1252)) {
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (static_cast<unsigned char>(c) < 0x20) {
                    char buffer[8];
                    std::snprintf(buffer, sizeof buffer, "\\u%04x", static_cast<unsigned>(c));
                    out += buffer;
                } else {
                    out += c;
                }
        }
    }
    return out + "\"";
}

std::string PageJson(const shell::Page& page) {
    std::string out;
    {
        JsonObject json(out);
        json.Text("key", page.Key());
        json.Text("caption", page.Caption());
        json.Bool("dirty", page.SaveRequired());
        if (page.DiskBarShown()) {
            // The bar over the page when another program changed its files.
            std::string& bar = json.Key("diskBar");
            JsonObject fields(bar);
            fields.Text("text", shell::Page::kDiskBarText);
            Array(fields.Key("files"), page.DiskBarFiles(),
                  [&](const std::string& file) { bar += JsonString(file); });
            Array(fields.Key("buttons"), std::vector<std::string>{"Reload", "Keep mine"},
                  [&](const std::string& button) { bar += JsonString(button); });
        }
        Array(json.Key("status"), page.Status().Panels(),
              [&](const shell::StatusPanel& panel) { out += JsonString(panel.text); });
        std::vector<const Control*> controls;
        for (const auto& control : page.Controls()) {
            if (control->Kind() != ControlKind::StatusBar) controls.push_back(control.get());
        }
        Array(json.Key("controls"), controls,
              [&](const Control* control) { ControlJson(out, *control); });
    }
    return out;
}

std::string ContainerJson(const shell::Container& container) {
    auto& c = const_cast<shell::Container&>(container);
    std::string out;
    {
        JsonObject json(out);
        json.Text("caption", container.WindowCaption());
        json.Bool("sidebar", container.SideBarVisible());
        json.Text("selected", container.SelectedNode());
        Array(json.Key("expanded"), container.ExpandedNodes(),
              [&](const std::string& key) { out += JsonString(key); });
        json.Text("active", container.Active() != nullptr ? container.Active()->Key() : "");
        Array(json.Key("pages"), container.OpenPages(),
              [&](const std::unique_ptr<shell::Page>& page) { out += JsonString(page->Key()); });
        std::vector<shell::WindowsMenuItem> shown;
        for (const auto& item : container.WindowsMenu()) {
            if (item.visible) shown.push_back(item);
        }
        Array(json.Key("windowsMenu"), shown, [&](const shell::WindowsMenuItem& item) {
            JsonObject m(out);
            m.Text("caption", item.caption);
            m.Text("tag", item.tag);
        });
        Array(json.Key("openWindows"), container.OpenWindows(),
              [&](const shell::COpenWindow& entry) { out += JsonString(entry.WindowName()); });
        {
            JsonObject counters(json.Key("counters"));
            for (const auto& group : container.Navigation().groups)
                counters.Number(group.key.c_str(), container.GroupCounter(group.key));
        }
        Array(json.Key("status"), c.Status().Panels(),
              [&](const shell::StatusPanel& panel) { out += JsonString(panel.text); });
    }
    return out;
}

}  // namespace qb::cli
