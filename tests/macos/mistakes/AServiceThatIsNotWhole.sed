# in: AppKitPointer.mm
# says: out-of-line definition of 'isButtonDown'
s/::isButtonHeld/::isButtonDown/
