# in: Program.mm
# says: use of undeclared identifier 'NSApplicationActivationPolicyAccesory'
s/PolicyAccessory/PolicyAccesory/
