#pragma once

#include <utility>

/// The state of one attribute of a step-dependent record in one step.
enum mdl_PropAttributeStateEnm : int {
  mdl_AttributeUnset = 0,      ///< never given: the record's default
  mdl_AttributeSet = 1,        ///< set in this step
  mdl_AttributePropagated = 2, ///< inherited from an earlier step
  mdl_AttributeModified = 3,   ///< changed in this step
};

/// A value of a model record together with its state in a step.
template <class T> class mdl_PropAttr {
public:
  mdl_PropAttr() = default;
  mdl_PropAttr(T value, mdl_PropAttributeStateEnm state, int uid = 0)
      : value_(std::move(value)), state_(state), uid_(uid) {}

  const T& ConstGet() const { return value_; }
  mdl_PropAttributeStateEnm State() const { return state_; }
  int Uid() const { return uid_; }
  /// True once the attribute has been given, in this step or an earlier one.
  bool IsActive() const { return state_ != mdl_AttributeUnset; }
  /// True when this step set or changed the value.
  bool IsModified() const { return state_ == mdl_AttributeSet || state_ == mdl_AttributeModified; }

  bool operator==(const T& value) const { return value_ == value; }
  bool operator==(mdl_PropAttributeStateEnm state) const { return state_ == state; }

private:
  T value_{};
  mdl_PropAttributeStateEnm state_ = mdl_AttributeUnset;
  int uid_ = 0;
};

/// The status of a step-dependent record (condition, load, field,
/// interaction, output request) in one step.
enum mdl_PropagationStatusEnm : int {
  PropNotInForce = 0,       ///< not yet created, or deactivated earlier
  PropCreated = 1,          ///< created in this step
  PropPropagated = 2,       ///< unchanged from the step before
  PropModified = 3,         ///< changed in this step
  PropDeactivated = 4,      ///< deactivated in this step
  PropBuiltIn = 8,          ///< in force by definition of the model
  PropPropagatedBase = 9,   ///< like PropPropagated, in the base state of a perturbation
  PropModifiedBase = 10,    ///< like PropModified, in the base state of a perturbation
  PropDeactivatedBase = 11, ///< like PropDeactivated, in the base state of a perturbation
  PropFieldReset = 15,      ///< fields only: forces a restart of the field's class
};
