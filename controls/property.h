#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "controls/object.h"
#include "controls/view.h"

namespace gsm {

using PropertyValue = std::variant<bool, int, std::string, std::vector<std::string>>;

/// "Caption" for `PropertyId::Caption`, and so on.
std::string_view nameOf(PropertyId property);

class PropertyBase;

/// What has properties: a window or a control.
class PropertyOwner : public Object {
 public:
  explicit PropertyOwner(std::string name) : name_(std::move(name)) {}
  PropertyOwner(const PropertyOwner&) = delete;
  PropertyOwner& operator=(const PropertyOwner&) = delete;

  /// The design's name of it, without an index.
  const std::string& name() const { return name_; }

  const std::vector<PropertyBase*>& properties() const { return properties_; }

  /// The property of that name, or null. Looks, without being a reference.
  const PropertyBase* property(std::string_view name) const;

  /// Ties `view`, which must outlive the tie, to the owner; null unties.
  void attach(View* view) { view_ = view; }

  /// Something is about to read or assign a property: the first reference loads the window.
  virtual void reference() const = 0;

  /// Puts every property back to its design value.
  void restoreDesign();

 protected:
  friend class PropertyBase;

  /// `property` has a new value. Owners that react to it override this and call it first.
  virtual void stored(PropertyId property) {
    if (view_ != nullptr) view_->changed(property);
  }

 private:
  std::string name_;
  std::vector<PropertyBase*> properties_;
  View* view_ = nullptr;
};

/// A property, seen without its type.
class PropertyBase {
 public:
  PropertyBase(PropertyOwner& owner, PropertyId id) : owner_(owner), id_(id) {
    owner.properties_.push_back(this);
  }
  virtual ~PropertyBase() = default;
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;

  PropertyId id() const { return id_; }

  /// The value as it stands; not a reference, so it never loads a window.
  virtual PropertyValue value() const = 0;

  virtual void restoreDesign() = 0;

 protected:
  PropertyOwner& owner() const { return owner_; }
  void announce() { owner_.stored(id_); }

 private:
  PropertyOwner& owner_;
  PropertyId id_;
};

/// A property of a window or a control, used like a variable: `Label1.Caption = "Open";`.
/// Every use from a handler is a reference, which loads the window.
template <class T>
class Property final : public PropertyBase {
 public:
  /// What an assignment does where it does more than store: cut, refuse, exclude, run `Click`.
  using Rule = void (*)(PropertyOwner& owner, T value);

  Property(PropertyOwner& owner, PropertyId id, T design, Rule rule = nullptr)
      : PropertyBase(owner, id), value_(design), design_(std::move(design)), rule_(rule) {}

  Property& operator=(T value) {
    owner().reference();
    if (rule_ != nullptr) {
      rule_(owner(), std::move(value));
    } else {
      store(std::move(value));
    }
    return *this;
  }
  Property& operator=(const Property& other) { return *this = other.get(); }

  const T& get() const {
    owner().reference();
    return value_;
  }
  operator const T&() const { return get(); }

  bool empty() const requires std::is_same_v<T, std::string> { return get().empty(); }

  friend bool operator==(const Property& property, const T& value) {
    return property.get() == value;
  }
  friend std::string operator+(const Property& property,
                               std::string_view text) requires std::is_same_v<T, std::string> {
    return std::string(property.get()).append(text);
  }
  friend std::string operator+(std::string_view text,
                               const Property& property) requires std::is_same_v<T, std::string> {
    return std::string(text).append(property.get());
  }

  // For the control itself and for views: no reference, no rule.
  const T& peek() const { return value_; }
  void store(T value) {
    if (value == value_) return;
    value_ = std::move(value);
    announce();
  }
  /// Changes the value in place, for values that are costly to copy.
  template <class Change>
  void change(Change&& change) {
    std::forward<Change>(change)(value_);
    announce();
  }

  PropertyValue value() const override { return value_; }
  void restoreDesign() override { store(design_); }

 private:
  T value_;
  const T design_;
  const Rule rule_;
};

}  // namespace gsm
