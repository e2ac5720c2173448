# in: Program.mm
# says: cannot initialize a parameter of type 'NSApplicationActivationPolicy'
s/NSApplicationActivationPolicyAccessory/NSWindowAnimationBehaviorNone/
