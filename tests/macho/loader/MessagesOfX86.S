// x86-64: keeps every register that can hold an argument while the method is looked up, and goes on to it as
// if the caller had called it. Frames are described, as an exception may come out of the look-up.
    .text

    .macro message name, lookUp, toNil
    .globl \name
    .type \name, @function
\name:
    .cfi_startproc
    endbr64
    pushq %rbp
    .cfi_def_cfa_offset 16
    .cfi_offset %rbp, -16
    movq %rsp, %rbp
    .cfi_def_cfa_register %rbp
    subq $192, %rsp
    movq %rdi, -8(%rbp)
    movq %rsi, -16(%rbp)
    movq %rdx, -24(%rbp)
    movq %rcx, -32(%rbp)
    movq %r8, -40(%rbp)
    movq %r9, -48(%rbp)
    movq %rax, -56(%rbp)
    movaps %xmm0, -80(%rbp)
    movaps %xmm1, -96(%rbp)
    movaps %xmm2, -112(%rbp)
    movaps %xmm3, -128(%rbp)
    movaps %xmm4, -144(%rbp)
    movaps %xmm5, -160(%rbp)
    movaps %xmm6, -176(%rbp)
    movaps %xmm7, -192(%rbp)
    leaq \toNil(%rip), %rcx
    call \lookUp@PLT
    movq %rax, %r11
    movq -8(%rbp), %rdi
    movq -16(%rbp), %rsi
    movq -24(%rbp), %rdx
    movq -32(%rbp), %rcx
    movq -40(%rbp), %r8
    movq -48(%rbp), %r9
    movq -56(%rbp), %rax
    movaps -80(%rbp), %xmm0
    movaps -96(%rbp), %xmm1
    movaps -112(%rbp), %xmm2
    movaps -128(%rbp), %xmm3
    movaps -144(%rbp), %xmm4
    movaps -160(%rbp), %xmm5
    movaps -176(%rbp), %xmm6
    movaps -192(%rbp), %xmm7
    leave
    .cfi_def_cfa %rsp, 8
    .cfi_same_value %rbp
    jmp *%r11
    .cfi_endproc
    .size \name, . - \name
    .endm

    message kestruneMessage, kestruneLookUp, zero
    message kestruneMessageForStructure, kestruneLookUpForStructure, place
    message kestruneCheckedMessage, kestruneLookUpChecked, zero
    message kestruneCheckedMessageForStructure, kestruneLookUpCheckedForStructure, place

    .type zero, @function
zero:
    .cfi_startproc
    endbr64
    xorl %eax, %eax
    xorl %edx, %edx
    xorps %xmm0, %xmm0
    xorps %xmm1, %xmm1
    ret
    .cfi_endproc
    .size zero, . - zero

    .type place, @function
place:
    .cfi_startproc
    endbr64
    movq %rdi, %rax
    ret
    .cfi_endproc
    .size place, . - place

    .section .note.GNU-stack, "", %progbits
